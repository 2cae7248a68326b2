// SPDX-License-Identifier: Apache-2.0
//
// Jobs that end before anything reaches the printer but its status request.
#include <gtest/gtest.h>

#include "tests/filter/comparison.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

const std::string kUsage = "ERROR: TQR7Filter job-id user title copies options [file]\n";
/// The reason is what the step before has left: that of a PPD that cannot be opened, or none.
std::string NoModulePath(const std::string& reason = "Success") {
  return "ERROR: Unable to find module path\n: " + reason + "\n[sleep 1]\n" + kNoPages;
}
const std::string kAskedForTwoWays = "side channel 3, room 512, 30.0 s\n";

void ExpectRefusal(const Outcome& outcome, const std::string& log) {
  EXPECT_TRUE(SameLog(outcome.log, kBanner + log));
  EXPECT_TRUE(SameStream(outcome.stream, ""));
  EXPECT_EQ(outcome.status, 1);
}

void ExpectUsage(const std::vector<std::string>& arguments) {
  const Outcome outcome = Print({.input = SmallRaster(), .arguments = arguments});

  ExpectRefusal(outcome, kUsage);
  EXPECT_EQ(outcome.notes, "");
}

TEST(Arguments, AreExplainedWhenThereAreNone) {
  ExpectUsage({});
}

TEST(Arguments, AreExplainedWhenThereAreTooFew) {
  ExpectUsage({"7", "anna", "Beach", "1"});
}

TEST(Arguments, AreExplainedWhenThereAreTooMany) {
  ExpectUsage({"7", "anna", "Beach", "1", "", "/dev/null", "more"});
}

TEST(RasterFile, ThatIsMissingEndsTheJobAfterASecond) {
  const Outcome outcome =
      Print({.arguments = {{"7", "anna", "Beach", "1", "", "/nonexistent/page.ras"}}});

  ExpectRefusal(outcome,
                "ERROR: Unable to open raster file - : No such file or directory\n[sleep 1]\n");
  EXPECT_EQ(outcome.notes, "sleep 1, output flushed\n");
}

TEST(ModulePath, IsMissingWithoutAPpd) {
  ExpectRefusal(Print({.input = SmallRaster(), .ppd = std::nullopt}), NoModulePath());
}

TEST(ModulePath, IsMissingWhenThePpdCannotBeRead) {
  ExpectRefusal(Print({.input = SmallRaster(), .environment = {{"PPD", "/nonexistent.ppd"}}}),
                NoModulePath("No such file or directory"));
}

TEST(ModulePath, IsMissingWhenThePpdIsNoPpd) {
  ExpectRefusal(Print({.input = SmallRaster(), .environment = {{"PPD", "/etc/passwd"}}}),
                NoModulePath());
}

TEST(ModulePath, IsMissingWithoutACupsFilterLine) {
  ExpectRefusal(Print({.input = SmallRaster(), .ppd = Ppd{.filters = {}}}), NoModulePath());
}

TEST(ModulePath, IsMissingWhenEveryCupsFilterLineTakesSomethingElse) {
  ExpectRefusal(Print({.input = SmallRaster(),
                       .ppd = Ppd{.filters = {"image/urf 0 /opt/printer/filter/rastertoprinter",
                                              "application/vnd.cups-pdf 0 /opt/x/pdftox"}}}),
                NoModulePath());
}

TEST(ModulePath, IsMissingWhenTheTypeIsInOtherLetterCases) {
  ExpectRefusal(
      Print({.input = SmallRaster(),
             .ppd = Ppd{.filters = {"application/vnd.CUPS-raster 0 /opt/x/rastertoprinter"}}}),
      NoModulePath());
}

TEST(ModulePath, IsMissingWhenTheFirstMatchingProgramHasNoFolder) {
  ExpectRefusal(
      Print({.input = SmallRaster(),
             .ppd = Ppd{.filters = {"application/vnd.cups-raster 0 -",
                                    "application/vnd.cups-raster 0 /opt/x/rastertoprinter"}}}),
      NoModulePath());
}

struct BidiCase {
  const char* name;
  SideReply reply;
  const char* line;
};

class NoTwoWays : public testing::TestWithParam<BidiCase> {};

TEST_P(NoTwoWays, EndsTheJobBeforeAnythingIsSent) {
  const Outcome outcome = Print({.input = SmallRaster(), .printer = {.bidi = GetParam().reply}});

  ExpectRefusal(outcome,
                "DEBUG: CUPS_SC_CMD_GET_BIDI=" + std::string(GetParam().line) + "\n" + kNoTwoWays);
  EXPECT_EQ(outcome.notes, kAskedForTwoWays);
}

SideReply Says(int status, const std::string& data = "\x01") {
  return {.status = static_cast<cups_sc_status_t>(status), .data = data};
}

const BidiCase kBidiCases[] = {
    {"NotSupported", Says(1, "\0"s), "CUPS_SC_STATUS_OK(1)"},
    {"NumberTwo", Says(1, "\x02"), "CUPS_SC_STATUS_OK(1)"},
    {"MinusOne", Says(1, "\xFF"), "CUPS_SC_STATUS_OK(1)"},
    {"DigitOne", Says(1, "1"), "CUPS_SC_STATUS_OK(1)"},
    {"TwoBytes", Says(1, "\x01\x01"), "CUPS_SC_STATUS_OK(1)"},
    {"TwoBytesEndingInNull", Says(1, "\x01\x00"s), "CUPS_SC_STATUS_OK(1)"},
    {"NoBytes", Says(1, ""), "CUPS_SC_STATUS_OK(1)"},
    {"ManyBytes", Says(1, std::string(512, '\x01')), "CUPS_SC_STATUS_OK(1)"},
    {"StatusNone", Says(0), "CUPS_SC_STATUS_NONE(0)"},
    {"IoError", Says(2), "CUPS_SC_STATUS_IO_ERROR(2)"},
    {"Timeout", Says(3), "CUPS_SC_STATUS_TIMEOUT(3)"},
    {"NoResponse", Says(4), "CUPS_SC_STATUS_NO_RESPONSE(4)"},
    {"BadMessage", Says(5), "CUPS_SC_STATUS_BAD_MESSAGE(5)"},
    {"TooBig", Says(6), "CUPS_SC_STATUS_TOO_BIG(6)"},
    {"NotImplemented", Says(7), "CUPS_SC_STATUS_NOT_IMPLEMENTED(7)"},
    {"StatusWithoutAName", {.frame = "\x03\x08\x00\x01\x01"s}, "UNKNOWN(8)"},
};

INSTANTIATE_TEST_SUITE_P(Reply, NoTwoWays, testing::ValuesIn(kBidiCases),
                         [](const testing::TestParamInfo<BidiCase>& bidi) {
                           return std::string(bidi.param.name);
                         });

TEST(TwoWays, AreWaitedForHalfAMinute) {
  const Outcome outcome = Print({.input = SmallRaster(),
                                 .environment = {{"FILTER_TEST_WAIT_SCALE", "0.005"}},
                                 .printer = {.bidi = {.silent = true}}});

  ExpectRefusal(outcome, "DEBUG: CUPS_SC_CMD_GET_BIDI=CUPS_SC_STATUS_TIMEOUT(3)\n" + kNoTwoWays);
  EXPECT_EQ(outcome.notes, kAskedForTwoWays);
}

void ExpectStopAtTheStart(const Outcome& outcome, const std::string& log) {
  EXPECT_TRUE(SameLog(outcome.log, kBanner + kTwoWays + log + kStop));
  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest()));
  EXPECT_EQ(outcome.status, 1);
}

TEST(PrinterAtTheStart, InAKnownErrorStopsTheJobUnderItsReason) {
  const std::string reply = StatusReply(0x26, 0x65);
  ExpectStopAtTheStart(
      Print({.input = SmallRaster(), .printer = {.status = {Answer(reply)}}}),
      StatusExchange(reply) + KnownError("0x2665", "com.corvantiel-error0008_2665"));
}

TEST(PrinterAtTheStart, InErrorFourStopsTheJobByTheOrdinaryWay) {
  const std::string reply = StatusReply(0x00, 0x04);
  ExpectStopAtTheStart(Print({.input = SmallRaster(), .printer = {.status = {Answer(reply)}}}),
                       StatusExchange(reply) + KnownError("0x0004", "com.corvantiel-error0004"));
}

TEST(PrinterAtTheStart, InAnUnknownErrorStopsTheJobUnderTheCatchAllReason) {
  const std::string reply = StatusReply(0x12, 0x34);
  ExpectStopAtTheStart(Print({.input = SmallRaster(), .printer = {.status = {Answer(reply)}}}),
                       StatusExchange(reply) + UnknownError("0x1234"));
}

TEST(PrinterAtTheStart, ThatIsSilentForASecondCountsAsUnavailable) {
  ExpectStopAtTheStart(
      Print({.input = SmallRaster(), .environment = kRealWaits, .printer = {.status = {kSilence}}}),
      FailedStatusExchange() + UnknownError("UNAVAILABLE"));
}

TEST(PrinterAtTheStart, ThatStopsAfterFourteenBytesCountsAsUnavailable) {
  ExpectStopAtTheStart(Print({.input = SmallRaster(),
                              .environment = kRealWaits,
                              .printer = {.status = {Answer(kGood.substr(0, 14))}}}),
                       FailedStatusExchange() + UnknownError("UNAVAILABLE"));
}

}  // namespace
}  // namespace filter_test
