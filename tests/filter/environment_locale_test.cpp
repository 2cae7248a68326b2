// SPDX-License-Identifier: Apache-2.0
//
// The languages of the world: the scheduler starts the filter with the job's own, and what the
// filter compares, counts and writes must not change with it.
#include <gtest/gtest.h>

#include "tests/filter/comparison.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

class Language : public testing::TestWithParam<const char*> {
 protected:
  /// The locale holds from the filter's first line on.
  std::map<std::string, std::string> Environment() const {
    return {{"LC_ALL", GetParam()},
            {"LANG", GetParam()},
            {"LOCPATH", FILTER_TEST_LOCALES},
            {"FILTER_TEST_LOCALE", "early"}};
  }
};

TEST_P(Language, ChangesNeitherSheetNorLog) {
  const Outcome outcome = Print({.input = SmallRaster(), .environment = Environment()});

  EXPECT_TRUE(SameStream(outcome.stream, SmallStream()));
  EXPECT_TRUE(SameLog(outcome.log, SmallLog()));
  EXPECT_EQ(outcome.status, 0);
}

/// The parameters of the conversion where the PPD and the job name two choices in capitals.
std::string ParamsOfCapitals(std::map<std::string, std::string> environment) {
  std::string ppd = Ppd{.without = {"RQSharpness_Common", "RQColorConversion"}}.Text();
  for (const std::string option : {"RQSharpness_Common MINUS2", "RQColorConversion DISABLED"}) {
    const std::string keyword = option.substr(0, option.find(' '));
    ppd.append("*OpenUI *").append(keyword).append(": PickOne\n*").append(option);
    ppd.append(": \"\"\n*CloseUI: *").append(keyword).append("\n");
  }
  const TemporaryFolder folder;
  environment["PPD"] = folder.Write("capitals.ppd", ppd);
  const Outcome outcome = Print({.input = SmallRaster(),
                                 .options = "RQSharpness_Common=MINUS2 RQColorConversion=DISABLED",
                                 .environment = environment});
  EXPECT_EQ(outcome.status, 0);
  const std::size_t start = outcome.log.find("DEBUG: Params=");
  return outcome.log.substr(start, outcome.log.find('\n', start) - start);
}

TEST_P(Language, DoesNotChangeWhichLettersAreTheSame) {
  std::map<std::string, std::string> environment = Environment();
  environment.erase("FILTER_TEST_LOCALE");  // the filter itself sets none

  EXPECT_EQ(ParamsOfCapitals(environment),
            "DEBUG: Params=0x00010006 (0:0:0, 0:0:0, 0:0:0) (0,0,5,0) 1");
}

TEST_P(Language, DoesNotChangeWhatANumberIs) {
  const Outcome outcome = Print({.input = SmallRaster(),
                                 .options = "RQGammaR=-2 RQBrightnessG=200 RQContrastB=-20",
                                 .environment = Environment()});

  EXPECT_NE(outcome.log.find("DEBUG: Params=0x00010007 (-2:0:0, 0:0:-20, 0:128:0) (0,0,1,0) 3\n"),
            std::string::npos);
  EXPECT_EQ(outcome.status, 0);
}

INSTANTIATE_TEST_SUITE_P(Locale, Language,
                         testing::Values("tr_TR.UTF-8", "tr_TR.ISO-8859-9", "fa_IR.UTF-8",
                                         "th_TH.UTF-8", "hi_IN.UTF-8"),
                         [](const testing::TestParamInfo<const char*>& locale) {
                           std::string name = locale.param;
                           std::erase_if(name,
                                         [](unsigned char c) { return std::isalnum(c) == 0; });
                           return name;
                         });

#ifndef __SANITIZE_ADDRESS__  // whose own strcasecmp knows no locale
// In Turkish a capital I is another letter than i.
TEST(Language, ThatALibraryHasSetIsTheOneInWhichLettersAreCompared) {
  EXPECT_EQ(ParamsOfCapitals({{"LC_ALL", "tr_TR.ISO-8859-9"},
                              {"LOCPATH", FILTER_TEST_LOCALES},
                              {"FILTER_TEST_LOCALE", "early"}}),
            "DEBUG: Params=0x00010007 (0:0:0, 0:0:0, 0:0:0) (0,0,1,0) 3");
}
#endif

TEST(Language, ThatTheSystemDoesNotKnowChangesNothing) {
  const Outcome outcome =
      Print({.input = SmallRaster(), .environment = {{"LC_ALL", "tlh_QO.UTF-8"}, {"LANG", "tlh"}}});

  EXPECT_TRUE(SameLog(outcome.log, SmallLog()));
  EXPECT_EQ(outcome.status, 0);
}

TEST(Language, OfALongNameChangesNothing) {
  const std::string name(100000, 'x');

  const Outcome outcome =
      Print({.input = SmallRaster(), .environment = {{"LC_ALL", name}, {"LANG", name}}});

  EXPECT_TRUE(SameLog(outcome.log, SmallLog()));
  EXPECT_EQ(outcome.status, 0);
}

}  // namespace
}  // namespace filter_test
