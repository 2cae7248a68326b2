// SPDX-License-Identifier: Apache-2.0
//
// Measures how costs grow and where: growth [--rounds N] DRAWING. Tables go to standard output, the
// charts into an SVG file.
#include "bench/speed/growth_charts.h"

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

void tell(const bench::Growth& growth, double microsecondsAFault) {
  std::puts("### Pages of a job\n");
  bench::print_lines(growth.lengths);
  bench::print_first_pages(growth.lengths, microsecondsAFault);
  bench::print_lengths(growth.lengths);
  std::puts("The same with photos through pipes, as in a chain:\n");
  bench::print_lengths(growth.chains);
  std::puts("### Sizes\n");
  bench::print_size_lines(growth.sizes);
  bench::print_sizes(growth.sizes);
  bench::print_finishes(growth.sizes);
  std::puts("### Queues at once\n");
  bench::print_queues(growth.queues);
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
  tell(growth, microsecondsAFault);
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
