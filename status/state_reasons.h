// SPDX-License-Identifier: Apache-2.0
//
// Reports to the scheduler which conditions the printer is in.
#ifndef TQR7_STATUS_STATE_REASONS_H
#define TQR7_STATUS_STATE_REASONS_H

#include "status/printer_state.h"

/// Raises the keywords of every table row that matches the state, or the catch-all keyword when
/// none does. Withdraws all other keywords of the table.
void update_printer_state(const PrinterState& state);

/// Withdraws every reason that the scheduler lists for the default destination.
void clean_printer_state();

#endif  // TQR7_STATUS_STATE_REASONS_H
