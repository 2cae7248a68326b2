// SPDX-License-Identifier: Apache-2.0
//
// Fuzzes what a job's owner can write: the PPD and the option string, up to the settings record and
// the module directory. The option string stands behind the first zero byte.
#include <cups/cups.h>
#include <cups/ppd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "filter/module_path.h"
#include "filter/ppd_options.h"

namespace {

void require(bool holds) {
  if (!holds) {
    std::abort();
  }
}

void check_settings(const tagPRINTSETTING& settings) {
  require(settings.nPaperWidth == 1550 || settings.nPaperWidth == 1852);
  require(settings.nImageLeft + settings.nImageWidth <= settings.nPaperWidth);
  require(settings.bySharpness <= 7);
  for (int channel = 0; channel < 3; ++channel) {
    require(settings.nGamma[channel] >= -5 && settings.nGamma[channel] <= 5);
    require(settings.nContrast[channel] >= -128 && settings.nContrast[channel] <= 128);
    require(settings.nBrightness[channel] >= -128 && settings.nBrightness[channel] <= 128);
  }
}

void check_module_path(const ppd_file_t* ppd) {
  char directory[32] = "unset";
  if (get_filter_path(ppd, directory, sizeof directory)) {
    const std::string path = directory;
    require(!path.empty() && path.back() == '/');
  } else {
    require(std::string(directory) == "unset");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string input(reinterpret_cast<const char*>(data), size);
  const std::string text = input.substr(0, input.find('\0'));
  const std::string option_text =
      text.size() < input.size() ? input.substr(text.size() + 1).c_str() : "";

  ppd_file_t* ppd = nullptr;
  if (!text.empty()) {
    std::FILE* file = fmemopen(const_cast<char*>(text.data()), text.size(), "r");
    ppd = ppdOpen(file);
    std::fclose(file);
  }
  cups_option_t* options = nullptr;
  const int count = cupsParseOptions(option_text.c_str(), 0, &options);
  ppdMarkDefaults(ppd);
  cupsMarkOptions(ppd, count, options);
  cupsFreeOptions(count, options);

  tagPRINTSETTING settings{};
  get_print_setting(ppd, &settings);
  check_settings(settings);
  check_module_path(ppd);
  ppdClose(ppd);
  return 0;
}
