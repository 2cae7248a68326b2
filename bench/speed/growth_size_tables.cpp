// SPDX-License-Identifier: Apache-2.0
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <string>

#include "bench/speed/growth_figures.h"
#include "bench/speed/growth_tables.h"
#include "bench/table_printer.h"

namespace bench {

namespace {

constexpr double kMegabyte = 1e6;
constexpr std::uint64_t kBytesAPixel = 27;      // 3 × 3 and 3 × 6
constexpr std::uint64_t kBytesAJoinedDot = 12;  // 2 × 6
constexpr std::uint64_t kBytesAMatteDot = 3;

/// Bytes that a sheet's way through the filter stores in memory, by the buffers that it is to go
/// through: the raster line and the page (set white, then filled), 3 a pixel; the converted band
/// (set to 0xFF, then filled) and the staging buffer, 6 a pixel; for joined pages the sheet (set
/// white, then filled), 6 a pixel; for a matte finish its plane (set to 0xFF, then filled) and the
/// staging buffer again, 1 a pixel. What the kernel copies is not among them.
double stored_bytes(const SizePoint& size) {
  const Paper& paper = *size.paper;
  const auto pages = static_cast<std::uint64_t>(paper.pages_of_sheet());
  const std::uint64_t joined = pages > 1 ? kBytesAJoinedDot * paper.sheet_dots() : 0;
  const std::uint64_t matte = size.matte ? kBytesAMatteDot * paper.sheet_dots(kMatteExtraRows) : 0;
  return static_cast<double>(kBytesAPixel * pages * paper.image_pixels() + joined + matte);
}

double sheet_cost(const SizePoint& size, std::size_t program) {
  return size.further(program) * size.paper->pages_of_sheet();
}

const SizePoint* find_size(const std::vector<SizePoint>& sizes, const tagPAPERINFO& paper,
                           bool matte) {
  for (const SizePoint& size : sizes) {
    if (size.paper->info == &paper && size.matte == matte) {
      return &size;
    }
  }
  return nullptr;
}

std::vector<std::string> size_row(const SizePoint& size, const std::vector<LineFit>& lines) {
  const double pixels = size.paper->image_megapixels();
  std::vector<std::string> row = {size.paper->name,
                                  std::to_string(size.paper->info->nImageWidth) + " × " +
                                      std::to_string(size.paper->info->nImageHeight),
                                  number(pixels, 3)};
  for (std::size_t i = 0; i < kPrograms.size(); ++i) {
    const double cost = size.further(i);
    row.insert(row.end(),
               {number(cost / pixels, 2), signed_percent(residual(lines[i], {pixels, cost})),
                whole(size.further_faults(i))});
  }
  return row;
}

}  // namespace

void print_sizes(const std::vector<SizePoint>& sizes) {
  std::vector<LineFit> lines;
  Table table{{"Paper, gloss", "raster page", "million pixels"}, {}};
  for (std::size_t i = 0; i < kPrograms.size(); ++i) {
    lines.push_back(fit_line(size_costs(sizes, i)));
    const std::string name = name_of(kPrograms[i]);
    table.head.insert(table.head.end(), {name + ", ns a pixel", "off the line", "faults a page"});
  }
  for (const SizePoint& size : sizes) {
    if (is_plain(size)) {
      table.rows.push_back(size_row(size, lines));
    }
  }
  print_table(table);
}

void print_size_lines(const std::vector<SizePoint>& sizes) {
  std::vector<LineFit> lines;
  for (std::size_t i = 0; i < kPrograms.size(); ++i) {
    lines.push_back(fit_line(size_costs(sizes, i)));
  }
  Table table{{"Program", "a page, ms", "and each pixel, ns", "against the floor",
               "furthest off the line", "straight within 5 %"},
              {}};
  for (std::size_t i = 0; i < kPrograms.size(); ++i) {
    const double worst = worst_residual(lines[i], size_costs(sizes, i));
    table.rows.push_back({name_of(kPrograms[i]), number(lines[i].start, 3),
                          number(lines[i].slope, 2), times(lines[i].slope / lines[0].slope),
                          number(worst * 100.0, 1) + " %", verdict(worst <= kStraight)});
  }
  print_table(table);
}

void print_caches() {
  constexpr double kBuffersAPixel = 3 + 6;  // the page, and the converted band
  const double smallest = kBuffersAPixel * papers().front().image_megapixels();
  const double largest = kBuffersAPixel * papers().back().image_megapixels();
  const auto second = static_cast<double>(sysconf(_SC_LEVEL2_CACHE_SIZE));
  const auto third = static_cast<double>(sysconf(_SC_LEVEL3_CACHE_SIZE));
  std::printf(
      R"(A page's buffers take %.0f MB on the smallest paper and %.0f MB on the largest. The
caches of this machine hold %.1f MB (second level) and %.0f MB (third level): a bend
is to be expected only where one of them lies between.

)",
      smallest, largest, second / kMegabyte, third / kMegabyte);
}

void print_finishes(const std::vector<SizePoint>& sizes) {
  struct Row {
    const char* name;
    const tagPAPERINFO* paper;
    bool matte;
    const tagPAPERINFO* plain;  ///< the same sheet as one gloss page
  };
  constexpr Row kRows[] = {{"10 × 15, gloss", &PAPER_10x15, false, &PAPER_10x15},
                           {"10 × 15, matte", &PAPER_10x15, true, &PAPER_10x15},
                           {"two pages joined, gloss", &PAPER_5x15x2_2, false, &PAPER_10x15},
                           {"two pages joined, matte", &PAPER_5x15x2_2, true, &PAPER_10x15},
                           {"15 × 20, gloss", &PAPER_15x20, false, &PAPER_15x20},
                           {"15 × 20, matte", &PAPER_15x20, true, &PAPER_15x20}};
  Table table{{"Sheet", "program", "bytes stored, MB", "against gloss", "CPU, ms a sheet",
               "against gloss", "ns a byte", "page faults a sheet", "peak memory, MB"},
              {}};
  for (const Row& row : kRows) {
    const SizePoint& size = *find_size(sizes, *row.paper, row.matte);
    const SizePoint& plain = *find_size(sizes, *row.plain, false);
    const double bytes = stored_bytes(size);
    for (const Program program : {Program::Widening, Program::Conversion}) {
      const auto i = static_cast<std::size_t>(program);
      const double cost = sheet_cost(size, i);
      table.rows.push_back({row.name, name_of(program), number(bytes / kMegabyte, 1),
                            times(bytes / stored_bytes(plain)), number(cost, 2),
                            times(cost / sheet_cost(plain, i)), number(cost * kMegabyte / bytes, 3),
                            whole(size.further_faults(i) * size.paper->pages_of_sheet()),
                            number(size.of.back()[i].peak(), 1)});
    }
  }
  print_table(table);
}

}  // namespace bench
