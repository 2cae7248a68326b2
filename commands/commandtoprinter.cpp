// SPDX-License-Identifier: Apache-2.0
//
// The command filter's main: reads a file of printer commands and carries them out.
#include <cups/ppd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <exception>

#include "commands/command_file.h"
#include "commands/self_test.h"
#include "commands/setting_words.h"
#include "filter/descriptors.h"
#include "filter/job_options.h"
#include "filter/memory_watch.h"
#include "status/connection_check.h"
#include "status/printer_check.h"

namespace {

constexpr int kArgumentOptions = 5;
constexpr int kArgumentFile = 6;
constexpr int kMostUnknownNamed = 16;  // so that a hostile file cannot fill the log

// The commands of a job, in the order of the file.
class Commands {
 public:
  explicit Commands(ppd_file_t* ppd) : ppd_(ppd) {}

  /// False when the job fails.
  bool carry_out(const Command& command) {
    for (KnownCommand& known : known_) {
      if (command.is(known.name)) {
        return carry_out_once(known);
      }
    }
    skip(command);
    return true;
  }

 private:
  struct KnownCommand {
    const char* name;
    bool (Commands::*carry_out)();
    bool done;  // a job carries each out once, so that no file can use up the paper
  };

  // Succeeds when the printer was asked, whatever it answered: a command that fails would stay in
  // the queue.
  bool report_status() {
    found_good_ = printer_is_good();
    std::fprintf(stderr, found_good_
                             ? "INFO: The printer is good.\n"
                             : "INFO: The printer is not good; the queue's reasons say why.\n");
    return true;
  }

  bool print_test_page() { return print_self_test(ppd_, found_good_); }

  bool carry_out_once(KnownCommand& known) {
    if (known.done) {
      std::fprintf(stderr, "DEBUG: %s was carried out before\n", known.name);
      return true;
    }
    known.done = true;
    return connected() && (this->*known.carry_out)();
  }

  // A job asks this once, as a photo does.
  bool connected() {
    connected_ = connected_ || connection_is_bidirectional();
    if (!connected_) {
      std::fprintf(stderr, "ERROR: The printer's answers do not come back over this connection.\n");
    }
    return connected_;
  }

  void skip(const Command& command) {
    if (unknown_ < kMostUnknownNamed) {
      std::fprintf(stderr, "WARNING: The printer has no command \"%s\", which is skipped.\n",
                   printable(command.name).c_str());
    } else if (unknown_ == kMostUnknownNamed) {
      std::fprintf(stderr, "WARNING: More unknown commands are skipped.\n");
    }
    ++unknown_;
  }

  ppd_file_t* ppd_;
  bool connected_ = false;
  bool found_good_ = false;
  int unknown_ = 0;
  KnownCommand known_[2] = {{"ReportStatus", &Commands::report_status, false},
                            {"PrintSelfTestPage", &Commands::print_test_page, false}};
};

int run_job(std::FILE* input, const char* options) {
  CommandFile file(input);
  if (!file.begins_as_command_file()) {
    std::fprintf(stderr, "ERROR: This is no file of printer commands.\n");
    return 1;
  }
  ppd_file_t* ppd = open_marked_ppd(options);
  if (ppd == nullptr && errno == ENOMEM) {
    report_no_memory();
    return 1;
  }
  Commands commands(ppd);
  bool good = true;
  while (const std::optional<Command> command = good ? file.next() : std::nullopt) {
    good = commands.carry_out(*command);
  }
  ppdClose(ppd);
  return good ? 0 : 1;
}

}  // namespace

int main(int argc, char* argv[]) {
  reserve_scheduler_descriptors();
  setbuf(stderr, nullptr);
  if (argc < 6 || argc > 7) {
    std::fprintf(stderr, "ERROR: commandtoprinter job-id user title copies options [file]\n");
    return 1;
  }
  unblock_back_channel();
  std::FILE* input = argc > kArgumentFile ? std::fopen(argv[kArgumentFile], "rb") : stdin;
  if (input == nullptr) {
    std::perror("ERROR: Unable to open the file of printer commands");
    return 1;
  }
  try {
    return run_job(input, argv[kArgumentOptions]);
  } catch (const std::exception&) {
    report_no_memory();
    return 1;
  }
}
