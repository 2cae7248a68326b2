// SPDX-License-Identifier: Apache-2.0
//
// Prints what starting takes: start_cost [--rounds N]. The filter does a job without pages, in turn
// with the floor that only loads libcups and opens the same PPD.
#include <cstdint>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "bench/speed/command_line.h"
#include "bench/speed/contestants.h"
#include "bench/speed/empty_job.h"
#include "bench/speed/instruction_count.h"
#include "bench/spread.h"
#include "bench/table_printer.h"

namespace {

using bench::EmptyJob;
using bench::InstructionCount;
using bench::MeteredRun;
using bench::number;
using bench::Usage;

constexpr double kMostOfFloor = 1.25;
constexpr double kMillion = 1e-6;
constexpr double kMilliseconds = 1e3;
constexpr double kMegabytes = 1.0 / 1024.0;

/// What was measured of one program, a value a round.
struct Figures {
  std::vector<double> flushed;  ///< milliseconds of processor time
  std::vector<double> whole;
  std::vector<double> faults;
  std::vector<double> peak;  ///< MB

  void run(const EmptyJob& job, const MeteredRun& program) {
    double seconds = 0.0;
    const Usage usage = job.measure(program, &seconds);
    flushed.push_back(kMilliseconds * seconds);
    whole.push_back(kMilliseconds * usage.cpu());
    faults.push_back(static_cast<double>(usage.faults));
    peak.push_back(kMegabytes * static_cast<double>(usage.peak));
  }
};

std::string middle(const std::vector<double>& values, int decimals) {
  return number(bench::median_of(values), decimals);
}

std::vector<std::string> row(const std::string& name, const Figures& figures) {
  return {name, middle(figures.flushed, 2), middle(figures.whole, 2), middle(figures.faults, 0),
          middle(figures.peak, 1)};
}

void print_times(const EmptyJob& job, int rounds) {
  Figures floor;
  Figures filter;
  bench::measure(job.floor());
  bench::measure(job.filter());
  for (int round = 0; round < rounds; ++round) {
    floor.run(job, job.floor());
    filter.run(job, job.filter());
  }
  bench::print_table({{"Job without pages", "CPU to the first byte, ms", "in all, ms",
                       "page faults", "peak memory, MB"},
                      {row("floor-load (to the end of its work)", floor), row("filter", filter)}});
  const double first_byte = bench::median_of(filter.flushed);
  const double ratio = first_byte / bench::median_of(floor.whole);
  std::printf(
      "To its first byte the filter takes %.2f × all of floor-load, medians of %d rounds; beside "
      "floor-load without its end, %.2f ×.\n\n",
      ratio, rounds, first_byte / bench::median_of(floor.flushed));
  bench::tell_target("Start to first byte, CPU: × all of floor-load", kMostOfFloor, ratio);
}

/// The instructions in all files whose name begins so.
std::uint64_t part(const InstructionCount& count, const std::string& beginning) {
  std::uint64_t sum = 0;
  for (const auto& [file, instructions] : count.by_file) {
    sum += file.starts_with(beginning) ? instructions : 0;
  }
  return sum;
}

void print_instructions(const EmptyJob& job) {
  static const std::pair<const char*, const char*> kParts[] = {
      {"the loader", "ld-linux"},
      {"libcups", "libcups"},
      {"the C library", "libc.so"},
      {"the C++ library", "libstdc++"},
      {"the conversion library", "libTQR7mervale"},
      {"the filter itself", "rastertoprinter"}};
  const InstructionCount floor = bench::count_instructions(job.floor());
  const InstructionCount filter = bench::count_instructions(job.filter());
  bench::Table table{{"Where its instructions lie, million", "floor-load", "filter"}, {}};
  const auto add = [&table](const char* name, std::uint64_t of_floor, std::uint64_t of_filter) {
    table.rows.push_back({name, number(kMillion * static_cast<double>(of_floor), 3),
                          number(kMillion * static_cast<double>(of_filter), 3)});
  };
  std::uint64_t floor_rest = floor.total;
  std::uint64_t filter_rest = filter.total;
  for (const auto& [name, file] : kParts) {
    const std::uint64_t of_floor = part(floor, file);
    const std::uint64_t of_filter = part(filter, file);
    add(name, of_floor, of_filter);
    floor_rest -= of_floor;
    filter_rest -= of_filter;
  }
  add("other libraries", floor_rest, filter_rest);
  add("together", floor.total, filter.total);
  bench::print_table(table);
}

}  // namespace

int main(int argc, char** argv) {
  int rounds = 200;
  return bench::run_program(
      "Prints what starting takes the filter, beside loading libcups and opening a PPD", argc, argv,
      [&](CLI::App& app) {
        app.add_option("--rounds", rounds, "how often each runs")->check(CLI::Range(1, 10000));
      },
      [&] {
        const EmptyJob job;
        print_times(job, rounds);
        print_instructions(job);
      });
}
