// SPDX-License-Identifier: Apache-2.0
#include "filter/memory_watch.h"

#include <cstdio>

void report_no_memory() {
  std::fprintf(stderr, "ERROR: Not enough memory for the job\n");
}
