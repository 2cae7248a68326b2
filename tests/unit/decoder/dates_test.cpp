// SPDX-License-Identifier: Apache-2.0
//
// The image header's date against the calendar.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/decoder/event_recording.h"
#include "tests/unit/stream_bytes.h"

namespace {

using stream::Bytes;
using stream::Finish;
using testing::ElementsAre;
using testing::IsEmpty;

// Year, month and day lie at 1072 to 1075.
Bytes with_date(std::uint16_t year, std::uint8_t month, std::uint8_t day) {
  Bytes bytes = stream::first_headers(stream::paper_10x15(), Finish::Gloss);
  bytes.at(1072) = static_cast<std::uint8_t>(year >> 8U);
  bytes.at(1073) = static_cast<std::uint8_t>(year & 0xFFU);
  bytes.at(1074) = month;
  bytes.at(1075) = day;
  return bytes;
}

TEST(Dates, ThatTheCalendarDoesNotHaveAreNamed) {
  EXPECT_THAT(errors_open(with_date(2026, 4, 31)),
              ElementsAre("offset 1075: image header, day: came 31, allowed 1 to 30 in month 4 of "
                          "2026"));
  EXPECT_THAT(errors_open(with_date(2026, 2, 30)),
              ElementsAre("offset 1075: image header, day: came 30, allowed 1 to 28 in month 2 of "
                          "2026"));
}

TEST(Dates, KnowTheLeapYears) {
  EXPECT_THAT(errors_open(with_date(2028, 2, 29)), IsEmpty());
  EXPECT_THAT(errors_open(with_date(2000, 2, 29)), IsEmpty());
  EXPECT_THAT(errors_open(with_date(2026, 2, 29)),
              ElementsAre("offset 1075: image header, day: came 29, allowed 1 to 28 in month 2 of "
                          "2026"));
  EXPECT_THAT(errors_open(with_date(2100, 2, 29)),
              ElementsAre("offset 1075: image header, day: came 29, allowed 1 to 28 in month 2 of "
                          "2100"));
}

TEST(Dates, GiveOneErrorForAMonthThatIsNone) {
  EXPECT_THAT(errors_open(with_date(2026, 13, 31)),
              ElementsAre("offset 1074: image header, month: came 13, allowed 1 to 12"));
}

TEST(Dates, MayBeTheLastOfEveryMonth) {
  const Bytes days{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  for (std::size_t month = 0; month < days.size(); ++month) {
    EXPECT_THAT(errors_open(with_date(2026, static_cast<std::uint8_t>(month + 1), days[month])),
                IsEmpty());
  }
}

}  // namespace
