// SPDX-License-Identifier: Apache-2.0
//
// The event lines of one connection, with its number before each, and the counts of the run.
#ifndef TQR7_SIMULATOR_CONNECTION_LOG_H
#define TQR7_SIMULATOR_CONNECTION_LOG_H

#include <cstdint>
#include <string>

#include "decoder/stream_error.h"
#include "simulator/contact_sheet.h"

namespace simulator {

/// Counts of the whole run. `failures` are things that the simulator could not write.
struct Tally {
  std::uint64_t connections = 0;
  std::uint64_t sheets = 0;
  std::uint64_t errors = 0;
  std::uint64_t failures = 0;
};

/// Says what happens on a connection. Counts its errors and failures in the tally of the run, and
/// lists them on the contact sheet.
class ConnectionLog {
 public:
  /// `contactSheet` may be null.
  ConnectionLog(std::uint64_t number, Tally& tally, ContactSheet* contactSheet)
      : number_(number), tally_(tally), contactSheet_(contactSheet) {}

  std::uint64_t Number() const { return number_; }

  void Say(const std::string& text) const;

  /// Says what could not be written.
  void SayFailure(const std::string& text);

  /// Both only count after a hundred lines: a stream of garbage could fill a disk with lines.
  void SayError(const decoder::StreamError& error);
  void SaySkipped(std::uint64_t offset, std::uint64_t count);

  std::uint64_t Errors() const { return errors_; }

 private:
  std::string WithNumber(const std::string& text) const;
  bool MaySayError();
  void AddToContactSheet(const std::string& text);

  std::uint64_t number_;
  Tally& tally_;
  ContactSheet* contactSheet_;
  std::uint64_t errors_ = 0;
  std::uint64_t errorLines_ = 0;
};

}  // namespace simulator

#endif  // TQR7_SIMULATOR_CONNECTION_LOG_H
