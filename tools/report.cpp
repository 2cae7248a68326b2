// SPDX-License-Identifier: Apache-2.0
//
// tqr7 report: writes a bundle for a bug report, with everything that is needed to find a fault,
// and without what is personal: no picture, no titles, no names.
#include <charconv>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "language/messages.h"
#include "tools/bundle.h"
#include "tools/byte_source.h"
#include "tools/command_line.h"
#include "tools/condition.h"
#include "tools/header_blocks.h"
#include "tools/job_log.h"
#include "tools/personal_words.h"
#include "tools/plain_text.h"
#include "tools/queue_choice.h"
#include "tools/report_texts.h"
#include "tools/scheduler.h"
#include "tools/subcommands.h"

namespace tools {
namespace {

using language::_;
using language::filled;

struct ReportOptions {
  std::string job;
  std::string output;
  std::string log;
  std::string stream;
};

// The job that the report is about, and its queue.
struct Subject {
  const Queue* queue = nullptr;
  int job = 0;
};

void complain(const std::string& sentence) {
  tools::complain("report", sentence);
}

// Reads "12" or "photo-12"; 0 when there is no number.
int job_number(const std::string& text) {
  const std::size_t dash = text.rfind('-');
  const char* const begin = text.c_str() + (dash == std::string::npos ? 0 : dash + 1);
  const char* const end = text.c_str() + text.size();
  int number = 0;
  const auto [stop, error] = std::from_chars(begin, end, number);
  return error == std::errc{} && stop == end && number > 0 ? number : 0;
}

// The job with that number; without a number, the job that ran last.
Subject find_subject(const std::vector<const Queue*>& queues, int number) {
  Subject subject;
  std::tuple<std::int64_t, int> last{-1, 0};
  for (const Queue* const queue : queues) {
    for (const Job& job : queue->jobs) {
      const std::tuple<std::int64_t, int> time{job.processingSince, job.id};
      const bool wanted = number > 0 ? job.id == number : !is_command(job) && time > last;
      if (wanted) {
        subject = {queue, job.id};
        last = time;
      }
    }
  }
  return subject;
}

void add_log(Scheduler& scheduler, const ReportOptions& options, JobLog& log,
             std::vector<BundleFile>& files) {
  std::string note = read_log(scheduler, options.log, log);
  if (!note.empty()) {
    complain(note);
    note += "\n";
  }
  files.push_back({"log.txt", note + log.Lines()});
  files.push_back({"exchanges.txt", note + log.Exchanges()});
}

bool add_stream(const ReportOptions& options, std::vector<BundleFile>& files) {
  if (options.stream.empty()) {
    return true;
  }
  HeaderBlocks blocks;
  const std::string why_not =
      for_each_piece(options.stream, [&](auto bytes) { blocks.Feed(bytes); });
  if (!why_not.empty()) {
    complain(plain_text(options.stream) + ": " + why_not);
    return false;
  }
  blocks.Finish();
  files.push_back({"stream.txt", blocks.Text()});
  return true;
}

std::string readme(const Subject& subject, bool withStream) {
  return "A report of tqr7 on job " + std::to_string(subject.job) +
         ", to find a fault by.\n\n"
         "versions.txt   of the tool, of CUPS and of the system\n"
         "status.txt     what tqr7 status says of the queue\n"
         "queue.txt      the queue's attributes, as far as they bear on printing\n"
         "ppd.txt        the options of the queue's PPD, with their defaults\n"
         "job.txt        the job's attributes and options\n"
         "log.txt        the job's lines of the scheduler's error log\n"
         "exchanges.txt  of these, the commands to the printer and its answers, in hexadecimal\n" +
         std::string(withStream ? "stream.txt     the commands of the captured stream, without "
                                  "image and matte data\n"
                                : "") +
         "\nThe picture is not in it, nor any part of it. The job's title, the names of "
         "documents,\n"
         "the user's name, the names of machines and numeric network addresses were left out or\n"
         "replaced, such as by (title). Whoever sends the report looks it through before.\n";
}

// The addresses of the printers that may get the queue's jobs.
std::vector<std::string> printers_of(const QueueList& list, const Queue& queue) {
  std::vector<std::string> addresses = {queue.deviceUri};
  for (const std::string& name : queue.members) {
    if (const Queue* const member = list.Find(name)) {
      addresses.push_back(member->deviceUri);
    }
  }
  return addresses;
}

// A class has no PPD, so one of its members is asked.
std::string queue_with_ppd(const QueueList& list, const Queue& queue) {
  for (const std::string& name : queue.members) {
    const Queue* const member = list.Find(name);
    if (member != nullptr && list.IsOurs(*member)) {
      return name;
    }
  }
  return queue.name;
}

PpdText read_ppd(Scheduler& scheduler, const std::string& queue) {
  const std::string path = scheduler.CopyPpd(queue);
  PpdText ppd = path.empty() ? PpdText{"The PPD could not be read.\n", {}} : ppd_text(path);
  if (!path.empty()) {
    std::remove(path.c_str());
  }
  return ppd;
}

int write_report(Scheduler& scheduler, const QueueList& list, const Subject& subject,
                 const ReportOptions& options) {
  const Response queue = scheduler.QueueAttributes(subject.queue->name);
  const Response job = scheduler.JobAttributes(subject.job);
  if (queue == nullptr || job == nullptr) {
    complain(filled(_("the scheduler says nothing about the job: %s"), scheduler.Error().c_str()));
    return kExitCannotTell;
  }
  PersonalWords words = words_of_job(job.get(), printers_of(list, *subject.queue));
  add_own_names(words);
  const PpdText ppd = read_ppd(scheduler, queue_with_ppd(list, *subject.queue));
  const auto told = [&](const std::string& text) { return words.Without(text); };

  // English, for the people who look for the fault.
  std::vector<BundleFile> files;
  {
    const language::English for_others;
    files = {
        {"README.txt", readme(subject, !options.stream.empty())},
        {"versions.txt", versions_text(TQR7_VERSION, text_attribute(queue.get(), "cups-version"))},
        {"status.txt", told(in_words(condition_of(list, *subject.queue)))},
        {"queue.txt", told(queue_text(queue.get()))},
        {"ppd.txt", told(ppd.text)},
        {"job.txt", told(job_text(job.get(), ppd.options))}};
  }
  JobLog log(subject.job, words);
  add_log(scheduler, options, log, files);
  if (!add_stream(options, files)) {
    return kExitCannotTell;
  }
  const std::string name =
      "tqr7-report-" + file_name_of(subject.queue->name) + "-" + std::to_string(subject.job);
  const std::string path = options.output.empty() ? name + ".tar.gz" : options.output;
  const std::string why_not = write_bundle(path, name, files);
  if (!why_not.empty()) {
    complain(plain_text(path) + ": " + plain_text(why_not));
    return kExitCannotTell;
  }
  std::printf("%s\n", plain_text(path).c_str());
  return kExitGood;
}

int report(const ReportOptions& options) {
  Scheduler scheduler;
  const std::optional<QueueList> list = scheduler.Look();
  if (!list) {
    complain(filled(_("the scheduler does not answer: %s"), scheduler.Error().c_str()));
    return kExitCannotTell;
  }
  const int number = options.job.empty() ? 0 : job_number(options.job);
  if (number == 0 && !options.job.empty()) {
    complain(filled(_("\"%s\" is not the number of a job"), plain_text(options.job).c_str()));
    return kExitCannotTell;
  }
  const Subject subject = find_subject(choose_queues(*list, {}).queues, number);
  if (subject.queue == nullptr) {
    complain(number > 0 ? filled(_("no queue of this driver's has a job %d"), number)
                        : _("no queue of this driver's has had a job"));
    return kExitCannotTell;
  }
  return write_report(scheduler, *list, subject, options);
}

}  // namespace

void add_report(CommandLine& program) {
  const auto options = std::make_shared<ReportOptions>();
  Subcommand command = program.Add(
      "report", _("gather what a bug report needs, without the picture and without names"));
  command.Text("JOB", options->job, _("the job, such as 12 or photo-12; without: the last"));
  command.Text("-o,--output", options->output, _("the file that is written, a .tar.gz"));
  command.Text("--log", options->log,
               _("the scheduler's error log, where it does not hand it out itself"));
  command.Text("--stream", options->stream,
               _("a captured command stream, of which the headers are taken"));
  command.Runs([options] { return report(*options); });
}

}  // namespace tools
