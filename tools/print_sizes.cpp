// SPDX-License-Identifier: Apache-2.0
#include "tools/print_sizes.h"

#include <strings.h>

#include <array>
#include <string>

namespace tools {
namespace {

constexpr std::size_t kPrefix = 3;  // "RQ_"

constexpr std::array<PrintSize, 13> kSizes = {{
    {"RQ_9x13", &PAPER_9x13},
    {"RQ_10x15", &PAPER_10x15},
    {"RQ_13x18", &PAPER_13x18},
    {"RQ_15x20", &PAPER_15x20},
    {"RQ_5x15", &PAPER_5x15},
    {"RQ_15x15", &PAPER_15x15},
    {"RQ_13x13", &PAPER_13x13},
    {"RQ_5x15x2_1", &PAPER_5x15x2_1},
    {"RQ_5x15x2_2", &PAPER_5x15x2_2},
    {"RQ_9x13_WB", &PAPER_9x13_WB},
    {"RQ_10x15_WB", &PAPER_10x15_WB},
    {"RQ_13x18_WB", &PAPER_13x18_WB},
    {"RQ_15x20_WB", &PAPER_15x20_WB},
}};

}  // namespace

std::span<const PrintSize> print_sizes() {
  return kSizes;
}

const PrintSize* find_print_size(std::string_view name) {
  const std::string wanted(name);
  for (const PrintSize& size : kSizes) {
    if (strcasecmp(wanted.c_str(), size.name) == 0 ||
        strcasecmp(wanted.c_str(), size.name + kPrefix) == 0) {
      return &size;
    }
  }
  return nullptr;
}

}  // namespace tools
