// SPDX-License-Identifier: Apache-2.0
//
// The test page that the command filter prints: the stream, the log and the job's end.
#include <gtest/gtest.h>

#include "decoder/stream_parser.h"
#include "tests/filter/command_job.h"
#include "tests/filter/comparison.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

const std::string kSmallestSheet = "PageSize=RQ_5x15";
const Settings kSmallest{.paper = &k5x15};
constexpr std::size_t kImageStart = 8 + 8 + 3 * 512;  // two status requests, three blocks

Job SelfTestJob(const std::string& options = kSmallestSheet) {
  Job job = CommandJob("PrintSelfTestPage\n");
  job.options = options;
  return job;
}

std::uint64_t ErrorsIn(const std::string& stream) {
  decoder::CommandListener listener;
  decoder::StreamParser parser(listener);
  parser.Feed({reinterpret_cast<const std::uint8_t*>(stream.data()), stream.size()});
  parser.EndOfStream();
  return parser.ErrorCount();
}

/// The stand-in's three samples at a dot, as the bytes of the picture that they were made of.
std::string DotOfImage(const std::string& stream, int width, int x, int y) {
  const std::size_t at =
      kImageStart + 6 * (static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                         static_cast<std::size_t>(x));
  std::string dot;
  for (std::size_t channel = 0; channel < 3; ++channel) {
    const unsigned low = static_cast<unsigned char>(stream.at(at + 2 * channel));
    const unsigned high = static_cast<unsigned char>(stream.at(at + 2 * channel + 1));
    char text[4];
    std::snprintf(text, sizeof text, "%02X", (high * 256 + low) / 64);
    dot += text;
  }
  return dot;
}

/// The pixels of the test page under one more variable of the environment.
std::string PictureWith(const std::pair<std::string, std::string>& variable) {
  Job job = SelfTestJob();
  job.environment = {variable};
  return Print(job).stream.substr(kImageStart);
}

TEST(SelfTest, IsASheetLikeAPhotos) {
  const Outcome outcome = Print(SelfTestJob());

  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(SameLog(outcome.log, kTwoWays + kGoodCheck + PageRead(1, "0") +
                                       Conversion(33, 33, 44, 44) +
                                       SheetLog(kSmallest, 1, 1852, 631)));
  const std::string before = StatusRequest() + StatusRequest() + ReadinessQuery(kSmallest) +
                             JobHeader(kSmallest) + ImageHeader(kSmallest);
  ASSERT_EQ(outcome.stream.size(), before.size() + std::size_t{1852} * 631 * 6 + 6);
  EXPECT_TRUE(SameStream(outcome.stream.substr(0, before.size()), before));
  EXPECT_TRUE(SameStream(outcome.stream.substr(outcome.stream.size() - 6), PrintOut()));
  EXPECT_EQ(ErrorsIn(outcome.stream), 0U);
}

TEST(SelfTest, HasItsPatchesInTheImage) {
  const Outcome outcome = Print(SelfTestJob());

  EXPECT_EQ(DotOfImage(outcome.stream, 1852, 0, 0), "FFFFFF");
  EXPECT_EQ(DotOfImage(outcome.stream, 1852, 110, 110), "FF0000");
  EXPECT_EQ(DotOfImage(outcome.stream, 1852, 820, 110), "8000FF");
  EXPECT_EQ(DotOfImage(outcome.stream, 1852, 110, 208), "F6D7C3");
  EXPECT_EQ(DotOfImage(outcome.stream, 1852, 211, 310), "242424");
}

TEST(SelfTest, NamesItsQueue) {
  EXPECT_TRUE(SameStream(PictureWith({"PRINTER", "photo"}), PictureWith({"PRINTER", "photo"})));
  EXPECT_FALSE(SameStream(PictureWith({"PRINTER", "photo"}), PictureWith({"PRINTER", "paper"})));
}

TEST(SelfTest, ShowsItsDateToTheMinute) {
  const std::string picture = PictureWith({"FILTER_TEST_CLOCK", "2026 3 4 5 6 7"});
  EXPECT_TRUE(SameStream(picture, PictureWith({"FILTER_TEST_CLOCK", "2026 3 4 5 6 8"})));
  EXPECT_FALSE(SameStream(picture, PictureWith({"FILTER_TEST_CLOCK", "2026 3 4 5 7 7"})));
  EXPECT_FALSE(SameStream(picture, PictureWith({"FILTER_TEST_CLOCK", "2026 3 5 5 6 7"})));
}

TEST(SelfTest, IsPrintedWithTheJobsOptions) {
  const Outcome outcome =
      Print(SelfTestJob("PageSize=RQ_9x13_WB RQPrintFinish=Matte RQPrintMode=Fast RQWaitTime=30"));

  const Settings settings{.paper = &k9x13WhiteBorder, .wait = 30, .finish = kMatte, .mode = 5};
  EXPECT_EQ(outcome.status, 0);
  const std::string before = StatusRequest() + StatusRequest() + ReadinessQuery(settings) +
                             JobHeader(settings) + ImageHeader(settings);
  const std::string behind = MatteData(k9x13WhiteBorder) + PrintOut(30);
  EXPECT_TRUE(SameStream(outcome.stream.substr(0, before.size()), before));
  ASSERT_EQ(outcome.stream.size(), before.size() + std::size_t{1382} * 934 * 6 + behind.size());
  EXPECT_TRUE(SameStream(outcome.stream.substr(outcome.stream.size() - behind.size()), behind));
  EXPECT_EQ(ErrorsIn(outcome.stream), 0U);
}

TEST(SelfTest, IsWholeOnBothHalvesOfAJoinedSheet) {
  const Settings settings{.paper = &kJoined, .rgb_rate = 66, .op_rate = 88};

  const Outcome outcome = Print(SelfTestJob("PageSize=RQ_5x15x2_2"));

  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(SameLog(outcome.log, kTwoWays + kGoodCheck + PageRead(1, "0") +
                                       Conversion(33, 33, 44, 88) + PageRead(2, "0") +
                                       Conversion(33, 66, 44, 88) +
                                       SheetLog(settings, 2, 1852, 1232)));
  EXPECT_EQ(DotOfImage(outcome.stream, 1852, 110, 110), "FF0000");
  EXPECT_EQ(DotOfImage(outcome.stream, 1852, 110, 616 + 110), "FF0000");
  EXPECT_EQ(DotOfImage(outcome.stream, 1852, 300, 615), "0060E0");
  EXPECT_EQ(DotOfImage(outcome.stream, 1852, 300, 616), "FF8000");
  EXPECT_EQ(ErrorsIn(outcome.stream), 0U);
}

TEST(SelfTest, IsNotPrintedByAPrinterInError) {
  const std::string reply = StatusReply(0x26, 0x65);
  Job job = SelfTestJob();
  job.printer = {.status = {Answer(reply)}};

  ExpectOutcome(Print(job), 1,
                kTwoWays + StatusExchange(reply) +
                    KnownError("0x2665", "com.corvantiel-error0008_2665") + kStop,
                StatusRequest());
}

TEST(SelfTest, IsNotPrintedByAPrinterThatGetsIntoError) {
  const std::string reply = StatusReply(0x26, 0x65);
  Job job = SelfTestJob();
  job.printer = {.status = {Answer(kGood), Answer(reply)}};

  ExpectOutcome(Print(job), 1,
                kTwoWays + kGoodCheck + PageRead(1, "0") + Conversion(33, 33, 44, 44) +
                    StatusExchange(reply) + KnownError("0x2665", "com.corvantiel-error0008_2665") +
                    kStop,
                StatusRequest() + StatusRequest());
}

TEST(SelfTest, IsNotPrintedByAPrinterThatRefusesTheSheet) {
  const std::string refusal = EnableReply(0x02, 0x00);
  Job job = SelfTestJob();
  job.printer = {.readiness = {Answer(refusal)}};

  ExpectOutcome(Print(job), 1,
                kTwoWays + kGoodCheck + PageRead(1, "0") + Conversion(33, 33, 44, 44) + kGoodCheck +
                    kExamine + ReadinessExchange(kSmallest, refusal) +
                    "DEBUG: CMD_GET_ENABLE[02 + 00]\n"
                    "STATE: +paused\n"
                    "ERROR: driver-setting-unmuch 0x0200\n"
                    "DEBUG: ERROR CMD_GET_ENABLE[02 + 00]\n"
                    "[sleep 1]\n",
                StatusRequest() + StatusRequest() + ReadinessQuery(kSmallest));
}

TEST(SelfTest, FailsWhenThePageCannotBeConverted) {
  Job job = SelfTestJob();
  job.environment = {{"FILTER_TEST_RETURNS", "-3"}};

  ExpectOutcome(Print(job), 1,
                kTwoWays + kGoodCheck + PageRead(1, "0") + "DEBUG: Params=" + kDefaultParams +
                    "\nDEBUG: MVChangeImage()=-3\nERROR: Unable to convert image (-3)\n",
                StatusRequest());
}

TEST(SelfTest, FailsWithoutTheFolderOfTheConversion) {
  Job job = SelfTestJob();
  job.ppd = Ppd{.filters = {"application/vnd.cups-command 0 /opt/printer/commandtoprinter"}};

  ExpectOutcome(Print(job), 1, kTwoWays + "ERROR: Unable to find module path\n", "");
}

TEST(SelfTest, FindsItsFolderInTheRasterFiltersLine) {
  Job job = SelfTestJob();
  job.ppd = Ppd{.filters = {"application/vnd.cups-command 0 /elsewhere/commandtoprinter",
                            "application/vnd.cups-raster 0 /opt/printer/rastertoprinter"}};

  const Outcome outcome = Print(job);

  EXPECT_EQ(outcome.status, 0);
  EXPECT_NE(outcome.calls.find(" /opt/printer/ "), std::string::npos) << outcome.calls;
}

TEST(SelfTest, FailsWithoutMemoryForItsPage) {
  Job job = SelfTestJob();
  job.environment = {{"FILTER_TEST_NO_MEMORY", "3505836 1"}};  // 1852 × 631 dots of 3 bytes

  ExpectOutcome(Print(job), 1,
                kTwoWays + kGoodCheck + "PAGE: 1 1\nERROR: Unable to allocate memory for page 1\n",
                StatusRequest());
}

TEST(SelfTest, IsPrintedOnceAJob) {
  Job job = SelfTestJob();
  job.input += "PrintSelfTestPage\n";

  const Outcome outcome = Print(job);

  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.stream.size(), kImageStart + std::size_t{1852} * 631 * 6 + 6);
  EXPECT_TRUE(outcome.log.ends_with("DEBUG: PrintSelfTestPage was carried out before\n"));
}

TEST(SelfTest, SharesTheQuestionsThatBeginAJobWithTheReportBeforeIt) {
  Job job = SelfTestJob();
  job.input = kMark + "ReportStatus\nPrintSelfTestPage\n";

  const Outcome outcome = Print(job);

  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(SameLog(outcome.log, kTwoWays + kGoodCheck + kGoodWords + PageRead(1, "0") +
                                       Conversion(33, 33, 44, 44) +
                                       SheetLog(kSmallest, 1, 1852, 631)));
  EXPECT_EQ(ErrorsIn(outcome.stream), 0U);
}

TEST(SelfTest, ThatFailsEndsTheJob) {
  Job job = SelfTestJob();
  job.input += "ReportStatus\nClean all\n";
  job.printer = {.status = {Answer(StatusReply(0x26, 0x65))}};

  const Outcome outcome = Print(job);

  EXPECT_EQ(outcome.status, 1);
  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest()));
  EXPECT_TRUE(outcome.log.ends_with(kStop));
}

TEST(SelfTest, ThatIsCancelledInItsConversionSendsNothingMore) {
  Job job = SelfTestJob();
  job.environment = {{"FILTER_TEST_TERM_CALL", "1"}};

  ExpectOutcome(Print(job), 0,
                kTwoWays + kGoodCheck + PageRead(1, "0") + "DEBUG: Params=" + kDefaultParams + "\n",
                StatusRequest());
}

TEST(SelfTest, LeavesCommandsBehindItToSigterm) {
  Job job = SelfTestJob();
  job.more_input = true;
  FilterProcess filter(job);
  filter.WaitForLog("[sleep 5]\n");
  filter.Feed("Clean all\n");
  filter.WaitForLog(Skipped("Clean"));
  filter.Terminate();

  const Outcome outcome = filter.Finish();

  EXPECT_EQ(outcome.signal, SIGTERM);
  EXPECT_TRUE(outcome.stream.ends_with(PrintOut()));
}

TEST(SelfTest, ThatIsCancelledInItsPauseSendsNoPrintOut) {
  Job job = SelfTestJob();
  job.environment = {{"FILTER_TEST_TERM_SLEEP", "1"}};

  const Outcome outcome = Print(job);

  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.stream.size(), kImageStart + std::size_t{1852} * 631 * 6);
}

}  // namespace
}  // namespace filter_test
