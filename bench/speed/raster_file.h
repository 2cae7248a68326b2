// SPDX-License-Identifier: Apache-2.0
//
// A raster stream in a temporary file, which is gone with the object.
#ifndef TQR7_BENCH_SPEED_RASTER_FILE_H
#define TQR7_BENCH_SPEED_RASTER_FILE_H

#include <string>

#include "bench/speed/raster_pages.h"

namespace bench {

class RasterFile {
 public:
  /// std::runtime_error when it cannot be written.
  RasterFile(const Picture& page, int pages, const RasterStyle& style = {});
  ~RasterFile();
  RasterFile(const RasterFile&) = delete;
  RasterFile& operator=(const RasterFile&) = delete;

  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_RASTER_FILE_H
