// SPDX-License-Identifier: Apache-2.0
//
// The filter as the scheduler starts it, with the test in the place of the scheduler, the filter
// before it, the backend and the printer.
#ifndef TQR7_TESTS_FILTER_FILTER_PROCESS_H
#define TQR7_TESTS_FILTER_FILTER_PROCESS_H

#include <chrono>
#include <csignal>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tests/filter/backend.h"
#include "tests/filter/ppd_maker.h"
#include "tests/filter/printer_script.h"
#include "tests/filter/stream_inspection.h"
#include "tests/filter/temporary_folder.h"

namespace filter_test {

/// One run of a filter.
struct Job {
  std::string program = {};  ///< the filter unless told otherwise
  std::string input = {};    ///< raster stream, or commands, on standard input
  bool more_input = false;   ///< standard input stays open for Feed
  std::string options = {};
  std::optional<std::vector<std::string>> arguments = {};  ///< in place of the usual five
  std::optional<Ppd> ppd = Ppd{};                          ///< without one, PPD is not set
  std::map<std::string, std::string> environment = {};
  std::vector<std::string> unset = {};  ///< variables that are not in the environment
  Script printer = {};
  std::vector<int> closed_descriptors = {};
  std::map<int, int> given_descriptors = {};  ///< in place of the usual one: one of the test's own
  std::string output_path = {};  ///< standard output is this file instead of the backend's pipe
  bool broken_pipe_is_an_error = false;     ///< SIGPIPE is ignored, so that a write fails instead
  StreamEnd stream_end = StreamEnd::Whole;  ///< what Finish holds the stream against
};

/// What a run left behind.
struct Outcome {
  int status = -1;  ///< exit status, −1 when a signal ended the filter
  int signal = 0;
  std::string stream;  ///< standard output, as far as the backend took it
  std::string log;     ///< standard error; a pause shows as a line such as "[sleep 5]"
  std::string notes;   ///< the waits it asked for
  std::string calls;   ///< the conversions it asked for
};

class FilterProcess {
 public:
  explicit FilterProcess(const Job& job);
  ~FilterProcess();
  FilterProcess(const FilterProcess&) = delete;
  FilterProcess& operator=(const FilterProcess&) = delete;

  /// Plays backend and printer until the log holds the text.
  void WaitForLog(const std::string& text);
  /// Plays backend and printer until SIGTERM is ignored.
  void WaitUntilTermIsIgnored();
  /// Waits until the filter is held up in a write that nobody takes.
  void WaitUntilStuck();
  void SendAnswer(const std::string& bytes) { backend_.Say(bytes); }
  /// How many writes the filter has made so far.
  long Writes() const;
  /// Takes what is in the pipe of the print stream, no more than that.
  void TakeFromStream() { backend_.TakeOnce(); }
  void PlayFor(std::chrono::microseconds time);
  /// Plays until the filter has ended.
  void WaitForEnd();
  /// Plays what can be done now, and waits for some milliseconds where there is nothing.
  void Step();
  /// Whether the backend takes what the filter sends.
  void SetReading(bool reading) { backend_.set_reading(reading); }
  bool Ended() const { return log_pipe_ < 0; }
  pid_t process() const { return process_; }
  /// Standard error so far.
  const std::string& log() const { return log_; }
  /// A line of the filter's /proc/PID/status, such as "VmHWM", without its name.
  std::string ProcessField(const std::string& name) const;
  /// Gives more standard input.
  void Feed(const std::string& bytes) { input_bytes_ += bytes; }
  void CloseInput() { more_input_ = false; }
  void Terminate() const { Send(SIGTERM); }
  void Send(int signal) const { kill(process_, signal); }

  /// Plays on to the end, and has the stream inspected.
  Outcome Finish();

 private:
  void Start(const Job& job);
  void FeedInput();

  TemporaryFolder folder_;
  Backend backend_;
  std::string input_bytes_;
  std::size_t fed_ = 0;
  bool more_input_;
  StreamEnd stream_end_;
  int input_ = -1;
  int log_pipe_ = -1;
  std::string log_;
  pid_t process_ = -1;
  std::chrono::steady_clock::time_point deadline_;
};

/// Runs a job from start to end.
Outcome Print(const Job& job);

}  // namespace filter_test

#endif  // TQR7_TESTS_FILTER_FILTER_PROCESS_H
