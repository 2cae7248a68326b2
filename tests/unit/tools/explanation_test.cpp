// SPDX-License-Identifier: Apache-2.0
#include "tools/explanation.h"

#include <gmock/gmock.h>

#include "status/reason_table.h"

namespace tools {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

TEST(ExplanationOfANumber, NamesItsKeywordAndItsClass) {
  const Explanation told = explain_number(0x2665);
  EXPECT_TRUE(told.inTable);
  EXPECT_EQ(told.keyword, "com.corvantiel-error0008_2665");
  EXPECT_EQ(told.number, 0x2665);
  EXPECT_EQ(told.errorClass, "0008");
}

TEST(ExplanationOfANumber, SaysThatOnlyTheClassIsKnown) {
  EXPECT_EQ(explain_number(0x2665).meaning,
            "The printer reported error 2665. What 2665 itself means is not known here; "
            "its class is 0008, which it shares with 42 other numbers, 2600 to 2690.");
}

TEST(ExplanationOfANumber, ListsTheOthersOfASmallClass) {
  EXPECT_EQ(explain_number(0x6900).meaning,
            "The printer reported error 6900. What 6900 itself means is not known here; "
            "its class is 0034, which it shares with 6700, 6710, 6901 and 6903.");
}

TEST(ExplanationOfANumber, SaysThatAClassHasNoOther) {
  EXPECT_EQ(explain_number(0x2202).meaning,
            "The printer reported error 2202. What 2202 itself means is not known here; "
            "its class is 0015, which no other number has.");
}

TEST(ExplanationOfANumber, TellsWhatToDoAndHowTheJobComesBack) {
  EXPECT_EQ(explain_number(0x2665).remedy,
            "Read the printer's display, and look up 2665 in the printer's manual. See to what "
            "they ask for; often that is paper, the ribbon or a cover. The job that stopped is "
            "still in the queue: `tqr7 resume QUEUE` prints it again.");
}

TEST(ExplanationOfANumber, OfTheGoodPrinterRaisesNothing) {
  const Explanation told = explain_number(0);
  EXPECT_TRUE(told.inTable);
  EXPECT_EQ(told.number, 0);
  EXPECT_EQ(told.keyword, "");
  EXPECT_EQ(told.errorClass, "");
  EXPECT_EQ(told.meaning, "The printer is good: it reports no error, and no reason is raised.");
  EXPECT_EQ(told.remedy, "Nothing to do.");
}

TEST(ExplanationOfANumber, SaysThatFourAlsoStandsForNoAnswer) {
  const Explanation told = explain_number(4);
  EXPECT_EQ(told.keyword, "com.corvantiel-error0004");
  EXPECT_THAT(told.meaning, HasSubstr("when the printer does not answer, and when it reports a "
                                      "number that the table does not know."));
  EXPECT_THAT(told.remedy, HasSubstr("Check first that the printer is on and connected."));
}

TEST(ExplanationOfANumber, OutsideTheTableNamesTheReasonThatTheQueueShows) {
  const Explanation told = explain_number(0x2604);
  EXPECT_FALSE(told.inTable);
  EXPECT_EQ(told.number, 0x2604);
  EXPECT_EQ(told.keyword, "com.corvantiel-error0004");
  EXPECT_EQ(told.errorClass, "");
  EXPECT_EQ(told.meaning,
            "2604 is not in the table of the printer's errors. When the printer reports it, the "
            "queue shows com.corvantiel-error0004.");
}

TEST(ExplanationOfANumber, SaysThatAClassIsNoNumber) {
  const Explanation told = explain_number(0x0008);
  EXPECT_FALSE(told.inTable);
  EXPECT_EQ(told.errorClass, "0008");
  EXPECT_EQ(told.meaning,
            "0008 is not an error number but a class of them: it has 43 numbers, 2600 to 2690. "
            "What the class means is not known here.");
}

// The table's keywords are com.corvantiel-errorCLASS_NUMBER, or …errorNUMBER.
TEST(ExplanationOfANumber, KnowsEveryRowOfTheTable) {
  for (const PrinterStateReason& row : PRINTER_STATE_REASONS) {
    const auto number = static_cast<std::uint16_t>(row.error_high * 256 + row.error_low);
    const Explanation told = explain_number(number);
    EXPECT_TRUE(told.inTable) << number;
    EXPECT_EQ(told.keyword, row.reasons[0] != nullptr ? row.reasons[0] : "");
    EXPECT_THAT(told.meaning, Not(IsEmpty()));
    EXPECT_THAT(told.remedy, Not(IsEmpty()));
    if (number != 0) {
      EXPECT_THAT(told.keyword, testing::EndsWith(four_digits(number)));
      EXPECT_THAT(told.keyword, HasSubstr("error" + told.errorClass));
    }
  }
}

TEST(ExplanationOfAKeyword, OfTheTableIsThatOfItsNumber) {
  const Explanation told = explain_keyword("com.corvantiel-error0018_7054");
  EXPECT_TRUE(told.inTable);
  EXPECT_EQ(told.number, 0x7054);
  EXPECT_EQ(told.errorClass, "0018");
}

TEST(ExplanationOfAKeyword, NeedsNeitherTheMakerNorTheCaseNorNoSeverity) {
  EXPECT_EQ(explain_keyword("error0018_7054").number, 0x7054);
  EXPECT_EQ(explain_keyword("COM.Corvantiel-Error0018_7054").number, 0x7054);
  EXPECT_EQ(explain_keyword("com.corvantiel-error0018_7054-warning").number, 0x7054);
  EXPECT_EQ(explain_keyword("com.corvantiel-error0018_7054-error").number, 0x7054);
  EXPECT_EQ(explain_keyword("com.corvantiel-error0018_7054-report").number, 0x7054);
}

TEST(ExplanationOfAKeyword, OfTheRightFormButOutsideTheTableIsNamedAsSuch) {
  const Explanation told = explain_keyword("com.corvantiel-error0008_2604");
  EXPECT_FALSE(told.inTable);
  EXPECT_EQ(told.keyword, "com.corvantiel-error0008_2604");
  EXPECT_EQ(told.meaning,
            "com.corvantiel-error0008_2604 has the form of this printer's reasons, but is not in "
            "the table of its errors.");
}

TEST(ExplanationOfAKeyword, OfAClassAloneSaysThatItIsOne) {
  EXPECT_THAT(explain_keyword("error0016").meaning,
              HasSubstr("0016 is not an error number but a class of them: it has 4093, 4291, 4293, "
                        "4391, 4393, 4491 and 4493."));
}

struct OutsideCase {
  const char* keyword;
  const char* meaning;
};

class ExplanationOutsideTheTable : public testing::TestWithParam<OutsideCase> {};

TEST_P(ExplanationOutsideTheTable, ExplainsTheWordsThatAQueueMayShow) {
  const Explanation told = explain_keyword(GetParam().keyword);
  EXPECT_FALSE(told.inTable);
  EXPECT_EQ(told.keyword, GetParam().keyword);
  EXPECT_FALSE(told.number.has_value());
  EXPECT_THAT(told.meaning, HasSubstr(GetParam().meaning));
  EXPECT_THAT(told.remedy, Not(IsEmpty()));
}

INSTANTIATE_TEST_SUITE_P(
    All, ExplanationOutsideTheTable,
    testing::Values(
        OutsideCase{"none", "The queue shows no reason"},
        OutsideCase{"paused", "The queue is stopped."},
        OutsideCase{"pagesize-inkribbon-unmuch", "the paper size and the ink ribbon"},
        OutsideCase{"driver-setting-unmuch", "it does not take the settings of the job"},
        OutsideCase{"out-of-range", "a value of the job's settings is out of its range"},
        OutsideCase{"memory-timeout", "busy for more than three minutes"},
        OutsideCase{"protocol-error", "an answer that the driver does not know"},
        OutsideCase{"connecting-to-device", "trying to reach the printer"},
        OutsideCase{"media-empty-warning", "There is no paper left."},
        OutsideCase{"cups-insecure-filter-warning", "does not start the driver's filter"},
        OutsideCase{"cups-missing-filter-warning", "does not find a program"},
        OutsideCase{"cups-waiting-for-job-completed", "waits for the printer to close"},
        OutsideCase{"offline-report", "The printer cannot be reached."}));

TEST(ExplanationOfAKeyword, ThatNobodyKnowsSaysSoAndHelpsOn) {
  const Explanation told = explain_keyword("gibberish");
  EXPECT_FALSE(told.inTable);
  EXPECT_EQ(told.keyword, "gibberish");
  EXPECT_EQ(told.meaning,
            "This is neither in the table of the printer's errors nor a word that is known here.");
  EXPECT_THAT(told.remedy, HasSubstr("four hexadecimal digits, such as 2665"));
}

TEST(ExplanationOfAKeyword, TakesAnEmptyText) {
  EXPECT_FALSE(explain_keyword("").inTable);
}

}  // namespace
}  // namespace tools
