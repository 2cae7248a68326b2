// SPDX-License-Identifier: Apache-2.0
//
// The command filter as a process: what it sends, what it logs and how it ends for each command.
#include <gtest/gtest.h>

#include "tests/filter/command_job.h"
#include "tests/filter/comparison.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/seeded_random.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

const std::string kBadWords = "INFO: The printer is not good; the queue's reasons say why.\n";
const std::string kNoAnswers =
    "ERROR: The printer's answers do not come back over this connection.\n";

TEST(CommandFilter, ExplainsItsArgumentsWhenThereAreTooFewOrTooMany) {
  const std::string usage = "ERROR: commandtoprinter job-id user title copies options [file]\n";
  for (const std::vector<std::string>& arguments : {std::vector<std::string>{},
                                                    {"7", "anna", "Beach", "1"},
                                                    {"7", "a", "b", "1", "", "/", "x"}}) {
    Job job = CommandJob("ReportStatus\n");
    job.arguments = arguments;
    ExpectOutcome(Print(job), 1, usage, "");
  }
}

TEST(CommandFilter, FailsForAFileThatIsMissing) {
  Job job = CommandJob("");
  job.arguments = {"7", "anna", "Beach", "1", "", "/nonexistent/commands"};
  ExpectOutcome(Print(job), 1,
                "ERROR: Unable to open the file of printer commands: No such file or directory\n",
                "");
}

TEST(CommandFilter, FailsForAFileOfSomethingElse) {
  Job job = CommandJob("");
  job.input = "%PDF-1.4\nReportStatus\n";
  ExpectOutcome(Print(job), 1, "ERROR: This is no file of printer commands.\n", "");
}

TEST(CommandFilter, FailsForAnEmptyFile) {
  Job job = CommandJob("");
  job.input = "";
  ExpectOutcome(Print(job), 1, "ERROR: This is no file of printer commands.\n", "");
}

TEST(CommandFilter, FailsWithoutItsInput) {
  Job job = CommandJob("ReportStatus\n");
  job.closed_descriptors = {0};
  ExpectOutcome(Print(job), 1, "ERROR: This is no file of printer commands.\n", "");
}

TEST(CommandFilter, ReadsItsFileArgument) {
  const TemporaryFolder folder;
  Job job = CommandJob("");
  job.input = "";
  job.arguments = {"7", "anna", "Beach", "1", "", folder.Write("job", kMark + "Clean all\n")};
  ExpectOutcome(Print(job), 0, Skipped("Clean"), "");
}

TEST(CommandFilter, DoesNothingForAFileWithoutCommands) {
  const Outcome outcome = Print(CommandJob("# nothing to do\n\n"));

  ExpectOutcome(outcome, 0, "", "");
  EXPECT_EQ(outcome.notes, "");
}

TEST(CommandFilter, NamesAndSkipsWhatThePrinterDoesNotHave) {
  const Outcome outcome = Print(CommandJob("Clean all\nAutoConfigure\nReportLevels"));

  ExpectOutcome(outcome, 0, Skipped("Clean") + Skipped("AutoConfigure") + Skipped("ReportLevels"),
                "");
  EXPECT_EQ(outcome.notes, "");
}

TEST(CommandFilter, GoesOnBehindWhatItSkips) {
  ExpectOutcome(Print(CommandJob("Clean all\nReportStatus\n")), 0,
                Skipped("Clean") + kTwoWays + kGoodCheck + kGoodWords, StatusRequest());
}

TEST(CommandFilter, NamesSixteenUnknownCommandsAndNoMore) {
  std::string commands;
  std::string log;
  for (int i = 1; i <= 40; ++i) {
    commands += "Spin" + std::to_string(i) + "\n";
    log += i <= 16 ? Skipped("Spin" + std::to_string(i)) : "";
  }
  ExpectOutcome(Print(CommandJob(commands)), 0,
                log + "WARNING: More unknown commands are skipped.\n", "");
}

TEST(CommandFilter, NamesUnknownCommandsInPrintableLettersAndCutShort) {
  ExpectOutcome(Print(CommandJob("a\x1B\0\xFFz\n"s + std::string(5000, 'l') + "\n")), 0,
                Skipped("a???z") + Skipped(std::string(32, 'l')), "");
}

TEST(CommandFilter, TakesAnyBytesWithoutHarm) {
  std::mt19937 random = SeededRandom(31);
  for (int round = 0; round < 5; ++round) {
    std::string bytes(60'000, ' ');
    for (char& byte : bytes) {
      byte = static_cast<char>(random());
    }
    const Outcome outcome = Print(CommandJob(bytes));
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.stream, "");
  }
}

TEST(ReportStatus, AsksAGoodPrinterAndWithdrawsAllReasons) {
  const Outcome outcome = Print(CommandJob("ReportStatus\n"));

  ExpectOutcome(outcome, 0, kTwoWays + kGoodCheck + kGoodWords, StatusRequest());
  EXPECT_EQ(outcome.notes,
            "side channel 3, room 512, 30.0 s\n"
            "side channel 2, room 512, 5.0 s\n"
            "back channel, room 512, 1.0 s\n");
}

TEST(ReportStatus, RaisesTheReasonOfAPrinterInErrorAndSucceeds) {
  const std::string reply = StatusReply(0x26, 0x65);
  Job job = CommandJob("ReportStatus\n");
  job.printer = {.status = {Answer(reply)}};

  ExpectOutcome(Print(job), 0,
                kTwoWays + StatusExchange(reply) +
                    KnownError("0x2665", "com.corvantiel-error0008_2665") + kStop + kBadWords,
                StatusRequest());
}

TEST(ReportStatus, RaisesTheReasonOfAPrinterThatDoesNotAnswerAndSucceeds) {
  Job job = CommandJob("ReportStatus\n");
  job.environment = kRealWaits;
  job.printer = {.status = {kSilence}};

  ExpectOutcome(Print(job), 0,
                kTwoWays + FailedStatusExchange() + UnknownError("UNAVAILABLE") + kStop + kBadWords,
                StatusRequest());
}

TEST(ReportStatus, EndsWhenTheBackChannelIsClosed) {
  Job job = CommandJob("ReportStatus\n");
  job.closed_descriptors = {3};

  ExpectOutcome(Print(job), 0,
                kTwoWays + FailedStatusExchange() + UnknownError("UNAVAILABLE") + kStop + kBadWords,
                StatusRequest());
}

TEST(ReportStatus, FailsWithoutAWayBackBeforeAnythingIsSent) {
  Job job = CommandJob("ReportStatus\nClean all\n");
  job.printer = {.bidi = {.data = "\0"s}};

  ExpectOutcome(Print(job), 1, kTwoWays + kNoTwoWays + kNoAnswers, "");
}

TEST(ReportStatus, NeedsNoPpd) {
  Job job = CommandJob("ReportStatus\n");
  job.ppd = std::nullopt;

  ExpectOutcome(Print(job), 0, kTwoWays + kGoodCheck + kGoodWords, StatusRequest());
}

TEST(ReportStatus, MayBeWrittenInAnyLetters) {
  ExpectOutcome(Print(CommandJob("reportSTATUS")), 0, kTwoWays + kGoodCheck + kGoodWords,
                StatusRequest());
}

TEST(ReportStatus, AsksOnceAJob) {
  ExpectOutcome(Print(CommandJob("ReportStatus\nReportStatus\nREPORTSTATUS\n")), 0,
                kTwoWays + kGoodCheck + kGoodWords +
                    "DEBUG: ReportStatus was carried out before\n"
                    "DEBUG: ReportStatus was carried out before\n",
                StatusRequest());
}

}  // namespace
}  // namespace filter_test
