// SPDX-License-Identifier: Apache-2.0
//
// The inner loops on every kind of processor that this computer can play, against plain arithmetic:
// a photo must not look different on another computer.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <new>
#include <random>

#include "conversion/colour_kernels.h"
#include "conversion/photo_kernels.h"
#include "conversion/processor.h"
#include "conversion/sample_kernels.h"
#include "tests/unit/conversion/plain_kernels.h"

namespace {

/// A line's length for each way that it can end in a vector or in a block of pixels, and a sheet's.
std::vector<std::size_t> lengths() {
  std::vector<std::size_t> all{1852, 255, 256, 257, 258};
  for (std::size_t length = 1; length <= 134; ++length) {
    all.push_back(length);
  }
  return all;
}

plain::Bytes random_rgb(std::size_t pixels) {
  std::mt19937 generator(static_cast<unsigned>(pixels));
  plain::Bytes rgb(3 * pixels);
  for (unsigned char& byte : rgb) {
    // Black and white come often: the ends are where clamping happens.
    const auto number = generator() % 320;
    byte = static_cast<unsigned char>(number < 256 ? number : number % 2 * 255);
  }
  return rgb;
}

plain::Line random_line(std::size_t pixels, unsigned highest, unsigned seed) {
  std::mt19937 generator(seed);
  plain::Line line(pixels);
  for (std::uint16_t& number : line) {
    const auto any = generator() % (highest + highest / 4);
    number = static_cast<std::uint16_t>(any <= highest ? any : any % 2 * highest);
  }
  return line;
}

ColourTable make_random_table() {
  ColourTable table{};
  // NOLINTNEXTLINE(cert-msc32-c,cert-msc51-cpp): the same numbers in every run
  std::mt19937 generator(33);
  for (ColourNode& node : table.nodes) {
    for (std::size_t channel = 0; channel < 3; ++channel) {
      node[channel] = static_cast<std::int16_t>(generator() % 65536 - 32768);
    }
  }
  return table;
}

/// Nodes anywhere in 16 bits: the loops must not rely on a table that was made with sense.
const ColourTable& random_table() {
  static const ColourTable table = make_random_table();
  return table;
}

/// Memory whose last byte is followed by a wall as thick as itself: a step beyond ends the program.
class Walled {
 public:
  explicit Walled(std::size_t size) : room_(whole_pages(size)) {
    auto* const room = static_cast<unsigned char*>(pages_);
    EXPECT_EQ(mprotect(room + room_, room_, PROT_NONE), 0);
    first_ = room + (room_ - size);
  }
  Walled(const Walled&) = delete;
  Walled& operator=(const Walled&) = delete;
  ~Walled() { munmap(pages_, 2 * room_); }

  unsigned char* first() { return first_; }

 private:
  static std::size_t whole_pages(std::size_t size) {
    const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    return (size + page - 1) / page * page;
  }

  std::size_t room_;
  void* pages_ = mmap(nullptr, 2 * room_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANON, -1, 0);
  unsigned char* first_ = nullptr;
};

/// Lines in memory as the loops want them.
class Lines {
 public:
  Lines(std::size_t lines, std::size_t pixels) : pixels_(pixels) {
    EXPECT_TRUE(memory_.reserve(lines, pixels));
  }

  std::uint16_t* line(std::size_t number) { return memory_.line(number); }
  LinePlanes planes(std::size_t first) { return {line(first), line(first + 1), line(first + 2)}; }
  void put(std::size_t number, const plain::Line& numbers) {
    std::memcpy(line(number), numbers.data(), 2 * numbers.size());
  }
  plain::Line get(std::size_t number) { return {line(number), line(number) + pixels_}; }
  plain::Planes get_planes(std::size_t first) {
    return {get(first), get(first + 1), get(first + 2)};
  }

 private:
  std::size_t pixels_;
  LineMemory memory_;
};

class EveryProcessor : public testing::TestWithParam<std::int64_t> {
 protected:
  void SetUp() override { use_target(GetParam()); }
  void TearDown() override { use_target(usable_targets().front()); }
};

TEST_P(EveryProcessor, TakesThePhotosBytesApart) {
  for (const std::size_t pixels : lengths()) {
    const plain::Bytes rgb = random_rgb(pixels);
    Lines lines(3, pixels);
    split_line(rgb.data(), pixels, lines.planes(0));
    for (std::size_t x = 0; x < pixels; ++x) {
      ASSERT_EQ(lines.line(0)[x], rgb[3 * x]) << pixels << " pixels, at " << x;
      ASSERT_EQ(lines.line(1)[x], rgb[3 * x + 1]) << pixels << " pixels, at " << x;
      ASSERT_EQ(lines.line(2)[x], rgb[3 * x + 2]) << pixels << " pixels, at " << x;
    }
  }
}

TEST_P(EveryProcessor, SeesTheSameLuma) {
  for (const std::size_t pixels : lengths()) {
    const plain::Bytes rgb = random_rgb(pixels);
    Lines lines(1, pixels);
    luma_line(rgb.data(), pixels, lines.line(0));
    ASSERT_EQ(lines.get(0), plain::luma(rgb)) << pixels << " pixels";
  }
}

TEST_P(EveryProcessor, ReadsNoByteBehindAPhotosLastRow) {
  for (std::size_t pixels = 1; pixels <= 134; ++pixels) {
    const plain::Bytes rgb = random_rgb(pixels);
    Walled row(rgb.size());
    std::memcpy(row.first(), rgb.data(), rgb.size());
    Lines lines(5, pixels);
    split_line(row.first(), pixels, lines.planes(0));
    EXPECT_EQ(lines.line(2)[pixels - 1], rgb.back());
    luma_line(row.first(), pixels, lines.line(3));
    EXPECT_EQ(lines.get(3), plain::luma(rgb));
    sharpen_line(row.first(), lines.line(4), pixels, 0, lines.planes(0));
    EXPECT_EQ(lines.line(2)[pixels - 1], 16 * rgb.back());
  }
}

TEST_P(EveryProcessor, BlursAlongTheLineTheSame) {
  for (const std::size_t pixels : lengths()) {
    const plain::Line numbers = random_line(pixels, kFineWhite, 1);
    Lines lines(2, pixels);
    lines.put(0, numbers);
    blur_along(lines.line(0), pixels, lines.line(1));
    ASSERT_EQ(lines.get(1), plain::blur_along(numbers)) << pixels << " pixels";
  }
}

TEST_P(EveryProcessor, BlursAcrossFiveLinesTheSame) {
  for (const std::size_t pixels : lengths()) {
    Lines lines(6, pixels);
    std::array<plain::Line, 5> numbers;
    for (unsigned i = 0; i < 5; ++i) {
      numbers[i] = random_line(pixels, kFineWhite, i);
      lines.put(i, numbers[i]);
    }
    blur_across({lines.line(0), lines.line(1), lines.line(2), lines.line(3), lines.line(4)}, pixels,
                lines.line(5));
    for (std::size_t x = 0; x < pixels; ++x) {
      ASSERT_EQ(lines.line(5)[x], plain::weigh(numbers[0][x], numbers[1][x], numbers[2][x],
                                               numbers[3][x], numbers[4][x]))
          << pixels << " pixels, at " << x;
    }
  }
}

TEST_P(EveryProcessor, SharpensTheSameAtEveryStrength) {
  for (int strength = 0; strength <= 7; ++strength) {
    for (const std::size_t pixels : lengths()) {
      const plain::Bytes rgb = random_rgb(pixels);
      const plain::Line blurred = random_line(pixels, kFineWhite, 9);
      Lines lines(4, pixels);
      lines.put(3, blurred);
      sharpen_line(rgb.data(), lines.line(3), pixels, strength, lines.planes(0));
      ASSERT_EQ(lines.get_planes(0), plain::sharpen(rgb, blurred, strength))
          << pixels << " pixels, strength " << strength;
    }
  }
}

/// A table whose samples are the places themselves, red's along red and so on, less the last step:
/// white is one more than a sample can be.
ColourTable make_table_of_places() {
  ColourTable table{};
  for (std::size_t node = 0; node < table.nodes.size(); ++node) {
    table.nodes[node] = {static_cast<std::int16_t>(node / 1089 * 512),
                         static_cast<std::int16_t>(node / 33 % 33 * 512),
                         static_cast<std::int16_t>(node % 33 * 512), 0};
  }
  return table;
}

/// The places at which a line of grey numbers 0, 1, … is looked up.
std::vector<std::array<std::uint16_t, 3>> places_of_greys(std::size_t numbers, LineScale scale) {
  static const ColourTable table = make_table_of_places();
  Lines lines(3, numbers);
  for (std::size_t plane = 0; plane < 3; ++plane) {
    for (std::size_t i = 0; i < numbers; ++i) {
      lines.line(plane)[i] = static_cast<std::uint16_t>(i);
    }
  }
  std::vector<std::array<std::uint16_t, 3>> places(numbers);
  interpolate_line(table, lines.planes(0), scale, numbers,
                   reinterpret_cast<unsigned char*>(places.data()));
  return places;
}

TEST_P(EveryProcessor, FindsThePlaceOfEveryByte) {
  const auto places = places_of_greys(256, LineScale::kBytes);
  for (int i = 0; i < 256; ++i) {
    const auto expected = static_cast<std::uint16_t>(std::min((2 * i * 16384 + 255) / 510, 16383));
    ASSERT_EQ(places[static_cast<std::size_t>(i)], (std::array{expected, expected, expected}));
  }
}

TEST_P(EveryProcessor, FindsThePlaceOfEveryFineNumber) {
  const auto places = places_of_greys(4081, LineScale::kFine);
  for (int i = 0; i <= 4080; ++i) {
    const auto expected =
        static_cast<std::uint16_t>(std::min((2 * i * 16384 + 4080) / 8160, 16383));
    ASSERT_EQ(places[static_cast<std::size_t>(i)], (std::array{expected, expected, expected}));
  }
}

TEST_P(EveryProcessor, TakesPlacesAsTheyAre) {
  const auto places = places_of_greys(16384, LineScale::kPlaces);
  for (std::uint16_t i = 0; i < 16384; ++i) {
    ASSERT_EQ(places[i], (std::array{i, i, i}));
  }
}

TEST_P(EveryProcessor, MixesTheSameSamplesFromTheTableAndAddsThemUp) {
  for (const std::size_t pixels : lengths()) {
    Lines lines(3, pixels);
    const plain::Planes places{random_line(pixels, kPositionWhite, 2),
                               random_line(pixels, kPositionWhite, 3),
                               random_line(pixels, kPositionWhite, 4)};
    for (std::size_t channel = 0; channel < 3; ++channel) {
      lines.put(channel, places[channel]);
    }
    plain::Bytes samples(6 * pixels);
    const std::uint64_t sum = interpolate_line(random_table(), lines.planes(0), LineScale::kPlaces,
                                               pixels, samples.data());
    std::uint64_t expectedSum = 0;
    for (std::size_t x = 0; x < pixels; ++x) {
      std::array<std::uint16_t, 3> pixel{};
      std::memcpy(pixel.data(), &samples[6 * x], 6);
      ASSERT_EQ(pixel,
                plain::interpolate(random_table(), {places[0][x], places[1][x], places[2][x]}))
          << pixels << " pixels, at " << x;
      expectedSum += std::uint64_t{pixel[0]} + pixel[1] + pixel[2];
    }
    ASSERT_EQ(sum, expectedSum) << pixels << " pixels";
  }
}

TEST_P(EveryProcessor, ReadsNoNodeBehindTheTable) {
  Walled memory(sizeof(ColourTable));
  auto& table = *new (memory.first()) ColourTable(random_table());
  table.nodes.back() = {1, 20, 300, 0};
  Lines lines(3, 3);
  for (std::size_t plane = 0; plane < 3; ++plane) {
    lines.put(plane, plain::Line(3, kPositionWhite));
  }
  std::array<std::uint16_t, 9> samples{};
  interpolate_line(table, lines.planes(0), LineScale::kPlaces, 3,
                   reinterpret_cast<unsigned char*>(samples.data()));
  EXPECT_EQ(samples, (std::array<std::uint16_t, 9>{1, 20, 300, 1, 20, 300, 1, 20, 300}));
}

TEST_P(EveryProcessor, WritesNoByteBesideALinesSamples) {
  for (std::size_t pixels = 1; pixels <= 134; ++pixels) {
    Lines lines(3, pixels);
    plain::Bytes samples(6 * pixels + 32, 0xA5);
    interpolate_line(random_table(), lines.planes(0), LineScale::kPlaces, pixels,
                     samples.data() + 1);
    EXPECT_EQ(samples[0], 0xA5);
    for (std::size_t i = 1 + 6 * pixels; i < samples.size(); ++i) {
      ASSERT_EQ(samples[i], 0xA5) << pixels << " pixels";
    }
  }
}

TEST_P(EveryProcessor, JoinsPlanesToPixelsAndAddsThemUp) {
  for (const std::size_t pixels : lengths()) {
    const plain::Planes planes{random_line(pixels, 65535, 5), random_line(pixels, 65535, 6),
                               random_line(pixels, 65535, 7)};
    Lines lines(3, pixels);
    plain::Line expected(3 * pixels);
    std::uint64_t expectedSum = 0;
    for (std::size_t channel = 0; channel < 3; ++channel) {
      // What lies behind a line's end must not be added.
      std::fill_n(lines.line(channel) + pixels, kLineMargin, std::uint16_t{65535});
      lines.put(channel, planes[channel]);
      for (std::size_t x = 0; x < pixels; ++x) {
        expected[3 * x + channel] = planes[channel][x];
        expectedSum += planes[channel][x];
      }
    }
    Walled row(6 * pixels);
    ASSERT_EQ(join_line(lines.planes(0), pixels, row.first()), expectedSum) << pixels << " pixels";
    ASSERT_EQ(std::memcmp(row.first(), expected.data(), 6 * pixels), 0) << pixels << " pixels";
  }
}

TEST_P(EveryProcessor, WidensEveryByteToASampleAndAddsThemUp) {
  for (const std::size_t pixels : lengths()) {
    const plain::Bytes rgb = random_rgb(pixels);
    Walled from(rgb.size());
    std::memcpy(from.first(), rgb.data(), rgb.size());
    Walled to(6 * pixels);
    const std::uint64_t sum = samples_of_bytes(from.first(), pixels, to.first());
    std::uint64_t expectedSum = 0;
    for (std::size_t i = 0; i < rgb.size(); ++i) {
      std::uint16_t sample = 0;
      std::memcpy(&sample, to.first() + 2 * i, 2);
      ASSERT_EQ(sample, (2 * rgb[i] * 16383 + 255) / 510) << pixels << " pixels, byte " << i;
      expectedSum += sample;
    }
    ASSERT_EQ(sum, expectedSum) << pixels << " pixels";
  }
}

TEST_P(EveryProcessor, AddsUpALineLongerThanASumIsKeptFor) {
  constexpr std::size_t kPixels = 100000;
  const plain::Bytes white(3 * kPixels, 255);
  plain::Bytes samples(6 * kPixels);
  EXPECT_EQ(samples_of_bytes(white.data(), kPixels, samples.data()), std::uint64_t{300000} * 16383);
}

std::string name_of(const testing::TestParamInfo<std::int64_t>& target) {
  return target.param == 0 ? "EveryOne" : "Target" + std::to_string(target.param);
}

INSTANTIATE_TEST_SUITE_P(OnThisComputer, EveryProcessor, testing::ValuesIn(usable_targets()),
                         name_of);

}  // namespace
