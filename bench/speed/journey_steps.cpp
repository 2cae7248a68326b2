// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/journey_steps.h"

#include <algorithm>
#include <stdexcept>

namespace bench {

namespace {

constexpr std::array<StepWords, kStepKinds> kWords{{
    {"lp starts, makes the job, hands the file over", "CUPS"},
    {"the scheduler starts filters and backend", "CUPS"},
    {"the filter is loaded", "filter"},
    {"the raster filter makes its first bytes", "raster filter"},
    {"PPD, options, settings", "filter"},
    {"is there a way back?", "backend"},
    {"connection, status queries", "printer"},
    {"reasons that the scheduler lists", "CUPS"},
    {"reading the page", "raster filter"},
    {"conversion of the page", "filter"},
    {"readiness exchange", "printer"},
    {"transfer to the printer", "printer"},
    {"pause that the printer demands", "pause"},
    {"end of the filter, last bytes", "filter"},
    {"the scheduler notices the end", "CUPS"},
}};

// Cuts the time of the filter into steps: each ends with a call that is marked.
class Cutter {
 public:
  explicit Cutter(double begin) : at_(begin) {}

  void Cut(StepKind kind, double end) {
    steps_.push_back({kind, at_, end});
    at_ = end;
  }

  void Take(const Mark& mark, const std::string& nextName) {
    if (mark.name == "open raster") {
      Cut(StepKind::Load, mark.begin);
      Cut(StepKind::FirstRaster, mark.end);
    } else if (mark.name == "ask for bidi") {
      Cut(StepKind::Settings, mark.begin);
      Cut(StepKind::Connection, mark.end);
    } else if (mark.name == "read answer") {
      // Only a status is followed by the question for reasons.
      Cut(nextName == "ask for reasons" ? StepKind::Status : StepKind::Readiness, mark.end);
    } else if (mark.name == "ask for reasons") {
      Cut(StepKind::Reasons, mark.end);
    } else if (mark.name == "read lines") {
      Cut(StepKind::Reading, mark.end);
    } else if (mark.name == "convert") {
      Cut(StepKind::Conversion, mark.end);
    } else if (mark.name == "pause") {
      Cut(StepKind::Transfer, mark.begin);
      Cut(StepKind::Pause, mark.end);
    }
  }

  const std::vector<Step>& Steps() const { return steps_; }

 private:
  double at_;
  std::vector<Step> steps_;
};

// When the filter that makes the stream for the printer was started, the last before the backend.
// The scheduler may say so when the filter already runs.
double own_start(const Journey& journey) {
  const double logged = journey.programs.at(journey.programs.size() - 2).started;
  return journey.marks.empty() ? logged : std::min(logged, journey.marks.front().begin);
}

void check(const std::vector<Step>& steps) {
  std::array<int, kStepKinds> counts{};
  for (const Step& step : steps) {
    ++counts.at(static_cast<std::size_t>(step.kind));
    if (step.end < step.begin) {
      throw std::runtime_error(std::string("a step ends before it begins: ") +
                               words_of(step.kind).name);
    }
  }
  for (std::size_t i = 0; i < kStepKinds; ++i) {
    if (counts.at(i) == 0) {
      throw std::runtime_error(std::string("no marks of this step: ") + kWords.at(i).name);
    }
  }
}

}  // namespace

const StepWords& words_of(StepKind kind) {
  return kWords.at(static_cast<std::size_t>(kind));
}

std::vector<Step> steps_of(const Journey& journey) {
  Cutter cutter(0.0);
  cutter.Cut(StepKind::Handover, journey.begun);
  cutter.Cut(StepKind::Starts, own_start(journey));
  for (std::size_t i = 0; i < journey.marks.size(); ++i) {
    cutter.Take(journey.marks[i],
                i + 1 < journey.marks.size() ? journey.marks[i + 1].name : std::string());
  }
  cutter.Cut(StepKind::End, last_byte(journey));
  cutter.Cut(StepKind::Notice, journey.completed);
  check(cutter.Steps());
  return cutter.Steps();
}

std::array<double, kStepKinds> total_by_kind(const std::vector<Step>& steps) {
  std::array<double, kStepKinds> totals{};
  for (const Step& step : steps) {
    totals.at(static_cast<std::size_t>(step.kind)) += step.end - step.begin;
  }
  return totals;
}

double waited_for_raster(const Journey& journey) {
  double waited = 0.0;
  for (const Mark& mark : journey.marks) {
    waited += mark.name == "read lines" ? mark.waited : 0.0;
  }
  return waited;
}

}  // namespace bench
