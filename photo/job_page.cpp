// SPDX-License-Identifier: Apache-2.0
#include "photo/job_page.h"

#include <cups/ppd.h>
#include <unistd.h>

#include "filter/job_options.h"
#include "filter/ppd_options.h"

namespace photo {
namespace {

struct ClosePpd {
  void operator()(ppd_file_t* ppd) const { ppdClose(ppd); }
};

constexpr unsigned kBitsPerPixel = 24;
constexpr unsigned kBytesPerPixel = 3;

void make_header(JobPage& page) {
  cups_page_header2_t& header = page.header;
  header.cupsWidth = static_cast<unsigned>(page.width);
  header.cupsHeight = static_cast<unsigned>(page.height);
  header.cupsBytesPerLine = kBytesPerPixel * header.cupsWidth;
  header.cupsBitsPerPixel = kBitsPerPixel;
  header.NumCopies = 1;
}

}  // namespace

bool read_job_page(const char* optionText, const JobOptions& options, JobPage& page) {
  const std::unique_ptr<ppd_file_t, ClosePpd> ppd(open_marked_ppd(optionText));
  if (ppd == nullptr) {
    return false;
  }
  tagPRINTSETTING setting{};
  get_print_setting(ppd.get(), &setting);
  page.width = static_cast<std::size_t>(setting.nImageWidth);
  page.height = static_cast<std::size_t>(setting.nImageHeight);
  // The PPD's margins do not say this: the two-print sizes have some, and print to the edge.
  page.borderless = setting.nImageLeft == 0;
  if (const ppd_size_t* const size = ppdPageSize(ppd.get(), nullptr); size != nullptr) {
    page.left = size->left;
    page.top = size->top;
  }
  if (cupsRasterInterpretPPD(&page.header, ppd.get(), options.Count(), options.All(), nullptr) !=
      0) {
    return false;
  }
  make_header(page);
  return true;
}

Raster open_output() {
  return Raster(cupsRasterOpen(STDOUT_FILENO, CUPS_RASTER_WRITE));
}

bool write_page(cups_raster_t* raster, const cups_page_header2_t& header,
                const std::uint8_t* rows) {
  cups_page_header2_t copy = header;
  if (cupsRasterWriteHeader2(raster, &copy) == 0) {
    return false;
  }
  for (unsigned y = 0; y < header.cupsHeight; ++y) {
    auto* const row = const_cast<std::uint8_t*>(rows) + std::size_t{y} * header.cupsBytesPerLine;
    if (cupsRasterWritePixels(raster, row, header.cupsBytesPerLine) < header.cupsBytesPerLine) {
      return false;
    }
  }
  return true;
}

}  // namespace photo
