// SPDX-License-Identifier: Apache-2.0
#include "status/printer_exchange.h"

#include <cups/sidechannel.h>

#include <cstdio>

#include "diag/enum_names.h"
#include "job/job_state.h"

namespace {

constexpr double kDrainTimeout = 5.0;  // seconds

}  // namespace

bool send_request(const unsigned char* request, std::size_t size) {
  const OutputCall call;
  const std::size_t written = std::fwrite(request, 1, size, stdout);
  if (written != size) {
    std::fprintf(stderr, "DEBUG: fwrite() failed. ret=%zu\n", written);
    return false;
  }
  if (std::fflush(stdout) != 0) {
    std::fprintf(stderr, "DEBUG: fflush() failed.\n");
    return false;
  }
  return true;
}

void drain_output(char* buffer) {
  int length = static_cast<int>(kReplyBufferSize);
  const cups_sc_status_t status =
      cupsSideChannelDoRequest(CUPS_SC_CMD_DRAIN_OUTPUT, buffer, &length, kDrainTimeout);
  std::fprintf(stderr, "DEBUG: CUPS_SC_CMD_DRAIN_OUTPUT=%s(%d)\n", to_string(status),
               static_cast<int>(status));
}
