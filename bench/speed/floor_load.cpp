// SPDX-License-Identifier: Apache-2.0
//
// A floor for starting: loads libcups, opens the PPD that the environment names, marks its defaults
// and the job's options as the filter has to, and ends. Plain C but for its name: the C++ library
// is not loaded.
#include <cups/cups.h>
#include <cups/ppd.h>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
  constexpr int kArgumentOptions = 5;
  ppd_file_t* ppd = ppdOpenFile(std::getenv("PPD"));
  if (ppd == nullptr || argc <= kArgumentOptions) {
    return 2;
  }
  cups_option_t* options = nullptr;
  const int count = cupsParseOptions(argv[kArgumentOptions], 0, &options);
  ppdMarkDefaults(ppd);
  cupsMarkOptions(ppd, count, options);
  cupsFreeOptions(count, options);
  ppdClose(ppd);
  return std::fflush(stdout) == 0 ? 0 : 2;
}
