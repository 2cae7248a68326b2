// SPDX-License-Identifier: Apache-2.0
#include "filter/job_options.h"

#include <cups/cups.h>
#include <sys/stat.h>

#include <cstdlib>

#include "filter/memory_watch.h"

namespace {

// The scheduler's PPD is an ordinary file. Opening a pipe that nobody writes would wait for ever,
// and some devices have no end.
const char* ppd_path() {
  const char* path = std::getenv("PPD");
  struct stat file {};
  const bool usable = path == nullptr || stat(path, &file) != 0 || S_ISREG(file.st_mode);
  return usable ? path : nullptr;
}

// What libcups could not finish for want of memory is not given to its next call, which would fall
// over it. Each call is watched by itself: a later one may overwrite errno.
bool mark_defaults(ppd_file_s* ppd) {
  const MemoryWatch watch;
  ppdMarkDefaults(ppd);
  return !watch.refused();
}

bool mark_options(ppd_file_s* ppd, int count, cups_option_t* parsed) {
  const MemoryWatch watch;
  cupsMarkOptions(ppd, count, parsed);
  return !watch.refused();
}

bool mark_choices(ppd_file_s* ppd, const char* options) {
  const MemoryWatch watch;
  cups_option_t* parsed = nullptr;
  const int count = cupsParseOptions(options, 0, &parsed);
  if (watch.refused()) {
    return false;  // a half-made list is not even safe to release
  }
  const bool marked = mark_defaults(ppd) && mark_options(ppd, count, parsed);
  cupsFreeOptions(count, parsed);
  return marked;
}

}  // namespace

ppd_file_s* open_marked_ppd(const char* options) {
  const MemoryWatch watch;
  ppd_file_s* ppd = ppdOpenFile(ppd_path());
  if (!watch.refused() && mark_choices(ppd, options)) {
    return ppd;
  }
  ppdClose(ppd);
  errno = ENOMEM;
  return nullptr;
}
