// SPDX-License-Identifier: Apache-2.0
#include "filter/progress.h"

#include <cstdio>

#include "filter/job_state.h"

void report_progress(int percent) {
  std::fprintf(stderr, "INFO: Printing page %d, %d%% complete...\n", page, percent);
}
