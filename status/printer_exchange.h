// SPDX-License-Identifier: Apache-2.0
//
// How a request gets to the printer: into the print stream, then through the backend. The answer
// comes over the back channel, which each kind of exchange reads by its own rule.
#ifndef TQR7_STATUS_PRINTER_EXCHANGE_H
#define TQR7_STATUS_PRINTER_EXCHANGE_H

#include <cstddef>

inline constexpr std::size_t kReplyBufferSize = 512;  ///< most bytes of a reply that are taken in
inline constexpr double kReplyTimeout = 1.0;          ///< seconds that one read of a reply waits

/// Writes a request to standard output and flushes it. False, after a "DEBUG: " line, when either
/// fails.
bool send_request(const unsigned char* request, std::size_t size);

/// Asks the backend to send all it holds, including the request, within 5 seconds, and logs its
/// answer. Overwrites `buffer`, of kReplyBufferSize bytes. There is no result: a backend that
/// cannot confirm may still have sent the request.
void drain_output(char* buffer);

#endif  // TQR7_STATUS_PRINTER_EXCHANGE_H
