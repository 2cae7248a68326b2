// SPDX-License-Identifier: Apache-2.0
//
// The parts of a bug report: what they keep, and what they leave out.
#include <gmock/gmock.h>

#include <vector>

#include "tests/unit/temp_file.h"
#include "tools/bundle.h"
#include "tools/header_blocks.h"
#include "tools/job_log.h"
#include "tools/personal_words.h"

using testing::HasSubstr;
using testing::Not;
using tools::HeaderBlocks;
using tools::JobLog;
using tools::PersonalWords;

namespace {

// A line of the job 12 at the level debug.
std::string debug_line(const std::string& text) {
  return "D [21/Nov/2026:10:08:13 +0000] [Job 12] " + text;
}

std::string log_of(const std::string& text, const PersonalWords& words = {}) {
  JobLog log(12, words);
  log.Take(debug_line(text));
  return log.Lines();
}

std::string blocks_of(const std::vector<std::uint8_t>& bytes) {
  HeaderBlocks blocks;
  blocks.Feed(bytes);
  blocks.Finish();
  return blocks.Text();
}

}  // namespace

TEST(PersonalWords, ReplacesATitleAnywhere) {
  PersonalWords words;
  words.AddTitle("party.jpg");
  EXPECT_EQ(words.Without("x=myparty.jpgs"), "x=my(title)s");
}

TEST(PersonalWords, ReplacesATitleAsTheLogEscapesIt) {
  PersonalWords words;
  words.AddTitle("Erna's \"90.\"");
  EXPECT_EQ(words.Without(R"(a Erna's \"90.\" b)"), "a (title) b");
  EXPECT_EQ(words.Without(R"(a Erna\'s \"90.\" b)"), "a (title) b");
  EXPECT_EQ(words.Without(R"(a Erna\'s\ \"90.\" b)"), "a (title) b");
}

TEST(PersonalWords, ReplacesATitleThatIsACommonWordOnlyAsAWord) {
  PersonalWords words;
  words.AddTitle("page");
  EXPECT_EQ(words.Without("Formatting page 1 of \"page\", xpages = 1, PageSize, page_log"),
            "Formatting (title) 1 of \"(title)\", xpages = 1, PageSize, page_log");
}

TEST(PersonalWords, ReplacesATitleOfOneLongWordAnywhere) {
  PersonalWords words;
  words.AddTitle("Geburtstag");
  EXPECT_EQ(words.Without("Ernas_Geburtstagsfeier"), "Ernas_(title)sfeier");
}

TEST(PersonalWords, TakesLettersBeyondAsciiForPartsOfWords) {
  PersonalWords words;
  words.AddTitle("Über");
  EXPECT_EQ(words.Without("Über, Überzug, Größer, gegenÜber"),
            "(title), Überzug, Größer, gegenÜber");
}

TEST(PersonalWords, LeavesTitlesThatStandEverywhereByChance) {
  PersonalWords words;
  words.AddTitle("abc");
  EXPECT_EQ(words.Without("abc"), "abc");
}

TEST(PersonalWords, TakesATitleAsItIsWrittenAndNotAsAPattern) {
  PersonalWords words;
  words.AddTitle("a.*[(+?|^$%s");
  EXPECT_EQ(words.Without("a.*[(+?|^$%s, axx"), "(title), axx");
}

TEST(PersonalWords, ReplacesATitleThatItsReplacementHolds) {
  PersonalWords words;
  words.AddTitle("title");
  EXPECT_EQ(words.Without("a title, a title"), "a (title), a (title)");
}

TEST(PersonalWords, ReplacesANameOnlyAsAWord) {
  PersonalWords words;
  words.AddName("lars", "(user)");
  EXPECT_EQ(words.Without("lars: /home/lars/x, dollars, larsen"),
            "(user): /home/(user)/x, dollars, larsen");
}

TEST(PersonalWords, ReplacesTheLongerWordFirst) {
  PersonalWords words;
  words.AddName("erna", "(user)");
  words.AddTitle("erna und bea");
  EXPECT_EQ(words.Without("erna und bea, erna"), "(title), (user)");
}

TEST(PersonalWords, ReplacesNumericAddresses) {
  const PersonalWords words;
  EXPECT_EQ(words.Without("from 192.168.1.20:9100, 10.0.0.1... end"),
            "from (address):9100, (address)... end");
}

TEST(PersonalWords, LeavesVersionsAndNumbersAlone) {
  const PersonalWords words;
  EXPECT_EQ(words.Without("CUPS 2.4.2, 1.2.3.4.5, 1234.1.1.1, 6.17 x 4.11"),
            "CUPS 2.4.2, 1.2.3.4.5, 1234.1.1.1, 6.17 x 4.11");
}

TEST(JobLog, KeepsTheLinesOfItsJobOnly) {
  const PersonalWords words;
  JobLog log(12, words);
  log.Take("D [21/Nov/2026:10:08:13 +0000] [Job 12] [CMD] size=8");
  log.Take("D [21/Nov/2026:10:08:13 +0000] [Job 1] [CMD] size=8");
  log.Take("D [21/Nov/2026:10:08:13 +0000] [Job 123] [CMD] size=8");
  log.Take("D [21/Nov/2026:10:08:13 +0000] says [Job 12] too");
  log.Take("no log line");
  log.Take("");
  EXPECT_EQ(log.Lines(), "D [21/Nov/2026:10:08:13 +0000] [Job 12] [CMD] size=8\n");
}

TEST(JobLog, LeavesUserTitleAndOptionsOut) {
  EXPECT_THAT(log_of(R"(argv[2]="erna")"), HasSubstr("[Job 12] argv[2]=(left out)\n"));
  EXPECT_THAT(log_of(R"(argv[3]="party.jpg")"), HasSubstr("[Job 12] argv[3]=(left out)\n"));
  EXPECT_THAT(log_of(R"(argv[5]="x=y title")"), HasSubstr("[Job 12] argv[5]=(left out)\n"));
  EXPECT_THAT(log_of(R"(Queued on "photo" by "erna".)"),
              HasSubstr("[Job 12] Queued on \"photo\" by (user).\n"));
  EXPECT_THAT(log_of("Connecting to fe80::1:9100"),
              HasSubstr("[Job 12] Connecting to (address):9100\n"));
}

TEST(JobLog, KeepsOfTheSurroundingsWhatIsNoMatterOfThePerson) {
  EXPECT_EQ(log_of(R"(envp[12]="PRINTER_LOCATION=Erna's cellar")"), "");
  EXPECT_EQ(log_of(R"(envp[13]="DEVICE_URI=socket://erna.example")"), "");
  EXPECT_THAT(log_of(R"(envp[14]="CONTENT_TYPE=image/png")"), HasSubstr("CONTENT_TYPE=image/png"));
}

TEST(JobLog, ReplacesTheJobsOwnWordsInAllOtherLines) {
  PersonalWords words;
  words.AddTitle("party.jpg");
  EXPECT_THAT(log_of("rendering party.jpg", words), HasSubstr("[Job 12] rendering (title)\n"));
}

TEST(JobLog, KeepsTheDumpsOfExchangesWhateverTheTitleIs) {
  PersonalWords words;
  words.AddTitle("0000");
  words.AddTitle("[CMD]");
  JobLog log(12, words);
  log.Take(debug_line("[CMD] size=4"));
  log.Take(debug_line("[CMD] 0000: 1b 47 44 30"));
  log.Take(debug_line("[CMD] 0000: is what [CMD] prints"));
  EXPECT_EQ(log.Exchanges(),
            "(title) size=4\n[CMD] 0000: 1b 47 44 30\n(title) (title): is what (title) prints\n");
}

TEST(JobLog, KeepsNoMoreOfAJobThanABugReportCanCarry) {
  const PersonalWords words;
  JobLog log(12, words);
  const std::string line = debug_line(std::string(2000, 'x'));
  for (int i = 0; i < 9000; ++i) {
    log.Take(line);
  }
  EXPECT_GT(log.Lines().size(), 16U << 20U);
  EXPECT_LT(log.Lines().size(), (16U << 20U) + 3000);
}

TEST(JobLog, LetsNoControlCharacterThrough) {
  EXPECT_THAT(log_of("a\033[2Jb"), HasSubstr("[Job 12] a?[2Jb\n"));
}

TEST(JobLog, TakesTheExchangesOutOfTheLines) {
  const PersonalWords words;
  JobLog log(12, words);
  log.Take(debug_line("[CMD] 0000: 1b 47 44 30"));
  log.Take(debug_line("Loading print file."));
  log.Take(debug_line("CUPS_SC_CMD_DRAIN_OUTPUT=CUPS_SC_STATUS_OK(1)"));
  log.Take(debug_line("[STS] 0000: 00 00"));
  log.Take(debug_line("=======> printer_state=GOOD"));
  EXPECT_EQ(log.Exchanges(),
            "[CMD] 0000: 1b 47 44 30\nCUPS_SC_CMD_DRAIN_OUTPUT=CUPS_SC_STATUS_OK(1)\n"
            "[STS] 0000: 00 00\n=======> printer_state=GOOD\n");
}

TEST(JobLog, TellsWhetherThereAreDebugLines) {
  const PersonalWords words;
  JobLog log(12, words);
  log.Take("I [21/Nov/2026:10:08:13 +0000] [Job 12] Queued");
  EXPECT_FALSE(log.HasDebugLines());
  log.Take(debug_line("x"));
  EXPECT_TRUE(log.HasDebugLines());
}

TEST(HeaderBlocks, ListsCommandsWithoutTheirLinesOfZeros) {
  std::vector<std::uint8_t> stream = {0x1B, 0x47, 0x44, 0x30, 0x00, 0x00, 0x01, 0x16};
  EXPECT_EQ(blocks_of(stream),
            "offset 0: status request, 8 bytes\n"
            "  0000: 1b 47 44 30 00 00 01 16\n"
            "stream of 8 bytes, 0 errors\n");
}

TEST(HeaderBlocks, ListsNoMoreThanABugReportCanCarry) {
  std::vector<std::uint8_t> stream;
  for (int i = 0; i < 140000; ++i) {
    stream.insert(stream.end(), {0x1B, 0x47, 0x44, 0x30, 0x00, 0x00, 0x01, 0x16});
  }
  const std::string text = blocks_of(stream);
  EXPECT_GT(text.size(), 8U << 20U);
  EXPECT_LT(text.size(), (8U << 20U) + 1000);
  EXPECT_THAT(text, testing::EndsWith("stream of 1120000 bytes, 0 errors\n"));
}

TEST(HeaderBlocks, ShowsNothingBehindTheFirstError) {
  std::vector<std::uint8_t> stream(20, 0xAB);
  const std::vector<std::uint8_t> request = {0x1B, 0x47, 0x44, 0x30, 0x00, 0x00, 0x01, 0x16};
  stream.insert(stream.end(), request.begin(), request.end());
  const std::string text = blocks_of(stream);
  EXPECT_THAT(text, HasSubstr("what comes behind may be pixels, and is left out\n"));
  EXPECT_THAT(text, Not(HasSubstr("ab")));
  EXPECT_THAT(text, Not(HasSubstr("1b 47")));
}

TEST(FileName, HoldsNothingThatAFolderOrAShellTakesNoticeOf) {
  EXPECT_EQ(tools::file_name_of("photo-1.x"), "photo-1.x");
  EXPECT_EQ(tools::file_name_of("../a b/ö"), "_._a_b___");
  EXPECT_EQ(tools::file_name_of(""), "_");
  EXPECT_EQ(tools::file_name_of(std::string(100, 'a')), std::string(64, 'a'));
}

TEST(Bundle, LeavesADeviceAloneThatTakesNothing) {
  const TempFolder folder;
  std::filesystem::create_symlink("/dev/full", folder / "full");
  EXPECT_NE(tools::write_bundle(folder / "full", "a", {{"b", "c"}}), "");
  EXPECT_TRUE(std::filesystem::is_symlink(folder / "full"));
}

TEST(Bundle, SaysWhyItCannotBeWritten) {
  EXPECT_THAT(tools::write_bundle("/nowhere/at/all.tar.gz", "a", {{"b", "c"}}),
              HasSubstr("/nowhere/at/all.tar.gz"));
}
