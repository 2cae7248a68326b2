// SPDX-License-Identifier: Apache-2.0
//
// Memory that runs out at each request of a job in turn, whoever asks: once, and for good.
//
// The usual run refuses the first and the last request of each way of calls that leads to one,
// which takes seconds. FILTER_TEST_EVERY_REQUEST=1 refuses every single one, for minutes.
#include <gtest/gtest.h>

#include <iostream>
#include <set>
#include <sstream>

#include "tests/filter/command_job.h"
#include "tests/filter/comparison.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

constexpr std::size_t kSheetWidth = 1852;
constexpr std::size_t kSheetHeight = 1232;
constexpr std::size_t kImageBytes = kSheetWidth * kSheetHeight * 6;
constexpr std::size_t kMatteBytes = kSheetWidth * (kSheetHeight + 12);

const Settings kMatteJoined{.paper = &kJoined, .finish = kMatte};

/// Two joined sheets, the second with a lone page; the compressed raster has libcups ask for more.
Job MatteJoinedJob(int count = 3) {
  std::vector<RasterPage> pages;
  for (int number = 1; number <= count; ++number) {
    pages.emplace_back(SmallPixels(number));
  }
  return {.input = RasterStream(pages, CUPS_RASTER_WRITE_COMPRESSED),
          .options = "PageSize=RQ_5x15x2_2 RQPrintFinish=Matte",
          .stream_end = StreamEnd::Unlooked};
}

Job StatusJob() {
  Job job = CommandJob("ReportStatus\n");
  job.stream_end = StreamEnd::Unlooked;
  return job;
}

/// Adds the stream without one plane or both of the sheet whose image begins there.
void AddWithoutPlanes(const std::string& stream, std::size_t image, std::set<std::string>* add) {
  add->insert(std::string(stream).erase(image, kImageBytes));
  add->insert(std::string(stream).erase(image + kImageBytes, kMatteBytes));
  add->insert(std::string(stream).erase(image, kImageBytes + kMatteBytes));
}

class MissingMemoryAtEachRequest : public testing::TestWithParam<const char*> {
 protected:
  Outcome PrintRefusing(Job job, const std::string& request) {
    job.environment["LD_PRELOAD"] = FILTER_TEST_MEMORY ":" FILTER_TEST_INTERPOSER;
    job.environment["FILTER_TEST_REQUESTS"] = folder_.Path("requests");
    job.environment["FILTER_TEST_CRASH"] = folder_.Write("crash", "");
    if (!request.empty()) {
      job.environment["FILTER_TEST_REFUSE"] = request;
    }
    return Print(job);
  }

  /// Prints the job undisturbed, and then without each request's memory. `shortened` is how the
  /// stream of a job may look that notices nothing, `early` that of one whose pages end early.
  void RefuseEach(const Job& job, const std::set<std::string>& shortened,
                  const std::set<std::string>& early) {
    undisturbed_ = PrintRefusing(job, "");
    ASSERT_EQ(undisturbed_.status, 0);
    const std::set<int> requests = RequestsToRefuse();
    ASSERT_GT(requests.size(), 20U);
    for (const int request : requests) {
      SCOPED_TRACE("request " + std::to_string(request) + GetParam());
      Judge(PrintRefusing(job, std::to_string(request) + GetParam()), shortened, early);
    }
    std::cout << requests.size() << " requests refused: " << whole_ << " jobs whole, " << shortened_
              << " without a plane or the last sheet, " << ended_ << " ended with a reason";
    for (const auto& [function, count] : crashes_) {
      std::cout << ", " << count << " crashed inside " << function;
    }
    std::cout << '\n';
  }

 private:
  std::set<int> RequestsToRefuse() const {
    std::istringstream numbers(folder_.Read("requests"));
    std::set<int> requests;
    int count = 0;
    numbers >> count;
    if (std::getenv("FILTER_TEST_EVERY_REQUEST") != nullptr) {
      for (int request = 1; request <= count; ++request) {
        requests.insert(request);
      }
    }
    for (int request = 0; numbers >> request;) {
      requests.insert(request);
    }
    return requests;
  }

  void Judge(const Outcome& outcome, const std::set<std::string>& shortened,
             const std::set<std::string>& early) {
    const bool prefix = undisturbed_.stream.starts_with(outcome.stream);
    if (outcome.signal != 0) {
      EXPECT_TRUE(prefix);
      ExpectCrashOfTheSystems(folder_.Read("crash"), outcome);
    } else if (outcome.status == 0 && outcome.stream == undisturbed_.stream) {
      ++whole_;
    } else if (outcome.status == 0) {
      EXPECT_TRUE(shortened.contains(outcome.stream)) << outcome.log;
      ++shortened_;
    } else {
      EXPECT_EQ(outcome.status, 1);
      EXPECT_TRUE(prefix || (early.contains(outcome.stream) && EndedEarly(outcome.log)))
          << outcome.log;
      EXPECT_TRUE(EndedEarly(outcome.log) || EndsWithAReason(outcome.log)) << outcome.log;
      ++ended_;
    }
  }

  // libcups 2.4.2 uses what it asked for without a look at it in a few places, behind each of these
  // calls; no argument of the filter's own keeps it from that.
  void ExpectCrashOfTheSystems(const std::string& function, const Outcome& outcome) {
    const std::set<std::string> known = {"_cupsRasterNew", "_ppdOpenFile", "cupsParseOptions",
                                         "cupsSideChannelDoRequest", "cupsGetDests2"};
    EXPECT_TRUE(known.contains(function))
        << "signal " << outcome.signal << " in " << function << '\n'
        << outcome.log;
    ++crashes_[function];
  }

  // An error, or one of the ends without one that are laid down: a band that cannot be had, a check
  // of the printer that cannot be made.
  static bool EndsWithAReason(const std::string& log) {
    const std::string line = LastLine(log);
    return line.starts_with("ERROR: ") || line.starts_with("DEBUG: Params=") ||
           line.starts_with("DEBUG: OpRate=") ||
           line.starts_with("DEBUG: Unable to retrieve supply status from printer") ||
           log.ends_with("DEBUG: ExaminePage() Error\n[sleep 1]\n");
  }

  // What was read before is printed after this line.
  static bool EndedEarly(const std::string& log) {
    return log.find("\nERROR: Not enough memory for the job\n") != std::string::npos;
  }

  static std::string LastLine(const std::string& log) {
    const std::string lines = log.substr(0, log.size() - 1);
    return lines.substr(lines.rfind('\n') + 1);
  }

  TemporaryFolder folder_;
  Outcome undisturbed_;
  int whole_ = 0;
  int shortened_ = 0;
  int ended_ = 0;
  std::map<std::string, int> crashes_;
};

TEST_P(MissingMemoryAtEachRequest, EndsAMatteJoinedJobWithAReasonOrPrintsIt) {
  const std::string before = StatusRequest() + StatusRequest() + ReadinessQuery(kMatteJoined) +
                             JobHeader(kMatteJoined) + ImageHeader(kMatteJoined);
  const Outcome whole = Print(MatteJoinedJob());
  const std::size_t sheet = whole.stream.size() - PrintOut().size() - StatusRequest().size();
  ASSERT_EQ(sheet % 2, 0U);
  const std::size_t image = before.size();
  const std::size_t second_image = image + sheet / 2;
  std::set<std::string> shortened;
  AddWithoutPlanes(whole.stream, image, &shortened);
  AddWithoutPlanes(whole.stream, second_image, &shortened);
  // The lone sheet at the end: a readiness check that fails by itself refuses it, which the job's
  // end does not look at.
  const std::size_t headers = JobHeader(kMatteJoined).size() + ImageHeader(kMatteJoined).size();
  shortened.insert(whole.stream.substr(0, second_image - headers) + PrintOut());

  const std::string one_sheet = Print(MatteJoinedJob(2)).stream;
  std::set<std::string> early = {StatusRequest() + PrintOut(), Print(MatteJoinedJob(1)).stream,
                                 one_sheet, whole.stream};
  AddWithoutPlanes(one_sheet, image, &early);
  RefuseEach(MatteJoinedJob(), shortened, early);
}

TEST_P(MissingMemoryAtEachRequest, EndsAStatusReportWithAReasonOrMakesIt) {
  RefuseEach(StatusJob(), {}, {});
}

TEST(GrantedMemory, IsNoReasonToEndAJobWhateverErrnoSays) {
  Job job = MatteJoinedJob();
  const Outcome quiet = Print(job);
  job.environment = {{"LD_PRELOAD", FILTER_TEST_MEMORY ":" FILTER_TEST_INTERPOSER},
                     {"FILTER_TEST_ERRNO", "1"}};

  const Outcome outcome = Print(job);

  EXPECT_EQ(outcome.status, 0);
  EXPECT_TRUE(SameStream(outcome.stream, quiet.stream));
  EXPECT_TRUE(SameLog(outcome.log, quiet.log));
}

INSTANTIATE_TEST_SUITE_P(Once, MissingMemoryAtEachRequest, testing::Values(""));
INSTANTIATE_TEST_SUITE_P(ForGood, MissingMemoryAtEachRequest, testing::Values("+"));

}  // namespace
}  // namespace filter_test
