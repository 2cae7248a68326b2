// SPDX-License-Identifier: Apache-2.0
//
// Prints the filter's peak memory beside that of the floor with the same buffers: peak_memory
// [--pages N] for the length of the long job. Matte plane and sheet cache, which the floor has not,
// are added to it where the job needs them.
#include <cstdio>
#include <string>

#include "bench/speed/command_line.h"
#include "bench/speed/contestants.h"
#include "bench/speed/raster_file.h"
#include "bench/table_printer.h"

namespace {

using bench::Library;
using bench::MeteredRun;
using bench::number;
using bench::Streams;
using bench::Usage;

constexpr double kMost = 1.15;                            // of the floor
constexpr double kMostGrowth = 1.01;                      // of the job of a tenth of the pages
constexpr double kMattePlane = 1852.0 * 1244 / 1024;      // kB
constexpr double kSheetCache = 1852.0 * 1232 * 6 / 1024;  // kB

struct Kind {
  const char* name;
  const char* options;
  int height;
  int pages;       ///< of one sheet
  double besides;  ///< kB that the floor does not have
};

const Kind kKinds[] = {
    {"gloss", "PageSize=RQ_10x15", 1232, 1, 0.0},
    {"matte", "PageSize=RQ_10x15 RQPrintFinish=Matte", 1232, 1, kMattePlane},
    {"joined, gloss", "PageSize=RQ_5x15x2_2", 616, 2, kSheetCache},
    {"joined, matte", "PageSize=RQ_5x15x2_2 RQPrintFinish=Matte", 616, 2,
     kSheetCache + kMattePlane},
};

Usage use(MeteredRun run, const bench::RasterFile& page, int pages) {
  run.streams = Streams::Pipes;
  run.input = page.path();
  run.input_times = pages;
  return bench::measure(run);
}

std::string megabytes(double kilobytes) {
  return number(kilobytes / 1024, 2);
}

void measure_sheets(const Kind& kind, int sheets, bench::Table* table) {
  const bench::RasterFile page(
      bench::page_picture(bench::Content::White, 1852, static_cast<std::size_t>(kind.height), 1),
      1);
  const int pages = sheets * kind.pages;
  const double floor =
      static_cast<double>(use(bench::floor_run("floor-copy"), page, pages).peak) + kind.besides;
  for (const Library library : {Library::Widening, Library::Ours}) {
    const auto filter =
        static_cast<double>(use(bench::filter_run(library, kind.options), page, pages).peak);
    const bool widening = library == Library::Widening;
    table->rows.push_back({kind.name, std::to_string(sheets),
                           widening ? "only widens" : "ours, colour and sharpening",
                           megabytes(floor), megabytes(filter), number(filter / floor, 2)});
    if (widening) {
      bench::tell_target("peak memory, " + std::string(kind.name) + ", " + std::to_string(sheets) +
                             (sheets == 1 ? " sheet" : " sheets"),
                         kMost, filter / floor);
    }
  }
}

void measure_long_job(const Kind& kind, int pages, bench::Table* table) {
  const bench::RasterFile page(
      bench::page_picture(bench::Content::White, 1852, static_cast<std::size_t>(kind.height), 1),
      1);
  const MeteredRun filter = bench::filter_run(Library::Widening, kind.options);
  const int fewer = pages / 10;
  const auto tenth = static_cast<double>(use(filter, page, fewer).peak);
  const auto whole = static_cast<double>(use(filter, page, pages).peak);
  table->rows.push_back({kind.name, megabytes(tenth), megabytes(whole), number(whole / tenth, 3)});
  bench::tell_target("peak memory, " + std::string(kind.name) + ", " + std::to_string(pages) +
                         " pages against " + std::to_string(fewer),
                     kMostGrowth, whole / tenth);
}

void print_tables(int pages) {
  bench::Table sheets{{"Finish", "Sheets", "Conversion library", "floor-copy and planes, MB",
                       "Filter, MB", "Ratio"},
                      {}};
  for (const Kind& kind : kKinds) {
    for (const int count : {1, 10}) {
      measure_sheets(kind, count, &sheets);
    }
  }
  bench::print_table(sheets);

  const int fewer = pages / 10;
  bench::Table growth{{"Finish", std::to_string(fewer) + " pages, MB",
                       std::to_string(pages) + " pages, MB", "Ratio"},
                      {}};
  measure_long_job(kKinds[0], pages, &growth);
  measure_long_job(kKinds[3], pages, &growth);
  bench::print_table(growth);
}

}  // namespace

int main(int argc, char** argv) {
  int pages = 200;
  return bench::run_program(
      "Prints the filter's peak memory beside that of a floor with the same buffers", argc, argv,
      [&](CLI::App& app) {
        app.add_option("--pages", pages, "of the long job")->check(CLI::Range(20, 100000));
      },
      [&] { print_tables(pages); });
}
