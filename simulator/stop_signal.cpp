// SPDX-License-Identifier: Apache-2.0
#include "simulator/stop_signal.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

namespace simulator {
namespace {

// Set before the handler is installed, and only read afterwards.
int stopWriteEnd = -1;

void on_stop_signal(int /*signal*/) {
  const int savedErrno = errno;
  const char byte = 0;
  // A full pipe has said it already.
  [[maybe_unused]] const ssize_t written = ::write(stopWriteEnd, &byte, 1);
  errno = savedErrno;
}

void make_descriptor_quiet(int descriptor) {
  ::fcntl(descriptor, F_SETFD, FD_CLOEXEC);
  ::fcntl(descriptor, F_SETFL, O_NONBLOCK);
}

}  // namespace

int catch_stop_signals() {
  std::array<int, 2> ends{};
  if (::pipe(ends.data()) != 0) {
    return -1;
  }
  make_descriptor_quiet(ends[0]);
  make_descriptor_quiet(ends[1]);
  stopWriteEnd = ends[1];

  struct sigaction stop {};
  stop.sa_handler = on_stop_signal;
  sigemptyset(&stop.sa_mask);
  ::sigaction(SIGTERM, &stop, nullptr);
  ::sigaction(SIGINT, &stop, nullptr);

  struct sigaction ignore {};
  ignore.sa_handler = SIG_IGN;
  sigemptyset(&ignore.sa_mask);
  ::sigaction(SIGPIPE, &ignore, nullptr);
  ::sigaction(SIGXFSZ, &ignore, nullptr);
  return ends[0];
}

}  // namespace simulator
