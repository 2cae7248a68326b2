// SPDX-License-Identifier: Apache-2.0
#include "filter/job_options.h"

#include <cups/cups.h>
#include <sys/stat.h>

#include <cstdlib>

namespace {

// The scheduler's PPD is an ordinary file. Opening a pipe that nobody writes would wait for ever,
// and some devices have no end.
const char* ppd_path() {
  const char* path = std::getenv("PPD");
  struct stat file {};
  const bool usable = path == nullptr || stat(path, &file) != 0 || S_ISREG(file.st_mode);
  return usable ? path : nullptr;
}

}  // namespace

ppd_file_s* open_marked_ppd(const char* options) {
  ppd_file_s* ppd = ppdOpenFile(ppd_path());
  cups_option_t* parsed = nullptr;
  const int count = cupsParseOptions(options, 0, &parsed);
  ppdMarkDefaults(ppd);
  cupsMarkOptions(ppd, count, parsed);
  cupsFreeOptions(count, parsed);
  return ppd;
}
