// SPDX-License-Identifier: Apache-2.0
#include "status/reason_table.h"

#define REASON(number, error_class, keyword, text) {0x##number >> 8, 0x##number & 0xFF, {keyword}},

const PrinterStateReason PRINTER_STATE_REASONS[110] = {
#include "status/reason_list.def"
};
