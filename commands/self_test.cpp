// SPDX-License-Identifier: Apache-2.0
#include "commands/self_test.h"

#include <cups/raster.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>

#include "commands/canvas.h"
#include "commands/setting_words.h"
#include "commands/test_page.h"
#include "filter/filter_hooks.h"
#include "filter/module_path.h"
#include "filter/ppd_options.h"
#include "filter/sheet_assembly.h"
#include "job/job_state.h"
#include "job/print_setting.h"
#include "job/progress.h"
#include "protocol/job_header.h"
#include "status/printer_check.h"

namespace {

constexpr int kModulePathSize = 1024;
constexpr int kPercentDrawn = 50;  // the other half is for printing the page

std::string date_words() {
  const std::time_t now = std::time(nullptr);
  const std::tm* local = std::localtime(&now);
  char text[32] = "";
  if (local != nullptr) {
    static_cast<void>(std::strftime(text, sizeof text, "%Y-%m-%d %H:%M", local));
  }
  return text;
}

TestPageText page_text(const tagPRINTSETTING& settings) {
  const char* queue = std::getenv("PRINTER");
  return {date_words(), setting_words(settings, queue != nullptr ? queue : "unknown")};
}

// The page's header in a raster stream.
cups_page_header_s page_header(const tagPRINTSETTING& settings) {
  cups_page_header_s header{};
  header.NumCopies = 1;
  header.cupsWidth = static_cast<unsigned>(settings.nImageWidth);
  header.cupsHeight = static_cast<unsigned>(settings.nImageHeight);
  header.cupsBytesPerLine = 3 * header.cupsWidth;
  return header;
}

bool print_test_page(ppd_file_s* ppd, const tagPRINTSETTING& settings, const char* module_path,
                     const TestPageText& text) {
  const cups_page_header_s header = page_header(settings);
  ++page;
  std::fprintf(stderr, "PAGE: %d 1\n", page);
  StartPage(ppd, &header, &settings);
  if (Planes[0] == nullptr || Planes[1] == nullptr) {
    EndPage(nullptr, nullptr, nullptr);
    return false;
  }
  report_progress(0);
  draw_test_page(Canvas(Planes[1], settings.nImageWidth, settings.nImageHeight), settings, page,
                 text);
  report_progress(kPercentDrawn);
  return EndPage(&header, &settings, module_path);
}

bool print_sheet(ppd_file_s* ppd, const tagPRINTSETTING& settings, const char* module_path) {
  const TestPageText text = page_text(settings);
  for (int number = 1; number <= test_pages_of_sheet(settings); ++number) {
    if (!print_test_page(ppd, settings, module_path, text)) {
      return false;
    }
  }
  wr_esc_printout(fpOut, &settings);
  const OutputCall call;
  static_cast<void>(std::fflush(fpOut));
  return true;
}

}  // namespace

bool print_self_test(ppd_file_s* ppd, bool found_good) {
  tagPRINTSETTING settings{};
  get_print_setting(ppd, &settings);
  char module_path[kModulePathSize] = {};
  if (!get_filter_path(ppd, module_path, kModulePathSize)) {
    std::fprintf(stderr, "ERROR: Unable to find module path\n");
    return false;
  }
  Setup();
  page = 0;
  if (!found_good && !printer_is_good()) {
    return false;
  }
  const bool printed = print_sheet(ppd, settings, module_path);
  release_sheet();
  // The sheet is printed: the next commands can be cancelled again.
  static_cast<void>(std::signal(SIGTERM, SIG_DFL));
  return printed;
}
