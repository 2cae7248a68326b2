// SPDX-License-Identifier: Apache-2.0
//
// What a print looks like on the screen, through profiles whose colours are known.
#include "decoder/soft_proof.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <random>

#include "model/printer_model.h"
#include "tests/unit/test_profiles.h"

namespace {

using decoder::SoftProof;
using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::Ge;
using testing::Le;
using Samples = std::vector<std::uint16_t>;
using Bytes = std::vector<std::uint8_t>;

std::unique_ptr<SoftProof> proof_through(const profiles::Profile& profile) {
  std::string why;
  auto proof = SoftProof::Through(profile, why);
  EXPECT_EQ(why, "");
  return proof;
}

Bytes shown(const SoftProof& proof, const Samples& samples) {
  Bytes bytes(samples.size());
  proof.ToScreen(samples, bytes);
  return bytes;
}

Bytes shown(const profiles::Profile& profile, const Samples& samples) {
  return shown(*proof_through(profile), samples);
}

TEST(SoftProof, ShowsThePaperAsWhite) {
  const Samples paper = {0x3FFF, 0x3FFF, 0x3FFF};
  EXPECT_THAT(shown(profiles::srgb(), paper), ElementsAre(255, 255, 255));
  EXPECT_THAT(shown(profiles::matrix_printer(), paper), ElementsAre(255, 255, 255));
  EXPECT_THAT(shown(profiles::table_printer(), paper), ElementsAre(255, 255, 255));
  EXPECT_THAT(shown(*SoftProof::ThroughPrinterModel(), paper), ElementsAre(255, 255, 255));
}

TEST(SoftProof, ShowsThePrintersBlackAsBlack) {
  const Samples black = {0, 0, 0};
  EXPECT_THAT(shown(profiles::grey_black(), black), ElementsAre(0, 0, 0));
  EXPECT_THAT(shown(profiles::matrix_printer(), black), ElementsAre(0, 0, 0));
  EXPECT_THAT(shown(profiles::table_printer(), black), ElementsAre(0, 0, 0));
  EXPECT_THAT(shown(*SoftProof::ThroughPrinterModel(), black), ElementsAre(0, 0, 0));
}

TEST(SoftProof, TakesSamplesAbove14BitsAsWhite) {
  const Samples above = {0x4000, 0xFFFF, 0x8000};
  EXPECT_THAT(shown(profiles::linear(), above), ElementsAre(255, 255, 255));
  EXPECT_THAT(shown(profiles::table_printer(), above), ElementsAre(255, 255, 255));
}

TEST(SoftProof, ShowsAnSrgbDevicesValuesAsTheyAre) {
  // 1028 × 255 / 16383 = 16.0, 4112 and 8224: 64.0 and 128.0; 12400: 193.0.
  EXPECT_THAT(shown(profiles::srgb(), {1028, 4112, 8224, 12400, 0, 16383}),
              ElementsAre(16, 64, 128, 193, 0, 255));
}

TEST(SoftProof, ShowsAmountsOfLightAsTheScreenEncodesThem) {
  // 1.055 × (v / 16383) ^ (1 / 2.4) - 0.055, of 255: 118.6, 205.0 and 187.5; 20 lies on the
  // straight piece: 12.92 × 20 / 16383 of 255 is 4.02.
  EXPECT_THAT(shown(profiles::linear(), {3000, 10000, 8192, 20, 20, 20}),
              ElementsAre(119, 205, 188, 4, 4, 4));
}

TEST(SoftProof, ClipsWhatTheScreenCannotShow) {
  // This green has -0.398, 1.000 and -0.043 of the screen's red, green and blue.
  EXPECT_THAT(shown(profiles::wide_green(), {0, 16383, 0}), ElementsAre(0, 255, 0));
}

TEST(SoftProof, KeepsGreysOfTheModelNeutral) {
  const auto proof = SoftProof::ThroughPrinterModel();
  for (int level = 0; level <= 0x3FFF; ++level) {
    const auto sample = static_cast<std::uint16_t>(level);
    const Bytes grey = shown(*proof, {sample, sample, sample});
    ASSERT_THAT(grey, Each(AllOf(Ge(grey[1] - 1), Le(grey[1] + 1)))) << level;
  }
}

// Colours from all over the device's cube, a third of them in its shadows.
Samples many_samples() {
  // The same colours in each run.
  std::mt19937 random(20260315);  // NOLINT(cert-msc32-c,cert-msc51-cpp)
  Samples samples(std::size_t{3} * 60000);
  for (std::size_t i = 0; i < samples.size(); ++i) {
    samples[i] = static_cast<std::uint16_t>(random() % (i < samples.size() / 3 ? 700 : 0x4000));
  }
  return samples;
}

struct Departure {
  int largest;
  long count;
};

Departure from_little_cms(const profiles::Profile& profile) {
  const Samples samples = many_samples();
  const Bytes bytes = shown(profile, samples);
  const std::vector<double> truth = profiles::on_screen(profile, samples);
  Departure departure{0, 0};
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const int difference =
        std::abs(bytes[i] - static_cast<int>(std::lround(std::clamp(truth[i], 0.0, 255.0))));
    departure.largest = std::max(departure.largest, difference);
    departure.count += difference == 0 ? 0 : 1;
  }
  return departure;
}

TEST(SoftProof, OfAMatrixProfileIsWhatLittleCmsCalculates) {
  const Departure departure = from_little_cms(profiles::matrix_printer());
  EXPECT_LE(departure.largest, 1);
  EXPECT_LE(departure.count, 180);  // of 180,000
}

TEST(SoftProof, OfATableProfileIsWhatLittleCmsCalculates) {
  const Departure departure = from_little_cms(profiles::table_printer());
  EXPECT_LE(departure.largest, 1);
  EXPECT_LE(departure.count, 180);
}

TEST(SoftProof, OfTheModelIsWhatLittleCmsCalculates) {
  const auto model = printer_model_profile();
  const Departure departure = from_little_cms({model.begin(), model.end()});
  EXPECT_LE(departure.largest, 1);
  EXPECT_LE(departure.count, 180);
}

TEST(SoftProof, OfALongRowIsThatOfItsDots) {
  const auto proof = proof_through(profiles::table_printer());
  Samples row = many_samples();
  row.resize(std::size_t{3} * 1852);
  Bytes singly;
  for (std::size_t i = 0; i < row.size(); i += 3) {
    const Bytes dot = shown(*proof, {row[i], row[i + 1], row[i + 2]});
    singly.insert(singly.end(), dot.begin(), dot.end());
  }
  EXPECT_TRUE(shown(*proof, row) == singly);
}

}  // namespace
