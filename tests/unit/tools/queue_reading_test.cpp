// SPDX-License-Identifier: Apache-2.0
//
// The scheduler's answers as records, also answers that no scheduler would give.
#include "tools/queue_reading.h"

#include <cups/cups.h>
#include <gmock/gmock.h>

#include <memory>

using testing::ElementsAre;
using testing::IsEmpty;
using tools::JobState;
using tools::QueueList;
using tools::QueueState;

namespace {

class Answer {
 public:
  Answer() : message_(ippNewResponse(request_.get())) {}

  Answer& Name(ipp_tag_t group, const char* name, const char* value) {
    ippAddString(message_.get(), group, IPP_TAG_NAME, name, nullptr, value);
    return *this;
  }
  Answer& Uri(ipp_tag_t group, const char* name, const char* value) {
    ippAddString(message_.get(), group, IPP_TAG_URI, name, nullptr, value);
    return *this;
  }
  Answer& Number(ipp_tag_t group, const char* name, int value) {
    ippAddInteger(message_.get(), group, IPP_TAG_INTEGER, name, value);
    return *this;
  }
  Answer& Enum(ipp_tag_t group, const char* name, int value) {
    ippAddInteger(message_.get(), group, IPP_TAG_ENUM, name, value);
    return *this;
  }
  Answer& Next() {
    ippAddSeparator(message_.get());
    return *this;
  }
  ipp_t* Message() { return message_.get(); }

 private:
  struct Free {
    void operator()(ipp_t* message) const { ippDelete(message); }
  };
  std::unique_ptr<ipp_t, Free> request_{ippNewRequest(IPP_OP_CUPS_GET_PRINTERS)};
  std::unique_ptr<ipp_t, Free> message_;
};

constexpr ipp_tag_t kPrinter = IPP_TAG_PRINTER;
constexpr ipp_tag_t kJob = IPP_TAG_JOB;

}  // namespace

TEST(QueueReading, ReadsQueuesByName) {
  Answer answer;
  answer.Name(kPrinter, "printer-name", "photo")
      .Name(kPrinter, "printer-make-and-model", "CORVANTIEL TQR7")
      .Enum(kPrinter, "printer-state", 5)
      .Name(kPrinter, "printer-state-message", "Paused")
      .Number(kPrinter, "printer-state-change-time", 1234)
      .Uri(kPrinter, "device-uri", "socket://printer")
      .Next()
      .Name(kPrinter, "printer-name", "album")
      .Enum(kPrinter, "printer-state", 3);
  const QueueList list = tools::read_queues(answer.Message());
  ASSERT_EQ(list.queues.size(), 2U);
  EXPECT_EQ(list.queues[0].name, "album");
  EXPECT_EQ(list.queues[0].state, QueueState::Idle);
  EXPECT_EQ(list.queues[1].name, "photo");
  EXPECT_EQ(list.queues[1].state, QueueState::Stopped);
  EXPECT_EQ(list.queues[1].makeAndModel, "CORVANTIEL TQR7");
  EXPECT_EQ(list.queues[1].message, "Paused");
  EXPECT_EQ(list.queues[1].changedAt, 1234);
  EXPECT_EQ(list.queues[1].deviceUri, "socket://printer");
}

TEST(QueueReading, TellsAClassByItsType) {
  Answer answer;
  answer.Name(kPrinter, "printer-name", "room")
      .Enum(kPrinter, "printer-type", static_cast<int>(CUPS_PRINTER_CLASS | CUPS_PRINTER_COLOR))
      .Name(kPrinter, "member-names", "left");
  const QueueList list = tools::read_queues(answer.Message());
  ASSERT_EQ(list.queues.size(), 1U);
  EXPECT_TRUE(list.queues[0].isClass);
  EXPECT_THAT(list.queues[0].members, ElementsAre("left"));
}

TEST(QueueReading, PassesOverAQueueWithoutAName) {
  Answer answer;
  answer.Enum(kPrinter, "printer-state", 3);
  EXPECT_THAT(tools::read_queues(answer.Message()).queues, IsEmpty());
}

TEST(QueueReading, TakesNothingFromAttributesOfAnotherType) {
  Answer answer;
  answer.Name(kPrinter, "printer-name", "photo")
      .Name(kPrinter, "printer-state", "stopped")
      .Name(kPrinter, "printer-state-change-time", "yesterday")
      .Number(kPrinter, "printer-is-accepting-jobs", 1)
      .Number(kPrinter, "printer-state-message", 7)
      .Number(kPrinter, "printer-state-reasons", 7);
  const QueueList list = tools::read_queues(answer.Message());
  ASSERT_EQ(list.queues.size(), 1U);
  EXPECT_EQ(list.queues[0].state, QueueState::Unknown);
  EXPECT_EQ(list.queues[0].changedAt, 0);
  EXPECT_FALSE(list.queues[0].accepting);
  EXPECT_EQ(list.queues[0].message, "");
  EXPECT_THAT(list.queues[0].reasons, IsEmpty());
}

TEST(QueueReading, TakesATimeBeforeAllTimesForNone) {
  Answer answer;
  answer.Name(kPrinter, "printer-name", "photo").Number(kPrinter, "printer-state-change-time", -5);
  EXPECT_EQ(tools::read_queues(answer.Message()).queues.at(0).changedAt, 0);
}

TEST(QueueReading, KnowsNoStateOutsideTheStandard) {
  Answer answer;
  answer.Name(kPrinter, "printer-name", "photo").Enum(kPrinter, "printer-state", 261);
  EXPECT_EQ(tools::read_queues(answer.Message()).queues.at(0).state, QueueState::Unknown);
}

TEST(QueueReading, GivesEachQueueItsJobsByNumber) {
  QueueList list;
  list.queues.resize(1);
  list.queues[0].name = "photo";
  Answer answer;
  answer.Number(kJob, "job-id", 9)
      .Uri(kJob, "job-printer-uri", "ipp://localhost/printers/photo")
      .Enum(kJob, "job-state", 6)
      .Name(kJob, "job-printer-state-message", "Filter failed")
      .Next()
      .Number(kJob, "job-id", 8)
      .Uri(kJob, "job-printer-uri", "ipp://localhost/printers/photo")
      .Enum(kJob, "job-state", 3)
      .Next()
      .Number(kJob, "job-id", 7)
      .Uri(kJob, "job-printer-uri", "ipp://localhost/printers/other");
  tools::read_jobs(answer.Message(), list);
  ASSERT_EQ(list.queues[0].jobs.size(), 2U);
  EXPECT_EQ(list.queues[0].jobs[0].id, 8);
  EXPECT_EQ(list.queues[0].jobs[0].state, JobState::Pending);
  EXPECT_EQ(list.queues[0].jobs[1].id, 9);
  EXPECT_EQ(list.queues[0].jobs[1].state, JobState::Stopped);
  EXPECT_EQ(list.queues[0].jobs[1].printerMessage, "Filter failed");
}

TEST(QueueReading, TellsAJobOfCommandsByItsFormatDetectedOrNot) {
  QueueList list;
  list.queues.resize(1);
  list.queues[0].name = "photo";
  Answer answer;
  answer.Number(kJob, "job-id", 8)
      .Uri(kJob, "job-printer-uri", "ipp://localhost/printers/photo")
      .Name(kJob, "document-format", "application/vnd.cups-command")
      .Next()
      .Number(kJob, "job-id", 9)
      .Uri(kJob, "job-printer-uri", "ipp://localhost/printers/photo")
      .Name(kJob, "document-format-detected", "application/vnd.cups-command");
  tools::read_jobs(answer.Message(), list);
  ASSERT_EQ(list.queues[0].jobs.size(), 2U);
  EXPECT_TRUE(tools::is_command(list.queues[0].jobs[0]));
  EXPECT_TRUE(tools::is_command(list.queues[0].jobs[1]));
}

TEST(QueueReading, PassesOverJobsWithoutANumber) {
  QueueList list;
  list.queues.resize(1);
  list.queues[0].name = "photo";
  Answer answer;
  answer.Uri(kJob, "job-printer-uri", "ipp://localhost/printers/photo").Enum(kJob, "job-state", 6);
  tools::read_jobs(answer.Message(), list);
  EXPECT_THAT(list.queues[0].jobs, IsEmpty());
}

TEST(QueueOfUri, IsTheLastPartDecoded) {
  EXPECT_EQ(tools::queue_of_uri("ipp://localhost/printers/photo"), "photo");
  EXPECT_EQ(tools::queue_of_uri("ipp://localhost:631/classes/gro%C3%9F"), "groß");
  EXPECT_EQ(tools::queue_of_uri("no address"), "");
  EXPECT_EQ(tools::queue_of_uri(""), "");
}
