// SPDX-License-Identifier: Apache-2.0
//
// The tone sliders of a page as three tables, so that a pixel costs a look-up a channel.
#ifndef TQR7_CONVERSION_TONE_TABLES_H
#define TQR7_CONVERSION_TONE_TABLES_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>

#include "conversion/line_planes.h"
#include "image/mv_change_image.h"

/// Whether all nine tone values leave the picture alone.
bool tone_is_neutral(const tagMVChangeParams& params);

/// For each number of a line, 0 … lineWhite, what the channel's sliders make of it.
class ToneTables {
 public:
  /// Works the tables out: entry i is round(level × toneWhite), where level is the channel's curve
  /// at i / lineWhite. The pages of a job have the same sliders, so the last page's tables are kept
  /// in the process and copied where nothing has changed; any thread may call this. False when
  /// there is no memory for them.
  bool make(const tagMVChangeParams& params, std::uint16_t lineWhite, std::uint16_t toneWhite);

  /// Turns the `pixels` numbers of each plane into what the tables say. Every number must be within
  /// 0 … lineWhite.
  void apply(const LinePlanes& line, std::size_t pixels) const;

 private:
  std::size_t levels_ = 0;                     ///< of each channel
  std::unique_ptr<std::uint16_t[]> channels_;  ///< R, G, B
};

#endif  // TQR7_CONVERSION_TONE_TABLES_H
