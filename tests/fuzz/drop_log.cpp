// SPDX-License-Identifier: Apache-2.0
//
// For targets whose code writes log lines: from the start what goes to standard error is formatted
// and dropped. libFuzzer and the sanitizers keep their own way to the terminal.
#include <sys/types.h>

#include <cstdio>

extern "C" int LLVMFuzzerInitialize(int*, char***);
extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
  cookie_io_functions_t drop{};
  drop.write = [](void*, const char*, std::size_t size) { return static_cast<ssize_t>(size); };
  static std::FILE* const nowhere = fopencookie(nullptr, "w", drop);
  stderr = nowhere;
  return 0;
}
