// SPDX-License-Identifier: Apache-2.0
//
// Which faults hold when, by a clock that the tests turn.
#include "simulator/fault_schedule.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "simulator/fault_script.h"

namespace {

using simulator::AnswerPlan;
using simulator::FaultSchedule;
using simulator::Question;
using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::IsEmpty;

class Schedule : public testing::Test {
 protected:
  void Rules(std::string_view text) { schedule_.Add(simulator::read_script(text).rules); }
  void ScriptOf(std::string_view text) { schedule_.SetScript(simulator::read_script(text).rules); }

  // One status request as a file begins, or before a sheet.
  std::uint16_t FileStatus() { return Asked(Question::Status, false).number; }
  std::uint16_t Status() { return Asked(Question::Status, true).number; }
  std::uint16_t Enable() { return Asked(Question::Readiness, true).number; }

  AnswerPlan Asked(Question question, bool aboutSheet) {
    AnswerPlan plan = schedule_.Answer(question, aboutSheet);
    schedule_.EndByCount();
    return plan;
  }

  void Pass(int time) {
    time_ += milliseconds(time);
    schedule_.EndByTime();
  }

  FaultSchedule::TimePoint time_;
  std::vector<std::string> lines_;
  FaultSchedule schedule_{[this] { return time_; },
                          [this](const std::string& line) { lines_.push_back(line); }};
};

TEST_F(Schedule, WithoutRulesAnswersThatAllIsWell) {
  const AnswerPlan plan = schedule_.Answer(Question::Status, true);
  EXPECT_EQ(plan.number, 0);
  EXPECT_EQ(plan.cutTo, std::nullopt);
  EXPECT_FALSE(plan.silent);
  EXPECT_EQ(plan.delay.count(), 0);
  EXPECT_THAT(plan.pieces, IsEmpty());
  EXPECT_THAT(plan.stray, IsEmpty());
  EXPECT_EQ(schedule_.DropAt(), std::nullopt);
  EXPECT_EQ(schedule_.BytesPerSecond(), std::nullopt);
  EXPECT_TRUE(schedule_.SuppliesLeft());
  EXPECT_EQ(schedule_.NextEnd(), std::nullopt);
  EXPECT_THAT(lines_, IsEmpty());
}

TEST_F(Schedule, LetsAFaultStand) {
  Rules("status 0x2665");
  EXPECT_EQ(FileStatus(), 0x2665);
  Pass(1000000);
  EXPECT_EQ(Status(), 0x2665);
  EXPECT_EQ(Enable(), 0);
  EXPECT_THAT(lines_, ElementsAre("fault \"status 0x2665\" shows"));
}

TEST_F(Schedule, CountsTimesFromTheFirst) {
  Rules("status 0x0001 2 times");
  EXPECT_EQ(Status(), 1);
  EXPECT_EQ(Status(), 1);
  EXPECT_EQ(Status(), 0);
  EXPECT_THAT(lines_, ElementsAre("fault \"status 0x0001 2 times\" shows",
                                  "fault \"status 0x0001 2 times\" ended: after 2 times"));
}

TEST_F(Schedule, CountsTimeFromTheFirstShowing) {
  Rules("status 1 for 2 s");
  Pass(10000);
  EXPECT_EQ(Status(), 1);
  EXPECT_EQ(schedule_.NextEnd(), time_ + milliseconds(2000));
  Pass(1999);
  EXPECT_EQ(Status(), 1);
  Pass(1);
  EXPECT_THAT(lines_, ElementsAre("fault \"status 0x0001 for 2 s\" shows",
                                  "fault \"status 0x0001 for 2 s\" ended: after 2 s"));
  EXPECT_EQ(Status(), 0);
  EXPECT_EQ(schedule_.NextEnd(), std::nullopt);
}

TEST_F(Schedule, NamesTheNearestEnd) {
  Rules("status 1 for 2 s\nenable 1 for 1 s");
  Status();
  Enable();
  EXPECT_EQ(schedule_.NextEnd(), time_ + milliseconds(1000));
}

TEST_F(Schedule, BeginsAJobsFaultWithThatConnection) {
  Rules("job 2: status 1");
  schedule_.ConnectionOpens();
  EXPECT_EQ(FileStatus(), 0);
  EXPECT_EQ(Status(), 0);
  schedule_.ConnectionCloses();
  schedule_.ConnectionOpens();
  EXPECT_EQ(FileStatus(), 1);
  schedule_.ConnectionCloses();
  schedule_.ConnectionOpens();
  EXPECT_EQ(FileStatus(), 1);
}

TEST_F(Schedule, BeginsASheetsFaultWithTheQuestionsBeforeIt) {
  Rules("sheet 2: status 1");
  EXPECT_EQ(Status(), 0);
  schedule_.SheetPrinted();
  EXPECT_EQ(Status(), 1);
}

TEST_F(Schedule, DoesNotTakeTheCheckAtAFilesBeginForASheets) {
  Rules("sheet 1: status 1");
  EXPECT_EQ(FileStatus(), 0);
  EXPECT_EQ(Status(), 1);
  EXPECT_EQ(FileStatus(), 1);
}

TEST_F(Schedule, BeginsASheetsFaultWithItsReadinessQuery) {
  Rules("sheet 1: enable 0x0200");
  EXPECT_EQ(FileStatus(), 0);
  EXPECT_EQ(Enable(), 0x0200);
}

TEST_F(Schedule, DoesNotBeginAFaultAgainThatIsOver) {
  Rules("job 1: status 1 once\nsheet 1: enable 2 once");
  schedule_.ConnectionOpens();
  EXPECT_EQ(Status(), 1);
  EXPECT_EQ(Enable(), 2);
  EXPECT_EQ(Enable(), 0);
  schedule_.ConnectionCloses();
  schedule_.ConnectionOpens();
  EXPECT_EQ(Status(), 0);
  EXPECT_EQ(Enable(), 0);
}

TEST_F(Schedule, CountsSheetsOverAllConnections) {
  Rules("sheet 3: status 1");
  schedule_.SheetPrinted();
  schedule_.ConnectionCloses();
  schedule_.ConnectionOpens();
  EXPECT_EQ(Status(), 0);
  schedule_.SheetPrinted();
  EXPECT_EQ(Status(), 1);
}

TEST_F(Schedule, GivesTheFirstNumberThatIsNotGood) {
  Rules("status 0\nsheet 2: status 3\nstatus 1 once\nstatus 2");
  EXPECT_EQ(Status(), 1);
  EXPECT_EQ(Status(), 2);
  schedule_.SheetPrinted();
  EXPECT_EQ(Status(), 3);
}

TEST_F(Schedule, DoesNotCountARuleThatAnotherHides) {
  Rules("status 1 once\nstatus 2 once");
  EXPECT_EQ(Status(), 1);
  EXPECT_EQ(Status(), 2);
  EXPECT_EQ(Status(), 0);
}

TEST_F(Schedule, IsBusyAsOftenAsTheRuleSays) {
  Rules("busy 2\nenable 1");
  EXPECT_EQ(Enable(), 0x0100);
  EXPECT_EQ(Status(), 0);
  EXPECT_EQ(Enable(), 0x0100);
  EXPECT_EQ(Enable(), 1);
}

TEST_F(Schedule, EndsBusyAfterItsTime) {
  Rules("busy 100 for 1 s");
  EXPECT_EQ(Enable(), 0x0100);
  Pass(1000);
  EXPECT_EQ(Enable(), 0);
}

TEST_F(Schedule, PutsTheFaultsOfAnAnswersWayTogether) {
  Rules("status late 2 s\nstatus pieces 4\nstatus stray AA\nstatus short 7\nstatus 1");
  const AnswerPlan plan = Asked(Question::Status, false);
  EXPECT_EQ(plan.number, 1);
  EXPECT_EQ(plan.delay, milliseconds(2000));
  EXPECT_THAT(plan.pieces, ElementsAre(4));
  EXPECT_THAT(plan.stray, ElementsAre(0xAA));
  EXPECT_EQ(plan.cutTo, 7U);
}

TEST_F(Schedule, TakesTheFirstOfSeveralFaultsOfTheSameWay) {
  Rules("status late 1 s\nstatus late 2 s\nstatus short 3\nstatus short 4");
  const AnswerPlan plan = Asked(Question::Status, true);
  EXPECT_EQ(plan.delay, milliseconds(1000));
  EXPECT_EQ(plan.cutTo, 3U);
  EXPECT_THAT(lines_,
              ElementsAre("fault \"status late 1 s\" shows", "fault \"status short 3\" shows"));
}

TEST_F(Schedule, DoesNotShowANumberThatIsGood) {
  Rules("status 0 once\nstatus 7");
  EXPECT_EQ(Status(), 7);
  EXPECT_EQ(Status(), 7);
  EXPECT_THAT(lines_, ElementsAre("fault \"status 0x0007\" shows"));
}

TEST_F(Schedule, LeavesTheOtherQuestionAlone) {
  Rules("enable late 2 s\nenable silent\nstatus short 3");
  EXPECT_EQ(Asked(Question::Status, false).delay.count(), 0);
  EXPECT_FALSE(Asked(Question::Status, false).silent);
  EXPECT_EQ(Asked(Question::Readiness, true).cutTo, std::nullopt);
}

TEST_F(Schedule, ShowsNothingElseWhereItIsSilent) {
  Rules("status 1 once\nstatus silent once");
  EXPECT_TRUE(Asked(Question::Status, false).silent);
  EXPECT_EQ(Status(), 1);
}

TEST_F(Schedule, LetsPaperRunOut) {
  Rules("paper 2 then 0x1100");
  EXPECT_EQ(Status(), 0);
  schedule_.SheetPrinted();
  EXPECT_EQ(Status(), 0);
  EXPECT_TRUE(schedule_.SuppliesLeft());
  schedule_.SheetPrinted();
  EXPECT_FALSE(schedule_.SuppliesLeft());
  EXPECT_EQ(Status(), 0x1100);
  EXPECT_EQ(FileStatus(), 0x1100);
}

TEST_F(Schedule, CountsPaperFromTheRulesMoment) {
  Rules("sheet 2: paper 1 then 0x1100");
  EXPECT_EQ(Status(), 0);
  schedule_.SheetPrinted();
  EXPECT_EQ(Status(), 0);
  schedule_.SheetPrinted();
  EXPECT_EQ(Status(), 0x1100);
}

TEST_F(Schedule, FillsPaperAfterItsTime) {
  Rules("ribbon 0 then 0x1200 for 1 s");
  EXPECT_EQ(Status(), 0x1200);
  Pass(1000);
  EXPECT_TRUE(schedule_.SuppliesLeft());
  EXPECT_EQ(Status(), 0);
}

TEST_F(Schedule, DropsAtTheLowestByte) {
  Rules("drop at byte 100\ndrop at byte 50 once");
  schedule_.ConnectionOpens();
  EXPECT_EQ(schedule_.DropAt(), 50U);
  schedule_.Drop();
  schedule_.ConnectionCloses();
  schedule_.ConnectionOpens();
  EXPECT_EQ(schedule_.DropAt(), 100U);
  EXPECT_THAT(lines_, ElementsAre("fault \"drop at byte 50 once\" shows",
                                  "fault \"drop at byte 50 once\" ended: after 1 time"));
}

TEST_F(Schedule, CountsASlowConnectionOnce) {
  Rules("read 100 bytes/s 2 times");
  for (int connection = 0; connection < 2; ++connection) {
    schedule_.ConnectionOpens();
    EXPECT_EQ(schedule_.BytesPerSecond(), 100U);
    schedule_.EndByCount();
    EXPECT_EQ(schedule_.BytesPerSecond(), 100U);
    schedule_.ConnectionCloses();
  }
  schedule_.ConnectionOpens();
  EXPECT_EQ(schedule_.BytesPerSecond(), std::nullopt);
}

TEST_F(Schedule, IsWellAfterAPersonHasSeenToIt) {
  Rules("status 1\npaper 0 then 2\ncover 3\nread 5 bytes/s\ndrop at byte 3\nenable silent");
  EXPECT_EQ(Status(), 1);
  schedule_.SeenTo();
  EXPECT_EQ(Status(), 0);
  EXPECT_FALSE(Asked(Question::Readiness, true).silent);
  EXPECT_EQ(schedule_.BytesPerSecond(), std::nullopt);
  EXPECT_EQ(schedule_.DropAt(), std::nullopt);
  EXPECT_TRUE(schedule_.SuppliesLeft());
}

TEST_F(Schedule, SaysWhatAPersonHasSeenTo) {
  Rules("status 1");
  Status();
  schedule_.SeenTo();
  EXPECT_THAT(lines_,
              ElementsAre("fault \"status 0x0001\" shows", "a person has seen to the printer",
                          "fault \"status 0x0001\" ended: a person has seen to it"));
}

TEST_F(Schedule, KeepsWhatHasAnEndOfItsOwnWhenAPersonSeesToIt) {
  Rules("status 1 for 9 s\nstatus 2 once\nbusy 1");
  schedule_.SeenTo();
  EXPECT_EQ(Status(), 1);
  EXPECT_EQ(Enable(), 0x0100);
  Pass(9000);
  EXPECT_EQ(Status(), 2);
}

TEST_F(Schedule, LetsAPersonCloseACoverAndFillPaperEarly) {
  Rules("cover 1 for 9 s\npaper 0 then 2 5 times");
  EXPECT_EQ(Status(), 1);
  schedule_.SeenTo();
  EXPECT_EQ(Status(), 0);
}

TEST_F(Schedule, KeepsWhatIsStillToComeWhenAPersonSeesToIt) {
  Rules("sheet 2: status 1\njob 2: enable 2");
  schedule_.ConnectionOpens();
  Status();
  schedule_.SeenTo();
  schedule_.SheetPrinted();
  EXPECT_EQ(Status(), 1);
  schedule_.ConnectionOpens();
  EXPECT_EQ(Enable(), 2);
}

TEST_F(Schedule, BeginsAScriptAnew) {
  ScriptOf("status 1 once\nbusy 1");
  EXPECT_EQ(Status(), 1);
  EXPECT_EQ(Status(), 0);
  ScriptOf("status 1 once");
  EXPECT_EQ(Status(), 1);
  EXPECT_EQ(Enable(), 0);
}

TEST_F(Schedule, CountsJobsAndSheetsOfANewScriptFromThere) {
  schedule_.ConnectionOpens();
  schedule_.SheetPrinted();
  ScriptOf("job 1: enable 1\nsheet 2: status 2");
  EXPECT_EQ(Enable(), 0);
  EXPECT_EQ(Status(), 0);
  schedule_.SheetPrinted();
  EXPECT_EQ(Status(), 2);
  schedule_.ConnectionOpens();
  EXPECT_EQ(Enable(), 1);
}

TEST_F(Schedule, SaysThatTheOldScriptsFaultsEnd) {
  ScriptOf("status 1");
  Status();
  ScriptOf("");
  EXPECT_THAT(lines_, ElementsAre("fault \"status 0x0001\" shows",
                                  "fault \"status 0x0001\" ended: the script begins anew"));
}

TEST_F(Schedule, KeepsTheScriptsPlaceAmongTheRules) {
  Rules("status 1 3 times");
  ScriptOf("status 9");
  Rules("status 3");
  ScriptOf("status 2 once");
  EXPECT_EQ(Status(), 1);
  EXPECT_EQ(Status(), 1);
  EXPECT_EQ(Status(), 1);
  EXPECT_EQ(Status(), 2);
  EXPECT_EQ(Status(), 3);
}

}  // namespace
