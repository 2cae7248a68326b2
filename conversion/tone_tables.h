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

/// Whether none of the nine tone values changes the picture.
bool tone_is_neutral(const tagMVChangeParams& params);

/// For each number of a line, 0 … lineWhite, its new value by the channel's sliders.
class ToneTables {
 public:
  /// Computes the tables: entry i is round(level × toneWhite), where level is the channel's curve
  /// at i / lineWhite. The pages of a job have the same sliders, so the last page's tables stay in
  /// the process and are copied if nothing has changed. Any thread may call this. False without
  /// memory.
  bool make(const tagMVChangeParams& params, std::uint16_t lineWhite, std::uint16_t toneWhite);

  /// Replaces the `pixels` numbers of each plane with the tables' values. Every number must be in
  /// 0 … lineWhite.
  void apply(const LinePlanes& line, std::size_t pixels) const;

 private:
  std::size_t levels_ = 0;                     ///< of each channel
  std::unique_ptr<std::uint16_t[]> channels_;  ///< R, G, B
};

#endif  // TQR7_CONVERSION_TONE_TABLES_H
