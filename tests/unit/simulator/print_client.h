// SPDX-License-Identifier: Apache-2.0
//
// A client of the printer's port, for the tests.
#ifndef TQR7_TESTS_UNIT_SIMULATOR_PRINT_CLIENT_H
#define TQR7_TESTS_UNIT_SIMULATOR_PRINT_CLIENT_H

#include <cstddef>
#include <cstdint>

#include "tests/unit/stream_bytes.h"

/// A connection to a port of 127.0.0.1. Waits give up after half a minute.
class PrintClient {
 public:
  explicit PrintClient(std::uint16_t port);
  PrintClient(const PrintClient&) = delete;
  PrintClient& operator=(const PrintClient&) = delete;
  ~PrintClient();

  bool Connected() const { return socket_ >= 0; }

  /// Sends all bytes; false when the printer does not take them.
  bool Send(const stream::Bytes& bytes) const;

  /// Sends over buffers that are small until the printer takes nothing for so long; how many bytes
  /// that were.
  std::size_t SendForAWhile(const stream::Bytes& bytes, int milliseconds = 250) const;

  /// Reads what has come, and waits when nothing has; nothing at the end of the connection.
  stream::Bytes ReadSome() const;

  /// Reads up to `count` bytes, fewer at the end of the connection or when none come.
  stream::Bytes Read(std::size_t count) const;

  /// Whether a byte arrives within a fifth of a second.
  bool AnswerComes() const;

  /// Says that nothing more will be sent, and reads until the printer closes; whether it did.
  bool Finish() const;

  /// Breaks the connection, as a client that dies does: what is on the way is lost.
  void Break();

 private:
  int socket_;
};

/// Sends a whole stream over a connection of its own and waits for the printer to close it.
bool print(std::uint16_t port, const stream::Bytes& bytes);

#endif  // TQR7_TESTS_UNIT_SIMULATOR_PRINT_CLIENT_H
