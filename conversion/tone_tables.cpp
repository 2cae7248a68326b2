// SPDX-License-Identifier: Apache-2.0
#include "conversion/tone_tables.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <mutex>
#include <new>

#include "conversion/photo_kernels.h"
#include "conversion/tone.h"

namespace {

constexpr std::size_t kChannels = 3;
constexpr std::size_t kMostLevels = std::size_t{kFineWhite} + 1;

/// All that the tables of a page depend on.
struct Origin {
  std::array<ChannelTone, kChannels> tones;
  std::uint16_t lineWhite;
  std::uint16_t toneWhite;

  bool operator==(const Origin& other) const = default;
};

/// The last page's tables.
struct Kept {
  std::mutex lock;
  bool any = false;
  Origin origin{};
  std::array<std::uint16_t, kChannels * kMostLevels> numbers{};
};

/// Never destroyed: a process may end while another thread uses it, or by a signal.
Kept& kept_tables() {
  alignas(Kept) static std::array<std::byte, sizeof(Kept)> place;
  static Kept* const kept = new (place.data()) Kept;
  return *kept;
}

/// The tables that were kept, if they are for these settings.
bool take_kept(const Origin& origin, std::size_t size, std::uint16_t* tables) {
  Kept& kept = kept_tables();
  const std::lock_guard<std::mutex> guard(kept.lock);
  if (!kept.any || !(kept.origin == origin)) {
    return false;
  }
  std::copy_n(kept.numbers.begin(), size, tables);
  return true;
}

void keep(const Origin& origin, std::size_t size, const std::uint16_t* tables) {
  Kept& kept = kept_tables();
  const std::lock_guard<std::mutex> guard(kept.lock);
  if (size <= kept.numbers.size()) {
    std::copy_n(tables, size, kept.numbers.begin());
    kept.origin = origin;
    kept.any = true;
  }
}

void work_out(const ChannelTone& tone, std::uint16_t lineWhite, std::uint16_t toneWhite,
              std::uint16_t* table) {
  const ToneFactors factors = tone_factors(tone);
  for (std::size_t i = 0; i <= lineWhite; ++i) {
    const double level = shaped_level(factors, static_cast<double>(i) / lineWhite);
    table[i] = static_cast<std::uint16_t>(std::lround(level * toneWhite));
  }
}

/// Most jobs set the sliders of all three channels to the same: equal tables are computed once.
void work_out_all(const Origin& origin, std::size_t levels, std::uint16_t* tables) {
  for (std::size_t channel = 0; channel < kChannels; ++channel) {
    std::uint16_t* const table = tables + channel * levels;
    const auto* const first = std::find(origin.tones.begin(), origin.tones.end(),  //
                                        origin.tones[channel]);
    const auto same = static_cast<std::size_t>(first - origin.tones.begin());
    if (same < channel) {
      std::copy_n(tables + same * levels, levels, table);
    } else {
      work_out(origin.tones[channel], origin.lineWhite, origin.toneWhite, table);
    }
  }
}

}  // namespace

bool tone_is_neutral(const tagMVChangeParams& params) {
  return std::all_of(std::begin(params.nTone), std::end(params.nTone),
                     [](std::int16_t value) { return value == 0; });
}

bool ToneTables::make(const tagMVChangeParams& params, std::uint16_t lineWhite,
                      std::uint16_t toneWhite) {
  levels_ = std::size_t{lineWhite} + 1;
  const std::size_t size = kChannels * levels_;
  channels_.reset(new (std::nothrow) std::uint16_t[size]);
  if (channels_ == nullptr) {
    return false;
  }
  const Origin origin = {
      {tone_of_channel(params, 0), tone_of_channel(params, 1), tone_of_channel(params, 2)},
      lineWhite,
      toneWhite};
  if (!take_kept(origin, size, channels_.get())) {
    work_out_all(origin, levels_, channels_.get());
    keep(origin, size, channels_.get());
  }
  return true;
}

void ToneTables::apply(const LinePlanes& line, std::size_t pixels) const {
  constexpr std::size_t kAtOnce =
      8;  // with so many at once, a look-up costs hardly more than its loads
  for (std::size_t channel = 0; channel < kChannels; ++channel) {
    const std::uint16_t* table = channels_.get() + channel * levels_;
    std::uint16_t* plane = line[channel];
    std::size_t x = 0;
    for (; x + kAtOnce <= pixels; x += kAtOnce) {
      for (std::size_t i = 0; i < kAtOnce; ++i) {
        plane[x + i] = table[plane[x + i]];
      }
    }
    for (; x < pixels; ++x) {
      plane[x] = table[plane[x]];
    }
  }
}
