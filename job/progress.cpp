// SPDX-License-Identifier: Apache-2.0
#include "job/progress.h"

#include <cstdio>

#include "job/job_state.h"

void report_progress(int percent) {
  std::fprintf(stderr, "INFO: Printing page %d, %d%% complete...\n", page, percent);
}
