// SPDX-License-Identifier: Apache-2.0
//
// Profiles that are of the wrong kind, broken or hostile: refused in words, whatever their bytes.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string>

#include "conversion/table_from_profile.h"
#include "tests/unit/profile_maker.h"

namespace {

constexpr std::size_t kOffsetClass = 12;
constexpr std::size_t kOffsetColourSpace = 16;
constexpr std::size_t kOffsetConnection = 20;

std::string fault_of(const ProfileBytes& bytes, std::size_t workingMemory = kProfileWorkingMemory) {
  // As large as the bytes, so that the sanitizer sees a step beyond them.
  const std::unique_ptr<unsigned char[]> exact(new unsigned char[bytes.size()]);
  std::copy(bytes.begin(), bytes.end(), exact.get());
  static ColourTable table;
  const char* fault = make_colour_table({exact.get(), bytes.size()}, table, workingMemory);
  return fault == nullptr ? "made" : fault;
}

DyeDevice small_dyes() {
  DyeDevice device;
  device.grid = 5;
  return device;
}

ProfileBytes shortened(ProfileBytes bytes, std::size_t size) {
  bytes.resize(size);
  return bytes;
}

/// A profile whose directory calls the tag `from` by the name `to`.
ProfileBytes with_tag_renamed(ProfileBytes bytes, const char* from, const char* to) {
  for (std::size_t i = 132; i + 4 <= bytes.size(); i += 12) {
    if (std::memcmp(&bytes[i], from, 4) == 0) {
      std::memcpy(&bytes[i], to, 4);
      return bytes;
    }
  }
  throw std::runtime_error("no such tag");
}

TEST(TableFromProfileRefused, DevicesThatAreNotRgb) {
  EXPECT_EQ(fault_of(gray_profile()), "it is not for an RGB device");
  EXPECT_EQ(fault_of(cmyk_profile()), "it is not for an RGB device");
}

TEST(TableFromProfileRefused, ProfilesThatLeadFromColoursToColours) {
  EXPECT_EQ(fault_of(device_link_profile()), "it is not for an RGB device");
  EXPECT_EQ(fault_of(abstract_profile()), "it is not for an RGB device");
  EXPECT_EQ(fault_of(with_header_word(model_bytes(), kOffsetClass, cmsSigLinkClass)),
            "it is not the profile of a device that shows colours");
  EXPECT_EQ(fault_of(with_header_word(model_bytes(), kOffsetClass, cmsSigAbstractClass)),
            "it is not the profile of a device that shows colours");
}

TEST(TableFromProfileRefused, AScannersProfile) {
  EXPECT_EQ(fault_of(with_header_word(model_bytes(), kOffsetClass, cmsSigInputClass)),
            "it is not the profile of a device that shows colours");
}

TEST(TableFromProfileRefused, AConnectionSpaceThatIsNone) {
  EXPECT_EQ(fault_of(with_header_word(model_bytes(), kOffsetConnection, cmsSigRgbData)),
            "its connection space is neither XYZ nor Lab");
}

TEST(TableFromProfileRefused, AColourSpaceThatIsNoSpaceAtAll) {
  EXPECT_EQ(fault_of(with_header_word(model_bytes(), kOffsetColourSpace, 0x7F7F7F7F)),
            "it is not for an RGB device");
}

TEST(TableFromProfileRefused, TablesThatOnlySayWhatWasPrinted) {
  DyeDevice device = small_dyes();
  device.backToDevice = false;
  EXPECT_EQ(fault_of(dye_profile(device)), "it does not lead from colours to the printer");
}

TEST(TableFromProfileRefused, AMatrixWithoutOneOfItsCurves) {
  EXPECT_EQ(fault_of(with_tag_renamed(model_bytes(), "gTRC", "abcd")),
            "it does not lead from colours to the printer");
}

TEST(TableFromProfileRefused, MultiProcessElements) {
  EXPECT_EQ(fault_of(with_tag_renamed(dye_profile(small_dyes()), "A2B1", "B2D1")),
            "it holds multi-process elements");
}

TEST(TableFromProfileRefused, BlackForWhite) {
  DyeDevice device = small_dyes();
  device.turnedRound = true;
  EXPECT_EQ(fault_of(dye_profile(device)), "white does not come out white");
}

TEST(TableFromProfileRefused, OneColourForEverything) {
  DyeDevice device = small_dyes();
  device.oneColour = true;
  EXPECT_EQ(fault_of(dye_profile(device)), "black does not come out dark");
}

TEST(TableFromProfileRefused, WhatIsNoProfile) {
  EXPECT_EQ(fault_of({}), "it is cut short");
  EXPECT_EQ(fault_of(ProfileBytes(128, 0)), "it is not an ICC profile, or a damaged one");
  EXPECT_EQ(fault_of(ProfileBytes(5000, 'x')), "it is cut short");
}

TEST(TableFromProfileRefused, AProfileThatNeedsMoreMemoryThanThereIsForIt) {
  EXPECT_EQ(fault_of(dye_profile(small_dyes()), 20000), "it needs too much memory");
}

TEST(TableFromProfileRefused, TheModelCutShortAtAnyLength) {
  const ProfileBytes whole = model_bytes();
  for (std::size_t size = 0; size < whole.size(); ++size) {
    EXPECT_EQ(fault_of(shortened(whole, size)), "it is cut short") << size;
  }
}

TEST(TableFromProfileRefused, AModelThatClaimsToBeWholeWhereItIsCut) {
  const ProfileBytes whole = model_bytes();
  for (std::size_t size = 128; size < whole.size(); ++size) {
    const auto said = static_cast<cmsUInt32Number>(size);
    EXPECT_NE(fault_of(with_header_word(shortened(whole, size), 0, said)), "made") << size;
  }
}

TEST(TableFromProfileRefused, TablesCutShort) {
  const ProfileBytes whole = dye_profile(small_dyes());
  for (std::size_t size = 1; size < whole.size(); size += 7) {
    EXPECT_EQ(fault_of(shortened(whole, size)), "it is cut short") << size;
  }
}

/// Profiles with one wrong bit may be usable or not, but never lead to a table that the
/// interpolation could not work with.
class BitFlips : public testing::Test {
 protected:
  static bool isSound(const ColourTable& table) {
    bool sound = table.nodes.back() == ColourNode{0x3FFF, 0x3FFF, 0x3FFF, 0};
    for (const ColourNode& node : table.nodes) {
      sound = sound && std::min({node[0], node[1], node[2]}) >= -8192 &&
              std::max({node[0], node[1], node[2]}) <= 24575 && node[3] == 0;
    }
    return sound;
  }

  void flip(const ProfileBytes& whole, int times) {
    std::uint64_t random = 20260;
    for (int i = 0; i < times; ++i) {
      ProfileBytes bytes = whole;
      random = random * 6364136223846793005U + 1442695040888963407U;
      const std::size_t bit = (random >> 33U) % (8 * bytes.size());
      bytes[bit / 8] = static_cast<unsigned char>(bytes[bit / 8] ^ 1U << bit % 8);
      const bool isMade = make_colour_table(bytes, table) == nullptr;
      (isMade ? made : refused) += 1;
      EXPECT_TRUE(!isMade || isSound(table)) << "bit " << bit;
    }
  }

  ColourTable table{};
  int made = 0;
  int refused = 0;
};

TEST_F(BitFlips, OfTheModelGiveASoundTableOrNone) {
  flip(model_bytes(), 80);
  EXPECT_GT(made, 0);
  EXPECT_GT(refused, 0);
}

TEST_F(BitFlips, OfTablesGiveASoundTableOrNone) {
  DyeDevice device = small_dyes();
  device.grid = 2;
  flip(dye_profile(device), 80);
  EXPECT_GT(made, 0);
  EXPECT_GT(refused, 0);
}

/// With whatever memory, the table is either the right one or none: Little CMS carries on without
/// what it could not have.
class LittleMemory : public testing::Test {
 protected:
  void sweep(const ProfileBytes& bytes, std::size_t step) {
    ASSERT_STREQ(make_colour_table(bytes, right), nullptr);
    for (std::size_t memory = 0; made == 0 && memory < kProfileWorkingMemory; memory += step) {
      const char* fault = make_colour_table(bytes, table, memory);
      made += fault == nullptr ? 1 : 0;
      refused += fault == nullptr ? 0 : 1;
      EXPECT_TRUE(fault != nullptr || table.nodes == right.nodes) << memory;
    }
  }

  ColourTable right{};
  ColourTable table{};
  int made = 0;
  int refused = 0;
};

TEST_F(LittleMemory, GivesTheModelsTableOrNone) {
  sweep(model_bytes(), 1601);
  EXPECT_EQ(made, 1);
  EXPECT_GT(refused, 20);
}

TEST_F(LittleMemory, GivesATablesTableOrNone) {
  sweep(dye_profile(small_dyes()), 1601);
  EXPECT_EQ(made, 1);
  EXPECT_GT(refused, 20);
}

}  // namespace
