// SPDX-License-Identifier: Apache-2.0
//
// The jobs by which growth is measured: which program prints how many pages of which paper.
#ifndef TQR7_BENCH_SPEED_GROWTH_JOBS_H
#define TQR7_BENCH_SPEED_GROWTH_JOBS_H

#include <map>
#include <string>

#include "bench/picture.h"
#include "bench/speed/growth_points.h"
#include "bench/speed/meter.h"
#include "bench/speed/papers.h"

namespace bench {

struct Job {
  Program program = Program::FloorCopy;
  const Paper* paper = nullptr;
  int pages = 1;
  bool matte = false;
};

/// What a job's pages show: a photo, uncompressed, as the filters of a chain pass it on; or
/// nothing, in libcups' run lengths, so that a stream of 1,000 pages is a small file.
enum class Show { Photo, White };

/// A folder in memory with the raster streams of the jobs, removed with all that is in it.
class RasterFolder {
 public:
  RasterFolder();
  ~RasterFolder();
  RasterFolder(const RasterFolder&) = delete;
  RasterFolder& operator=(const RasterFolder&) = delete;

  /// The path of a stream, which is written when it is asked for first. Throws std::runtime_error
  /// when it cannot be.
  std::string stream_of(const Paper& paper, int pages, Show show);

  /// Removes all streams, which take much memory together.
  void clear();

 private:
  const Picture& photo_of(const Paper& paper);

  std::string folder_;
  std::map<std::string, Picture> photos_;  // by paper: they take longer to draw than to write
};

/// Input from a file, output and messages to nowhere.
MeteredRun run_on_files(const Job& job, RasterFolder& rasters, Show show);

/// Photos; input, output and messages through pipes, as in a chain. The page is fed again and
/// again, so that the stream of a long job need not lie anywhere.
MeteredRun run_on_pipes(const Job& job, RasterFolder& rasters);

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_GROWTH_JOBS_H
