// SPDX-License-Identifier: Apache-2.0
//
// tqr7-printer-sim: a TQR7 on a network port that prints to PNG files and checks every byte.
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <exception>
#include <memory>
#include <optional>
#include <string>

#include "decoder/proof_choice.h"
#include "decoder/soft_proof.h"
#include "simulator/command_line.h"
#include "simulator/contact_sheet.h"
#include "simulator/event_log.h"
#include "simulator/fault_schedule.h"
#include "simulator/fault_sources.h"
#include "simulator/server.h"
#include "simulator/sheet_folder.h"
#include "simulator/sheet_printer.h"
#include "simulator/signals.h"
#include "simulator/stream_recorder.h"
#include "simulator/timeline.h"
#include "simulator/waiter.h"
#include "simulator/wording.h"

namespace simulator {
namespace {

int cannot_start(const std::string& why) {
  std::fprintf(stderr, "tqr7-printer-sim: %s\n", why.c_str());
  return kExitCannotStart;
}

int cannot_start(const std::string& what, const std::string& why) {
  return cannot_start(what + ": " + why);
}

// Returns why the record cannot be written, if one is asked for; empty when all is well.
std::string begin_record(const Options& options, StreamRecorder& recorder) {
  return options.record.empty() ? "" : recorder.Open(options.record);
}

// Returns why the timeline cannot be written, if one is asked for; empty when all is well.
std::string begin_timeline(const Options& options, Timeline& timeline) {
  return options.timeline.empty() ? "" : timeline.Open(options.timeline);
}

// Writes the port's number if a path is given. The file gets its name when it is whole, so that a
// script that waits for it never reads half a number.
std::string write_port_file(const std::string& path, std::uint16_t port) {
  if (path.empty()) {
    return {};
  }
  const std::string part = path + ".part";
  std::FILE* const file = std::fopen(part.c_str(), "we");
  if (file == nullptr) {
    return error_words(errno);
  }
  const bool written = std::fprintf(file, "%u\n", unsigned{port}) > 0;
  const bool closed = std::fclose(file) == 0;
  if (!written || !closed || std::rename(part.c_str(), path.c_str()) != 0) {
    const int errorNumber = errno;
    std::remove(part.c_str());
    return error_words(errorNumber);
  }
  return {};
}

// Returns why the contact sheet cannot be written, if one is asked for; empty when all is well.
std::string begin_contact_sheet(const Options& options, const SheetFolder& folder,
                                ContactSheet& contactSheet) {
  if (!options.contactSheet) {
    return {};
  }
  const std::string why = folder.MakeThumbnails();
  return why.empty() ? contactSheet.Begin(folder.Path()) : why;
}

void say_stopped(const Tally& tally) {
  log_event("stopped after " + counted(tally.connections, "connection") + ", " +
            counted(tally.sheets, "sheet") + ", " + counted(tally.errors, "error"));
}

int serve(const Options& options, Server& server, const Waiter& waiter, Printer printer) {
  const std::string trouble = server.Serve(printer, waiter, options.connections);
  Tally& tally = printer.tally;
  if (!trouble.empty()) {
    ++tally.failures;
    log_event("failure: no further client can be taken: " + trouble);
  }
  say_stopped(tally);
  return tally.errors + tally.failures == 0 ? kExitGood : kExitErrorsSeen;
}

int run(const Options& options) {
  const std::optional<SignalEnds> signals = catch_signals();
  if (!signals) {
    return cannot_start("signals", error_words(errno));
  }
  FaultSchedule faults(std::chrono::steady_clock::now, log_event);
  if (const std::string why = load_faults(options.faults, faults); !why.empty()) {
    return cannot_start(why);
  }
  SheetFolder folder;
  if (const std::string why = folder.Open(options.output); !why.empty()) {
    return cannot_start(options.output, why);
  }
  ContactSheet contactSheet;
  if (const std::string why = begin_contact_sheet(options, folder, contactSheet); !why.empty()) {
    return cannot_start(options.output, why);
  }
  StreamRecorder recorder;
  if (const std::string why = begin_record(options, recorder); !why.empty()) {
    return cannot_start(options.record, why);
  }
  Timeline timeline;
  if (const std::string why = begin_timeline(options, timeline); !why.empty()) {
    return cannot_start(options.timeline, why);
  }
  std::unique_ptr<decoder::SoftProof> proof;
  if (const std::string why = decoder::make_proof(options.proof, proof); !why.empty()) {
    return cannot_start(*options.proof.profile, why);
  }
  Server server;
  if (const std::string why = server.Listen(options.address, options.port); !why.empty()) {
    return cannot_start(options.address + " port " + std::to_string(options.port), why);
  }
  if (const std::string why = write_port_file(options.portFile, server.Port()); !why.empty()) {
    return cannot_start(options.portFile, why);
  }
  log_first_line("listening on " + options.address + " port " + std::to_string(server.Port()));
  SheetPrinter sheets(folder, proof.get(), {options.marks, options.contactSheet});
  Tally tally;
  const Waiter waiter(*signals, faults, options.faults.script);
  return serve(
      options, server, waiter,
      {faults, sheets, recorder, timeline, tally, options.contactSheet ? &contactSheet : nullptr,
       options.verbose, options.simulatedClock});
}

}  // namespace
}  // namespace simulator

int main(int argc, char** argv) {
  try {
    simulator::Options options;
    if (const auto status = simulator::read_command_line(argc, argv, options)) {
      return *status;
    }
    return simulator::run(options);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "tqr7-printer-sim: %s\n", error.what());
    return simulator::kExitErrorsSeen;
  }
}
