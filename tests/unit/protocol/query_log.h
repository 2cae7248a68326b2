// SPDX-License-Identifier: Apache-2.0
//
// What the log holds of a readiness query for a default sheet of 10x15 with the rates 0x4D and
// 0x5E.
#ifndef TQR7_TESTS_UNIT_PROTOCOL_QUERY_LOG_H
#define TQR7_TESTS_UNIT_PROTOCOL_QUERY_LOG_H

#include <string>

/// From the query's start to its dump.
inline const std::string kQueryDump =
    "DEBUG: buf cmd{0x1B, 'G', 'D', '3'}\n"
    "DEBUG: buf wr_esc_enable() START\n"
    "DEBUG: [CMD] size=512\n"
    "DEBUG: [CMD] 0000: 1b 47 44 33 00 33 07 3c 04 d0 05 00 00 00 00 00\n"
    "DEBUG: [CMD] 0010: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 0020: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 0030: 00 00 01 00 00 00 00 00 00 00 02 00 00 00 00 00\n"
    "DEBUG: [CMD] 0040: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 0050: 01 4d 5e 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 0060: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 0070: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 0080: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 0090: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 00a0: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 00b0: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 00c0: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 00d0: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 00e0: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 00f0: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 0100: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 0110: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 0120: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 0130: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 0140: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 0150: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 0160: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 0170: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 0180: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 0190: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 01a0: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 01b0: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 01c0: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 01d0: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 01e0: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
    "DEBUG: [CMD] 01f0: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n";

/// The query and its drain, up to where the reply is read.
inline const std::string kQuerySent =
    kQueryDump + "DEBUG: CUPS_SC_CMD_DRAIN_OUTPUT=CUPS_SC_STATUS_OK(1)\n";

/// A whole exchange whose reply is four zeros and the code's two bytes, as "02 01".
inline std::string QueryAnswered(const std::string& code) {
  return kQuerySent +
         "DEBUG: [STS]CMD_GET_ENABLE size=6\n"
         "DEBUG: [STS]CMD_GET_ENABLE 0000: 00 00 00 00 " +
         code + "\nDEBUG: buf wr_esc_enable() END\n";
}

#endif  // TQR7_TESTS_UNIT_PROTOCOL_QUERY_LOG_H
