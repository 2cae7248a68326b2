// SPDX-License-Identifier: Apache-2.0
#include "bench/svg_chart.h"

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <stdexcept>

#include "bench/table_printer.h"

namespace bench {

namespace {

// Sizes in SVG's units, which a browser shows as pixels.
constexpr double kPlot = 290.0;
constexpr double kLeft = 62.0;
constexpr double kTop = 34.0;
constexpr double kRight = 14.0;
constexpr double kLegendTop = 62.0;  // beneath the plot: tick numbers and the axis's name
constexpr double kLegendLine = 17.0;
constexpr double kBarEnd = 3.0;  // half the stroke across an error bar's end
constexpr double kPanel = kLeft + kPlot + kRight;

constexpr const char* kInk = "#222222";
constexpr const char* kGrid = "#dddddd";

std::string attribute(const char* name, double value) {
  return std::string(" ") + name + "=\"" + number(value, 1) + "\"";
}

std::string escaped(const std::string& text) {
  std::string result;
  for (const char letter : text) {
    switch (letter) {
      case '&':
        result += "&amp;";
        break;
      case '<':
        result += "&lt;";
        break;
      default:
        result += letter;
    }
  }
  return result;
}

/// One chart's part of the drawing; everything is placed from its left and upper edge on.
class Panel {
 public:
  Panel(const Chart& chart, double left, double top, std::size_t index)
      : chart_(chart),
        left_(left + kLeft),
        top_(top + kTop),
        clip_("plot" + std::to_string(index)) {}

  std::string drawn() const {
    return grid() + curves() + legend() +
           text(left_ + kPlot / 2.0, top_ - 12.0, "middle", chart_.title, " font-weight=\"bold\"");
  }

 private:
  double x_of(double x) const { return left_ + place_on(chart_.across, x) * kPlot; }
  double y_of(double y) const { return top_ + (1.0 - place_on(chart_.up, y)) * kPlot; }

  static std::string text(double x, double y, const char* anchor, const std::string& words,
                          const std::string& more = "") {
    return "<text" + attribute("x", x) + attribute("y", y) + " text-anchor=\"" + anchor + "\"" +
           more + ">" + escaped(words) + "</text>\n";
  }

  static std::string line(double x1, double y1, double x2, double y2, const std::string& stroke,
                          bool dashed = false) {
    return "<line" + attribute("x1", x1) + attribute("y1", y1) + attribute("x2", x2) +
           attribute("y2", y2) + " stroke=\"" + stroke + "\"" +
           (dashed ? " stroke-dasharray=\"5 3\"" : "") + "/>\n";
  }

  static std::string dot(double x, double y, const std::string& fill) {
    return "<circle" + attribute("cx", x) + attribute("cy", y) + " r=\"2.4\" fill=\"" + fill +
           "\"/>\n";
  }

  std::string grid() const {
    std::string svg;
    const Axis& across = chart_.across;
    for (const double x : ticks_of(across)) {
      svg += line(x_of(x), top_, x_of(x), top_ + kPlot, kGrid);
      svg += text(x_of(x), top_ + kPlot + 16.0, "middle", tick_text(across, x));
    }
    const Axis& up = chart_.up;
    for (const double y : ticks_of(up)) {
      svg += line(left_, y_of(y), left_ + kPlot, y_of(y), kGrid);
      svg += text(left_ - 6.0, y_of(y) + 4.0, "end", tick_text(up, y));
    }
    svg += text(left_ + kPlot / 2.0, top_ + kPlot + 36.0, "middle", across.label);
    const double middle = top_ + kPlot / 2.0;
    const double side = left_ - kLeft + 14.0;
    svg += text(side, middle, "middle", up.label,
                " transform=\"rotate(-90 " + number(side, 1) + " " + number(middle, 1) + ")\"");
    return svg;
  }

  std::string curves() const {
    std::string lines;
    std::string marks;
    for (const Curve& curve : chart_.curves) {
      lines += polyline(curve);
      marks += dots(curve) + bars(curve);
    }
    // A dot on the edge shows whole.
    return clipped(clip_, 0.0, lines) + (marks.empty() ? "" : clipped(clip_ + "m", kBarEnd, marks));
  }

  /// What is drawn within the plot and so far around it.
  std::string clipped(const std::string& name, double around, const std::string& drawing) const {
    return "<clipPath id=\"" + name + "\"><rect" + attribute("x", left_ - around) +
           attribute("y", top_ - around) + attribute("width", kPlot + 2.0 * around) +
           attribute("height", kPlot + 2.0 * around) + "/></clipPath>\n<g clip-path=\"url(#" +
           name + ")\" fill=\"none\" stroke-width=\"1.6\" stroke-linejoin=\"round\">\n" + drawing +
           "</g>\n";
  }

  std::string polyline(const Curve& curve) const {
    if (!curve.joined) {
      return "";
    }
    std::string svg = "<polyline stroke=\"" + curve.colour + "\"" +
                      (curve.dashed ? " stroke-dasharray=\"5 3\"" : "") + " points=\"";
    for (const Point& point : curve.points) {
      svg += number(x_of(point.x), 1) + "," + number(y_of(point.y), 1) + " ";
    }
    return svg + "\"/>\n";
  }

  std::string dots(const Curve& curve) const {
    std::string svg;
    if (curve.dotted || !curve.joined) {
      for (const Point& point : curve.points) {
        svg += dot(x_of(point.x), y_of(point.y), curve.colour);
      }
    }
    return svg;
  }

  std::string bars(const Curve& curve) const {
    std::string svg;
    for (const ErrorBar& bar : curve.bars) {
      const double x = x_of(bar.x);
      svg += line(x, y_of(bar.low), x, y_of(bar.high), curve.colour);
      for (const double end : {y_of(bar.low), y_of(bar.high)}) {
        svg += line(x - kBarEnd, end, x + kBarEnd, end, curve.colour);
      }
    }
    return svg;
  }

  std::string legend() const {
    std::string svg = "<g stroke-width=\"1.6\">\n";
    std::string names;
    double y = top_ + kPlot + kLegendTop;
    for (const Curve& curve : chart_.curves) {
      if (!curve.name.empty()) {
        svg += curve.joined
                   ? line(left_, y - 4.0, left_ + 26.0, y - 4.0, curve.colour, curve.dashed)
                   : dot(left_ + 13.0, y - 4.0, curve.colour);
        names += text(left_ + 34.0, y, "start", curve.name);
        y += kLegendLine;
      }
    }
    return svg + "</g>\n" + names;
  }

  const Chart& chart_;
  double left_;  // of the plot itself
  double top_;
  std::string clip_;
};

std::size_t longest_legend(const std::vector<Chart>& charts) {
  std::size_t longest = 0;
  for (const Chart& chart : charts) {
    const auto named = std::count_if(chart.curves.begin(), chart.curves.end(),
                                     [](const Curve& curve) { return !curve.name.empty(); });
    longest = std::max(longest, static_cast<std::size_t>(named));
  }
  return longest;
}

}  // namespace

void write_charts(const std::string& path, const std::vector<Chart>& charts, std::size_t perRow) {
  const std::size_t columns = perRow == 0 ? charts.size() : std::min(perRow, charts.size());
  const std::size_t rows = columns == 0 ? 0 : (charts.size() + columns - 1) / columns;
  const double rowHeight =
      kTop + kPlot + kLegendTop + kLegendLine * static_cast<double>(longest_legend(charts));
  const double width = kPanel * static_cast<double>(columns);
  const double height = rowHeight * static_cast<double>(rows);
  std::ofstream file(path, std::ios::binary);
  file << "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " << number(width, 0) << " "
       << number(height, 0) << "\" width=\"" << number(width, 0) << "\" height=\""
       << number(height, 0) << "\" font-family=\"sans-serif\" font-size=\"12\" fill=\"" << kInk
       << "\">\n<!-- SPDX-License-Identifier: Apache-2.0 -->\n"
       << "<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n";
  for (std::size_t i = 0; i < charts.size(); ++i) {
    const std::size_t row = i / columns;
    const std::size_t column = i % columns;
    file << Panel(charts[i], kPanel * static_cast<double>(column),
                  rowHeight * static_cast<double>(row), i)
                .drawn();
  }
  file << "</svg>\n";
  file.close();
  if (!file) {
    throw std::runtime_error(path + ": cannot be written");
  }
}

}  // namespace bench
