// SPDX-License-Identifier: Apache-2.0
#include "status/printer_check.h"

#include <cstdio>

#include "status/state_reasons.h"
#include "status/status_query.h"

bool printer_is_good() {
  const PrinterState state = get_printer_state();
  std::fprintf(stderr, "DEBUG: =======> printer_state=%s\n", state.to_string().c_str());
  update_printer_state(state);
  if (state != PrinterState::Good()) {
    std::fprintf(stderr, "DEBUG: =======> exit(1) Because printer has error\n");
    return false;
  }
  clean_printer_state();
  return true;
}
