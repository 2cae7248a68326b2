// SPDX-License-Identifier: Apache-2.0
//
// Fuzzes what a job's owner can write: the PPD and the option string, up to the settings record and
// the module directory. Input: the buffer's size for the directory, the option string up to a zero
// byte, the PPD.
#include <cups/cups.h>
#include <cups/ppd.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "filter/module_path.h"
#include "filter/ppd_options.h"
#include "job/paper_table.h"
#include "tests/fuzz/input.h"

namespace {

using fuzz::require;

bool is_on(const tagPRINTSETTING& settings, const tagPAPERINFO& paper) {
  return settings.nPaperWidth == paper.nPaperWidth && settings.nPaperHeight == paper.nPaperHeight &&
         settings.nImageWidth == paper.nImageWidth && settings.nImageHeight == paper.nImageHeight &&
         settings.nImageLeft == paper.nImageLeft && settings.nImageTop == paper.nImageTop &&
         settings.byTwoUpMode == paper.byTwoUpMode && settings.nTwoUpSplit == paper.nTwoUpSplit &&
         settings.byTwoUpOption == paper.byTwoUpOption && settings.nJoinPages == paper.nJoinPages &&
         settings.nJoinGap == paper.nJoinGap &&
         settings.bHalfSheetLast == (paper.bHalfSheetLast != 0);
}

bool within(const std::int16_t (&tone)[3], int limit) {
  return std::all_of(std::begin(tone), std::end(tone),
                     [limit](int value) { return value >= -limit && value <= limit; });
}

void check_settings(const tagPRINTSETTING& settings) {
  const std::span<const NamedPaper> papers = named_papers();
  require(std::count_if(papers.begin(), papers.end(), [&](const NamedPaper& known) {
            return is_on(settings, *known.paper);
          }) == 1);
  require(settings.bySharpness <= 7);
  require(settings.byPrintMode == 0 || settings.byPrintMode == 5);
  require(settings.byPrintFinish == 0 || settings.byPrintFinish == kFinishMatte);
  require(settings.byColorConversion <= 1 && settings.byMarginCutOff <= 1);
  require(settings.byWaitNextImage <= 1);
  require(within(settings.nGamma, 5) && within(settings.nContrast, 128) &&
          within(settings.nBrightness, 128));
}

// The directory, or nothing, in a buffer of exactly `size` bytes: the sanitizer watches.
void check_directory(const ppd_file_t* ppd, const std::string& directory, std::size_t size) {
  std::vector<char> buffer(size, 'x');
  const bool fits = get_filter_path(ppd, buffer.data(), static_cast<int>(size));
  require(fits == (!directory.empty() && directory.size() < size));
  require(fits ? directory == buffer.data() : buffer == std::vector<char>(size, 'x'));
}

void check_module_path(const ppd_file_t* ppd, std::size_t room) {
  std::vector<char> large(4096, 'x');
  std::string directory;
  if (get_filter_path(ppd, large.data(), static_cast<int>(large.size()))) {
    directory = large.data();
    require(!directory.empty() && directory.back() == '/');
  }
  for (const std::size_t size : {room, directory.size(), directory.size() + 1}) {
    check_directory(ppd, directory, size);
  }
}

ppd_file_t* open_ppd(std::span<const std::uint8_t> text) {
  const int file = memfd_create("ppd", MFD_CLOEXEC);
  require(write(file, text.data(), text.size()) == static_cast<ssize_t>(text.size()));
  lseek(file, 0, SEEK_SET);
  cups_file_t* reader = cupsFileOpenFd(file, "r");
  ppd_file_t* ppd = ppdOpen2(reader);
  cupsFileClose(reader);
  return ppd;
}

}  // namespace

// libcups leaks a string or two of a PPD that it refuses. It does so once a job.
// The name is the sanitizer's.
// NOLINTNEXTLINE(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
  return "leak:_ppdOpen\n";
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  const auto room = input.Take<std::uint8_t>();
  std::string option_text;
  while (const char character = input.Take<char>()) {
    option_text += character;
  }
  ppd_file_t* ppd = open_ppd(input.Rest());
  cups_option_t* options = nullptr;
  const int count = cupsParseOptions(option_text.c_str(), 0, &options);
  ppdMarkDefaults(ppd);
  cupsMarkOptions(ppd, count, options);
  cupsFreeOptions(count, options);

  tagPRINTSETTING settings;
  std::memset(&settings, 0x5A, sizeof settings);
  get_print_setting(ppd, &settings);
  check_settings(settings);
  check_module_path(ppd, room);
  ppdClose(ppd);
  return 0;
}
