// SPDX-License-Identifier: Apache-2.0
//
// What goes out of an answer, piece by piece, and how it is told.
#include "simulator/answer_plan.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using simulator::AnswerPlan;
using simulator::pieces_of;
using simulator::Question;
using simulator::told_by;
using Meaning = decoder::Answer::Meaning;
using testing::ElementsAre;
using testing::IsEmpty;
using Bytes = std::vector<std::uint8_t>;

const Bytes kAnswer{1, 2, 3, 4, 5, 6};

TEST(Plan, OfNoFaultsSendsTheWholeAnswerAtOnce) {
  EXPECT_THAT(pieces_of({}, kAnswer), ElementsAre(Bytes{1, 2, 3, 4, 5, 6}));
}

TEST(Plan, OfPiecesLeavesTheRestForTheLast) {
  AnswerPlan plan;
  plan.pieces = {1, 2};
  EXPECT_THAT(pieces_of(plan, kAnswer), ElementsAre(Bytes{1}, Bytes{2, 3}, Bytes{4, 5, 6}));
}

TEST(Plan, OfMorePiecesThanTheAnswerHasEndsWithTheAnswer) {
  AnswerPlan plan;
  plan.pieces = {4, 2, 3};
  EXPECT_THAT(pieces_of(plan, kAnswer), ElementsAre(Bytes{1, 2, 3, 4}, Bytes{5, 6}));
}

TEST(Plan, OfAShortAnswerSendsItsBeginning) {
  AnswerPlan plan;
  plan.cutTo = 2;
  EXPECT_THAT(pieces_of(plan, kAnswer), ElementsAre(Bytes{1, 2}));
}

TEST(Plan, OfStrayBytesSendsThemInFront) {
  AnswerPlan plan;
  plan.stray = {0xAA, 0xBB};
  plan.pieces = {1};
  EXPECT_THAT(pieces_of(plan, kAnswer), ElementsAre(Bytes{0xAA, 0xBB, 1}, Bytes{2, 3, 4, 5, 6}));
}

TEST(Plan, OfSilenceSendsNothing) {
  AnswerPlan plan;
  plan.silent = true;
  EXPECT_THAT(pieces_of(plan, kAnswer), IsEmpty());
}

TEST(Plan, IsToldInWords) {
  AnswerPlan plan;
  EXPECT_EQ(answer_words(plan), "answered 0x0000");
  plan.number = 0x2665;
  plan.cutTo = 1;
  plan.pieces = {1};
  plan.stray = {1, 2};
  plan.delay = std::chrono::milliseconds(1500);
  EXPECT_EQ(answer_words(plan),
            "answered 0x2665, only 1 byte of it, in pieces, behind 2 stray bytes, 1.5 s late");
  plan.silent = true;
  EXPECT_EQ(answer_words(plan), "not answered");
}

AnswerPlan numbered(std::uint16_t number) {
  AnswerPlan plan;
  plan.number = number;
  return plan;
}

TEST(AnAnswer, TellsByItsNumberWhatTheClientMayDo) {
  EXPECT_EQ(told_by(numbered(0), Question::Status).meaning, Meaning::Good);
  EXPECT_EQ(told_by(numbered(0x2665), Question::Status).meaning, Meaning::Bad);
  EXPECT_EQ(told_by(numbered(0), Question::Readiness).meaning, Meaning::Good);
  EXPECT_EQ(told_by(numbered(0x0200), Question::Readiness).meaning, Meaning::Bad);
  EXPECT_EQ(told_by(numbered(0x0200), Question::Readiness).words, "0x0200");
}

TEST(AnAnswer, IsBusyToAQueryOnly) {
  EXPECT_EQ(told_by(numbered(0x0100), Question::Readiness).meaning, Meaning::Busy);
  EXPECT_EQ(told_by(numbered(0x0100), Question::Status).meaning, Meaning::Bad);
}

TEST(AnAnswer, ThatIsWholeAndInTimeIsSurelySeen) {
  AnswerPlan plan = numbered(0);
  EXPECT_TRUE(told_by(plan, Question::Status).sure);
  plan.pieces = {1, 2, 3};
  plan.delay = std::chrono::milliseconds(899);
  EXPECT_TRUE(told_by(plan, Question::Status).sure);
  plan.delay = std::chrono::milliseconds(900);
  EXPECT_FALSE(told_by(plan, Question::Status).sure);
}

TEST(AnAnswer, ThatIsCutOrMissingIsBad) {
  AnswerPlan plan = numbered(0x0100);
  plan.cutTo = 5;
  const decoder::Answer cut = told_by(plan, Question::Readiness);
  EXPECT_EQ(cut.meaning, Meaning::Bad);
  EXPECT_FALSE(cut.sure);
  EXPECT_EQ(cut.words, "an answer of 5 bytes");
  plan.silent = true;
  const decoder::Answer none = told_by(plan, Question::Readiness);
  EXPECT_EQ(none.meaning, Meaning::Bad);
  EXPECT_FALSE(none.sure);
  EXPECT_EQ(none.words, "no answer");
}

TEST(AnAnswer, BehindStrayBytesMayBeReadAsAnother) {
  AnswerPlan plan = numbered(0);
  plan.stray = {0x01};
  const decoder::Answer answer = told_by(plan, Question::Readiness);
  EXPECT_EQ(answer.meaning, Meaning::Good);
  EXPECT_TRUE(answer.strayed);
  EXPECT_FALSE(answer.sure);
}

}  // namespace
