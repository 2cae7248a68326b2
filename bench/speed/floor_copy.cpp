// SPDX-License-Identifier: Apache-2.0
//
// A floor: moves the bytes that the filter's contract has it move, and does nothing else. Each line
// is read into a line buffer and copied into the page; the page is widened into a 48-bit band,
// which was first set to 0xFF; the band is gathered into writes of 196,608 bytes.
#include <cups/raster.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>

#include "bench/speed/widening.h"

namespace {

constexpr std::size_t kStagingSize = 196608;

bool read_page(cups_raster_t* raster, const cups_page_header2_t& header, unsigned char* line,
               unsigned char* page) {
  for (unsigned y = 0; y < header.cupsHeight; ++y) {
    if (cupsRasterReadPixels(raster, line, header.cupsBytesPerLine) == 0) {
      return false;
    }
    std::memcpy(page, line, header.cupsBytesPerLine);
    page += header.cupsBytesPerLine;
  }
  return true;
}

bool write_band(const std::uint16_t* band, std::size_t samples) {
  const auto* bytes = reinterpret_cast<const unsigned char*>(band);
  const std::size_t size = samples * sizeof *band;
  auto* staging = new unsigned char[kStagingSize];
  bool written = true;
  for (std::size_t sent = 0; written && sent < size; sent += kStagingSize) {
    const std::size_t part = std::min(kStagingSize, size - sent);
    std::memcpy(staging, bytes + sent, part);
    written = std::fwrite(staging, part, 1, stdout) == 1;
  }
  delete[] staging;
  return written;
}

// The buffers come and go in the filter's order.
bool copy_page(cups_raster_t* raster, const cups_page_header2_t& header) {
  const std::size_t samples = std::size_t{header.cupsBytesPerLine} * header.cupsHeight;
  auto* line = new unsigned char[header.cupsBytesPerLine];
  auto* page = new unsigned char[samples];
  bool done = read_page(raster, header, line, page);
  auto* band = new std::uint16_t[samples];
  std::memset(band, 0xFF, samples * sizeof *band);
  bench::widen(page, band, samples);
  done = done && write_band(band, samples);
  delete[] page;
  delete[] band;
  done = std::fflush(stdout) == 0 && done;
  delete[] line;
  return done;
}

}  // namespace

int main() {
  cups_raster_t* raster = cupsRasterOpen(0, CUPS_RASTER_READ);
  cups_page_header2_t header;
  while (cupsRasterReadHeader2(raster, &header) != 0) {
    if (!copy_page(raster, header)) {
      return 1;
    }
  }
  cupsRasterClose(raster);
  return 0;
}
