// SPDX-License-Identifier: Apache-2.0
//
// Measures how costs grow and where: growth [--rounds N] DRAWING. Tables go to standard output, the
// charts into an SVG file.
#include "bench/speed/growth_charts.h"

#include <unistd.h>

#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>
#include <string>

#include "bench/speed/growth_jobs.h"
#include "bench/speed/growth_series.h"
#include "bench/speed/growth_tables.h"
#include "bench/speed/machine_probe.h"

namespace {

constexpr int kUsualRounds = 7;

void tell_pages(const bench::Growth& growth, double microsecondsAFault) {
  std::puts(R"(### Pages of a job

White pages in libcups' run lengths, from a file to `/dev/null`. A job costs
something once, and the same for each page; the lines go through the jobs of 2 pages
and more.
)");
  bench::print_lines(growth.lengths);
  std::puts(
      R"(Where the job of one page lies off that line, its fresh memory shows as page faults.
A fault that brings a huge page costs more than one of 4 kB, whose price is in the
last column, measured on 20 MB without any filter.
)");
  bench::print_first_pages(growth.lengths, microsecondsAFault);
  bench::print_lengths(growth.lengths);
  std::puts(
      R"(Photos, uncompressed, through pipes, as in a chain. What a page costs more here is
the kernel's part in 20 MB of pipe; the floor pays it, too.
)");
  bench::print_lengths(growth.chains);
}

void tell_sizes(const bench::Growth& growth) {
  std::puts(R"(### Sizes

Photos, uncompressed, from a file to `/dev/null`; a further page is a tenth of what
a job of 12 sheets takes more than one of 2.
)");
  bench::print_size_lines(growth.sizes);
  bench::print_caches();
  std::puts(
      R"(Papers whose sheet is one page, in gloss. 51 page faults more or less are one piece
of 2 MB in ten pages that is a huge page or is not, by where the addresses fall.
)");
  bench::print_sizes(growth.sizes);
  std::puts(
      R"(A matte plane, and two pages joined to a sheet, beside the gloss sheet of one page:
the bytes that the filter's buffers take in, and what they cost.
)");
  bench::print_finishes(growth.sizes);
}

void tell_queues(const bench::Growth& growth) {
  std::printf(R"(### Queues at once

Jobs of %d photos at the same time, from a file to `/dev/null`, on %ld processors;
their starts are in all figures. Queues that share a processor print fewer pages a
second each, and CPU a page is not to grow.

)",
              bench::kPagesOfAQueue, sysconf(_SC_NPROCESSORS_ONLN));
  bench::print_queues(growth.queues);
  std::puts(
      R"(Where CPU a page grows all the same, this tells why. Arithmetic grows if processors
are threads of one core; copies within 1 MB grow if processors share a second-level
cache, or lose it at each change of processes; copies among 20 MB, which are a
page's buffers, grow if there is a limit beyond; fresh memory and the reading of the
file grow if processes wait for each other in the kernel.

With more queues than processors the printers that answer the filters want the same
processors, and each answer that a filter waits for gives its turn to another queue.
Tried once without that, the printer's answers coming from a library preloaded into
the filter: eight queues took 1.01 × the CPU a page of one.
)");
  bench::print_probe(growth.queues);
}

bench::Growth measured(int rounds, double* microsecondsAFault) {
  bench::RasterFolder rasters;
  bench::Growth growth;
  growth.lengths = bench::measure_lengths(rasters, rounds);
  *microsecondsAFault = bench::microseconds_a_fault();
  growth.chains = bench::measure_chains(rasters, rounds);
  growth.sizes = bench::measure_sizes(rasters, rounds);
  growth.queues = bench::measure_queues(rasters, rounds);
  return growth;
}

int run(int argc, char** argv) {
  CLI::App app("Measures how the cost of a page grows with pages, sizes and queues");
  std::string drawing;
  int rounds = kUsualRounds;
  app.add_option("drawing", drawing, "SVG file to write")->required();
  app.add_option("--rounds", rounds, "of the short measurements")->check(CLI::PositiveNumber);
  CLI11_PARSE(app, argc, argv);
  double microsecondsAFault = 0.0;
  const bench::Growth growth = measured(rounds, &microsecondsAFault);
  tell_pages(growth, microsecondsAFault);
  tell_sizes(growth);
  tell_queues(growth);
  bench::draw_growth(drawing, growth);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return run(argc, argv);
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "growth: %s\n", fault.what());
  } catch (...) {
    std::fputs("growth: failed\n", stderr);
  }
  return 1;
}
