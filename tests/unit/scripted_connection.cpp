// SPDX-License-Identifier: Apache-2.0
#include "tests/unit/scripted_connection.h"

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstring>

#include "tests/unit/stand_in.h"

namespace {

ScriptedConnection connection;
bool connection_scripted = false;

const bool connection_restored = AfterEachTest([] {
  connection = {};
  connection_scripted = false;
});

void Note(const char* call, long first, double second) {
  struct stat status {};
  fstat(STDOUT_FILENO, &status);
  const long sent = S_ISREG(status.st_mode) ? static_cast<long>(status.st_size) : -1;
  std::array<char, 128> line{};
  std::snprintf(line.data(), line.size(), "%s %ld %.1f, %ld sent", call, first, second, sent);
  connection.journal.emplace_back(line.data());
}

}  // namespace

ScriptedConnection& Connection() {
  connection_scripted = true;
  return connection;
}

void ResetConnection() {
  Connection() = ScriptedConnection();
}

extern "C" cups_sc_status_t cupsSideChannelDoRequest(cups_sc_command_t command, char* data,
                                                     int* datalen, double timeout) {
  if (!connection_scripted) {
    return RealFunction<decltype(cupsSideChannelDoRequest)>("cupsSideChannelDoRequest")(
        command, data, datalen, timeout);
  }
  Note(command == CUPS_SC_CMD_DRAIN_OUTPUT ? "drain" : "other request", *datalen, timeout);
  // A backend may leave anything in the buffer that it was lent.
  std::memset(data, 0x5A, static_cast<std::size_t>(*datalen));
  return static_cast<cups_sc_status_t>(connection.drain_status);
}

extern "C" ssize_t cupsBackChannelRead(char* buffer, std::size_t bytes, double timeout) {
  if (!connection_scripted) {
    return RealFunction<decltype(cupsBackChannelRead)>("cupsBackChannelRead")(buffer, bytes,
                                                                              timeout);
  }
  Note("read", static_cast<long>(bytes), timeout);
  std::deque<BackChannelPiece>& pieces = connection.pieces;
  if (pieces.empty()) {
    return -1;
  }
  const BackChannelPiece piece = pieces.front();
  pieces.pop_front();
  if (piece.bytes.empty()) {
    return piece.result;
  }
  return static_cast<ssize_t>(piece.bytes.copy(buffer, bytes));
}

extern "C" unsigned int sleep(unsigned int seconds) {
  if (!connection_scripted) {
    return RealFunction<decltype(sleep)>("sleep")(seconds);
  }
  Note("sleep", static_cast<long>(seconds), 0.0);
  return 0;
}
