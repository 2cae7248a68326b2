// SPDX-License-Identifier: Apache-2.0
#include "tools/print_sizes.h"

#include <strings.h>

#include <string>

namespace tools {
namespace {

constexpr std::size_t kPrefix = 3;  // "RQ_"

bool is_called(const NamedPaper& size, const std::string& name) {
  const std::string millimetres =
      std::to_string(size.photo_width) + "x" + std::to_string(size.photo_height) + "mm";
  const auto is = [&name](const char* text) { return strcasecmp(name.c_str(), text) == 0; };
  return is(size.choice) || is(size.choice + kPrefix) || is(millimetres.c_str()) ||
         (!name.empty() && is(size.inches));
}

}  // namespace

const NamedPaper* find_paper(std::string_view name) {
  for (const NamedPaper& size : named_papers()) {
    if (is_called(size, std::string(name))) {
      return &size;
    }
  }
  return nullptr;
}

}  // namespace tools
