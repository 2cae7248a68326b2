// SPDX-License-Identifier: Apache-2.0
#include "tests/filter/cancel_soak_run.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <string_view>

namespace cancel_soak {
namespace {

using filter_test::FilterProcess;
using filter_test::Outcome;
using Clock = std::chrono::steady_clock;

constexpr const char* kPrintOut = "\x1B\x42Q1";
constexpr double kLongestEnd = 2000;  // milliseconds

std::vector<std::size_t> FindHeaders(std::string_view stream) {
  std::vector<std::size_t> result;
  for (std::size_t at = stream.find("\x1BSP0"); at != stream.npos;
       at = stream.find("\x1BSP0", at + 1)) {
    if (stream.substr(std::min(at + 512, stream.size())).starts_with("\x1BZT\x01")) {
      result.push_back(at);
    }
  }
  return result;
}

double MillisecondsSince(Clock::time_point begun) {
  return std::chrono::duration<double, std::milli>(Clock::now() - begun).count();
}

/// What SIGTERM does to the process as it stands. One that has ended is not disturbed.
End ExpectedEnd(const FilterProcess& filter) {
  constexpr unsigned long long kTermBit = 1ULL << (SIGTERM - 1);
  const auto has = [&](const char* field) {
    return (std::strtoull(filter.ProcessField(field).c_str(), nullptr, 16) & kTermBit) != 0;
  };
  const std::string state = filter.ProcessField("State");
  if (state.empty() || state.starts_with("Z") || state.starts_with("X") || has("SigIgn")) {
    return End::Undisturbed;
  }
  return has("SigCgt") ? End::Cut : End::Killed;
}

struct Sent {
  End expected;
  bool exact;
  bool running = false;  ///< known to be, and not at its end
  std::string log = {};  ///< up to SIGTERM, where that is known
};

/// Sends SIGTERM. Half of the processes are stopped for it, so that it is known to which state of
/// theirs it comes; the others run on, and may have gone on to the next state.
Sent SendTerm(FilterProcess& filter, bool exact) {
  Sent sent{.expected = End::Undisturbed, .exact = exact};
  if (exact) {
    kill(filter.process(), SIGSTOP);
    siginfo_t stopped{};
    waitid(P_PID, static_cast<id_t>(filter.process()), &stopped, WSTOPPED | WEXITED | WNOWAIT);
  }
  sent.expected = ExpectedEnd(filter);
  filter.Terminate();
  if (exact) {
    sent.running = filter.ProcessField("State").starts_with("T");
    filter.Step();  // takes the log
    sent.log = filter.log();
    kill(filter.process(), SIGCONT);
  }
  return sent;
}

/// True when this many bytes of the stream end within a sheet's headers or before its last pixel.
bool IsCutInData(std::size_t size, const Undisturbed& undisturbed) {
  const std::string& stream = undisturbed.outcome.stream;
  const auto cuts = [&](std::size_t headers) {
    const std::size_t data_end =
        std::min({stream.find("\x1BGD0", headers), stream.find(kPrintOut, headers), stream.size()});
    return size > headers && size < data_end;
  };
  return std::any_of(undisturbed.headers.begin(), undisturbed.headers.end(), cuts);
}

/// Empty when the job ended as one of the three.
std::string FindEnd(const Outcome& outcome, const Undisturbed& undisturbed, Result* result) {
  const Outcome& whole = undisturbed.outcome;
  if (outcome.stream != whole.stream.substr(0, outcome.stream.size())) {
    return "the stream is not the beginning of the undisturbed one";
  }
  if (outcome.signal == SIGTERM) {
    result->end = End::Killed;
  } else if (outcome.status == whole.status && outcome.stream == whole.stream) {
    result->end = End::Undisturbed;
  } else if (outcome.status == 0) {
    result->end = End::Cut;
  } else {
    return "exit status " + std::to_string(outcome.status) + ", signal " +
           std::to_string(outcome.signal);
  }
  return {};
}

bool Has(const std::string& log, const char* text) {
  return log.find(text) != std::string::npos;
}

/// What the log says of the moment: whether a page had begun, and whether one had ended.
std::string JudgeMoment(const Sent& sent, const Outcome& outcome, const Result& result) {
  if (result.end == End::Killed && Has(outcome.log, "INFO: Printing page 1")) {
    return "killed within its pages";
  }
  if (result.end == End::Cut && !Has(outcome.log, "PAGE: 1 1\n")) {
    return "status 0 before the first page";
  }
  if (result.end == End::Undisturbed && sent.running && !Has(sent.log, "MVChangeImage()=0\n")) {
    return "undisturbed though no page had ended";
  }
  return {};
}

std::string JudgeEnd(const Sent& sent, const Result& result) {
  // A process that runs on may go on from one state to the next, not back to the first.
  const bool as_expected = sent.exact ? result.end == sent.expected
                                      : result.end != End::Killed || sent.expected == End::Killed;
  if (!as_expected) {
    return "another end than SIGTERM has at this moment";
  }
  if (result.end != End::Undisturbed && result.milliseconds > kLongestEnd) {
    return "ends late";
  }
  if (waitpid(-1, nullptr, WNOHANG) != -1 || errno != ECHILD) {
    return "leaves a process";
  }
  return {};
}

}  // namespace

const Undisturbed& References::Of(const Kind& kind, const Sheets& sheets) {
  if (sheets_ != sheets.Words()) {
    sheets_ = sheets.Words();
    jobs_.clear();
  }
  const auto [entry, made] = jobs_.try_emplace({kind.printer, kind.pages(sheets)});
  if (made) {
    const auto begun = Clock::now();
    FilterProcess filter(MakeJob(kind, sheets));
    filter.WaitForEnd();
    entry->second.seconds = MillisecondsSince(begun) / 1000;
    entry->second.outcome = filter.Finish();
    entry->second.headers = FindHeaders(entry->second.outcome.stream);
  }
  return entry->second;
}

Result CancelJob(const Kind& kind, const Sheets& sheets, const Undisturbed& undisturbed,
                 std::mt19937& random) {
  filter_test::Job job = MakeJob(kind, sheets);
  if (kind.input == Input::NoPage) {
    job.input = job.input.substr(0, 4);  // the mark of the format
  }
  job.more_input = kind.input != Input::Job;
  FilterProcess filter(job);
  kind.play(filter, random, undisturbed.seconds);
  const bool exact = random() % 2 == 0;
  auto sent_at = Clock::now();
  const Sent sent = SendTerm(filter, exact);
  filter.CloseInput();
  if (kind.resumes) {
    filter.PlayFor(RandomTime(random, 0.02));
    sent_at = Clock::now();
  }
  filter.SetReading(true);
  filter.WaitForEnd();

  Result result;
  result.milliseconds = MillisecondsSince(sent_at);
  const Outcome outcome = filter.Finish();
  result.failure = FindEnd(outcome, undisturbed, &result);
  if (result.failure.empty()) {
    result.failure = JudgeEnd(sent, result);
  }
  if (result.failure.empty()) {
    result.failure = JudgeMoment(sent, outcome, result);
  }
  result.in_data = IsCutInData(outcome.stream.size(), undisturbed);
  return result;
}

}  // namespace cancel_soak
