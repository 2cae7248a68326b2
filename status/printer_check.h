// SPDX-License-Identifier: Apache-2.0
//
// The check before the job and before each sheet: is the printer good?
#ifndef TQR7_STATUS_PRINTER_CHECK_H
#define TQR7_STATUS_PRINTER_CHECK_H

/// Asks the printer for its state and reports it as state reasons. True when it is good; then it
/// has also withdrawn stale reasons.
bool printer_is_good();

#endif  // TQR7_STATUS_PRINTER_CHECK_H
