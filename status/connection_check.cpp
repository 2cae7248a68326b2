// SPDX-License-Identifier: Apache-2.0
#include "status/connection_check.h"

#include <cups/sidechannel.h>

#include <cstdio>

#include "diag/enum_names.h"

namespace {

constexpr double kBidiTimeout = 30.0;  // seconds

}  // namespace

// The job needs the printer's answers all the time: nothing prints without a way back.
bool connection_is_bidirectional() {
  char reply[512] = {};
  int length = sizeof reply;
  const cups_sc_status_t status =
      cupsSideChannelDoRequest(CUPS_SC_CMD_GET_BIDI, reply, &length, kBidiTimeout);
  std::fprintf(stderr, "DEBUG: CUPS_SC_CMD_GET_BIDI=%s(%d)\n", to_string(status),
               static_cast<int>(status));
  const bool supported = status == CUPS_SC_STATUS_OK && length == 1 &&
                         static_cast<signed char>(reply[0]) == CUPS_SC_BIDI_SUPPORTED;
  if (!supported) {
    std::fprintf(stderr,
                 "DEBUG: Unable to retrieve supply status from printer - nobidirectional I/O "
                 "available!\n");
  }
  return supported;
}
