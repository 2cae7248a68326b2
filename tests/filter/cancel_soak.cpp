// SPDX-License-Identifier: Apache-2.0
//
// Sends SIGTERM to many jobs, each at a random moment, and prints how they ended.
//   cancel_soak [JOBS [SEED]]
// Exit status 1 when one of them does not end as it should.
#include <gtest/gtest.h>
#include <sys/prctl.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <random>
#include <vector>

#include "tests/filter/cancel_soak_kinds.h"
#include "tests/filter/cancel_soak_run.h"
#include "tests/filter/descriptors.h"

namespace {

using cancel_soak::End;
using cancel_soak::kKinds;
using cancel_soak::Result;
using cancel_soak::Sheets;

constexpr unsigned long kUsualJobs = 2000;

struct Row {
  int jobs = 0;
  int killed = 0;
  int cut = 0;
  int in_data = 0;
  int undisturbed = 0;
  int failures = 0;
  double longest = 0;  // milliseconds

  void Count(const Result& result) {
    ++jobs;
    killed += result.end == End::Killed ? 1 : 0;
    cut += result.end == End::Cut ? 1 : 0;
    in_data += result.end == End::Cut && result.in_data ? 1 : 0;
    undisturbed += result.end == End::Undisturbed ? 1 : 0;
    failures += result.failure.empty() ? 0 : 1;
    longest = result.end == End::Undisturbed ? longest : std::max(longest, result.milliseconds);
  }

  void Add(const Row& other) {
    jobs += other.jobs;
    killed += other.killed;
    cut += other.cut;
    in_data += other.in_data;
    undisturbed += other.undisturbed;
    failures += other.failures;
    longest = std::max(longest, other.longest);
  }

  void Print(const char* words) const {
    std::printf("| %-21s | %5d | %6d | %6d | %6d | %11d | %7.0f | %8d |\n", words, jobs, killed,
                cut, in_data, undisturbed, longest, failures);
  }
};

std::vector<Sheets> AllSheets() {
  std::vector<Sheets> result;
  for (const filter_test::Paper& paper : filter_test::kPapers) {
    result.push_back({&paper, false});
    result.push_back({&paper, true});
  }
  return result;
}

/// Job `number` of `jobs`. The harness tells its own failures (a stream that the decoder finds
/// fault with, a job that never ends) as a test does.
void CancelOne(unsigned long number, unsigned long jobs, cancel_soak::References& references,
               std::mt19937& random, std::vector<Row>& rows) {
  static const std::vector<Sheets> kSheets = AllSheets();
  const Sheets& sheets = kSheets[number * kSheets.size() / jobs];
  const std::size_t index = number % kKinds.size();
  const cancel_soak::Kind& kind = kKinds[index];
  const testing::TestResult& harness = testing::UnitTest::GetInstance()->ad_hoc_test_result();
  const int told = harness.total_part_count();
  Result result = cancel_soak::CancelJob(kind, sheets, references.Of(kind, sheets), random);
  if (result.failure.empty() && harness.total_part_count() != told) {
    result.failure = "told above";
  }
  if (!result.failure.empty()) {
    std::printf("job %lu, %s, %s: %s\n", number, kind.words, sheets.Words().c_str(),
                result.failure.c_str());
  }
  rows[index].Count(result);
}

int Soak(unsigned long jobs, unsigned seed) {
  std::printf("%lu jobs, seed %u\n", jobs, seed);
  std::mt19937 random(seed);
  cancel_soak::References references;
  std::vector<Row> rows(kKinds.size());
  for (unsigned long number = 0; number < jobs; ++number) {
    CancelOne(number, jobs, references, random, rows);
    std::fflush(stdout);
  }
  std::printf(
      "\n| Jobs                  | Count | Killed |    Cut | … data | Undisturbed | End, ms | "
      "Failures |\n|---|---|---|---|---|---|---|---|\n");
  Row sum;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    rows[i].Print(kKinds[i].words);
    sum.Add(rows[i]);
  }
  sum.Print("all");
  return sum.failures == 0 && sum.jobs > 0 ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  filter_test::ReserveChannelDescriptors();
  std::signal(SIGPIPE, SIG_IGN);
  prctl(PR_SET_CHILD_SUBREAPER, 1);  // what a filter leaves behind becomes a child of this process
  const unsigned long jobs = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : kUsualJobs;
  const unsigned seed =
      argc > 2 ? static_cast<unsigned>(std::strtoul(argv[2], nullptr, 10)) : std::random_device{}();
  return Soak(jobs, seed);
}
