// SPDX-License-Identifier: Apache-2.0
//
// The question before each sheet: will the printer take it with these settings, and now?
#ifndef TQR7_PROTOCOL_READINESS_CHECK_H
#define TQR7_PROTOCOL_READINESS_CHECK_H

#include <cstdio>
#include <string>

#include "job/print_setting.h"

/// One exchange on standard output and the back channel. Returns the printer's enable code, 0 …
/// 65535, or −1 when the query could not be written or no reply could be read. `out` is not used.
int wr_esc_enable(std::FILE* out, const tagPRINTSETTING* settings);

/// Asks until the printer is no longer busy, for at most about three minutes, and reports what it
/// answered. Empty when the sheet may be sent, else a short text that says why not.
std::string ExaminePage(const tagPRINTSETTING* settings);

#endif  // TQR7_PROTOCOL_READINESS_CHECK_H
