// SPDX-License-Identifier: Apache-2.0
//
// From a good profile to the colour table: what the nodes are, held against Little CMS's own plain
// transform.
#include "conversion/table_from_profile.h"

#include <gtest/gtest.h>
#include <lcms2.h>

#include <algorithm>
#include <array>
#include <cstdlib>

#include "conversion/builtin_table.h"
#include "tests/unit/profile_maker.h"

namespace {

constexpr cmsUInt32Number kExact = cmsFLAGS_NOOPTIMIZE | cmsFLAGS_NOCACHE;

const ColourNode& node(const ColourTable& table, std::size_t r, std::size_t g, std::size_t b) {
  return table.nodes[(r * 33 + g) * 33 + b];
}

/// A profile's table, and beside it Little CMS's transform from sRGB with any intent.
class TableFromProfile : public testing::Test {
 protected:
  void use(const ProfileBytes& bytes) {
    ASSERT_STREQ(make_colour_table(bytes, table), nullptr);
    profile = bytes;
  }

  /// Device values of a node's colour, 1 = full scale.
  std::array<double, 3> plainly(std::size_t r, std::size_t g, std::size_t b,
                                cmsUInt32Number intent = INTENT_RELATIVE_COLORIMETRIC,
                                cmsUInt32Number flags = cmsFLAGS_BLACKPOINTCOMPENSATION) const {
    cmsHPROFILE screen = cmsCreate_sRGBProfile();
    cmsHPROFILE printer =
        cmsOpenProfileFromMem(profile.data(), static_cast<cmsUInt32Number>(profile.size()));
    cmsHTRANSFORM transform =
        cmsCreateTransform(screen, TYPE_RGB_DBL, printer, TYPE_RGB_DBL, intent, flags | kExact);
    const std::array<double, 3> colour = {static_cast<double>(r) / 32, static_cast<double>(g) / 32,
                                          static_cast<double>(b) / 32};
    std::array<double, 3> device{};
    cmsDoTransform(transform, colour.data(), device.data(), 1);
    cmsDeleteTransform(transform);
    cmsCloseProfile(printer);
    cmsCloseProfile(screen);
    return device;
  }

  void expectAsPlainly(std::size_t r, std::size_t g, std::size_t b) const {
    const std::array<double, 3> device = plainly(r, g, b);
    for (std::size_t i = 0; i < 3; ++i) {
      EXPECT_NEAR(node(table, r, g, b)[i], device[i] * 16383, 0.6) << r << ' ' << g << ' ' << b;
    }
  }

  /// 0x3FFF times sRGB's light at 8/32, 16/32 and 24/32: 0.05087609, 0.21404114, 0.52252155.
  void expectLight() const {
    EXPECT_NEAR(node(table, 8, 16, 24)[0], 833.5, 1);
    EXPECT_NEAR(node(table, 8, 16, 24)[1], 3506.6, 1);
    EXPECT_NEAR(node(table, 8, 16, 24)[2], 8560.5, 1);
  }

  /// The largest difference between two channels along the greys.
  int greysApart() const {
    int largest = 0;
    for (std::size_t i = 0; i < kGridPoints; ++i) {
      const ColourNode& grey = node(table, i, i, i);
      largest = std::max({largest, std::abs(grey[0] - grey[1]), std::abs(grey[1] - grey[2]),
                          std::abs(grey[0] - grey[2])});
    }
    return largest;
  }

  bool greysRise() const {
    bool rise = true;
    for (std::size_t i = 1; i < kGridPoints; ++i) {
      rise = rise && node(table, i, i, i)[1] > node(table, i - 1, i - 1, i - 1)[1];
    }
    return rise;
  }

  ColourTable table{};
  ProfileBytes profile;
};

TEST_F(TableFromProfile, TheModelsBlackIsNoLightAndItsWhiteIsBarePaper) {
  use(model_bytes());
  EXPECT_EQ(node(table, 0, 0, 0), (ColourNode{0, 0, 0, 0}));
  EXPECT_EQ(node(table, 32, 32, 32), (ColourNode{0x3FFF, 0x3FFF, 0x3FFF, 0}));
}

TEST_F(TableFromProfile, TheModelsGreysAreNeutralAndRise) {
  use(model_bytes());
  EXPECT_LE(greysApart(), 1);
  EXPECT_TRUE(greysRise());
}

TEST_F(TableFromProfile, TheModelsNodesAreWhatLittleCmsGives) {
  use(model_bytes());
  expectAsPlainly(16, 16, 16);
  expectAsPlainly(1, 2, 3);
  expectAsPlainly(31, 20, 9);
  expectAsPlainly(8, 24, 30);
}

TEST_F(TableFromProfile, ColoursThatTheModelCannotPrintAreNotClipped) {
  use(model_bytes());
  expectAsPlainly(32, 0, 0);
  expectAsPlainly(0, 32, 0);
  EXPECT_LT(node(table, 32, 0, 0)[1], -1000);
  EXPECT_LT(node(table, 0, 32, 0)[2], -2000);
  EXPECT_GT(node(table, 0, 0, 32)[2], 16383);
}

TEST_F(TableFromProfile, ColoursFarOutsideEndHalfAFullScaleBelowBlack) {
  MatrixDevice narrow;
  narrow.gamma = 1;
  narrow.primaries = {{0.45, 0.34, 1}, {0.31, 0.40, 1}, {0.24, 0.25, 1}};
  use(matrix_profile(narrow));
  EXPECT_LT(plainly(0, 32, 0)[2] * 16383, -10000);
  EXPECT_EQ(node(table, 0, 32, 0)[2], -8192);
}

TEST_F(TableFromProfile, TheCompiledInTableIsTheModels) {
  use(model_bytes());
  EXPECT_EQ(builtin_table().nodes, table.nodes);
}

TEST_F(TableFromProfile, ADeviceWithSrgbsPrimariesAndGammaOneGetsTheLight) {
  MatrixDevice device;
  device.gamma = 1;
  use(matrix_profile(device));
  expectLight();
  EXPECT_NEAR(node(table, 24, 8, 16)[0], 8560.5, 1);
  EXPECT_NEAR(node(table, 24, 8, 16)[1], 833.5, 1);
  EXPECT_NEAR(node(table, 24, 8, 16)[2], 3506.6, 1);
}

TEST_F(TableFromProfile, AProfileOfVersion2IsAsGood) {
  MatrixDevice device;
  device.gamma = 1;
  device.version = 2.1;
  use(matrix_profile(device));
  expectLight();
}

TEST_F(TableFromProfile, AColourSpaceAndAPrinterAreAsGoodAsAScreen) {
  MatrixDevice device;
  device.gamma = 1;
  device.kind = cmsSigColorSpaceClass;
  use(matrix_profile(device));
  expectLight();
  device.kind = cmsSigOutputClass;
  use(matrix_profile(device));
  expectLight();
}

TEST_F(TableFromProfile, TablesOfVersion4GiveWhatLittleCmsGives) {
  use(dye_profile({}));
  expectAsPlainly(0, 0, 0);
  expectAsPlainly(16, 16, 16);
  expectAsPlainly(31, 20, 9);
  expectAsPlainly(0, 32, 0);
  EXPECT_EQ(node(table, 32, 32, 32), (ColourNode{0x3FFF, 0x3FFF, 0x3FFF, 0}));
  EXPECT_TRUE(greysRise());
}

TEST_F(TableFromProfile, TablesOfVersion2GiveWhatLittleCmsGives) {
  DyeDevice device;
  device.version = 2.4;
  use(dye_profile(device));
  expectAsPlainly(0, 0, 0);
  expectAsPlainly(16, 16, 16);
  expectAsPlainly(8, 24, 30);
  EXPECT_LE(greysApart(), 1);
}

TEST_F(TableFromProfile, TablesOfBytesGiveWhatLittleCmsGives) {
  DyeDevice device;
  device.version = 2.4;
  device.eightBits = true;
  use(dye_profile(device));
  expectAsPlainly(16, 16, 16);
  expectAsPlainly(8, 24, 30);
}

TEST_F(TableFromProfile, OfTheIntentsTheRelativeColorimetricIsTaken) {
  DyeDevice device;
  device.chromaKept = 0.5;
  use(dye_profile(device));
  expectAsPlainly(24, 16, 12);
  const double apart =
      node(table, 24, 16, 12)[2] - plainly(24, 16, 12, INTENT_PERCEPTUAL)[2] * 16383;
  EXPECT_LT(apart, -500);
}

TEST_F(TableFromProfile, AProfileWithPerceptualTablesAloneIsUsedWithThem) {
  DyeDevice device;
  device.bothIntents = false;
  use(dye_profile(device));
  expectAsPlainly(24, 16, 12);
  expectAsPlainly(4, 4, 4);
}

TEST_F(TableFromProfile, TheBlackOfTheScreenIsTheBlackOfThePrinter) {
  DyeDevice device;
  device.version = 2.4;
  device.density = 1.5;
  use(dye_profile(device));
  expectAsPlainly(2, 2, 2);
  // Without the compensation this grey would be as black as the printer can.
  const double uncompensated = plainly(2, 2, 2, INTENT_RELATIVE_COLORIMETRIC, 0)[1] * 16383;
  EXPECT_GT(node(table, 2, 2, 2)[1], uncompensated + 200);
}

}  // namespace
