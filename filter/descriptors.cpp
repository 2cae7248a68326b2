// SPDX-License-Identifier: Apache-2.0
#include "filter/descriptors.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#ifdef __linux__
#include <linux/kcmp.h>
#include <sys/syscall.h>
#endif

namespace {

constexpr int kBackChannel = 3;

// Where the system cannot tell, two descriptors of one file count as one open file.
bool are_one_open_file(int one, int other) {
#ifdef __linux__
  const long order = syscall(SYS_kcmp, getpid(), getpid(), KCMP_FILE, one, other);
  if (order >= 0) {
    return order == 0;
  }
#endif
  struct stat first {};
  struct stat second {};
  return fstat(one, &first) == 0 && fstat(other, &second) == 0 && first.st_dev == second.st_dev &&
         first.st_ino == second.st_ino;
}

}  // namespace

void reserve_scheduler_descriptors() {
  // Input, output, log, back channel (read), side channel (its requests are written first).
  constexpr int kWrongWay[] = {O_WRONLY, O_RDONLY, O_RDONLY, O_WRONLY, O_RDONLY};
  for (int descriptor = 0; descriptor < 5; ++descriptor) {
    if (fcntl(descriptor, F_GETFD) == -1) {
      // The lowest free number is this one: all below are in use by now.
      static_cast<void>(open("/dev/null", kWrongWay[descriptor]));
    }
  }
}

void unblock_back_channel() {
  for (int other = 0; other < 5; ++other) {
    if (other != kBackChannel && are_one_open_file(kBackChannel, other)) {
      return;
    }
  }
  const int flags = fcntl(kBackChannel, F_GETFL);
  if (flags != -1 && (flags & O_NONBLOCK) == 0) {
    fcntl(kBackChannel, F_SETFL, flags | O_NONBLOCK);
  }
}
