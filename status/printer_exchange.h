// SPDX-License-Identifier: Apache-2.0
//
// The way of a request to the printer: into the print stream, then through the backend. The answer
// comes back over the back channel, which each exchange reads by its own rule.
#ifndef TQR7_STATUS_PRINTER_EXCHANGE_H
#define TQR7_STATUS_PRINTER_EXCHANGE_H

#include <cstddef>

inline constexpr std::size_t kReplyBufferSize = 512;  ///< most bytes of a reply that are taken in
inline constexpr double kReplyTimeout = 1.0;          ///< seconds that one read of a reply waits

/// Writes a request to standard output and flushes it. False, after a "DEBUG: " line, when either
/// fails.
bool send_request(const unsigned char* request, std::size_t size);

/// Has the backend pass on all it holds, the request included, within 5 seconds, and logs what it
/// said. `buffer` of kReplyBufferSize bytes is overwritten. A backend that cannot say that it is
/// done may have passed the request on all the same, so there is no result.
void drain_output(char* buffer);

#endif  // TQR7_STATUS_PRINTER_EXCHANGE_H
