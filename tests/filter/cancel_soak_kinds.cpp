// SPDX-License-Identifier: Apache-2.0
#include "tests/filter/cancel_soak_kinds.h"

#include <chrono>

#include "tests/filter/small_job.h"

namespace cancel_soak {
namespace {

using filter_test::Answer;
using filter_test::FilterProcess;
using std::chrono::microseconds;
using std::chrono::milliseconds;

constexpr int kBusyAnswers = 20;
constexpr double kSlower = 5;       // how much longer a job lasts with a slow reader, about
constexpr double kStart = 0.04;     // seconds, about what a filter needs up to its first page
constexpr double kLastSheet = 0.1;  // about what a parked half sheet and the print-out need

int TwoPages(const Sheets& /*sheets*/) {
  return 2;
}

int PagesOfSheet(const Sheets& sheets) {
  return sheets.joined() ? 2 : 1;
}

int OnePage(const Sheets& /*sheets*/) {
  return 1;
}

void PlayOn(FilterProcess& filter, std::mt19937& random, double undisturbed) {
  filter.PlayFor(RandomTime(random, undisturbed));
}

// Some 64 KB, a pipe's fill, every few milliseconds.
void ReadSlowly(FilterProcess& filter, std::mt19937& random, double undisturbed) {
  const auto end = std::chrono::steady_clock::now() + RandomTime(random, kSlower * undisturbed);
  while (!filter.Ended() && std::chrono::steady_clock::now() < end) {
    filter.SetReading(true);
    filter.Step();
    filter.SetReading(false);
    filter.PlayFor(milliseconds(1));
  }
}

void StopReading(FilterProcess& filter, std::mt19937& random, double undisturbed) {
  PlayOn(filter, random, undisturbed);
  filter.SetReading(false);
  filter.PlayFor(RandomTime(random, 0.03));
}

void WaitForFirstPage(FilterProcess& filter, std::mt19937& random, double /*undisturbed*/) {
  filter.PlayFor(RandomTime(random, 2 * kStart));
}

void PassLastPage(FilterProcess& filter, std::mt19937& random, double /*undisturbed*/) {
  filter.WaitUntilTermIsIgnored();
  filter.CloseInput();
  filter.PlayFor(RandomTime(random, kLastSheet));
}

std::string Options(const Sheets& sheets) {
  std::string options("PageSize=");
  options += sheets.paper->choice;
  return options + (sheets.matte ? " RQPrintFinish=Matte" : "");
}

}  // namespace

std::string Sheets::Words() const {
  return std::string(paper->choice) + (matte ? " matte" : " gloss");
}

const std::array<Kind, 7> kKinds = {{
    {"quick reader", Printer::Ready, TwoPages, Input::Job, PlayOn, false},
    {"slow reader", Printer::Ready, PagesOfSheet, Input::Job, ReadSlowly, false},
    {"reader that stops", Printer::Ready, PagesOfSheet, Input::Job, StopReading, true},
    {"busy printer", Printer::Busy, TwoPages, Input::Job, PlayOn, false},
    {"silent printer", Printer::Silent, TwoPages, Input::Job, PlayOn, false},
    {"before the first page", Printer::Ready, TwoPages, Input::NoPage, WaitForFirstPage, false},
    {"after the last page", Printer::Ready, OnePage, Input::NoEndSoon, PassLastPage, false},
}};

filter_test::Job MakeJob(const Kind& kind, const Sheets& sheets) {
  filter_test::Job job{
      .input = filter_test::SmallRaster(kind.pages(sheets)),
      .options = Options(sheets),
      .environment = {{"LD_PRELOAD", FILTER_TEST_SIGNALS ":" FILTER_TEST_INTERPOSER},
                      {"FILTER_TEST_SECOND", "2"}},
      .stream_end = filter_test::StreamEnd::Anywhere};
  if (kind.printer == Printer::Busy) {
    job.printer.readiness.assign(kBusyAnswers, Answer(filter_test::kBusy));
  }
  if (kind.printer == Printer::Silent) {
    // It answers before the job; then the back channel is waited on for a fifth of a second.
    job.environment.emplace("FILTER_TEST_READ_SCALE", "0.2");
    job.printer.status = {Answer(filter_test::kGood), filter_test::kSilence};
  }
  return job;
}

microseconds RandomTime(std::mt19937& random, double seconds) {
  std::uniform_real_distribution<double> moments(0, 1e6 * seconds);
  return microseconds(static_cast<std::int64_t>(moments(random)));
}

}  // namespace cancel_soak
