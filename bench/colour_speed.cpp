// SPDX-License-Identifier: Apache-2.0
//
// Prints how fast the conversion is beside others that do the same: processor time, one thread, all
// in one run. colour_speed [ROUNDS]
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <stdexcept>
#include <string>

#include "bench/cpu_time.h"
#include "bench/little_cms_peers.h"
#include "bench/other_programs.h"
#include "bench/page_conversion.h"
#include "bench/plain_unsharp_mask.h"
#include "bench/table_printer.h"
#include "bench/test_pictures.h"
#include "model/printer_model.h"

#ifdef __clang__
#define TQR7_COMPILER __VERSION__
#else
#define TQR7_COMPILER "g++ " __VERSION__
#endif

namespace {

using bench::Contestant;
using bench::in_process;
using bench::number;

constexpr int kFewestRounds = 5;
constexpr int kRounds = 11;

bench::PrintSettings table_alone() {
  bench::PrintSettings settings;
  settings.moduleFolder = TQR7_MODULE_FOLDER;
  return settings;
}

bench::PrintSettings everything_on() {
  bench::PrintSettings settings = table_alone();
  settings.sharpness = bench::kSharpnessNormal;
  settings.tone = {1, -1, 2, 10, 12, 14, -8, 5, 9};
  settings.matte = true;
  return settings;
}

bench::PrintSettings everything_off() {
  bench::PrintSettings settings = table_alone();
  settings.colourConversion = false;
  return settings;
}

Contestant library(const char* name, bench::PageConversion& conversion) {
  return in_process(name, [&conversion] {
    if (conversion.run() != 0) {
      throw std::runtime_error("the library refuses the page");
    }
  });
}

/// Reads the page's bytes and writes as many as a converted page and its matte plane have, once.
void touch_once(const bench::Picture& page, std::vector<std::uint16_t>& samples,
                std::vector<unsigned char>& matte) {
  const unsigned char* bytes = page.row(0);
  for (std::size_t i = 0; i < samples.size(); ++i) {
    samples[i] = static_cast<std::uint16_t>(bytes[i] << 6);
  }
  std::fill(matte.begin(), matte.end(), bytes[0]);
}

/// All that runs within this process, on one page.
struct Race {
  explicit Race(const bench::Picture& picture)
      : page(picture),
        alone(page, table_alone()),
        everything(page, everything_on()),
        nothing(page, everything_off()),
        samples(3 * page.pixels.size()),
        matte(page.width * (page.height + 12)) {}

  Race(const Race&) = delete;
  Race& operator=(const Race&) = delete;

  const bench::Picture& page;
  bench::PageConversion alone;
  bench::PageConversion everything;
  bench::PageConversion nothing;
  std::vector<std::uint16_t> samples;
  std::vector<unsigned char> matte;
  bench::Picture sharpened;
  bench::LittleCmsPeer table = bench::LittleCmsPeer::table(printer_model_profile());
  bench::LittleCmsPeer shaper = bench::LittleCmsPeer::matrix_and_curves(printer_model_profile());

  Contestant aloneTime = library("The colour table alone", alone);
  Contestant everythingTime = library("Everything on", everything);
  Contestant nothingTime = library("Everything off", nothing);
  Contestant tableTime =
      in_process("Little CMS, 33-point table", [this] { table.run(page, samples); });
  Contestant shaperTime =
      in_process("Little CMS, matrix and curves", [this] { shaper.run(page, samples); });
  Contestant chainTime = in_process("5 × 5 unsharp mask, then Little CMS's table", [this] {
    bench::plain_unsharp_mask(page, sharpened);
    table.run(sharpened, samples);
  });
  Contestant floorTime =
      in_process("Reading and writing once", [this] { touch_once(page, samples, matte); });

  std::vector<Contestant*> all() {
    return {&aloneTime,  &everythingTime, &nothingTime, &tableTime,
            &shaperTime, &chainTime,      &floorTime};
  }
};

std::vector<std::string> speed_row(const Contestant& contestant, double pixels) {
  const double seconds = bench::median_seconds(contestant);
  return {contestant.name, number(pixels / seconds / 1e6, 0), number(seconds / pixels * 1e9, 2),
          number(seconds * 1e3, 2)};
}

void print_speeds(const bench::Picture& page, const std::vector<const Contestant*>& contestants) {
  bench::Table table{{"", "Mpx/s", "ns a pixel", "ms a page"}, {}};
  for (const Contestant* contestant : contestants) {
    table.rows.push_back(speed_row(*contestant, static_cast<double>(page.pixels.size())));
  }
  std::printf("A page of %zu × %zu:\n\n", page.width, page.height);
  bench::print_table(table);
}

std::vector<std::string> ratio_row(const std::string& what, double times, double target) {
  return {what, "≥ " + number(target, 0), number(times, 2), bench::verdict(times >= target)};
}

std::string processor() {
  std::ifstream facts("/proc/cpuinfo");
  std::string line;
  while (std::getline(facts, line)) {
    if (line.rfind("model name", 0) == 0 && line.find(':') + 2 < line.size()) {
      return line.substr(line.find(':') + 2);
    }
  }
  return "not known";
}

void print_conditions(int rounds, const Race& race) {
  std::printf("Processor: %s. Compiler: " TQR7_COMPILER
              ". Little CMS %d.%02d. Medians of %d rounds.\n",
              processor().c_str(), LCMS_VERSION / 1000, LCMS_VERSION % 1000 / 10, rounds);
  std::printf(
      "Little CMS's table transform is within %d/65535 of an interpolation in its 33-point table; "
      "its matrix and curves are up to %d/65535 away from one.\n\n",
      race.table.distance_from_table(), race.shaper.distance_from_table());
}

std::vector<bench::ProgramRace> installed_programs(const bench::WorkFolder& folder) {
  std::vector<bench::ProgramRace> programs;
  if (bench::installed("vips")) {
    programs.push_back(bench::vips_race(folder));
  }
  if (bench::installed("gm")) {
    programs.push_back(bench::graphics_magick_race(folder));
  }
  return programs;
}

void print_ratios(const Race& race, const std::vector<Contestant>& programs) {
  bench::Table table{{"Times as fast", "Target", "Measured", ""}, {}};
  table.rows = {ratio_row("Table alone : Little CMS's table",
                          bench::times_faster(race.aloneTime, race.tableTime), 5),
                ratio_row("Everything on : unsharp mask and Little CMS's table",
                          bench::times_faster(race.everythingTime, race.chainTime), 4),
                ratio_row("Everything on : Little CMS's matrix and curves (a stretch)",
                          bench::times_faster(race.everythingTime, race.shaperTime), 1)};
  for (const Contestant& program : programs) {
    table.rows.push_back(ratio_row("Everything on : " + program.name,
                                   bench::times_faster(race.everythingTime, program), 5));
  }
  for (const char* missing : {"vips", "gm"}) {
    if (!bench::installed(missing)) {
      table.rows.push_back({std::string("Everything on : ") + missing, "≥ 5", "not installed", ""});
    }
  }
  bench::print_table(table);
}

void measure_pages(int rounds) {
  const bench::Picture page = bench::photo(1852, 1232);
  Race race(page);
  const bench::WorkFolder folder(page, printer_model_profile());
  std::vector<bench::ProgramRace> programs = installed_programs(folder);
  std::vector<Contestant*> all = race.all();
  std::vector<Contestant> nets;
  nets.reserve(programs.size());
  for (bench::ProgramRace& each : programs) {
    all.push_back(&each.work);
    all.push_back(&each.loadAndSave);
  }
  bench::race(all, rounds);
  for (const bench::ProgramRace& each : programs) {
    nets.push_back(bench::without_loading(each));
  }

  print_conditions(rounds, race);
  std::vector<const Contestant*> shown = {&race.aloneTime, &race.everythingTime, &race.nothingTime,
                                          &race.tableTime, &race.shaperTime,     &race.chainTime,
                                          &race.floorTime};
  for (const Contestant& net : nets) {
    shown.push_back(&net);
  }
  print_speeds(page, shown);
  print_ratios(race, nets);
}

void measure_largest_page(int rounds) {
  const bench::Picture page = bench::photo(1852, 2434);
  Race race(page);
  bench::race(race.all(), rounds);
  print_speeds(page, {&race.everythingTime, &race.aloneTime, &race.nothingTime, &race.floorTime});
  std::printf("Everything on takes %s times as long as reading and writing the bytes once.\n",
              number(bench::times_faster(race.floorTime, race.everythingTime), 1).c_str());
}

}  // namespace

int main(int argc, char** argv) {
  try {
    const int rounds = argc > 1 ? std::max(std::atoi(argv[1]), kFewestRounds) : kRounds;
    measure_pages(rounds);
    measure_largest_page(rounds);
    return 0;
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "colour_speed: %s\n", fault.what());
    return 1;
  }
}
