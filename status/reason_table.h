// SPDX-License-Identifier: Apache-2.0
//
// The printer's error numbers and the state-reason keywords that they raise.
#ifndef TQR7_STATUS_REASON_TABLE_H
#define TQR7_STATUS_REASON_TABLE_H

#include <cstdint>

/// One error number, or a range of them in one group, and the keywords that it raises.
struct PrinterStateReason {
  std::uint16_t error_high;  ///< error group
  std::uint16_t error_low;   ///< up to 0xFF: the detail; above: details (low byte) … (high byte)
  const char* reasons[4];    ///< keywords up to the first null
};

/// In ascending order of error number. Row 0 is the good printer, which raises nothing.
extern const PrinterStateReason PRINTER_STATE_REASONS[110];

#endif  // TQR7_STATUS_REASON_TABLE_H
