// SPDX-License-Identifier: Apache-2.0
//
// tqr7 explain as a person runs it.
#include <gmock/gmock.h>

#include <nlohmann/json.hpp>
#include <string>

#include "tests/unit/tool_process.h"

namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST(Explain, TellsOfANumberWhatIsKnownAndWhatToDo) {
  const ToolRun run = run_tool({"explain", "2665"});
  EXPECT_EQ(run.out,
            "Number:  2665\n"
            "Class:   0008\n"
            "Keyword: com.corvantiel-error0008_2665\n"
            "Meaning: The printer reported error 2665. What 2665 itself means is not known "
            "here; its class is 0008, which it shares with 42 other numbers, 2600 to 2690.\n"
            "To do:   Read the printer's display, and look up 2665 in the printer's manual. See to "
            "what they ask for; often that is paper, the ribbon or a cover. The job that stopped "
            "is still in the queue: `tqr7 resume QUEUE` prints it again.\n");
  EXPECT_EQ(run.errors, "");
  EXPECT_EQ(run.status, 0);
}

class ExplainInAnyWriting : public testing::TestWithParam<const char*> {};

TEST_P(ExplainInAnyWriting, MeansTheSameError) {
  const ToolRun run = run_tool({"explain", GetParam()});
  EXPECT_THAT(run.out, StartsWith("Number:  2665\nClass:   0008\n"
                                  "Keyword: com.corvantiel-error0008_2665\n"));
  EXPECT_EQ(run.status, 0);
}

INSTANTIATE_TEST_SUITE_P(Writings, ExplainInAnyWriting,
                         testing::Values("2665", "0x2665", "0X2665", "0008_2665", "error0008_2665",
                                         "ERROR0008_2665", "com.corvantiel-error0008_2665",
                                         "Com.Corvantiel-Error0008_2665",
                                         "com.corvantiel-error0008_2665-error"));

TEST(Explain, LetsNoControlCharacterThrough) {
  const ToolRun run = run_tool({"explain", "a\033[2Jb"});
  EXPECT_THAT(run.out, testing::Not(HasSubstr("\033")));
  EXPECT_THAT(run.errors, testing::Not(HasSubstr("\033")));
  EXPECT_EQ(run.status, 1);
}

TEST(Explain, FillsAShortNumberUp) {
  EXPECT_THAT(run_tool({"explain", "4"}).out,
              StartsWith("Number:  0004\nClass:   0004\nKeyword: com.corvantiel-error0004\n"));
}

TEST(Explain, OfAGoodPrinterSaysThatNothingIsRaised) {
  const ToolRun run = run_tool({"explain", "0x0000"});
  EXPECT_EQ(run.out,
            "Number:  0000\n"
            "Keyword: none is raised\n"
            "Meaning: The printer is good: it reports no error, and no reason is raised.\n"
            "To do:   Nothing to do.\n");
  EXPECT_EQ(run.status, 0);
}

TEST(Explain, NamesANumberOutsideTheTableAsSuchAndHelpsAllTheSame) {
  const ToolRun run = run_tool({"explain", "2604"});
  EXPECT_EQ(run.errors, "tqr7 explain: \"2604\" is not in the table of the printer's errors\n");
  EXPECT_EQ(run.out,
            "Number:  2604\n"
            "Keyword: com.corvantiel-error0004\n"
            "Meaning: 2604 is not in the table of the printer's errors. When the printer reports "
            "it, the queue shows com.corvantiel-error0004.\n"
            "To do:   Read the printer's display, and look up 2604 in the printer's manual. The "
            "job that stopped is still in the queue: `tqr7 resume QUEUE` prints it again.\n");
  EXPECT_EQ(run.status, 1);
}

TEST(Explain, NamesAWordOutsideTheTableAsSuchAndHelpsAllTheSame) {
  const ToolRun run = run_tool({"explain", "driver-setting-unmuch"});
  EXPECT_EQ(
      run.errors,
      "tqr7 explain: \"driver-setting-unmuch\" is not in the table of the printer's errors\n");
  EXPECT_THAT(run.out, StartsWith("Keyword: driver-setting-unmuch\n"
                                  "Meaning: The printer refused the sheet: it does not take the "
                                  "settings of the job.\n"));
  EXPECT_EQ(run.status, 1);
}

class ExplainGarbage : public testing::TestWithParam<const char*> {};

TEST_P(ExplainGarbage, IsOutsideTheTable) {
  const ToolRun run = run_tool({"explain", "--", GetParam()});
  EXPECT_THAT(run.errors, HasSubstr("is not in the table of the printer's errors\n"));
  EXPECT_THAT(run.out,
              HasSubstr("Meaning: This is neither in the table of the printer's errors nor "
                        "a word that is known here.\n"));
  EXPECT_EQ(run.status, 1);
}

INSTANTIATE_TEST_SUITE_P(Texts, ExplainGarbage,
                         testing::Values("", "0x", "02665", "26 65", "-1", "+4", "0008-2665",
                                         "0x0x4", "\xFF\xFE", "%n%s", "2665 "));

TEST(Explain, ShowsNoControlCharactersOnATerminal) {
  EXPECT_EQ(run_tool({"explain", "\x1B[31mred\n"}).errors,
            "tqr7 explain: \"?[31mred?\" is not in the table of the printer's errors\n");
}

TEST(Explain, ShowsNoControlCharactersOfEightBitsEither) {
  EXPECT_EQ(run_tool({"explain", "\xC2\x9B;red"}).errors,
            "tqr7 explain: \"?;red\" is not in the table of the printer's errors\n");
}

TEST(Explain, WritesOneJsonDocument) {
  const ToolRun run = run_tool({"explain", "--json", "2202"});
  EXPECT_EQ(nlohmann::json::parse(run.out), nlohmann::json::parse(R"({
    "in_table": true, "number": "2202", "keyword": "com.corvantiel-error0015_2202",
    "class": "0015",
    "meaning": "The printer reported error 2202. What 2202 itself means is not known here; its class is 0015, which no other number has.",
    "remedy": "Read the printer's display, and look up 2202 in the printer's manual. See to what they ask for; often that is paper, the ribbon or a cover. The job that stopped is still in the queue: `tqr7 resume QUEUE` prints it again."})"));
  EXPECT_EQ(run.status, 0);
}

TEST(Explain, LeavesOutOfJsonWhatThereIsNot) {
  const nlohmann::json good = nlohmann::json::parse(run_tool({"explain", "--json", "0"}).out);
  EXPECT_TRUE(good["in_table"]);
  EXPECT_TRUE(good["keyword"].is_null());
  EXPECT_TRUE(good["class"].is_null());
  const ToolRun word = run_tool({"explain", "--json", "paused"});
  EXPECT_FALSE(nlohmann::json::parse(word.out)["in_table"]);
  EXPECT_TRUE(nlohmann::json::parse(word.out)["number"].is_null());
  EXPECT_EQ(word.status, 1);
}

TEST(ExplainAll, ListsEveryRowOfTheTable) {
  const ToolRun run = run_tool({"explain", "--all"});
  EXPECT_THAT(run.out, StartsWith("0000  good, raises nothing\n"
                                  "0001  class 0001  com.corvantiel-error0001\n"));
  EXPECT_THAT(run.out, HasSubstr("\n4491  class 0016  com.corvantiel-error0016_4491\n"));
  EXPECT_THAT(run.out, testing::EndsWith("\n7552  class 0018  com.corvantiel-error0018_7552\n"));
  EXPECT_EQ(std::count(run.out.begin(), run.out.end(), '\n'), 110);
  EXPECT_EQ(run.status, 0);
}

TEST(ExplainAll, WritesTheRowsAsJson) {
  const nlohmann::json rows = nlohmann::json::parse(run_tool({"explain", "--all", "--json"}).out);
  EXPECT_EQ(rows.size(), 110U);
  EXPECT_EQ(rows[33]["keyword"], "com.corvantiel-error0008_2665");
}

TEST(Explain, NeedsSomethingToExplain) {
  const ToolRun run = run_tool({"explain"});
  EXPECT_EQ(run.errors, "tqr7: NUMBER|KEYWORD or --all is required (see --help)\n");
  EXPECT_EQ(run.status, 2);
}

}  // namespace
