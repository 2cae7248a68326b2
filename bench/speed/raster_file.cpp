// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/raster_file.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace bench {

RasterFile::RasterFile(const Picture& page, int pages, const RasterStyle& style)
    : path_(std::filesystem::temp_directory_path() / "raster-XXXXXX") {
  const int file = mkstemp(path_.data());
  const bool written = file >= 0 && write_raster(file, page, pages, style);
  if (file >= 0) {
    close(file);
  }
  if (!written) {
    unlink(path_.c_str());
    throw std::runtime_error(path_ + ": cannot be written");
  }
}

RasterFile::~RasterFile() {
  unlink(path_.c_str());
}

}  // namespace bench
