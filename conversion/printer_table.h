// SPDX-License-Identifier: Apache-2.0
//
// The colour table for a page: from the profile in the module directory or the compiled-in model.
#ifndef TQR7_CONVERSION_PRINTER_TABLE_H
#define TQR7_CONVERSION_PRINTER_TABLE_H

#include <memory>

#include "conversion/builtin_table.h"
#include "conversion/colour_table.h"

/// One page's colour table. Any number of threads may each have their own.
class PrinterTable {
 public:
  /// Loads the table of tqr7.icc in this directory, whose path may be null. This never fails: it
  /// loads the model's table when the file is missing, damaged or not to be trusted, or without
  /// memory. The first time in a process that a profile is refused, one line on standard error says
  /// so. The last profile's table stays in the process, and is used again while the file's content
  /// is the same.
  void load(const char* modulePath) noexcept;

  /// The table that load() loaded; the model's before the first load(). It does not change until
  /// the next load() of this object, even if the file does.
  const ColourTable& table() const { return owners_ != nullptr ? *owners_ : builtin_table(); }

 private:
  std::unique_ptr<ColourTable> owners_;  ///< null: the model's
};

#endif  // TQR7_CONVERSION_PRINTER_TABLE_H
