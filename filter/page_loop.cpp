// SPDX-License-Identifier: Apache-2.0
#include "filter/page_loop.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>

#include "filter/filter_hooks.h"
#include "filter/memory_watch.h"
#include "filter/sheet_assembly.h"
#include "job/job_state.h"
#include "job/progress.h"
#include "protocol/job_header.h"

namespace {

constexpr int kBytesPerPixel = 3;
constexpr unsigned int kLinesPerReport = 128;
constexpr int kPercentRead = 50;  // printing the page takes the other half

// Reads the page's lines into the page buffer. The header may be hostile: of a line, no more bytes
// are copied than the header says it has, and the rest of the row stays white. False when libcups
// had no memory for a line: the rest of the page would print white.
bool read_page(cups_raster_t* raster, const cups_page_header_t& header,
               const tagPRINTSETTING& settings) {
  const auto raster_width = static_cast<std::int32_t>(header.cupsWidth);
  const auto raster_height = static_cast<std::int32_t>(header.cupsHeight);
  const std::int64_t wanted =
      std::int64_t{kBytesPerPixel} *
      std::max<std::int32_t>(std::min(settings.nImageWidth, raster_width), 0);
  const auto copied =
      static_cast<std::size_t>(std::min<std::int64_t>(wanted, header.cupsBytesPerLine));
  const std::size_t step = kBytesPerPixel * static_cast<std::size_t>(settings.nImageWidth);

  unsigned char* destination = Planes[1];
  for (std::int32_t y = 0; y < raster_height; ++y) {
    const auto line = static_cast<std::uint32_t>(y);
    if (line % kLinesPerReport == 0) {
      report_progress(static_cast<int>(line * kPercentRead / header.cupsHeight));
    }
    const MemoryWatch watch;
    if (cupsRasterReadPixels(raster, Planes[0], header.cupsBytesPerLine) == 0) {
      if (watch.refused()) {
        return false;
      }
      break;
    }
    if (y < settings.nImageHeight) {
      std::memcpy(destination, Planes[0], copied);
      destination += step;
    }
  }
  report_progress(kPercentRead);
  return true;
}

// What comes next in the stream. libcups also reports the stream's end when it has no memory for
// the next page, which would then be lost silently.
enum class Next { Page, End, NoMemory };

Next read_header(cups_raster_t* raster, cups_page_header_t* header) {
  const MemoryWatch watch;
  if (cupsRasterReadHeader(raster, header) != 0) {
    return Next::Page;
  }
  return watch.refused() ? Next::NoMemory : Next::End;
}

}  // namespace

bool print_pages(cups_raster_t* raster, ppd_file_t* ppd, const tagPRINTSETTING& settings,
                 const char* module_path) {
  cups_page_header_t header;
  Next next = read_header(raster, &header);
  for (; next == Next::Page; next = read_header(raster, &header)) {
    ++page;
    std::fprintf(stderr, "PAGE: %d %d\n", page, static_cast<int>(header.NumCopies));
    StartPage(ppd, &header, &settings);
    if (Planes[0] == nullptr || Planes[1] == nullptr) {
      EndPage(nullptr, nullptr, nullptr);
      return false;
    }
    if (!read_page(raster, header, settings)) {
      EndPage(nullptr, nullptr, nullptr);
      next = Next::NoMemory;
      break;
    }
    if (!EndPage(&header, &settings, module_path)) {
      return false;
    }
  }
  if (next == Next::NoMemory) {
    report_no_memory();
  }
  print_last_page(&settings);
  wr_esc_printout(fpOut, &settings);
  return next == Next::End;
}
