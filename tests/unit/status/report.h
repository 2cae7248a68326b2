// SPDX-License-Identifier: Apache-2.0
//
// What the scheduler is told of a state.
#ifndef TQR7_TESTS_UNIT_STATUS_REPORT_H
#define TQR7_TESTS_UNIT_STATUS_REPORT_H

#include <cstdio>
#include <string>

#include "status/state_reasons.h"
#include "tests/unit/capture.h"

inline std::string Report(const PrinterState& state) {
  Capture err(stderr);
  update_printer_state(state);
  return err.Text();
}

#endif  // TQR7_TESTS_UNIT_STATUS_REPORT_H
