// SPDX-License-Identifier: Apache-2.0
//
// The colour table of the compiled-in printer model, made while the build runs.
#ifndef TQR7_CONVERSION_BUILTIN_TABLE_H
#define TQR7_CONVERSION_BUILTIN_TABLE_H

#include "conversion/colour_table.h"

/// The table that make_colour_table() makes of printer_model_profile(): constant data, which needs
/// no Little CMS at run time.
const ColourTable& builtin_table();

#endif  // TQR7_CONVERSION_BUILTIN_TABLE_H
