// SPDX-License-Identifier: Apache-2.0
#include "filter/job_options.h"

#include <cups/cups.h>
#include <sys/stat.h>

#include <cstdlib>

#include "filter/memory_watch.h"

namespace {

bool can_be_read_again(const char* path) {
  struct stat file {};
  return path != nullptr && stat(path, &file) == 0 && S_ISREG(file.st_mode);
}

// False at a sign that memory was refused, if signs count. What libcups could not finish without
// that memory is not passed to its next call, which would crash on it.
bool mark_choices(ppd_file_s* ppd, const char* options, bool signs_count) {
  const MemoryWatch watch;
  const auto refused = [&] { return signs_count && watch.refused(); };
  cups_option_t* parsed = nullptr;
  const int count = cupsParseOptions(options, 0, &parsed);
  if (refused()) {
    return false;  // a half-made list is not even safe to release
  }
  ppdMarkDefaults(ppd);
  if (!refused()) {
    cupsMarkOptions(ppd, count, parsed);
  }
  cupsFreeOptions(count, parsed);
  return !refused();
}

}  // namespace

// Without memory libcups drops a line of the PPD, an option or a mark, goes on and succeeds. The
// only sign is ENOMEM in errno, but a call that got all its memory may leave that there, too. So a
// sign makes us read the PPD a second time, if it can be read again, and then it no longer counts.
ppd_file_s* open_marked_ppd(const char* options) {
  const char* path = std::getenv("PPD");
  for (bool signs_count = can_be_read_again(path);; signs_count = false) {
    const MemoryWatch watch;
    ppd_file_s* ppd = ppdOpenFile(path);
    const bool refused = watch.refused();
    if (ppd == nullptr && refused) {
      return nullptr;
    }
    if (!(signs_count && refused) && mark_choices(ppd, options, signs_count)) {
      return ppd;
    }
    ppdClose(ppd);
  }
}
