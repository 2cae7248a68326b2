// SPDX-License-Identifier: Apache-2.0
#include "tools/log_reading.h"

#include <cstdio>
#include <fstream>
#include <memory>

#include "language/messages.h"

namespace tools {
namespace {

using language::_;
using language::filled;

// Each of these returns nothing when the log was read to its end, else why not.
std::string take_file(const std::string& path, JobLog& log) {
  std::ifstream file(path, std::ios::binary);
  for (std::string line; std::getline(file, line);) {
    log.Take(line);
  }
  return file.eof() ? "" : _("the file cannot be read");
}

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

std::string take_scheduler_log(Scheduler& scheduler, JobLog& log) {
  const std::unique_ptr<std::FILE, CloseFile> file(std::tmpfile());
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
        "The log holds no lines of this job. Lines of the level debug come once `cupsctl "
        "--debug-logging` was said; print again, then make the report again. `cupsctl "
        "--no-debug-logging` ends it.");
  }
  if (!log.HasDebugLines()) {
    return _(
        "The log holds no lines of the level debug on this job. Lines of the level debug come "
        "once `cupsctl --debug-logging` was said; print again, then make the report again. "
        "`cupsctl --no-debug-logging` ends it.");
  }
  return {};
}

}  // namespace tools
