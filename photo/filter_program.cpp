// SPDX-License-Identifier: Apache-2.0
#include "photo/filter_program.h"

#include <cstdio>
#include <exception>
#include <new>

#include "photo/refusal.h"

namespace photo {

int run_filter(const char* what, int (*print)(int argc, char* argv[]), int argc, char* argv[]) {
  setbuf(stderr, nullptr);
  if (argc != kArgumentsWithoutFile && argc != kArgumentsWithFile) {
    std::fprintf(stderr, "Usage: %s job-id user title copies options [file]\n", argv[0]);
    return 1;
  }
  try {
    return print(argc, argv);
  } catch (const std::bad_alloc&) {
    return say_not_printed(what, kNoMemory);
  } catch (const std::exception& error) {
    return say_not_printed(what, error.what());
  }
}

}  // namespace photo
