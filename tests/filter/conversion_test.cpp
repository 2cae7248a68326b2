// SPDX-License-Identifier: Apache-2.0
//
// What the conversion library is given, and what follows when it fails.
#include <gtest/gtest.h>

#include "tests/filter/comparison.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

TEST(Conversion, OfAGlossPageGetsThePageTheSettingsAndABlankImage) {
  EXPECT_EQ(Print({.input = SmallRaster()}).calls,
            "call 1\n"
            "source stride -4650 rect 0 0 1550 1082\n"
            "params 101 1 65543 /opt/printer/filter/ 1 tone 0 0 0 0 0 0 0 0 0 "
            "options 0 0 1 0 sharpness 3\n"
            "destination stride -9300 rect 0 0 1550 1082 blank\n"
            "matte none\n"
            "rates 0 0\n");
}

TEST(Conversion, OfAMattePageGetsABlankMattePlaneTwelveLinesLongerThanTheSheet) {
  const Outcome outcome =
      Print({.input = SmallRaster(), .options = "PageSize=RQ_9x13_WB RQPrintFinish=Matte"});

  EXPECT_EQ(outcome.calls,
            "call 1\n"
            "source stride -4146 rect 0 0 1382 934\n"
            "params 101 1 65543 /opt/printer/filter/ 1 tone 0 0 0 0 0 0 0 0 0 "
            "options 0 0 1 0 sharpness 3\n"
            "destination stride -8292 rect 0 0 1382 934 blank\n"
            "matte stride -1550 rect 0 0 1550 1094 blank\n"
            "rates 0 0\n");
}

TEST(Conversion, GetsTheToneValuesInTheirOrderAndTheOtherOptions) {
  const Outcome outcome =
      Print({.input = SmallRaster(),
             .options = "RQGammaR=1 RQGammaG=-2 RQGammaB=5 RQContrastR=10 RQContrastG=-20 "
                        "RQContrastB=128 RQBrightnessR=127 RQBrightnessG=-128 RQBrightnessB=10 "
                        "RQColorConversion=Disabled RQSharpness_Common=None"});

  EXPECT_NE(outcome.calls.find("\nparams 101 1 65538 /opt/printer/filter/ 1 "
                               "tone 1 -2 5 10 -20 128 127 -128 10 "
                               "options 0 0 5 0 sharpness 0\n"),
            std::string::npos)
      << outcome.calls;
}

TEST(Conversion, OfAJoinedMatteSheetGetsTheMattePlaneWithTheFirstPageOnly) {
  const Outcome outcome =
      Print({.input = SmallRaster(3), .options = "PageSize=RQ_5x15x2_2 RQPrintFinish=Matte"});

  const std::string page =
      "source stride -5556 rect 0 0 1852 616\n"
      "params 101 1 65543 /opt/printer/filter/ 1 tone 0 0 0 0 0 0 0 0 0 "
      "options 0 0 1 0 sharpness 3\n"
      "destination stride -11112 rect 0 0 1852 616 blank\n";
  const std::string plane = "matte stride -1852 rect 0 0 1852 1244 blank\n";
  EXPECT_EQ(outcome.calls, "call 1\n" + page + plane + "rates 0 0\n" +          //
                               "call 2\n" + page + "matte none\nrates 0 0\n" +  //
                               "call 3\n" + page + plane + "rates 0 0\n");
}

TEST(ModulePath, IsTheFolderOfTheFirstProgramThatTakesRaster) {
  const Ppd ppd{.filters = {"application/vnd.cups-pdf 0 /opt/a/pdf",
                            "application/vnd.cups-raster 50 /opt/b/deep/er/rastertoprinter",
                            "application/vnd.cups-raster 0 /opt/c/rastertoprinter"}};

  const Outcome outcome = Print({.input = SmallRaster(), .ppd = ppd});

  EXPECT_NE(outcome.calls.find(" /opt/b/deep/er/ 1 tone"), std::string::npos) << outcome.calls;
}

TEST(ModulePath, PassesOverLinesWithFieldsMissing) {
  const Ppd ppd{.filters = {"application/vnd.cups-raster 0",
                            "application/vnd.cups-raster cheap /opt/a/rastertoprinter",
                            "application/vnd.cups-raster 0 /opt/b/rastertoprinter"}};

  const Outcome outcome = Print({.input = SmallRaster(), .ppd = ppd});

  EXPECT_NE(outcome.calls.find(" /opt/b/ 1 tone"), std::string::npos) << outcome.calls;
}

struct FailureCase {
  const char* name;
  const char* code;
};

class FailedConversion : public testing::TestWithParam<FailureCase> {
 protected:
  std::string Lines() const {
    return "DEBUG: Params=" + kDefaultParams + "\nDEBUG: MVChangeImage()=" + GetParam().code +
           "\nERROR: Unable to convert image (" + GetParam().code + ")\n";
  }
};

TEST_P(FailedConversion, OfTheFirstPageEndsTheJob) {
  const Outcome outcome =
      Print({.input = SmallRaster(2), .environment = {{"FILTER_TEST_RETURNS", GetParam().code}}});

  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest()));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + PageRead(1, "0") + Lines()));
  EXPECT_EQ(outcome.status, 1);
}

TEST_P(FailedConversion, OfTheSecondPageEndsTheJobWithoutAPrintOut) {
  const Outcome outcome = Print(
      {.input = SmallRaster(3), .environment = {{"FILTER_TEST_RETURNS", "0 "s + GetParam().code}}});

  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest() + Sheet(kSettings, SmallImage())));
  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + SmallPage(1) + SmallSheet(kSettings, 1) +
                                       PageRead(2, "0") + Lines()));
  EXPECT_EQ(outcome.status, 1);
}

/// The filter as it is built, with the open conversion library, and a module directory of the
/// PPD's.
std::string LogOfTheOpenLibraryIn(const std::string& directory) {
  return Print({.program = FILTER_TEST_BUILD "/rastertoprinter",
                .input = SmallRaster(),
                .ppd = Ppd{.filters = {"application/vnd.cups-raster 0 " + directory + "any"}}})
      .log;
}

TEST(OpenLibrary, SaysNothingOfAProfileThatIsNotThere) {
  const TemporaryFolder empty;
  const std::string lines = "DEBUG: Params=" + kDefaultParams + "\nDEBUG: MVChangeImage()=0\n";

  EXPECT_NE(LogOfTheOpenLibraryIn("/opt/printer/filter/").find(lines), std::string::npos);
  EXPECT_NE(LogOfTheOpenLibraryIn(empty.Path("")).find(lines), std::string::npos);
}

TEST(OpenLibrary, SaysOnceThatAProfileIsRefused) {
  const TemporaryFolder folder;
  folder.Write("tqr7.icc", "");

  EXPECT_NE(LogOfTheOpenLibraryIn(folder.Path(""))
                .find("DEBUG: Params=" + kDefaultParams + "\nDEBUG: Printer profile " +
                      folder.Path("tqr7.icc") +
                      " is not used (it is too small for a profile); colours by the built-in "
                      "model.\nDEBUG: MVChangeImage()=0\n"),
            std::string::npos);
}

const FailureCase kFailureCases[] = {
    {"One", "1"}, {"MinusSeven", "-7"}, {"BeyondThirtyTwoBits", "4294967296"}};

INSTANTIATE_TEST_SUITE_P(Code, FailedConversion, testing::ValuesIn(kFailureCases),
                         [](const testing::TestParamInfo<FailureCase>& failure) {
                           return std::string(failure.param.name);
                         });

}  // namespace
}  // namespace filter_test
