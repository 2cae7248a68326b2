// SPDX-License-Identifier: Apache-2.0
//
// Each fault as a client of the printer's port meets it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/unit/simulator/print_client.h"
#include "tests/unit/simulator/printer_process.h"
#include "tests/unit/stream_bytes.h"
#include "tests/unit/temp_file.h"

namespace {

using stream::Bytes;
using stream::Finish;
using testing::ElementsAre;
using testing::IsEmpty;

class Faults : public testing::Test {
 protected:
  std::vector<std::string> By(const std::vector<std::string>& rules) const {
    std::vector<std::string> options{"--output", folder_.path().string()};
    for (const std::string& rule : rules) {
      options.insert(options.end(), {"--fault", rule});
    }
    return options;
  }

  TempFolder folder_;
};

const Bytes kGoodStatus(15, 0);
const Bytes kGoodEnable(6, 0);

Bytes query() {
  return stream::readiness_query(stream::paper_5x15(), Finish::Gloss);
}

Bytes sheet() {
  return stream::sheet(stream::paper_5x15(), Finish::Gloss, {0, 0x20, 0, 0x20, 0, 0x20});
}

TEST_F(Faults, GiveAWrongStatusOnce) {
  PrinterProcess printer(By({"status 0x2665 once"}));
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(stream::join({stream::status_request(), stream::status_request()})));
  EXPECT_THAT(client.Read(15), ElementsAre(0, 0, 0, 0, 0x26, 0x65, 0, 0, 0, 0, 0, 0, 0, 0, 0));
  EXPECT_EQ(client.Read(15), kGoodStatus);
}

TEST_F(Faults, GiveAWrongEnableCodeFromTheSecondJobOn) {
  PrinterProcess printer(By({"job 2: enable 0x0200"}));
  const Bytes questions = stream::join({stream::status_request(), query()});
  {
    const PrintClient client(printer.Port());
    ASSERT_TRUE(client.Send(questions));
    EXPECT_EQ(client.Read(21), stream::join({kGoodStatus, kGoodEnable}));
    ASSERT_TRUE(client.Finish());
  }
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(questions));
  ASSERT_EQ(client.Read(15), kGoodStatus);
  EXPECT_THAT(client.Read(6), ElementsAre(0, 0, 0, 0, 2, 0));
}

TEST_F(Faults, LetTheCheckAtTheJobsBeginPassBeforeASheetsFault) {
  PrinterProcess printer(By({"sheet 1: cover 0x1300"}));
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(stream::join({stream::status_request(), stream::status_request()})));
  EXPECT_EQ(client.Read(15), kGoodStatus);
  EXPECT_THAT(client.Read(15), ElementsAre(0, 0, 0, 0, 0x13, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0));
}

TEST_F(Faults, OfAFilesSecondSheetComeWithItsStatusRequest) {
  PrinterProcess printer(By({"sheet 2: status 1"}));
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(stream::join({sheet(), stream::status_request()})));
  EXPECT_EQ(client.Read(21), stream::join({kGoodStatus, kGoodEnable}));
  EXPECT_EQ(client.Read(15)[5], 1);
}

TEST_F(Faults, OfASheetComeWithAQueryThatNoSecondCheckPrecedes) {
  PrinterProcess printer(By({"sheet 1: enable 0x0200"}));
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(stream::join({stream::status_request(), query()})));
  EXPECT_EQ(client.Read(15), kGoodStatus);
  EXPECT_THAT(client.Read(6), ElementsAre(0, 0, 0, 0, 2, 0));
}

TEST_F(Faults, LetTheCheckOfTheNextFilePassBeforeASheetsFault) {
  PrinterProcess printer(By({"sheet 2: status 1"}));
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(
      stream::join({stream::small_job(), stream::status_request(), stream::status_request()})));
  EXPECT_EQ(client.Read(51), stream::join({kGoodStatus, kGoodStatus, kGoodEnable, kGoodStatus}));
  EXPECT_THAT(client.Read(15), ElementsAre(0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0));
}

TEST_F(Faults, AnswerLate) {
  PrinterProcess printer(By({"status late 0.4 s once"}));
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(stream::status_request()));
  EXPECT_FALSE(client.AnswerComes());
  EXPECT_EQ(client.Read(15), kGoodStatus);
  EXPECT_EQ(printer.WaitForLine("status request"),
            "connection 1: status request, answered 0x0000, 0.4 s late");
}

TEST_F(Faults, AnswerInPieces) {
  PrinterProcess printer(By({"enable pieces 4 1"}));
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(stream::status_request()));
  ASSERT_EQ(client.Read(15), kGoodStatus);
  ASSERT_TRUE(client.Send(query()));
  EXPECT_THAT(client.ReadSome(), ElementsAre(0, 0, 0, 0));
  EXPECT_THAT(client.ReadSome(), ElementsAre(0));
  EXPECT_THAT(client.ReadSome(), ElementsAre(0));
}

TEST_F(Faults, AnswerShort) {
  PrinterProcess printer(By({"status short 5", "status 0x2665"}));
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(stream::status_request()));
  EXPECT_THAT(client.Read(5), ElementsAre(0, 0, 0, 0, 0x26));
  EXPECT_FALSE(client.AnswerComes());
}

TEST_F(Faults, AnswerBehindStrayBytes) {
  PrinterProcess printer(By({"status stray AB CD", "status 0x2665"}));
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(stream::status_request()));
  EXPECT_THAT(client.ReadSome(),
              ElementsAre(0xAB, 0xCD, 0, 0, 0, 0, 0x26, 0x65, 0, 0, 0, 0, 0, 0, 0, 0, 0));
}

TEST_F(Faults, DoNotAnswer) {
  PrinterProcess printer(By({"status silent"}));
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(stream::status_request()));
  EXPECT_FALSE(client.AnswerComes());
  EXPECT_EQ(printer.WaitForLine("status request"), "connection 1: status request, not answered");
}

TEST_F(Faults, ForbidAQueryBehindNoAnswer) {
  PrinterProcess printer(By({"status silent"}));
  ASSERT_TRUE(print(printer.Port(),
                    stream::join({stream::status_request(), stream::status_request(), query()})));
  EXPECT_EQ(printer.WaitForLine("error"),
            "connection 1: error: offset 16: readiness query, answer to the status request: came a "
            "query after no answer, allowed a query after 0x0000");
  EXPECT_EQ(printer.Stop(), 1);
}

TEST_F(Faults, ForbidAJobHeaderBehindAnAnswerThatWasCut) {
  PrinterProcess printer(By({"enable short 5"}));
  ASSERT_TRUE(print(printer.Port(), stream::small_job()));
  EXPECT_EQ(printer.WaitForLine("error"),
            "connection 1: error: offset 528: job header, answer to the readiness query: came a "
            "job header after an answer of 5 bytes, allowed a job header after 0x0000");
  EXPECT_EQ(printer.Stop(), 1);
  EXPECT_THAT(folder_.Names(), IsEmpty());
}

TEST_F(Faults, DropTheConnectionAtItsByte) {
  PrinterProcess printer(By({"drop at byte 200000 once"}));
  {
    const PrintClient client(printer.Port());
    // The reset comes while bytes are still being sent, or when the end is waited for.
    EXPECT_FALSE(client.Send(stream::small_job()) && client.Finish());
  }
  EXPECT_EQ(printer.WaitForLine("dropped"),
            "connection 1: dropped after 200000 bytes within image data");
  EXPECT_EQ(printer.WaitForLine("closed"),
            "connection 1: closed, 200000 bytes, 0 sheets, 0 errors");
  ASSERT_TRUE(print(printer.Port(), stream::small_job()));
  EXPECT_EQ(printer.Stop(), 0);
  EXPECT_THAT(folder_.Names(), ElementsAre("incomplete-0001.png", "sheet-0002.png", "sheets.txt"));
}

TEST_F(Faults, DropTheConnectionBeforeItsFirstByte) {
  PrinterProcess printer(By({"drop at byte 0"}));
  const PrintClient client(printer.Port());
  ASSERT_NE(printer.WaitForLine("dropped after 0 bytes"), "");
  EXPECT_FALSE(client.Finish());
}

TEST_F(Faults, LeaveTheBytesOfASlowReaderWithItsClient) {
  PrinterProcess printer(By({"read 1000 bytes/s"}));
  const PrintClient client(printer.Port());
  EXPECT_LT(client.SendForAWhile(stream::small_job()), 1000000U);
}

TEST_F(Faults, LetASlowReaderAnswerWhenItHasReadTheQuestion) {
  PrinterProcess printer(By({"read 1000 bytes/s once"}));
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(stream::join({stream::status_request(), query()})));
  EXPECT_EQ(client.Read(15), kGoodStatus);
  EXPECT_FALSE(client.AnswerComes());
  EXPECT_EQ(client.Read(6), kGoodEnable);
}

TEST_F(Faults, LetAVerySlowReaderTakeTheQuestionByteByByte) {
  PrinterProcess printer(By({"read 20 bytes/s"}));
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(stream::status_request()));
  EXPECT_FALSE(client.AnswerComes());
  EXPECT_EQ(client.Read(15), kGoodStatus);
}

TEST_F(Faults, OfAConnectionEndWithIt) {
  PrinterProcess printer(By({"read 1000000 bytes/s once"}));
  ASSERT_TRUE(print(printer.Port(), stream::status_request()));
  EXPECT_EQ(printer.WaitForLine("ended"),
            "fault \"read 1000000 bytes/s once\" ended: after 1 time");
}

TEST_F(Faults, LetASlowReaderPrintInTheEnd) {
  PrinterProcess printer(By({"read 50000 bytes/s for 0.2 s"}));
  ASSERT_TRUE(print(printer.Port(), stream::small_job()));
  EXPECT_EQ(printer.Stop(), 0);
  EXPECT_THAT(folder_.Names(), ElementsAre("sheet-0001.png", "sheets.txt"));
}

TEST_F(Faults, PrintNoMoreSheetsThanThereIsPaper) {
  PrinterProcess printer(By({"paper 1 then 0x1100"}));
  ASSERT_TRUE(print(printer.Port(), stream::join({sheet(), sheet()})));
  EXPECT_EQ(printer.WaitForLine("0x1100\" shows"), "fault \"paper 1 then 0x1100\" shows");
  EXPECT_EQ(printer.WaitForLine("status request"), "connection 1: status request, answered 0x1100");
  EXPECT_EQ(printer.WaitForLine("not printed"),
            "connection 1: the sheet is not printed: the printer did not allow it");
  EXPECT_EQ(printer.Stop(), 1);
  EXPECT_THAT(folder_.Names(), ElementsAre("sheet-0001.png", "sheets.txt"));
}

TEST_F(Faults, PrintNoSheetWithoutRibbonEvenWhenNobodyAsks) {
  PrinterProcess printer(By({"ribbon 1 then 0x1200"}));
  Bytes unasked = sheet();
  unasked.erase(unasked.begin(), unasked.begin() + 8 + 512);
  ASSERT_TRUE(print(printer.Port(), stream::join({sheet(), unasked})));
  EXPECT_EQ(printer.Stop(), 1);
  EXPECT_THAT(folder_.Names(), ElementsAre("sheet-0001.png", "sheets.txt"));
}

TEST_F(Faults, OpenTheCoverForATimeThatEndsWithoutAClient) {
  PrinterProcess printer(By({"cover 0x1300 for 0.2 s"}));
  ASSERT_TRUE(print(printer.Port(), stream::status_request()));
  EXPECT_EQ(printer.WaitForLine("ended"), "fault \"cover 0x1300 for 0.2 s\" ended: after 0.2 s");
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(stream::status_request()));
  EXPECT_EQ(client.Read(15), kGoodStatus);
}

TEST_F(Faults, ComeBeforeTheShortForms) {
  std::vector<std::string> options = By({"status 2 once"});
  options.insert(options.begin(), {"--status", "1"});
  PrinterProcess printer(options);
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(stream::join({stream::status_request(), stream::status_request()})));
  EXPECT_EQ(client.Read(15)[5], 2);
  EXPECT_EQ(client.Read(15)[5], 1);
}

TEST_F(Faults, OfAStrayByteExcuseARepeatedQuery) {
  PrinterProcess printer(By({"enable stray 00"}));
  ASSERT_TRUE(print(printer.Port(), stream::join({stream::status_request(),
                                                  stream::status_request(), query(), query()})));
  EXPECT_EQ(printer.Stop(), 0);
}

TEST_F(Faults, ThatDelayDoNotDelayTheStop) {
  PrinterProcess printer(By({"status late 3600 s"}));
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(stream::status_request()));
  ASSERT_NE(printer.WaitForLine("shows"), "");
  EXPECT_EQ(printer.Stop(), 0);
}

TEST_F(Faults, ThatReadSlowlyDoNotDelayTheStop) {
  PrinterProcess printer(By({"read 1 bytes/s"}));
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(stream::status_request()));
  ASSERT_NE(printer.WaitForLine("shows"), "");
  EXPECT_EQ(printer.Stop(), 0);
}

TEST(FaultOptions, NameTheRuleAndTheColumn) {
  const FinishedRun run = run_to_its_end({"--port", "0", "--fault", "busy 1", "--fault", "busy x"});
  EXPECT_EQ(run.errors,
            "tqr7-printer-sim: --fault 2:6: came \"x\", expected a number from 1 to 1000000000\n");
  EXPECT_EQ(run.status, 2);
}

}  // namespace
