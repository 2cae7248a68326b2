// SPDX-License-Identifier: Apache-2.0
//
// The status request, which travels in the print stream, and the printer's reply.
#ifndef TQR7_STATUS_STATUS_QUERY_H
#define TQR7_STATUS_STATUS_QUERY_H

#include "status/printer_state.h"

inline constexpr int STATUS_BUFFER_SIZE = 512;  ///< most bytes of a reply that are taken in
inline constexpr int STATUS_REPLY_MIN = 15;     ///< a reply is whole from here on

/// Asks the printer for its status; only to be called between complete commands. Unavailable when
/// the request could not be written or no whole reply came.
PrinterState get_printer_state();

#endif  // TQR7_STATUS_STATUS_QUERY_H
