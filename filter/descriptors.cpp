// SPDX-License-Identifier: Apache-2.0
#include "filter/descriptors.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace {

constexpr int kBackChannel = 3;

// A file that was opened twice has flags for each opening. Not every system says which is the case.
bool may_share_flags(int one, int other) {
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
      // open() takes the lowest free number. That is this one: all lower ones are in use by now.
      static_cast<void>(open("/dev/null", kWrongWay[descriptor]));
    }
  }
}

void unblock_back_channel() {
  for (int other = 0; other < 5; ++other) {
    if (other != kBackChannel && may_share_flags(kBackChannel, other)) {
      return;
    }
  }
  const int flags = fcntl(kBackChannel, F_GETFL);
  if (flags != -1 && (flags & O_NONBLOCK) == 0) {
    fcntl(kBackChannel, F_SETFL, flags | O_NONBLOCK);
  }
}
