// SPDX-License-Identifier: Apache-2.0
//
// rastertopage: makes the printer's pages of raster pages that the system's own filters have drawn
// in other sizes. The scheduler runs it ahead of the printer's own filter, which does not move
// pages: it takes each from its first dot on and leaves the rest white.
#include <cups/cups.h>
#include <fcntl.h>
#include <unistd.h>

#include <vector>

#include "photo/filter_program.h"
#include "photo/job_page.h"
#include "photo/job_wishes.h"
#include "photo/page_edges.h"
#include "photo/tones.h"

namespace {

constexpr unsigned kSideMost = 65'500;  ///< dots; no page needs more
constexpr unsigned kBitsPerColour = 8;
constexpr unsigned kBytesPerPixel = 3;
constexpr unsigned kLineMost = 4 * kSideMost;  ///< bytes

int fail(const char* why) {
  return photo::say_not_printed("pages", why);
}

// Whether the printer's filter takes such pages.
bool is_plain_rgb(const cups_page_header2_t& header) {
  return header.cupsBitsPerColor == kBitsPerColour &&
         header.cupsBitsPerPixel == kBytesPerPixel * kBitsPerColour &&
         header.cupsColorOrder == CUPS_ORDER_CHUNKED && header.cupsWidth > 0 &&
         header.cupsHeight > 0 && header.cupsWidth <= kSideMost && header.cupsHeight <= kSideMost &&
         header.cupsBytesPerLine >= kBytesPerPixel * header.cupsWidth &&
         header.cupsBytesPerLine <= kLineMost;
}

bool is_whole(const cups_page_header2_t& header, const photo::JobPage& page) {
  return header.cupsWidth == page.width && header.cupsHeight == page.height &&
         header.cupsBytesPerLine == kBytesPerPixel * header.cupsWidth;
}

bool read_page(cups_raster_t* input, const cups_page_header2_t& header, const photo::JobPage& page,
               bool grey, photo::PageSheet& sheet) {
  const photo::Corner corner = photo::find_corner(header, page);
  std::vector<std::uint8_t> line(header.cupsBytesPerLine);
  for (unsigned y = 0; y < header.cupsHeight; ++y) {
    if (cupsRasterReadPixels(input, line.data(), header.cupsBytesPerLine) <
        header.cupsBytesPerLine) {
      return false;
    }
    if (grey) {
      photo::turn_grey(line.data(), header.cupsWidth);
    }
    sheet.Lay(corner, y, line.data(), header.cupsWidth);
  }
  sheet.CloseGaps(corner, header.cupsWidth, header.cupsHeight);
  if (is_whole(header, page)) {
    sheet.FillBlankLines();
  }
  return true;
}

// The drawing filter's header with the size of the printer's page.
cups_page_header2_t resized(const cups_page_header2_t& header, const photo::JobPage& page) {
  cups_page_header2_t result = header;
  result.cupsWidth = page.header.cupsWidth;
  result.cupsHeight = page.header.cupsHeight;
  result.cupsBytesPerLine = page.header.cupsBytesPerLine;
  return result;
}

int print_pages(int descriptor, const photo::JobPage& page, bool grey) {
  const photo::Raster input(cupsRasterOpen(descriptor, CUPS_RASTER_READ));
  photo::Raster output;
  cups_page_header2_t header;
  while (input != nullptr && cupsRasterReadHeader2(input.get(), &header) != 0) {
    if (!is_plain_rgb(header)) {
      return photo::say_cannot_be_printed("pages", "their raster is not 8-bit RGB");
    }
    photo::PageSheet sheet(page.width, page.height);
    if (!read_page(input.get(), header, page, grey, sheet)) {
      return fail("a page ends too early");
    }
    if (output == nullptr && (output = photo::open_output()) == nullptr) {
      return fail("no page can be written");
    }
    if (!photo::write_page(output.get(), resized(header, page), sheet.Rows())) {
      return fail("the printer's filter takes no more");
    }
  }
  return 0;
}

int print_pages(int argc, char* argv[]) {
  const photo::JobOptions options(argv[5]);
  photo::JobPage page;
  if (!photo::read_job_page(argv[5], options, page)) {
    return fail("the queue's PPD file cannot be read");
  }
  const int file =
      argc == photo::kArgumentsWithFile ? open(argv[6], O_RDONLY | O_CLOEXEC) : STDIN_FILENO;
  if (file < 0) {
    return fail("their file cannot be read");
  }
  return print_pages(file, page, photo::asks_for_grey(options));
}

}  // namespace

int main(int argc, char* argv[]) {
  return photo::run_filter("pages", print_pages, argc, argv);
}
