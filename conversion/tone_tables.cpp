// SPDX-License-Identifier: Apache-2.0
#include "conversion/tone_tables.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <new>

#include "conversion/tone.h"

bool tone_is_neutral(const tagMVChangeParams& params) {
  return std::all_of(std::begin(params.nTone), std::end(params.nTone),
                     [](std::int16_t value) { return value == 0; });
}

bool ToneTables::make(const tagMVChangeParams& params, std::uint16_t lineWhite,
                      std::uint16_t toneWhite) {
  for (std::size_t channel = 0; channel < channels_.size(); ++channel) {
    const std::size_t levels = std::size_t{lineWhite} + 1;
    std::uint16_t* table = new (std::nothrow) std::uint16_t[levels];
    channels_[channel].reset(table);
    if (table == nullptr) {
      return false;
    }
    const ToneFactors factors = tone_factors(tone_of_channel(params, channel));
    for (std::size_t i = 0; i <= lineWhite; ++i) {
      const double level = shaped_level(factors, static_cast<double>(i) / lineWhite);
      table[i] = static_cast<std::uint16_t>(std::lround(level * toneWhite));
    }
  }
  return true;
}

void ToneTables::apply(const LinePlanes& line, std::size_t pixels) const {
  for (std::size_t channel = 0; channel < channels_.size(); ++channel) {
    const std::uint16_t* table = channels_[channel].get();
    std::uint16_t* plane = line[channel];
    for (std::size_t x = 0; x < pixels; ++x) {
      plane[x] = table[plane[x]];
    }
  }
}
