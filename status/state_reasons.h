// SPDX-License-Identifier: Apache-2.0
//
// Tells the scheduler which of the printer's conditions hold now.
#ifndef TQR7_STATUS_STATE_REASONS_H
#define TQR7_STATUS_STATE_REASONS_H

#include "status/printer_state.h"

/// Raises the keywords of every table row that the state matches, the catch-all keyword when none
/// does, and withdraws all others of the table.
void update_printer_state(const PrinterState& state);

/// Withdraws every reason that the scheduler lists for the default destination.
void clean_printer_state();

#endif  // TQR7_STATUS_STATE_REASONS_H
