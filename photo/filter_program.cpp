// SPDX-License-Identifier: Apache-2.0
#include "photo/filter_program.h"

#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <ctime>
#include <exception>
#include <new>

#include "photo/photo_rows.h"

namespace photo {
namespace {

// The scheduler keeps the first error message of a job. When the program ends before the scheduler
// has read its message, the scheduler keeps "Filter failed" instead. So the program waits until its
// message is read, but no longer than a second.
void wait_until_read(int descriptor) {
  constexpr timespec kPause = {0, 10'000'000};
  constexpr int kPausesMost = 100;
  struct stat facts {};
  if (fstat(descriptor, &facts) != 0 || !S_ISFIFO(facts.st_mode)) {
    return;
  }
  int unread = 0;
  for (int i = 0; i < kPausesMost && ioctl(descriptor, FIONREAD, &unread) == 0 && unread > 0; ++i) {
    nanosleep(&kPause, nullptr);
  }
}

int say(std::string_view what, const char* outcome, std::string_view why) {
  std::fprintf(stderr, "ERROR: The %.*s %s: %.*s.\n", static_cast<int>(what.size()), what.data(),
               outcome, static_cast<int>(why.size()), why.data());
  wait_until_read(STDERR_FILENO);
  return 1;
}

}  // namespace

int say_cannot_be_printed(std::string_view what, std::string_view why) {
  return why == kNoMemory ? say_not_printed(what, why) : say(what, "cannot be printed", why);
}

int say_not_printed(std::string_view what, std::string_view why) {
  return say(what, what.ends_with('s') ? "were not printed" : "was not printed", why);
}

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
