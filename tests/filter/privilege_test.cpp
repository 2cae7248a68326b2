// SPDX-License-Identifier: Apache-2.0
//
// What a whole job opens, connects to and starts, seen by strace and held against
// allowed_calls.txt.
#include <fnmatch.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <set>
#include <sstream>

#include "tests/filter/command_job.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

using Calls = std::set<std::string>;

/// "call argument", the argument being the file or the socket's family, or empty.
std::string Named(const std::string& call, const std::string& arguments) {
  static const std::regex kFile("\"([^\"]*)\"");
  static const std::regex kFamily("AF_\\w+");
  std::smatch found;
  if (std::regex_search(arguments, found, kFile)) {
    return call + ' ' + found[1].str();
  }
  if (std::regex_search(arguments, found, kFamily)) {
    return call + ' ' + found[0].str();
  }
  return call;
}

/// The calls of a trace; a line that is none comes back as it stands.
Calls CallsOf(const std::string& trace) {
  static const std::regex kCall("^[0-9]+ +(\\w+)\\((.*)$");
  static const std::regex kNoCall("^[0-9]+ +(\\+\\+\\+ exited with [0-9]+ \\+\\+\\+)$");
  std::istringstream lines(trace);
  Calls calls;
  std::smatch found;
  for (std::string line; std::getline(lines, line);) {
    if (std::regex_match(line, found, kCall)) {
      calls.insert(Named(found[1], found[2]));
    } else if (!std::regex_match(line, found, kNoCall)) {
      calls.insert(line);
    }
  }
  return calls;
}

/// The patterns of the list, with the places of this run in them.
std::vector<std::string> AllowedCalls(const std::string& folder) {
  std::ifstream list(FILTER_TEST_ALLOWED_CALLS);
  std::vector<std::string> patterns;
  for (std::string line; std::getline(list, line);) {
    if (line.empty() || line.front() == '#') {
      continue;
    }
    for (const auto& [name, place] : std::map<std::string, std::string>{
             {"@INSTALLED@", FILTER_TEST_BUILD}, {"@JOB@", folder}}) {
      const std::size_t at = line.find(name);
      if (at != std::string::npos) {
        line.replace(at, name.size(), place);
      }
    }
    patterns.push_back(line);
  }
  return patterns;
}

bool Allowed(const std::string& call, const std::vector<std::string>& patterns) {
  return std::any_of(patterns.begin(), patterns.end(), [&call](const std::string& pattern) {
    return fnmatch(pattern.c_str(), call.c_str(), 0) == 0;
  });
}

std::string CallsNotAllowed(const std::string& trace, const std::string& folder) {
  const std::vector<std::string> patterns = AllowedCalls(folder);
  std::string result;
  for (const std::string& call : CallsOf(trace)) {
    result += Allowed(call, patterns) ? "" : call + '\n';
  }
  return result;
}

/// The job of a program as it is installed: without the tests' preloaded library, and with the
/// library that it is built with.
Outcome Trace(Job job, const std::string& program, const TemporaryFolder& folder) {
  const std::string ppd = folder.Write(
      "printer.ppd",
      Ppd{.filters = {"application/vnd.cups-raster 0 " FILTER_TEST_BUILD "/rastertoprinter"}}
          .Text());
  job.ppd.reset();
  job.program = "/usr/bin/strace";
  job.arguments = {"-f",
                   "-qq",
                   "-o",
                   folder.Path("trace"),
                   "-e",
                   "trace=%file,%network,%process",
                   std::string(FILTER_TEST_BUILD "/") + program,
                   "7",
                   "anna",
                   "Beach",
                   "1",
                   job.options};
  job.environment = {{"LD_PRELOAD", ""},
                     {"PPD", ppd},
                     {"HOME", folder.Path("")},
                     {"CUPS_SERVER", folder.Path("scheduler")},
                     {"CUPS_SERVERROOT", folder.Path("")}};
  return Print(job);
}

constexpr char kNoTrace[] =
    "strace is missing, or this machine forbids ptrace: this test cannot do without them";

TEST(Privilege, OfAMatteJoinedJobIsWhatTheListAllows) {
  const TemporaryFolder folder;
  const Outcome outcome =
      Trace({.input = SmallRaster(2), .options = "PageSize=RQ_5x15x2_2 RQPrintFinish=Matte"},
            "rastertoprinter", folder);
  const std::string trace = folder.Read("trace");

  ASSERT_NE(trace.find("execve("), std::string::npos) << kNoTrace;
  EXPECT_EQ(CallsNotAllowed(trace, folder.Path("")), "");
  EXPECT_NE(trace.find("\"tqr7.icc\""), std::string::npos) << "the photo was not converted";
  EXPECT_EQ(outcome.status, 0);
}

TEST(Privilege, OfAStatusReportIsWhatTheListAllows) {
  const TemporaryFolder folder;
  Job job;
  job.input = kMark + "ReportStatus\n";
  const Outcome outcome = Trace(job, "commandtoprinter", folder);
  const std::string trace = folder.Read("trace");

  ASSERT_NE(trace.find("execve("), std::string::npos) << kNoTrace;
  EXPECT_EQ(CallsNotAllowed(trace, folder.Path("")), "");
  EXPECT_EQ(outcome.status, 0);
}

TEST(Privilege, IsExceededByAnyOtherFileSocketOrProgram) {
  const std::string trace =
      "7 openat(AT_FDCWD, \"/etc/shadow\", O_RDONLY) = 3\n"
      "7 openat(AT_FDCWD, \"/etc/passwd\", O_RDONLY|O_CLOEXEC) = 3\n"
      "7 socket(AF_INET, SOCK_STREAM, IPPROTO_IP) = 4\n"
      "7 connect(4, {sa_family=AF_INET, sin_port=htons(80)}, 16) = 0\n"
      "7 execve(\"/bin/sh\", [\"sh\"], 0x7ffc /* 9 vars */) = 0\n"
      "7 vfork() = 8\n"
      "7 unlink(\"/tmp/x\") = 0\n"
      "8 <... vfork resumed>) = 0\n"
      "7 +++ exited with 0 +++\n";

  EXPECT_EQ(CallsNotAllowed(trace, "/job/"),
            "8 <... vfork resumed>) = 0\nconnect AF_INET\nexecve /bin/sh\nopenat /etc/shadow\n"
            "socket AF_INET\nunlink /tmp/x\nvfork\n");
}

}  // namespace
}  // namespace filter_test
