// SPDX-License-Identifier: Apache-2.0
#include "tools/job_log.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>

#include "image/file_handle.h"
#include "language/messages.h"
#include "tools/plain_text.h"

namespace tools {
namespace {

using language::_;
using language::filled;

constexpr std::size_t kLineMost = 2048;        // bytes; the scheduler writes no longer lines
constexpr std::size_t kTextMost = 16U << 20U;  // bytes that are kept of one job

// Variables of a filter's environment that say nothing about a person or a machine.
constexpr std::array<std::string_view, 10> kSurroundings = {"CHARSET",
                                                            "CONTENT_TYPE",
                                                            "CUPS_DATADIR",
                                                            "CUPS_FILETYPE",
                                                            "CUPS_MAX_MESSAGE",
                                                            "CUPS_SERVERBIN",
                                                            "LANG",
                                                            "SOFTWARE",
                                                            "PRINTER_STATE_REASONS",
                                                            "FINAL_CONTENT_TYPE"};

bool is_kept_surrounding(std::string_view text) {
  const std::size_t quote = text.find('"');
  const std::size_t equals = text.find('=', quote);
  if (quote == std::string_view::npos || equals == std::string_view::npos) {
    return false;
  }
  const std::string_view name = text.substr(quote + 1, equals - quote - 1);
  return std::find(kSurroundings.begin(), kSurroundings.end(), name) != kSurroundings.end();
}

// Rewords lines that quote a person's words. Empty for a line that must be left out.
std::string without_quotations(std::string_view text) {
  if (text.starts_with("envp[")) {
    return is_kept_surrounding(text) ? std::string(text) : std::string();
  }
  for (const std::string_view argument : {"argv[2]", "argv[3]", "argv[5]"}) {
    if (text.starts_with(argument)) {
      return std::string(argument) + "=(left out)";
    }
  }
  for (const std::string_view connect : {"Connecting to ", "Connected to "}) {
    const std::size_t colon = text.rfind(':');
    if (text.starts_with(connect) && colon != std::string_view::npos) {
      return std::string(connect) + "(address)" + std::string(text.substr(colon));
    }
  }
  for (const std::string_view begin : {"Queued on ", "File of type "}) {
    const std::size_t by = text.rfind(" by \"");
    if (text.starts_with(begin) && by != std::string_view::npos) {
      return std::string(text.substr(0, by)) + " by (user).";
    }
  }
  return std::string(text);
}

// "[CMD] 0000: 1b 47 44 30": numbers only, in which no personal word is looked for.
bool is_dump(std::string_view text) {
  constexpr std::size_t kOffset = 6;  // after "[CMD] "
  return (text.starts_with("[CMD] ") || text.starts_with("[STS] ")) &&
         text.find(": ") != std::string_view::npos &&
         text.find_first_not_of("0123456789abcdef: ", kOffset) == std::string_view::npos;
}

bool is_exchange(std::string_view text) {
  return text.starts_with("[CMD]") || text.starts_with("[STS]") ||
         text.starts_with("CUPS_SC_CMD_") || text.starts_with("CMD_GET_ENABLE") ||
         text.starts_with("=======> printer_state");
}

// Both return why the log could not be read to its end, or nothing.
std::string take_file(const std::string& path, JobLog& log) {
  std::ifstream file(path, std::ios::binary);
  for (std::string line; std::getline(file, line);) {
    log.Take(line);
  }
  return file.eof() ? "" : _("the file cannot be read");
}

std::string take_scheduler_log(Scheduler& scheduler, JobLog& log) {
  const FileHandle file(std::tmpfile());
  if (file == nullptr) {
    return _("no temporary file can be made");
  }
  const Outcome outcome = scheduler.GetFile("/admin/log/error_log", fileno(file.get()));
  if (outcome != Outcome::Done) {
    return outcome == Outcome::Forbidden ? _("you have no right to read it") : scheduler.Error();
  }
  std::rewind(file.get());
  std::string line;
  for (int letter = std::fgetc(file.get()); letter != EOF; letter = std::fgetc(file.get())) {
    if (letter == '\n') {
      log.Take(line);
      line.clear();
    } else {
      line += static_cast<char>(letter);
    }
  }
  log.Take(line);
  return {};
}

}  // namespace

JobLog::JobLog(int job, const PersonalWords& words)
    : mark_("[Job " + std::to_string(job) + "] "), words_(words) {}

void JobLog::Take(std::string_view line) {
  // "D [21/Nov/2026:10:08:13 +0000] [Job 1] …": the mark follows the time.
  const std::size_t time = line.find("] ");
  if (time == std::string_view::npos || !line.substr(time + 2).starts_with(mark_)) {
    return;
  }
  const std::string head(line.substr(0, time + 2));
  const std::string text = without_quotations(line.substr(time + 2 + mark_.size()));
  if (text.empty() || lines_.size() > kTextMost) {
    return;
  }
  const std::string plain = plain_text(is_dump(text) ? text : words_.Without(text), kLineMost);
  debug_ = debug_ || line.front() == 'D' || line.front() == 'd';
  lines_ += plain_text(head) + mark_ + plain + "\n";
  if (is_exchange(text)) {
    exchanges_ += plain + "\n";
  }
}

std::string read_log(Scheduler& scheduler, const std::string& path, JobLog& log) {
  const std::string why_not =
      path.empty() ? take_scheduler_log(scheduler, log) : take_file(path, log);
  if (!why_not.empty()) {
    return filled(_("The log could not be read: %s. Make the report as root, or name the log: "
                    "--log /var/log/cups/error_log"),
                  why_not.c_str());
  }
  if (log.Lines().empty()) {
    return _(
        "The log has no lines of this job. The scheduler writes lines of the level debug after "
        "`cupsctl --debug-logging`; print again, then make the report again. `cupsctl "
        "--no-debug-logging` ends it.");
  }
  if (!log.HasDebugLines()) {
    return _(
        "The log has no lines of the level debug for this job. The scheduler writes them after "
        "`cupsctl --debug-logging`; print again, then make the report again. `cupsctl "
        "--no-debug-logging` ends it.");
  }
  return {};
}

}  // namespace tools
