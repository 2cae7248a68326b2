// SPDX-License-Identifier: Apache-2.0
//
// Built with a list of papers that has one more row: everything that goes through the list knows
// the paper.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "commands/setting_words.h"
#include "decoder/header_check.h"
#include "filter/ppd_options.h"
#include "job/paper_table.h"
#include "tests/unit/ppd_file.h"
#include "tools/print_sizes.h"

namespace {

tagPRINTSETTING SettingsOf7x10() {
  PpdFile ppd(PickOne("PageSize", {"RQ_7x10"}));
  tagPRINTSETTING settings{};
  get_print_setting(ppd.get(), &settings);
  return settings;
}

TEST(OneMorePaper, HasAConstantAndAName) {
  EXPECT_EQ(PAPER_7x10.nPaperHeight, 1200);
  EXPECT_STREQ(named_papers().back().choice, "RQ_7x10");
}

TEST(OneMorePaper, GivesTheJobItsGeometry) {
  const tagPRINTSETTING settings = SettingsOf7x10();
  EXPECT_EQ(settings.nPaperWidth, 900);
  EXPECT_EQ(settings.nImageHeight, 1200);
}

TEST(OneMorePaper, IsNamedOnTheTestPage) {
  EXPECT_EQ(paper_words(SettingsOf7x10()), "7 x 10 cm");
}

TEST(OneMorePaper, IsASheetThatTheDecoderTakes) {
  std::vector<std::string> errors;
  const decoder::ErrorSink report = [&errors](const decoder::StreamError& error) {
    errors.push_back(decoder::to_string(error));
  };
  decoder::JobHeader job{};
  job.sheetWidth = 900;
  job.sheetHeight = 1200;
  EXPECT_TRUE(decoder::check_sheet(job, decoder::Command::JobHeader, 0, report));
  EXPECT_EQ(errors, std::vector<std::string>{});
  job.sheetWidth = 901;
  EXPECT_FALSE(decoder::check_sheet(job, decoder::Command::JobHeader, 0, report));
  EXPECT_EQ(errors, std::vector<std::string>{
                        "offset 6: job header, sheet width: came 901, allowed 900, 1550 or 1852"});
}

TEST(OneMorePaper, IsFoundUnderEachOfItsNames) {
  for (const char* name : {"RQ_7x10", "7x10", "3x4", "70x100mm"}) {
    const NamedPaper* const found = tools::find_paper(name);
    ASSERT_NE(found, nullptr) << name;
    EXPECT_EQ(found->paper, &PAPER_7x10) << name;
  }
}

}  // namespace
