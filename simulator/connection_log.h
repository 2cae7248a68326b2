// SPDX-License-Identifier: Apache-2.0
//
// The event lines of one connection, with its number before each, and its errors counted.
#ifndef TQR7_SIMULATOR_CONNECTION_LOG_H
#define TQR7_SIMULATOR_CONNECTION_LOG_H

#include <cstdint>
#include <string>

#include "decoder/stream_error.h"
#include "simulator/tally.h"

namespace simulator {

/// Says what happens on a connection, and adds its errors and failures to the run's.
class ConnectionLog {
 public:
  ConnectionLog(std::uint64_t number, Tally& tally) : number_(number), tally_(tally) {}

  void Say(const std::string& text) const;

  /// Something could not be written.
  void SayFailure(const std::string& text);

  /// After a hundred lines of errors and skipped bytes the further ones are counted only: a stream
  /// of garbage could fill a disk with lines.
  void SayError(const decoder::StreamError& error);
  void SaySkipped(std::uint64_t offset, std::uint64_t count);

  std::uint64_t Errors() const { return errors_; }

 private:
  bool MaySayError();

  std::uint64_t number_;
  Tally& tally_;
  std::uint64_t errors_ = 0;
  std::uint64_t errorLines_ = 0;
};

}  // namespace simulator

#endif  // TQR7_SIMULATOR_CONNECTION_LOG_H
