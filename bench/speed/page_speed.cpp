// SPDX-License-Identifier: Apache-2.0
//
// Prints what a page costs the filter, beside floors that move the same bytes: page_speed [--rounds
// N].
//
// The first page of a job is the job of one page less the job of none: what it adds to the start.
// Each further page is an eleventh of what a job of twelve takes more than a job of one, and each
// page from the third on a tenth of what it takes more than a job of two.
#include <array>
#include <cstdio>
#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "bench/speed/command_line.h"
#include "bench/speed/contestants.h"
#include "bench/speed/raster_file.h"
#include "bench/table_printer.h"

namespace {

using bench::Entrant;
using bench::Library;
using bench::MeteredRun;
using bench::number;
using bench::RasterForm;
using bench::Streams;

constexpr std::array<int, 4> kPages = {0, 1, 2, 12};
constexpr double kMost = 1.10;     // of the floor
constexpr double kStretch = 0.70;  // of the floor's first page

/// One program on a job of no page, of one, of two, and of twelve.
struct Row {
  std::string name;
  std::array<Entrant, 4> jobs;

  double first() const { return bench::added_cpu(jobs[0], jobs[1]); }
  double further() const { return bench::added_cpu(jobs[1], jobs[3]) / 11.0; }
  /// Once the allocator has all memory that the job takes.
  double settled() const { return bench::added_cpu(jobs[2], jobs[3]) / 10.0; }
};

/// The same page as streams of so many pages.
struct RasterFiles {
  RasterFiles(const bench::Picture& page, RasterForm form)
      : files{bench::RasterFile(page, kPages[0], {.form = form}),
              bench::RasterFile(page, kPages[1], {.form = form}),
              bench::RasterFile(page, kPages[2], {.form = form}),
              bench::RasterFile(page, kPages[3], {.form = form})} {}
  std::array<bench::RasterFile, 4> files;
};

Row row_of(const std::string& name, const MeteredRun& program, const RasterFiles& rasters,
           Streams streams) {
  Row row{name, {}};
  for (std::size_t job = 0; job < kPages.size(); ++job) {
    MeteredRun run = program;
    run.streams = streams;
    run.input = rasters.files[job].path();
    const std::uint64_t bytes = bench::kImageBytes * static_cast<std::uint64_t>(kPages[job]);
    if (name == "floor-write") {
      run.input = "/dev/null";
      run.argv.push_back(std::to_string(bytes));
    }
    run.bytes = name == "floor-drop" ? 0 : bytes;
    run.status = run.printer && kPages[job] == 0 ? 1 : 0;  // the filter's word for an empty job
    row.jobs[job] = {name, run};
  }
  return row;
}

const char* const kOff = "PageSize=RQ_10x15 RQColorConversion=Disabled RQSharpness_Common=None";
const char* const kOn = "PageSize=RQ_10x15 RQColorConversion=Enabled RQSharpness_Common=Normal";

std::deque<Row> rows_of(const RasterFiles& rasters, Streams streams) {
  std::deque<Row> rows;
  for (const char* floor : {"floor-write", "floor-drop", "floor-copy"}) {
    rows.push_back(row_of(floor, bench::floor_run(floor), rasters, streams));
  }
  rows.push_back(row_of("filter, library that only widens",
                        bench::filter_run(Library::Widening, kOff), rasters, streams));
  rows.push_back(row_of("filter, our library, all off", bench::filter_run(Library::Ours, kOff),
                        rasters, streams));
  rows.push_back(row_of("filter, our library, colour and sharpening",
                        bench::filter_run(Library::Ours, kOn), rasters, streams));
  return rows;
}

void race(std::deque<Row>& rows, int rounds) {
  std::vector<Entrant*> entrants;
  for (Row& row : rows) {
    for (Entrant& job : row.jobs) {
      entrants.push_back(&job);
    }
  }
  bench::run_in_turn(entrants, rounds);
}

void print(const std::deque<Row>& rows, const Row& floor) {
  bench::Table table{{"", "Empty job, ms", "First page, ms", "× floor-copy",
                      "Each further page, ms", "× floor-copy", "From the third on, ms",
                      "× floor-copy", "System, %", "Faults of one page", "Peak of one page, MB"},
                     {}};
  for (const Row& row : rows) {
    table.rows.push_back(
        {row.name, number(bench::median_cpu(row.jobs[0]) * 1e3, 2), number(row.first() * 1e3, 2),
         number(row.first() / floor.first(), 2), number(row.further() * 1e3, 2),
         number(row.further() / floor.further(), 2), number(row.settled() * 1e3, 2),
         number(row.settled() / floor.settled(), 2),
         number(bench::system_share(row.jobs[3]) * 100, 0),
         number(bench::median_faults(row.jobs[1]) - bench::median_faults(row.jobs[0]), 0),
         number(static_cast<double>(bench::largest_peak(row.jobs[1])) / 1024, 1)});
  }
  bench::print_table(table);
}

void tell_targets(const Row& floor, const Row& filter, const std::string& where) {
  bench::tell_target("first page, " + where + ", against floor-copy", kMost,
                     filter.first() / floor.first());
  bench::tell_target("first page, " + where + ": stretch", kStretch,
                     filter.first() / floor.first());
  bench::tell_target("further page, " + where + ", against floor-copy", kMost,
                     filter.further() / floor.further());
  bench::tell_target("page from the third on, " + where + ", against floor-copy", kMost,
                     filter.settled() / floor.settled());
}

constexpr std::size_t kFloor = 2;   // floor-copy's row
constexpr std::size_t kFilter = 3;  // the row of the filter with the library that only widens

void measure_photo(RasterForm form, Streams streams, int rounds) {
  const RasterFiles rasters(bench::page_picture(bench::Content::Photo, 1852, 1232, 1), form);
  std::deque<Row> rows = rows_of(rasters, streams);
  race(rows, rounds);
  const std::string where = std::string(form == RasterForm::Raw ? "raw" : "compressed") +
                            " raster, " + (streams == Streams::Files ? "/dev/null" : "pipes");
  std::printf("**Photo, %s**, %d rounds:\n\n", where.c_str(), rounds);
  print(rows, rows[kFloor]);
  tell_targets(rows[kFloor], rows[kFilter], where);
}

struct Named {
  const char* name;
  bench::Content content;
};

/// White and noise beside the photo: what the content alone makes of the cost.
void measure_contents(int rounds) {
  bench::Table table{{"Page from the third on", "floor-copy, ms", "filter, ms", "× floor-copy"},
                     {}};
  for (const RasterForm form : {RasterForm::Raw, RasterForm::Compressed}) {
    for (const Named& page :
         {Named{"photo", bench::Content::Photo}, Named{"white", bench::Content::White},
          Named{"noise", bench::Content::Noise}}) {
      const RasterFiles rasters(bench::page_picture(page.content, 1852, 1232, 1), form);
      std::deque<Row> rows;
      rows.push_back(row_of("floor-copy", bench::floor_run("floor-copy"), rasters, Streams::Files));
      rows.push_back(
          row_of("filter", bench::filter_run(Library::Widening, kOff), rasters, Streams::Files));
      race(rows, rounds);
      table.rows.push_back(
          {std::string(page.name) + (form == RasterForm::Raw ? ", raw" : ", compressed"),
           number(rows[0].settled() * 1e3, 2), number(rows[1].settled() * 1e3, 2),
           number(rows[1].settled() / rows[0].settled(), 2)});
    }
  }
  std::printf("**By content**, /dev/null, library that only widens, %d rounds:\n\n", rounds);
  bench::print_table(table);
}

void measure_all(int rounds) {
  for (const Streams streams : {Streams::Files, Streams::Pipes}) {
    for (const RasterForm form : {RasterForm::Raw, RasterForm::Compressed}) {
      measure_photo(form, streams, rounds);
    }
  }
  measure_contents((rounds + 1) / 2);
}

}  // namespace

int main(int argc, char** argv) {
  int rounds = 21;
  return bench::run_program(
      "Prints what a page costs the filter, beside floors that move the same bytes", argc, argv,
      [&](CLI::App& app) {
        app.add_option("--rounds", rounds, "how often each runs")->check(CLI::Range(1, 1000));
      },
      [&] { measure_all(rounds); });
}
