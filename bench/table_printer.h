// SPDX-License-Identifier: Apache-2.0
//
// Tables of figures on standard output: Markdown that is as readable on a terminal.
#ifndef TQR7_BENCH_TABLE_PRINTER_H
#define TQR7_BENCH_TABLE_PRINTER_H

#include <string>
#include <vector>

namespace bench {

/// One table; rows have as many cells as the head.
struct Table {
  std::vector<std::string> head;
  std::vector<std::vector<std::string>> rows;
};

/// Prints the columns as wide as their widest cell and a blank line behind; the first column is
/// set left, the others right.
void print_table(const Table& table);

/// A number with so many decimals.
std::string number(double value, int decimals);

/// "met" or "MISSED".
std::string verdict(bool met);

}  // namespace bench

#endif  // TQR7_BENCH_TABLE_PRINTER_H
