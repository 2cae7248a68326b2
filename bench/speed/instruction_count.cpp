// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/instruction_count.h"

#include <cstdlib>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/filter/temporary_folder.h"

namespace bench {

namespace {

constexpr const char* kNoStringInstructions =
    "glibc.cpu.x86_rep_movsb_threshold=1000000000:glibc.cpu.x86_rep_stosb_threshold=1000000000";

/// "(3) /lib/libc.so.6" where a name stands for the first time, "(3)" from then on.
class Names {
 public:
  const std::string& of(const std::string& text) {
    const std::size_t end = text.find(')');
    std::string& name = names_[text.substr(0, end)];
    if (end != std::string::npos && end + 1 < text.size()) {
      name = text.substr(text.find_last_of("/ ") + 1);
    }
    return name;
  }

 private:
  std::map<std::string, std::string> names_;
};

/// A line of costs is a position, which may be relative, and a number.
bool is_cost(const std::string& line) {
  return !line.empty() && (std::string_view("+-*").find(line[0]) != std::string_view::npos ||
                           (line[0] >= '0' && line[0] <= '9'));
}

std::uint64_t cost_of(const std::string& line) {
  const std::size_t blank = line.find(' ');
  return blank == std::string::npos ? 0 : std::strtoull(line.c_str() + blank, nullptr, 10);
}

}  // namespace

InstructionCount read_callgrind(const std::string& text) {
  InstructionCount result;
  Names files;
  std::uint64_t* file = &result.by_file["?"];
  std::uint64_t told = 0;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("ob=")) {
      file = &result.by_file[files.of(line.substr(3))];
    } else if (line.starts_with("cob=")) {
      files.of(line.substr(4));
    } else if (line.starts_with("calls=")) {
      std::getline(lines, line);  // what the called function took: it stands there, too
    } else if (line.starts_with("totals: ")) {
      told = cost_of(line);
    } else if (is_cost(line)) {
      *file += cost_of(line);
      result.total += cost_of(line);
    }
  }
  if (told == 0 || told != result.total) {
    throw std::runtime_error("callgrind's output cannot be read: " + std::to_string(told) +
                             " instructions in all, " + std::to_string(result.total) + " found");
  }
  return result;
}

InstructionCount count_instructions(MeteredRun run) {
  const filter_test::TemporaryFolder folder;
  const std::string counts = folder.Path("counts");
  std::vector<std::string> words = {"valgrind", "--tool=callgrind", "-q",
                                    "--callgrind-out-file=" + counts};
  words.insert(words.end(), run.argv.begin(), run.argv.end());
  run.argv = std::move(words);
  run.environment["GLIBC_TUNABLES"] = kNoStringInstructions;
  measure(run);
  return read_callgrind(folder.Read("counts"));
}

}  // namespace bench
