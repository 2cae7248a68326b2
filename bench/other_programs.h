// SPDX-License-Identifier: Apache-2.0
//
// Picture programs that sharpen and convert the same page, timed from outside.
#ifndef TQR7_BENCH_OTHER_PROGRAMS_H
#define TQR7_BENCH_OTHER_PROGRAMS_H

#include <span>
#include <string>
#include <vector>

#include "bench/cpu_time.h"
#include "bench/picture.h"

namespace bench {

/// A folder of the page and what programs need beside it; gone with the object.
class WorkFolder {
 public:
  /// In memory (/dev/shm) where the system has that, so that no disk is timed. Holds page.ppm,
  /// page.v for vips, srgb.icc, printer.icc and unsharp.mat, a 5 × 5 unsharp mask. Throws
  /// std::runtime_error when it cannot be made.
  WorkFolder(const Picture& page, std::span<const unsigned char> profile);
  ~WorkFolder();
  WorkFolder(const WorkFolder&) = delete;
  WorkFolder& operator=(const WorkFolder&) = delete;

  std::string file(const char* name) const { return path_ + "/" + name; }

 private:
  std::string path_;
};

/// One program's work, and what it does when it only loads and saves as often.
struct ProgramRace {
  Contestant work;
  Contestant loadAndSave;
};

/// vips: conv with an integer 5 × 5 mask, then icc_transform; two runs, with the file between.
ProgramRace vips_race(const WorkFolder& folder);
/// GraphicsMagick: -unsharp and -profile in one run.
ProgramRace graphics_magick_race(const WorkFolder& folder);

/// The program as a contestant of its work alone: each round's loading and saving is taken off.
Contestant without_loading(const ProgramRace& race);

/// Whether a program of this name can be started.
bool installed(const char* program);

}  // namespace bench

#endif  // TQR7_BENCH_OTHER_PROGRAMS_H
