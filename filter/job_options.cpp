// SPDX-License-Identifier: Apache-2.0
#include "filter/job_options.h"

#include <cups/cups.h>

#include <cstdlib>

ppd_file_s* open_marked_ppd(const char* options) {
  ppd_file_s* ppd = ppdOpenFile(std::getenv("PPD"));
  cups_option_t* parsed = nullptr;
  const int count = cupsParseOptions(options, 0, &parsed);
  ppdMarkDefaults(ppd);
  cupsMarkOptions(ppd, count, parsed);
  cupsFreeOptions(count, parsed);
  return ppd;
}
