// SPDX-License-Identifier: Apache-2.0
#include "status/status_query.h"

#include <cups/sidechannel.h>

#include <cstdio>

#include "diag/dump.h"
#include "status/printer_exchange.h"

namespace {

// ESC G D 0 and the parameters that ask for the printer's error number.
constexpr unsigned char CMD_GET_STATUS[] = {0x1B, 'G', 'D', '0', 0x00, 0x00, 0x01, 0x16};

constexpr int kOffsetErrorGroup = 4;
constexpr int kOffsetErrorDetail = 5;
static_assert(STATUS_BUFFER_SIZE == kReplyBufferSize);

// Bytes of the reply, or −1. The first silent second ends it: a printer that is there answers
// earlier.
int read_reply(char* buffer) {
  int total = 0;
  while (total < STATUS_REPLY_MIN) {
    const auto room = static_cast<std::size_t>(STATUS_BUFFER_SIZE - total);
    const ssize_t count = cupsBackChannelRead(buffer + total, room, kReplyTimeout);
    if (count <= 0) {
      std::fprintf(stderr, "DEBUG: cupsBackChannelRead() failed. ret=%zd\n", count);
      return -1;
    }
    total += static_cast<int>(count);
  }
  return total;
}

}  // namespace

PrinterState get_printer_state() {
  dump_mem("[CMD]", CMD_GET_STATUS, sizeof CMD_GET_STATUS);
  if (!send_request(CMD_GET_STATUS, sizeof CMD_GET_STATUS)) {
    return PrinterState::Unavailable();
  }
  char buffer[STATUS_BUFFER_SIZE] = {};
  drain_output(buffer);
  const int total = read_reply(buffer);
  if (total < 0) {
    return PrinterState::Unavailable();
  }
  dump_mem("[STS]", buffer, total);
  const auto group = static_cast<unsigned char>(buffer[kOffsetErrorGroup]);
  const auto detail = static_cast<unsigned char>(buffer[kOffsetErrorDetail]);
  return PrinterState::Error(static_cast<unsigned short>(group * 256 + detail));
}
