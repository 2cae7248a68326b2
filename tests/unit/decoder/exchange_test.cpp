// SPDX-License-Identifier: Apache-2.0
//
// What the printer's own answers make of the next sheet, and which status requests are about one.
#include "decoder/exchange.h"

#include <gtest/gtest.h>

namespace {

using decoder::Answer;
using decoder::Command;
using Meaning = decoder::Answer::Meaning;

class Course : public testing::Test {
 protected:
  void Asked(Command question, const Answer& answer) {
    Came(question);
    exchange_.Answered(answer, {});
  }

  void Came(Command command) {
    exchange_.Take(command, 0, {}, [](const decoder::StreamError&) {});
  }

  void SheetCame() {
    Asked(Command::ReadinessQuery, kGood);
    Came(Command::JobHeader);
    Came(Command::ImageHeader);
  }

  const Answer kGood{Meaning::Good, "0x0000"};
  const Answer kRefused{Meaning::Bad, "0x0200"};
  const Answer kLate{Meaning::Good, "0x0000", false};
  const Answer kNone{Meaning::Bad, "no answer", false};
  decoder::Exchange exchange_;
};

using AStatusRequest = Course;

TEST_F(AStatusRequest, ThatBeginsTheConnectionIsAboutNoSheet) {
  Asked(Command::StatusRequest, kGood);
  EXPECT_FALSE(exchange_.StatusAboutSheet());
}

TEST_F(AStatusRequest, BehindAGoodFirstAnswerIsAboutTheSheet) {
  Asked(Command::StatusRequest, kGood);
  Came(Command::StatusRequest);
  EXPECT_TRUE(exchange_.StatusAboutSheet());
}

TEST_F(AStatusRequest, BehindAnErrorOrNoAnswerBeginsTheNextFile) {
  Asked(Command::StatusRequest, kRefused);
  Asked(Command::StatusRequest, kNone);
  EXPECT_FALSE(exchange_.StatusAboutSheet());
  Came(Command::StatusRequest);
  EXPECT_FALSE(exchange_.StatusAboutSheet());
}

TEST_F(AStatusRequest, BehindAQueryBeginsTheNextFile) {
  Asked(Command::StatusRequest, kGood);
  Asked(Command::StatusRequest, kGood);
  Asked(Command::ReadinessQuery, kRefused);
  Came(Command::StatusRequest);
  EXPECT_FALSE(exchange_.StatusAboutSheet());
}

TEST_F(AStatusRequest, BehindAReadyAnswerThatCameTooLateBeginsTheNextFile) {
  Asked(Command::StatusRequest, kGood);
  Asked(Command::StatusRequest, kGood);
  Asked(Command::ReadinessQuery, kLate);
  Came(Command::StatusRequest);
  EXPECT_FALSE(exchange_.StatusAboutSheet());
}

TEST_F(AStatusRequest, BehindASheetIsAboutTheNextOne) {
  Asked(Command::StatusRequest, kGood);
  Asked(Command::StatusRequest, kGood);
  SheetCame();
  Came(Command::StatusRequest);
  EXPECT_TRUE(exchange_.StatusAboutSheet());
}

TEST_F(AStatusRequest, BehindThePrintOutBeginsTheNextFile) {
  Asked(Command::StatusRequest, kGood);
  Asked(Command::StatusRequest, kGood);
  SheetCame();
  Came(Command::PrintOut);
  Came(Command::StatusRequest);
  EXPECT_FALSE(exchange_.StatusAboutSheet());
}

using ASheet = Course;

TEST_F(ASheet, IsAllowedByAPrinterThatNobodyAsked) {
  EXPECT_TRUE(exchange_.SheetAllowed());
}

TEST_F(ASheet, IsForbiddenByARefusalUpToTheNextStatusRequest) {
  Asked(Command::StatusRequest, kGood);
  Asked(Command::StatusRequest, kGood);
  Asked(Command::ReadinessQuery, kRefused);
  EXPECT_FALSE(exchange_.SheetAllowed());
  Asked(Command::StatusRequest, kGood);
  EXPECT_TRUE(exchange_.SheetAllowed());
}

TEST_F(ASheet, IsForbiddenByABadStatusWhateverReadinessSays) {
  Asked(Command::StatusRequest, kRefused);
  Asked(Command::ReadinessQuery, kGood);
  EXPECT_FALSE(exchange_.SheetAllowed());
}

TEST_F(ASheet, IsForbiddenWhenNoAnswerCame) {
  Asked(Command::StatusRequest, kGood);
  Asked(Command::StatusRequest, kGood);
  Asked(Command::ReadinessQuery, kNone);
  EXPECT_FALSE(exchange_.SheetAllowed());
}

}  // namespace
