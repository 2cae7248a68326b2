// SPDX-License-Identifier: Apache-2.0
//
// Fuzzes the reading of an owner's profile with any bytes, and with little memory: a table either
// comes out whole, its nodes within what a table may hold, or not at all.
#include <cstdint>
#include <cstdlib>
#include <span>

#include "conversion/table_from_profile.h"

namespace {

bool is_sound(const ColourTable& table) {
  for (const ColourNode& node : table.nodes) {
    for (std::size_t i = 0; i < 3; ++i) {
      if (node[i] < -8192 || node[i] > 24575) {
        return false;
      }
    }
    if (node[3] != 0) {
      return false;
    }
  }
  return table.nodes.back() == ColourNode{0x3FFF, 0x3FFF, 0x3FFF, 0};
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static ColourTable table;
  const std::span<const unsigned char> profile(data, size);
  if (make_colour_table(profile, table) == nullptr && !is_sound(table)) {
    std::abort();
  }
  // The profile's own bytes say how little memory there is, so that a fault comes back.
  const std::size_t scarce =
      size > 87 ? std::size_t{data[86]} << 10U | std::size_t{data[87]} << 2U : size;
  if (make_colour_table(profile, table, scarce) == nullptr && !is_sound(table)) {
    std::abort();
  }
  return 0;
}
