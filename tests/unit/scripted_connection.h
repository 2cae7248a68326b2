// SPDX-License-Identifier: Apache-2.0
//
// The backend and the printer as a test scripts them: takes the place of libcups' side channel and
// back channel and of the C library's sleep(), and keeps a journal of what was asked of them.
#ifndef TQR7_TESTS_UNIT_SCRIPTED_CONNECTION_H
#define TQR7_TESTS_UNIT_SCRIPTED_CONNECTION_H

#include <cups/sidechannel.h>
#include <sys/types.h>

#include <deque>
#include <string>
#include <vector>

/// What one back-channel read gives: the bytes, or with none the result (0, or −1 for a failure).
struct BackChannelPiece {
  std::string bytes;
  ssize_t result = 0;
};

struct ScriptedConnection {
  /// How the backend answers every side-channel request.
  int drain_status = CUPS_SC_STATUS_OK;
  /// What the next reads give; a read beyond the last one fails with −1.
  std::deque<BackChannelPiece> pieces;
  /// One line a call: the call, its arguments, and how many bytes had left standard output by then.
  std::vector<std::string> journal;

  /// The printer answers with these bytes in one piece.
  void Answer(const std::string& bytes) { pieces.push_back({bytes, 0}); }
  /// A read that ends without bytes: 0 for silence, −1 for a failure.
  void AnswerNothing(ssize_t result) { pieces.push_back({"", result}); }
};

/// The connection of the running test; a test starts with Reset().
ScriptedConnection& Connection();
void ResetConnection();

#endif  // TQR7_TESTS_UNIT_SCRIPTED_CONNECTION_H
