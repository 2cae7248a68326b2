// SPDX-License-Identifier: Apache-2.0
#include "bench/table_printer.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>

namespace bench {

namespace {

/// How many columns of a terminal a text takes: bytes that go on a UTF-8 character take none.
std::size_t columns_of(const std::string& text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
  }));
}

void print_row(const std::vector<std::string>& cells, const std::vector<std::size_t>& widths) {
  std::string line = "|";
  for (std::size_t column = 0; column < cells.size(); ++column) {
    const std::string padding(widths[column] - columns_of(cells[column]), ' ');
    line +=
        column == 0 ? " " + cells[column] + padding + " |" : " " + padding + cells[column] + " |";
  }
  std::printf("%s\n", line.c_str());
}

}  // namespace

void print_table(const Table& table) {
  std::vector<std::size_t> widths;
  for (std::size_t column = 0; column < table.head.size(); ++column) {
    std::size_t width = std::max<std::size_t>(columns_of(table.head[column]), 3);
    for (const auto& row : table.rows) {
      width = std::max(width, columns_of(row[column]));
    }
    widths.push_back(width);
  }
  print_row(table.head, widths);
  std::string line = "|";
  for (std::size_t column = 0; column < widths.size(); ++column) {
    line += column == 0 ? std::string(widths[0] + 2, '-') + "|"
                        : std::string(widths[column] + 1, '-') + ":|";
  }
  std::printf("%s\n", line.c_str());
  for (const auto& row : table.rows) {
    print_row(row, widths);
  }
  std::printf("\n");
}

std::string number(double value, int decimals) {
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%.*f", decimals, value);
  return text.data();
}

std::string verdict(bool met) {
  return met ? "met" : "MISSED";
}

}  // namespace bench
