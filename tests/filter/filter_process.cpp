// SPDX-License-Identifier: Apache-2.0
#include "tests/filter/filter_process.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <iterator>
#include <sstream>

#include "tests/filter/descriptors.h"

namespace filter_test {
namespace {

/// A filter that runs on is ended, and the test fails.
constexpr std::chrono::seconds kLongestRun{100};

/// The whole environment of the filter: nothing of the person's own who runs the test.
std::map<std::string, std::string> FilterEnvironment(const Job& job,
                                                     const TemporaryFolder& folder) {
  std::map<std::string, std::string> result = {
      {"PATH", "/usr/bin:/bin"},
      {"LC_ALL", "C"},
      {"TZ", "UTC"},
      {"HOME", folder.Path("")},
      {"CUPS_SERVER", folder.Path("no-scheduler")},
      {"CUPS_SERVERROOT", folder.Path("")},
      {"LD_PRELOAD", FILTER_TEST_INTERPOSER},
      // The preloaded library precedes the sanitizers' own. Memory that is dropped at exit is no
      // fault of a process that prints one job; a fault is told by its own status.
      {"ASAN_OPTIONS", "verify_asan_link_order=0:detect_leaks=0:exitcode=99"},
      {"UBSAN_OPTIONS", "print_stacktrace=1:exitcode=99"},
      {"FILTER_TEST_NOTES", folder.Path("notes")},
      {"FILTER_TEST_CALLS", folder.Path("calls")},
      {"FILTER_TEST_CLOCK", "2026 3 4 5 6 7"},
      // A busy machine may hold this process up for a second; only a printer meant to be silent is
      // waited for no longer than that.
      {"FILTER_TEST_READ_SCALE", "20"},
  };
  if (job.ppd) {
    result["PPD"] = folder.Write("printer.ppd", job.ppd->Text());
  }
  for (const auto& [name, value] : job.environment) {
    result[name] = value;
  }
  for (const std::string& name : job.unset) {
    result.erase(name);
  }
  return result;
}

/// The filter under test, or another build of it that the environment names.
std::string DefaultProgram() {
  const char* other = std::getenv("FILTER_TEST_FILTER");
  return other == nullptr ? FILTER_TEST_PROGRAM : other;
}

/// The words of FILTER_TEST_WRAPPER, a program that runs the filter, such as a memory checker.
std::vector<std::string> WrapperWords() {
  const char* wrapper = std::getenv("FILTER_TEST_WRAPPER");
  std::istringstream words(wrapper == nullptr ? "" : wrapper);
  return {std::istream_iterator<std::string>(words), {}};
}

std::vector<std::string> FilterArguments(const Job& job) {
  std::vector<std::string> result = WrapperWords();
  result.push_back(job.program.empty() ? DefaultProgram() : job.program);
  const std::vector<std::string> usual = {"7", "anna", "Beach", "1", job.options};
  const std::vector<std::string>& given = job.arguments ? *job.arguments : usual;
  result.insert(result.end(), given.begin(), given.end());
  return result;
}

std::vector<char*> Pointers(std::vector<std::string>* texts) {
  std::vector<char*> result;
  for (std::string& text : *texts) {
    result.push_back(text.data());
  }
  result.push_back(nullptr);
  return result;
}

}  // namespace

FilterProcess::FilterProcess(const Job& job)
    : backend_(job.printer),
      input_bytes_(job.input),
      more_input_(job.more_input),
      stream_end_(job.stream_end),
      deadline_(std::chrono::steady_clock::now() + kLongestRun) {
  Start(job);
}

void FilterProcess::Start(const Job& job) {
  std::vector<std::string> variables;
  for (const auto& [name, value] : FilterEnvironment(job, folder_)) {
    variables.push_back(name);
    variables.back().append("=").append(value);
  }
  std::vector<std::string> arguments = FilterArguments(job);
  const std::vector<char*> argv = Pointers(&arguments);
  const std::vector<char*> envp = Pointers(&variables);
  const auto [input_end, input] = HighPipe();
  const auto [log_pipe, log_end] = HighPipe();
  const int output = job.output_path.empty()
                         ? backend_.filter_output()
                         : MoveHigh(open(job.output_path.c_str(), O_WRONLY | O_CREAT, 0600));
  process_ = fork();
  if (process_ == 0) {
    dup2(input_end, 0);
    dup2(output, 1);
    dup2(log_end, 2);
    dup2(backend_.filter_back_channel(), 3);
    dup2(backend_.filter_side_channel(), 4);
    for (const auto& [descriptor, given] : job.given_descriptors) {
      dup2(given, descriptor);
    }
    for (const int descriptor : job.closed_descriptors) {
      close(descriptor);
    }
    std::signal(SIGPIPE, job.broken_pipe_is_an_error ? SIG_IGN : SIG_DFL);
    execvpe(argv[0], argv.data(), envp.data());
    _exit(127);
  }
  close(input_end);
  close(log_end);
  if (!job.output_path.empty()) {
    close(output);
  }
  backend_.CloseFilterEnds();
  input_ = input;
  log_pipe_ = log_pipe;
  fcntl(input_, F_SETFL, O_NONBLOCK);
  fcntl(log_pipe_, F_SETFL, O_NONBLOCK);
}

FilterProcess::~FilterProcess() {
  CloseAndForget(&input_);
  CloseAndForget(&log_pipe_);
  if (process_ > 0) {
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
  }
}

void FilterProcess::FeedInput() {
  if (input_ < 0) {
    return;
  }
  const std::size_t left = input_bytes_.size() - fed_;
  const ssize_t bytes = left == 0 ? 0 : write(input_, input_bytes_.data() + fed_, left);
  if (bytes > 0) {
    fed_ += static_cast<std::size_t>(bytes);
  }
  const bool filter_closed_it = bytes < 0 && errno == EPIPE;
  if (filter_closed_it || (fed_ == input_bytes_.size() && !more_input_)) {
    CloseAndForget(&input_);
  }
}

void FilterProcess::Step() {
  std::vector<pollfd> polls = {{log_pipe_, POLLIN, 0}};
  backend_.AddPolls(&polls);
  if (input_ >= 0 && fed_ < input_bytes_.size()) {
    polls.push_back({input_, POLLOUT, 0});
  }
  poll(polls.data(), polls.size(), backend_.has_pieces() ? 1 : 5);
  FeedInput();
  backend_.Step();
  std::array<char, 16384> buffer;
  ssize_t bytes = 0;
  while (log_pipe_ >= 0 && (bytes = read(log_pipe_, buffer.data(), buffer.size())) > 0) {
    log_.append(buffer.data(), static_cast<std::size_t>(bytes));
  }
  if (bytes == 0) {
    CloseAndForget(&log_pipe_);
  }
  if (process_ > 0 && std::chrono::steady_clock::now() > deadline_) {
    ADD_FAILURE() << "the filter does not end";
    kill(process_, SIGKILL);
  }
}

void FilterProcess::WaitForLog(const std::string& text) {
  std::size_t searched = 0;
  while (log_pipe_ >= 0 && log_.find(text, searched) == std::string::npos) {
    searched = log_.size() - std::min(log_.size(), text.size());
    Step();
  }
}

std::string FilterProcess::ProcessField(const std::string& name) const {
  std::ifstream status("/proc/" + std::to_string(process_) + "/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with(name + ":\t")) {
      return line.substr(name.size() + 2);
    }
  }
  return {};
}

void FilterProcess::WaitUntilTermIsIgnored() {
  constexpr unsigned long long kTermBit = 1ULL << (SIGTERM - 1);
  while (log_pipe_ >= 0 &&
         (std::strtoull(ProcessField("SigIgn").c_str(), nullptr, 16) & kTermBit) == 0) {
    Step();
  }
}

void FilterProcess::WaitUntilStuck() {
  while (log_pipe_ >= 0 && !(backend_.stream_full() && ProcessField("State").starts_with("S"))) {
    Step();
  }
}

long FilterProcess::Writes() const {
  std::ifstream counts("/proc/" + std::to_string(process_) + "/io");
  for (std::string name, count; counts >> name >> count;) {
    if (name == "syscw:") {
      return std::stol(count);
    }
  }
  ADD_FAILURE() << "the system does not count writes";
  return 0;
}

void FilterProcess::WaitForEnd() {
  while (!Ended()) {
    Step();
  }
}

void FilterProcess::PlayFor(std::chrono::microseconds time) {
  const auto end = std::chrono::steady_clock::now() + time;
  while (log_pipe_ >= 0 && std::chrono::steady_clock::now() < end) {
    Step();
  }
}

Outcome FilterProcess::Finish() {
  backend_.set_reading(true);
  int status = 0;
  pid_t ended = 0;
  while (ended == 0) {
    Step();
    ended = log_pipe_ >= 0 ? 0 : waitpid(process_, &status, WNOHANG);
  }
  process_ = -1;
  backend_.Step();
  EXPECT_TRUE(PassesInspection(backend_.received(), stream_end_, folder_));
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1,
          WIFSIGNALED(status) ? WTERMSIG(status) : 0,
          backend_.received(),
          log_,
          folder_.Read("notes"),
          folder_.Read("calls")};
}

Outcome Print(const Job& job) {
  return FilterProcess(job).Finish();
}

}  // namespace filter_test
