// SPDX-License-Identifier: Apache-2.0
//
// Preloaded into whatever is measured: pauses are not made, and at its end the process leaves what
// the kernel says of it in the file that TQR7_STATUS names. Its peak of memory is in there: the one
// that a parent hears of begins with the parent's own.
//
// Nothing here may need the C++ library, or what is measured would load it on this library's
// account.
#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>

namespace {

__attribute__((destructor)) void leave_status() {
  const char* path = std::getenv("TQR7_STATUS");
  const int status = open("/proc/self/status", O_RDONLY | O_CLOEXEC);
  const int file = path == nullptr ? -1 : open(path, O_WRONLY | O_CLOEXEC);
  char text[4096];
  const ssize_t size = read(status, text, sizeof text);
  if (file >= 0 && size > 0 && write(file, text, static_cast<std::size_t>(size)) != size) {
    std::abort();
  }
}

}  // namespace

extern "C" unsigned int sleep(unsigned int /*seconds*/) {
  return 0;
}
