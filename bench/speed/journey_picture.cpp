// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/journey_picture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <stdexcept>

#include "bench/speed/journey_steps.h"
#include "bench/table_printer.h"

namespace bench {

namespace {

// Sizes in SVG's units, which a browser shows as pixels.
constexpr double kLeft = 150.0;  // the names of the lanes
constexpr double kPlot = 700.0;
constexpr double kWidth = kLeft + kPlot + 20.0;
constexpr double kLane = 22.0;
constexpr double kBar = 14.0;
constexpr double kTitle = 40.0;
constexpr double kAxis = 34.0;
constexpr double kLegendLine = 20.0;
constexpr std::size_t kLegendColumns = 3;
constexpr double kPerSecond = 1000.0;  // milliseconds
constexpr double kCut = 16.0;          // width of the place where a pause is cut out

constexpr const char* kInk = "#222222";
constexpr const char* kGrid = "#dddddd";
constexpr const char* kOthers = "#9aa5b1";
constexpr const char* kPrinter = "#444444";

// One for each kind of step.
constexpr std::array<const char*, kStepKinds> kColours{
    "#9aa5b1", "#9aa5b1", "#1f77b4", "#d9d9d9", "#6baed6", "#b39ddb", "#8e6bbd", "#bcbd22",
    "#2ca02c", "#d62728", "#e377c2", "#ff7f0e", "#f3e3b3", "#17becf", "#9aa5b1"};

struct Bar {
  double begin;
  double end;
  std::string colour;
};

struct Lane {
  std::string name;
  std::vector<Bar> bars;
};

std::string attribute(const char* name, double value) {
  return std::string(" ") + name + "=\"" + number(value, 1) + "\"";
}

std::string text(double x, double y, const char* anchor, const std::string& words,
                 const std::string& more = "") {
  return "<text" + attribute("x", x) + attribute("y", y) + " text-anchor=\"" + anchor + "\"" +
         more + ">" + words + "</text>\n";
}

std::string rectangle(double x, double y, double width, double height, const std::string& colour) {
  return "<rect" + attribute("x", x) + attribute("y", y) + attribute("width", width) +
         attribute("height", height) + " fill=\"" + colour + "\"/>\n";
}

std::string upright(double x, double top, double bottom, const std::string& colour) {
  return "<line" + attribute("x1", x) + attribute("y1", top) + attribute("x2", x) +
         attribute("y2", bottom) + " stroke=\"" + colour + "\"/>\n";
}

bool is_of_the_filter(StepKind kind) {
  return kind >= StepKind::Load && kind <= StepKind::End;
}

// What came at the printer without a longer wait between is one bar.
Lane printer_lane(const Journey& journey) {
  constexpr double kSilence = 2.0;
  Lane lane{"bytes at the printer", {}};
  for (const Arrival& arrival : journey.arrivals) {
    if (arrival.event != "bytes") {
      continue;
    }
    if (lane.bars.empty() || arrival.time - lane.bars.back().end > kSilence) {
      lane.bars.push_back({arrival.time, arrival.time, kPrinter});
    }
    lane.bars.back().end = arrival.time;
  }
  return lane;
}

std::vector<Lane> lanes_of(const Journey& journey) {
  const std::vector<Step> steps = steps_of(journey);
  std::vector<Lane> lanes{{"lp", {{0.0, journey.lpEnded, kOthers}}},
                          {"scheduler",
                           {{journey.queued, journey.programs.back().started, kOthers},
                            {journey.programs.back().exited, journey.completed, kOthers}}}};
  for (std::size_t i = 0; i + 2 < journey.programs.size(); ++i) {
    const Program& program = journey.programs[i];
    lanes.push_back({program.name, {{program.started, program.exited, kOthers}}});
  }
  Lane own{"this filter", {}};
  for (const Step& step : steps) {
    if (is_of_the_filter(step.kind)) {
      own.bars.push_back({step.begin, step.end, kColours.at(static_cast<std::size_t>(step.kind))});
    }
  }
  lanes.push_back(own);
  const Program& backend = journey.programs.back();
  lanes.push_back({"backend " + backend.name, {{backend.started, backend.exited, kOthers}}});
  lanes.push_back(printer_lane(journey));
  return lanes;
}

// From milliseconds to the place across the picture; a time between `cutFrom` and `cutTo` has none.
class Scale {
 public:
  explicit Scale(double end) : end_(end) {}
  Scale(double end, double cutFrom, double cutTo)
      : end_(end), cutFrom_(cutFrom), cutTo_(cutTo), gap_(kCut) {}

  double X(double time) const {
    const double unit = (kPlot - gap_) / (end_ - (cutTo_ - cutFrom_));
    if (time <= cutFrom_) {
      return kLeft + time * unit;
    }
    return kLeft + cutFrom_ * unit + gap_ + (std::max(time, cutTo_) - cutTo_) * unit;
  }

  double End() const { return end_; }
  double CutFrom() const { return cutFrom_; }
  double CutTo() const { return cutTo_; }
  bool HasCut() const { return gap_ > 0.0; }

 private:
  double end_;
  double cutFrom_ = 0.0;
  double cutTo_ = 0.0;
  double gap_ = 0.0;
};

std::string drawn_bars(const std::vector<Bar>& bars, const Scale& scale, double y) {
  constexpr double kSeen = 1.0;  // what is shorter is drawn so wide
  std::string svg;
  for (const Bar& bar : bars) {
    const double width = std::max(scale.X(bar.end) - scale.X(bar.begin), kSeen);
    svg += rectangle(scale.X(bar.begin), y + (kLane - kBar) / 2.0, width, kBar, bar.colour);
  }
  return svg;
}

// Ticks before the cut only, or everywhere without one.
std::string axis(const Scale& scale, double top, double bottom, double step, bool inSeconds) {
  std::string svg;
  const double end = scale.HasCut() ? scale.CutFrom() : scale.End();
  const int ticks = static_cast<int>(std::floor(end / step));
  for (int i = 0; i <= ticks; ++i) {
    const double time = i * step;
    svg += upright(scale.X(time), top, bottom, kGrid);
    svg += text(scale.X(time), bottom + 15.0, "middle",
                inSeconds ? number(time / kPerSecond, 0) + " s" : number(time, 0) + " ms");
  }
  return svg;
}

std::string cut_mark(const Scale& scale, double top, double bottom) {
  if (!scale.HasCut()) {
    return {};
  }
  const double left = scale.X(scale.CutFrom());
  return rectangle(left, top, kCut, bottom - top, "#ffffff") +
         upright(left + 4.0, top, bottom, kInk) + upright(left + kCut - 4.0, top, bottom, kInk) +
         text(left + kCut / 2.0, top - 5.0, "middle",
              number((scale.CutTo() - scale.CutFrom()) / kPerSecond, 1) + " s");
}

std::string panel(const std::vector<Lane>& lanes, const Scale& scale, double top, double step) {
  const double bottom = top + kLane * static_cast<double>(lanes.size());
  std::string svg = axis(scale, top, bottom, step, step >= kPerSecond);
  double y = top;
  for (const Lane& lane : lanes) {
    svg += text(kLeft - 8.0, y + kLane / 2.0 + 4.0, "end", lane.name);
    svg += drawn_bars(lane.bars, scale, y);
    y += kLane;
  }
  return svg + cut_mark(scale, top, bottom);
}

double nice_step(double length) {
  for (const double step : {1.0, 2.0, 5.0, 10.0, 20.0, 50.0, 100.0, 200.0, 500.0}) {
    if (length / step <= 10.0) {
      return step;
    }
  }
  return 1000.0;
}

// In the pause the rest of what is on the way still comes: cut out is what is left of it then.
Scale without_pause(const Journey& journey) {
  constexpr double kMargin = 5.0;
  const std::vector<Step> steps = steps_of(journey);
  const Step pause = *std::find_if(steps.begin(), steps.end(),
                                   [](const Step& step) { return step.kind == StepKind::Pause; });
  double from = pause.begin;
  for (const Arrival& arrival : journey.arrivals) {
    from = arrival.time < pause.end ? std::max(from, arrival.time) : from;
  }
  return {journey.completed, from + kMargin, pause.end - kMargin};
}

// Text in the lane of the printer, at the bottom, left of a byte.
std::string byte_label(const std::string& words, const Scale& scale, double time, double bottom) {
  return text(scale.X(time) - 5.0, bottom - kLane / 2.0 + 4.0, "end", words);
}

std::string title(const std::string& words, double top) {
  return text(kLeft, top + 22.0, "start", words, " font-weight=\"bold\"");
}

// These draw at `top` and move it on.
std::string drawn_whole(const TitledJourney& titled, double& top) {
  const Journey& journey = titled.journey;
  const std::vector<Lane> lanes = lanes_of(journey);
  const Scale scale(journey.completed);
  std::string svg = title(titled.title + ": the whole job", top);
  svg += panel(lanes, scale, top + kTitle, kPerSecond);
  top += kTitle + kLane * static_cast<double>(lanes.size());
  svg += byte_label("last byte at " + number(last_byte(journey) / kPerSecond, 2) + " s", scale,
                    last_byte(journey), top);
  top += kAxis;
  return svg;
}

std::string drawn_large(const TitledJourney& titled, double& top) {
  const Journey& journey = titled.journey;
  const std::vector<Lane> lanes = lanes_of(journey);
  const Scale scale = without_pause(journey);
  std::string svg = title(titled.title + ": what is no pause", top);
  svg += panel(lanes, scale, top + kTitle, nice_step(scale.CutFrom()));
  top += kTitle + kLane * static_cast<double>(lanes.size());
  svg += byte_label("first byte at " + number(first_byte(journey), 0) + " ms", scale,
                    first_byte(journey), top);
  top += kAxis;
  return svg;
}

std::string legend(double top) {
  std::string svg;
  std::size_t entry = 0;
  for (std::size_t i = 0; i < kStepKinds; ++i) {
    const auto kind = static_cast<StepKind>(i);
    if (!is_of_the_filter(kind)) {
      continue;
    }
    const double x = 16.0 + static_cast<double>(entry % kLegendColumns) * (kWidth - 16.0) /
                                static_cast<double>(kLegendColumns);
    const std::size_t line = entry / kLegendColumns;
    const double y = top + static_cast<double>(line) * kLegendLine;
    svg += rectangle(x, y, kBar, kBar, kColours.at(i));
    svg += text(x + kBar + 6.0, y + 11.0, "start", words_of(kind).name);
    ++entry;
  }
  return svg;
}

}  // namespace

void write_journeys(const std::string& path, const std::vector<TitledJourney>& journeys) {
  double height = 0.0;
  std::string svg;
  svg += drawn_whole(journeys.front(), height);
  for (const TitledJourney& journey : journeys) {
    svg += drawn_large(journey, height);
  }
  constexpr double kLegendLines = 5.0;
  svg += legend(height + 10.0);
  height += 10.0 + kLegendLine * kLegendLines;
  std::ofstream file(path, std::ios::binary);
  file << "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " << number(kWidth, 0) << " "
       << number(height, 0) << "\" width=\"" << number(kWidth, 0) << "\" height=\""
       << number(height, 0) << "\" font-family=\"sans-serif\" font-size=\"12\" fill=\"" << kInk
       << "\">\n<!-- SPDX-License-Identifier: Apache-2.0 -->\n"
       << "<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n"
       << svg << "</svg>\n";
  file.close();
  if (!file) {
    throw std::runtime_error(path + ": cannot be written");
  }
}

}  // namespace bench
