// SPDX-License-Identifier: Apache-2.0
//
// The conversion's inner loops over lines of a photo, and floors that only move as many bytes.
#ifndef TQR7_BENCH_SPEED_CONVERSION_LOOPS_H
#define TQR7_BENCH_SPEED_CONVERSION_LOOPS_H

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "bench/picture.h"
#include "bench/speed/kernel_race.h"
#include "conversion/line_planes.h"
#include "conversion/tone_tables.h"

namespace bench {

/// One of the conversion's loops: what it does and what it moves.
struct ConversionLoop {
  std::string name;
  Moved moved;
  bool hasTargets;  ///< compiled for each kind of processor
  std::function<void()> work;
};

/// Lines of a page in every state that the loops take them in, small enough for a processor's
/// second cache: what is timed is the loop, not the way to memory.
class ConversionLoops {
 public:
  /// `page` has to outlive this. Throws std::bad_alloc without memory.
  explicit ConversionLoops(const Picture& page);
  ConversionLoops(const ConversionLoops&) = delete;
  ConversionLoops& operator=(const ConversionLoops&) = delete;

  /// Each loop, over pixels() pixels; they work on this object's lines.
  std::vector<ConversionLoop> all();
  /// A loop that only moves so many whole bytes a pixel, from line to line.
  std::function<void()> floor(const Moved& moved);
  std::size_t pixels() const { return lines_.size() * page_.width; }

 private:
  struct Line {
    const unsigned char* rgb;
    LinePlanes fine;  ///< 0 … 4080
    LinePlanes any;   ///< whatever the last loop left there
    std::uint16_t* luma;
    std::uint16_t* blurred;
    unsigned char* samples;
  };

  void fill(Line& line);
  template <typename Work>
  std::function<void()> on_each_line(Work work);

  const Picture& page_;
  std::vector<Line> lines_;
  LineMemory numbers_;
  std::vector<unsigned char> samples_;
  std::vector<unsigned char> from_;  ///< what the floors read
  std::vector<unsigned char> to_;    ///< and write
  ToneTables sameTone_;              ///< leaves each number as it is, so that a line can go again
  std::uint64_t sink_ = 0;           ///< what is worked out and needed by nobody
};

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_CONVERSION_LOOPS_H
