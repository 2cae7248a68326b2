// SPDX-License-Identifier: Apache-2.0
#include "photo/page_output.h"

#include <unistd.h>

namespace photo {

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
