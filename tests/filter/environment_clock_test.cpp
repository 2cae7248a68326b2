// SPDX-License-Identifier: Apache-2.0
//
// Clocks that are wrong and time zones that are none: the sheet is printed, with the date that the
// system makes of them in its image header.
#include <gtest/gtest.h>

#include "tests/filter/comparison.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

/// The image header's date: two bytes of the year, then month, day, hour, minute, second.
std::string DateOf(const Outcome& outcome) {
  constexpr std::size_t kImageHeader = 8 + 8 + 512 + 512;
  return outcome.stream.size() < kImageHeader + 512 ? ""
                                                    : outcome.stream.substr(kImageHeader + 32, 7);
}

void ExpectDate(const Outcome& outcome, const std::string& date) {
  EXPECT_EQ(testing::PrintToString(DateOf(outcome)), testing::PrintToString(date));
  EXPECT_TRUE(SameLog(outcome.log, SmallLog()));
  EXPECT_EQ(outcome.status, 0);
}

void ExpectDate(const std::map<std::string, std::string>& environment, const std::string& date) {
  ExpectDate(Print({.input = SmallRaster(), .environment = environment}), date);
}

/// For a date that no printer's manual knows.
void ExpectOddDate(const std::map<std::string, std::string>& environment, const std::string& date) {
  ExpectDate(
      Print({.input = SmallRaster(), .environment = environment, .stream_end = StreamEnd::Undated}),
      date);
}

const std::string kMarch4th2026 = "1772600767";  // 05:06:07 UTC

TEST(Clock, BeforeNineteenSeventyGivesItsDate) {
  ExpectDate({{"FILTER_TEST_TIME", "-1"}}, "\x07\xB1\x0C\x1F\x17\x3B\x3B"s);
}

TEST(Clock, OfNineteenHundredAndOneGivesItsDate) {
  ExpectDate({{"FILTER_TEST_TIME", "-2147483648"}}, "\x07\x6D\x0C\x0D\x14\x2D\x34"s);
}

TEST(Clock, AfterTwentyThirtyEightGivesItsDate) {
  ExpectDate({{"FILTER_TEST_TIME", "2147483648"}}, "\x07\xF6\x01\x13\x03\x0E\x08"s);
}

TEST(Clock, OfTwentyOneHundredGivesItsDate) {
  ExpectDate({{"FILTER_TEST_TIME", "4107542399"}}, "\x08\x34\x02\x1C\x17\x3B\x3B"s);
}

TEST(Clock, OfAYearBeyondTwoBytesGivesItsLowBytes) {
  // 31 December 99999, 23:59:59: 0x1869F.
  ExpectOddDate({{"FILTER_TEST_TIME", "3093527980799"}}, "\x86\x9F\x0C\x1F\x17\x3B\x3B"s);
}

TEST(Clock, WithoutADateLeavesItsFieldsZero) {
  ExpectOddDate({{"FILTER_TEST_TIME", "9223372036854775807"}}, std::string(7, '\0'));
}

TEST(Clock, OfALeapSecondGivesTheLastOrdinaryOne) {
  ExpectDate({{"FILTER_TEST_CLOCK", "2016 12 31 23 59 60"}}, "\x07\xE0\x0C\x1F\x17\x3B\x3B"s);
}

TEST(Clock, OfTwoLeapSecondsGivesTheLastOrdinaryOne) {
  ExpectDate({{"FILTER_TEST_CLOCK", "2016 12 31 23 59 61"}}, "\x07\xE0\x0C\x1F\x17\x3B\x3B"s);
}

TEST(TimeZone, ThatCountsLeapSecondsShowsNone) {
  // 23:59:60 on 31 December 2016, where the 26 leap seconds before it count.
  ExpectDate({{"TZ", "right/UTC"}, {"FILTER_TEST_TIME", "1483228826"}},
             "\x07\xE0\x0C\x1F\x17\x3B\x3B"s);
}

TEST(TimeZone, OfTheFarEastGivesItsOwnDate) {
  ExpectDate({{"TZ", "Pacific/Kiritimati"}, {"FILTER_TEST_TIME", kMarch4th2026}},
             "\x07\xEA\x03\x04\x13\x06\x07"s);
}

TEST(TimeZone, AsFarAsItCanBeGivesItsOwnDate) {
  ExpectDate({{"TZ", "ABC-24:59:59"}, {"FILTER_TEST_TIME", kMarch4th2026}},
             "\x07\xEA\x03\x05\x06\x06\x06"s);
}

TEST(TimeZone, ThatIsEmptyIsUniversalTime) {
  ExpectDate({{"TZ", ""}, {"FILTER_TEST_TIME", kMarch4th2026}}, "\x07\xEA\x03\x04\x05\x06\x07"s);
}

TEST(TimeZone, OfNoMeaningIsUniversalTime) {
  ExpectDate({{"TZ", "\xFF\x01/..//%s%n"}, {"FILTER_TEST_TIME", kMarch4th2026}},
             "\x07\xEA\x03\x04\x05\x06\x07"s);
}

TEST(TimeZone, OfALongNameIsUniversalTime) {
  ExpectDate({{"TZ", std::string(100000, 'x')}, {"FILTER_TEST_TIME", kMarch4th2026}},
             "\x07\xEA\x03\x04\x05\x06\x07"s);
}

TEST(TimeZone, FromAFileThatNeverEndsIsUniversalTime) {
  ExpectDate({{"TZ", ":/dev/zero"}, {"FILTER_TEST_TIME", kMarch4th2026}},
             "\x07\xEA\x03\x04\x05\x06\x07"s);
}

}  // namespace
}  // namespace filter_test
