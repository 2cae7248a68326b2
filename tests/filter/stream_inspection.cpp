// SPDX-License-Identifier: Apache-2.0
#include "tests/filter/stream_inspection.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <sstream>

namespace filter_test {
namespace {

constexpr int kNoErrors = 0;
constexpr int kErrorsFound = 1;

/// The exit status of `tqr7 inspect`, whose listing is left in a file.
int Inspect(const std::string& stream_path, const std::string& listing_path) {
  const pid_t child = fork();
  if (child == 0) {
    const int listing = open(listing_path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    dup2(listing, STDOUT_FILENO);
    // Whether the tool releases all of its memory is for its own tests to tell.
    setenv("ASAN_OPTIONS", "detect_leaks=0", 1);
    execl(FILTER_TEST_TOOL, "tqr7", "inspect", "--brief", stream_path.c_str(), nullptr);
    _exit(127);
  }
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

std::string ErrorLines(const std::string& listing) {
  std::istringstream lines(listing);
  std::string errors;
  for (std::string line; std::getline(lines, line);) {
    errors += line.starts_with("error: ") ? line + "\n" : "";
  }
  return errors;
}

/// One line, which says that the stream's end came too early.
bool TellsTheCutOnly(const std::string& errors, std::size_t length) {
  return errors.starts_with("error: offset " + std::to_string(length) + ": ") &&
         errors.find(": came the end after ") != std::string::npos &&
         errors.find('\n') == errors.size() - 1;
}

/// At least one line, and each is about a date.
bool TellsOfDatesOnly(const std::string& errors) {
  std::istringstream lines(errors);
  for (std::string line; std::getline(lines, line);) {
    if (line.find(": image header, year: ") == std::string::npos &&
        line.find(": image header, month: ") == std::string::npos &&
        line.find(": image header, day: ") == std::string::npos) {
      return false;
    }
  }
  return !errors.empty();
}

}  // namespace

testing::AssertionResult PassesInspection(const std::string& stream, StreamEnd end,
                                          const TemporaryFolder& folder) {
  if (stream.empty() || end == StreamEnd::Unlooked) {
    return testing::AssertionSuccess();
  }
  const int status = Inspect(folder.Write("stream", stream), folder.Path("listing"));
  const std::string errors = ErrorLines(folder.Read("listing"));
  const bool clean = status == kNoErrors && errors.empty();
  const bool cut = status == kErrorsFound && TellsTheCutOnly(errors, stream.size());
  const bool undated = status == kErrorsFound && TellsOfDatesOnly(errors);
  if ((clean && (end == StreamEnd::Whole || end == StreamEnd::Anywhere)) ||
      (cut && (end == StreamEnd::Cut || end == StreamEnd::Anywhere)) ||
      (undated && end == StreamEnd::Undated)) {
    return testing::AssertionSuccess();
  }
  return testing::AssertionFailure()
         << "tqr7 inspect ends with " << status << " and says of the job's stream:\n"
         << (errors.empty() ? "(no error)\n" : errors);
}

}  // namespace filter_test
