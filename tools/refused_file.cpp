// SPDX-License-Identifier: Apache-2.0
#include "tools/refused_file.h"

#include <algorithm>
#include <array>

namespace tools {

bool refuses_file(std::string_view words) {
  constexpr std::array<std::string_view, 2> kBeginnings = {"The photo cannot be printed: ",
                                                           "The pages cannot be printed: "};
  return std::any_of(kBeginnings.begin(), kBeginnings.end(),
                     [&](std::string_view begin) { return words.starts_with(begin); });
}

std::string words_on_file(const Job& job) {
  return job.state == JobState::Stopped && refuses_file(job.printerMessage) ? job.printerMessage
                                                                            : std::string();
}

}  // namespace tools
