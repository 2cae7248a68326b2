// SPDX-License-Identifier: Apache-2.0
//
// A floor: reads the raster stream on standard input through libcups and drops every line.
#include <cups/raster.h>

#include <vector>

int main() {
  cups_raster_t* raster = cupsRasterOpen(0, CUPS_RASTER_READ);
  cups_page_header2_t header;
  while (cupsRasterReadHeader2(raster, &header) != 0) {
    std::vector<unsigned char> line(header.cupsBytesPerLine);
    for (unsigned y = 0; y < header.cupsHeight; ++y) {
      if (cupsRasterReadPixels(raster, line.data(), header.cupsBytesPerLine) == 0) {
        return 1;
      }
    }
  }
  cupsRasterClose(raster);
  return 0;
}
