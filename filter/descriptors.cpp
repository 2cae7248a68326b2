// SPDX-License-Identifier: Apache-2.0
#include "filter/descriptors.h"

#include <fcntl.h>

namespace {

constexpr int kBackChannel = 3;

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
  const int flags = fcntl(kBackChannel, F_GETFL);
  if (flags != -1 && (flags & O_NONBLOCK) == 0) {
    fcntl(kBackChannel, F_SETFL, flags | O_NONBLOCK);
  }
}
