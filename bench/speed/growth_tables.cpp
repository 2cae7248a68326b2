// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/growth_tables.h"

#include <algorithm>
#include <string>

#include "bench/speed/growth_figures.h"
#include "bench/table_printer.h"

namespace bench {

namespace {

constexpr double kMicroseconds = 1e3;    // in a ms
constexpr double kFewFaults = 200.0;     // too few for their cost to be seen
constexpr double kConstantMemory = 0.3;  // MB: some pages of the allocator's and the libraries'

const LengthPoint& of_pages(const std::vector<LengthPoint>& lengths, int pages) {
  return *std::find_if(lengths.begin(), lengths.end(),
                       [pages](const LengthPoint& point) { return point.pages == pages; });
}

}  // namespace

void print_lengths(const std::vector<LengthPoint>& lengths) {
  Table table{{"Program", "pages", "CPU, ms", "lowest to highest, ms", "ms a page", "off the line",
               "page faults", "peak memory, MB", "rounds"},
              {}};
  for (std::size_t i = 0; i < kPrograms.size(); ++i) {
    const LineFit line = further_line(lengths, i);
    for (const LengthPoint& length : lengths) {
      const Measured& job = length.of[i];
      const auto pages = static_cast<double>(length.pages);
      const bool hasPages = length.pages > 0;
      table.rows.push_back(
          {name_of(kPrograms[i]), std::to_string(length.pages), number(job.cpu(), 2),
           number(job.lowest_cpu(), 2) + " … " + number(job.highest_cpu(), 2),
           hasPages ? number(job.cpu() / pages, 3) : "",
           hasPages ? signed_percent(residual(line, {pages, job.cpu()})) : "",
           number(job.faults(), 0), number(job.peak(), 2), std::to_string(job.rounds.size())});
    }
  }
  print_table(table);
}

void print_lines(const std::vector<LengthPoint>& lengths) {
  Table table{{"Program", "a job, ms", "and each page, ms", "against the floor",
               "furthest off the line, 2 to 1,000 pages", "straight within 5 %",
               "peak memory, 2 pages, MB", "1,000 pages, MB", "constant"},
              {}};
  const double floor = further_line(lengths, 0).slope;
  for (std::size_t i = 0; i < kPrograms.size(); ++i) {
    const LineFit line = further_line(lengths, i);
    const double worst = worst_residual(line, longer_job_costs(lengths, i));
    const double two = of_pages(lengths, 2).of[i].peak();
    const double thousand = of_pages(lengths, 1000).of[i].peak();
    table.rows.push_back({name_of(kPrograms[i]), number(line.start, 2), number(line.slope, 3),
                          times(line.slope / floor), number(worst * 100.0, 1) + " %",
                          verdict(worst <= kStraight), number(two, 2), number(thousand, 2),
                          verdict(thousand - two <= kConstantMemory)});
  }
  print_table(table);
}

void print_first_pages(const std::vector<LengthPoint>& lengths, double microsecondsAFault) {
  Table table{
      {"Program", "start, ms", "1st page, ms", "2nd, ms", "further, ms", "start, faults",
       "1st page", "2nd", "further", "µs a fault, 1st and 2nd page", "fresh memory, µs a fault"},
      {}};
  for (std::size_t i = 0; i < kPrograms.size(); ++i) {
    const Measured& start = of_pages(lengths, 0).of[i];
    const Measured& one = of_pages(lengths, 1).of[i];
    const Measured& two = of_pages(lengths, 2).of[i];
    const Measured& many = of_pages(lengths, 100).of[i];
    const double page = further_line(lengths, i).slope;
    const double pageFaults = (many.faults() - two.faults()) / 98.0;
    const double more = two.cpu() - start.cpu() - 2.0 * page;
    const double moreFaults = two.faults() - start.faults() - 2.0 * pageFaults;
    table.rows.push_back(
        {name_of(kPrograms[i]), number(start.cpu(), 2), number(one.cpu() - start.cpu(), 2),
         number(two.cpu() - one.cpu(), 2), number(page, 2), number(start.faults(), 0),
         number(one.faults() - start.faults(), 0), number(two.faults() - one.faults(), 0),
         whole(pageFaults),
         moreFaults < kFewFaults ? "–" : number(more * kMicroseconds / moreFaults, 2),
         number(microsecondsAFault, 2)});
  }
  print_table(table);
}

}  // namespace bench
