// SPDX-License-Identifier: Apache-2.0
#include "simulator/command_line.h"

#include <CLI/CLI.hpp>
#include <cstdio>

#include "simulator/rule_words.h"

namespace simulator {
namespace {

constexpr std::uint64_t kPortMost = 65535;
constexpr std::uint64_t kNumberMost = 0xFFFF;
constexpr std::uint64_t kCountMost = 1'000'000'000;

// An option that takes a number between two bounds, decimal or hexadecimal.
template <typename Store>
CLI::Option* add_number(CLI::App& app, const std::string& name, const std::string& help,
                        const std::string& metavar, std::uint64_t low, std::uint64_t high,
                        Store store) {
  CLI::Option* const option = app.add_option_function<std::string>(
      name, [store](const std::string& text) { store(read_number(text).value_or(0)); }, help);
  option->type_name(metavar);
  option->check(CLI::Validator(
      [low, high](const std::string& text) -> std::string {
        const std::optional<std::uint64_t> number = read_number(text);
        if (number && *number >= low && *number <= high) {
          return {};
        }
        return '"' + text + "\" is not " + number_words(low, high);
      },
      ""));
  return option;
}

void add_place_options(CLI::App& app, Options& options) {
  app.add_option("--address", options.address, "numeric address to listen on (127.0.0.1)")
      ->type_name("ADDRESS");
  add_number(
      app, "--port", "port to listen on; 0 takes a free one (9100)", "PORT", 0, kPortMost,
      [&options](std::uint64_t number) { options.port = static_cast<std::uint16_t>(number); });
  app.add_option("--port-file", options.portFile, "file to write the port's number to")
      ->type_name("FILE");
  app.add_option("--output", options.output, "folder for the sheets (the current one)")
      ->type_name("DIR");
  app.add_option("--record", options.record, "file for a copy of every byte that comes")
      ->type_name("FILE");
  app.add_option("--timeline", options.timeline,
                 "file for the time of each event, to the microsecond")
      ->type_name("FILE");
}

void add_view_options(CLI::App& app, Options& options) {
  CLI::Option* const profile =
      app.add_option("--profile", options.proof.profile,
                     "ICC profile to show the colours of the print through (the model built in)")
          ->type_name("FILE");
  app.add_flag("--device-values", options.proof.deviceValues,
               "show the printer's own values and not the colours of the print")
      ->excludes(profile);
  app.add_flag("--marks", options.marks,
               "draw the cut and the white border's edge into the sheets");
  app.add_flag("--contact-sheet", options.contactSheet,
               "keep a page of all sheets, index.html, in the folder");
  app.add_flag("--verbose", options.verbose, "log every field of every command");
}

void add_fault_options(CLI::App& app, Options& options) {
  app.add_option("--fault", options.faults.rules,
                 "a rule of what goes wrong; may be given several times")
      ->type_name("RULE")
      ->expected(1)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  app.add_option("--script", options.faults.script, "file with such rules, one on each line")
      ->type_name("FILE");
  add_number(app, "--status", "error number to answer status requests with (0)", "NUMBER", 0,
             kNumberMost, [&options](std::uint64_t number) {
               options.faults.status = static_cast<std::uint16_t>(number);
             });
  add_number(app, "--enable", "enable code to answer readiness queries with (0)", "CODE", 0,
             kNumberMost, [&options](std::uint64_t number) {
               options.faults.enable = static_cast<std::uint16_t>(number);
             });
  add_number(app, "--busy", "answer the first K readiness queries with busy, 0x0100", "K", 0,
             kCountMost, [&options](std::uint64_t number) { options.faults.busy = number; });
  app.add_flag("--simulated-clock", options.simulatedClock,
               "do not check how soon a client asks again");
}

void add_end_options(CLI::App& app, Options& options) {
  CLI::Option* const jobs =
      add_number(app, "--jobs", "end after N connections", "N", 1, kCountMost,
                 [&options](std::uint64_t number) { options.connections = number; });
  app.add_flag_callback(
         "--once", [&options] { options.connections = 1; }, "end after one connection")
      ->excludes(jobs);
  app.set_version_flag("--version", "tqr7-printer-sim " TQR7_VERSION, "show the version and exit");
  app.get_option("--help")->description("show this help and exit");
}

}  // namespace

std::optional<int> read_command_line(int argc, const char* const* argv, Options& options) {
  CLI::App app{"A simulated TQR7 printer: takes jobs over the network and prints them to PNG files",
               "tqr7-printer-sim"};
  add_place_options(app, options);
  add_view_options(app, options);
  add_fault_options(app, options);
  add_end_options(app, options);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success)) {
      app.exit(error);  // help or version
      return kExitGood;
    }
    std::fprintf(stderr, "tqr7-printer-sim: %s (see --help)\n", error.what());
    return kExitCannotStart;
  }
  return std::nullopt;
}

}  // namespace simulator
