// SPDX-License-Identifier: Apache-2.0
//
// What the conversion library gets for settings that no option makes.
#include <gtest/gtest.h>

#include "filter/filter_hooks.h"
#include "job/job_state.h"
#include "tests/unit/filter/job_fixture.h"
#include "tests/unit/settings.h"

namespace {

class PageConversion : public JobTest {
 protected:
  /// The parameter block that a first page with these settings gets.
  static tagMVChangeParams ParamsOf(const tagPRINTSETTING& settings) {
    ResetConversions();
    RunPage(settings);
    CImageUtility::DeleteBandImage(&gImageCache);
    CImageUtility::DeleteBandImage(&gMatteImage);
    gImageCount = 0;
    return ConversionCalls().at(0).params;
  }
};

}  // namespace

TEST_F(PageConversion, OnlyTheLowestBitSwitchesColourConversion) {
  tagPRINTSETTING settings = SettingsOfSmallJoinedSheet();
  settings.byColorConversion = 2;
  EXPECT_EQ(ParamsOf(settings).dwFlags, 0x10006U);
  EXPECT_EQ(ParamsOf(settings).byOption[2], 5);
  settings.byColorConversion = 3;
  EXPECT_EQ(ParamsOf(settings).dwFlags, 0x10007U);
  EXPECT_EQ(ParamsOf(settings).byOption[2], 1);
}

TEST_F(PageConversion, EverySharpnessHasItsLevelAndFlag) {
  struct Level {
    std::uint8_t setting;
    std::uint64_t flags;
    int level;
  };
  for (const Level& level :
       {Level{0, 0x10003, 0}, Level{1, 0x10007, 0}, Level{2, 0x10007, 1}, Level{3, 0x10007, 2},
        Level{4, 0x10007, 3}, Level{5, 0x10007, 4}, Level{6, 0x10007, 5}, Level{7, 0x10007, 6},
        Level{8, 0x10007, 4}, Level{255, 0x10007, 4}}) {
    tagPRINTSETTING settings = SettingsOfSmallJoinedSheet();
    settings.bySharpness = level.setting;
    const tagMVChangeParams params = ParamsOf(settings);
    EXPECT_EQ(params.dwFlags, level.flags) << int{level.setting};
    EXPECT_EQ(params.nSharpness, level.level) << int{level.setting};
  }
}

TEST_F(PageConversion, NoFinishButThreeHasAMattePlane) {
  tagPRINTSETTING settings = SettingsOfSmallJoinedSheet();
  settings.byPrintFinish = 1;
  RunPage(settings);
  EXPECT_EQ(ConversionCalls().at(0).matte_record, nullptr);
}
