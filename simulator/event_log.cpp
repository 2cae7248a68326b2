// SPDX-License-Identifier: Apache-2.0
#include "simulator/event_log.h"

#include <cstdio>

namespace simulator {

void log_event(const std::string& line) {
  std::fprintf(stdout, "%s\n", line.c_str());
  std::fflush(stdout);
}

}  // namespace simulator
