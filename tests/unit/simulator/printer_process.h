// SPDX-License-Identifier: Apache-2.0
//
// The simulated printer as a child process, in a folder of its own.
#ifndef TQR7_TESTS_UNIT_SIMULATOR_PRINTER_PROCESS_H
#define TQR7_TESTS_UNIT_SIMULATOR_PRINTER_PROCESS_H

#include <sys/types.h>

#include <cstdint>
#include <string>
#include <vector>

/// A running printer. Waits give up after half a minute, and the test then fails at what it expects
/// of their results. A printer that still runs at the end is killed.
class PrinterProcess {
 public:
  /// What the program's standard output is.
  enum class Sink : std::uint8_t { Pipe, Terminal };

  /// Starts the program with these options, on a free port unless they name one; `fileSizeLimit`
  /// above 0 limits the files it writes.
  explicit PrinterProcess(const std::vector<std::string>& options, std::uint64_t fileSizeLimit = 0,
                          Sink sink = Sink::Pipe);
  PrinterProcess(const PrinterProcess&) = delete;
  PrinterProcess& operator=(const PrinterProcess&) = delete;
  ~PrinterProcess();

  /// The port of the "listening" line, 0 when none came.
  std::uint16_t Port();

  /// Reads lines until one contains the text, and returns it without its time; empty when none
  /// came.
  std::string WaitForLine(const std::string& text);

  /// All lines so far, each ending in a newline.
  const std::string& Output() const { return output_; }

  /// All whole lines so far without their times.
  std::string Lines() const;

  /// Goes away as a reader of the lines: what the printer says from now on cannot be written.
  void CloseOutput();

  /// Sends a signal.
  void Signal(int number) const;

  /// Reads what is left and returns the exit status, −1 when it did not end by itself.
  int Wait();

  /// Asks the printer to stop, and waits.
  int Stop();

  /// Waits until the printer has said as much as a pipe holds; whether it did. Its output must not
  /// have been read before but for the first line.
  bool OutputIsFull() const;

  /// Sends a signal again and again, reads nothing, and waits; whether it was the signal that ended
  /// the printer.
  bool DiesBy(int number);

 private:
  bool ReadMore();

  pid_t pid_ = -1;
  int outputEnd_ = -1;
  std::string output_;
  std::size_t searched_ = 0;
  std::uint16_t port_ = 0;
};

/// Runs the program to its end with standard error in place of standard output; what it said, and
/// its exit status.
struct FinishedRun {
  std::string errors;
  int status;
};
FinishedRun run_to_its_end(const std::vector<std::string>& options);

#endif  // TQR7_TESTS_UNIT_SIMULATOR_PRINTER_PROCESS_H
