// SPDX-License-Identifier: Apache-2.0
//
// Prints what a page takes in instructions, beside a floor that moves the same bytes: page_cost.
#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "bench/speed/command_line.h"
#include "bench/speed/contestants.h"
#include "bench/speed/page_instructions.h"
#include "bench/table_printer.h"

namespace {

using bench::Content;
using bench::number;
using bench::PageInstructions;

constexpr double kMostOfFloor = 1.20;
constexpr double kMostOfWhite = 1.01;

std::string millions(std::uint64_t count) {
  return number(static_cast<double>(count) * 1e-6, 3);
}

/// A row, and one of the table of targets.
std::vector<std::string> row(const std::string& name, std::uint64_t count, std::uint64_t floor) {
  const double ratio = static_cast<double>(count) / static_cast<double>(floor);
  bench::tell_target("Instructions, " + name + ": × floor-copy", kMostOfFloor, ratio);
  return {name, millions(floor), millions(count), number(ratio, 3)};
}

void print_pages() {
  const PageInstructions floor = bench::floor_page(Content::Photo);
  const PageInstructions photo = bench::filter_page(Content::Photo);
  const PageInstructions white = bench::filter_page(Content::White);
  bench::print_table(
      {{"Instructions in user mode, million", "floor-copy", "filter", "× floor-copy"},
       {row("first page, photo", photo.first, floor.first),
        row("further page, photo", photo.further, floor.further),
        row("first page, white", white.first, floor.first),
        row("further page, white", white.further, floor.further)}});
  bench::tell_target("Instructions, photo: × white page", kMostOfWhite,
                     static_cast<double>(std::max(photo.further, white.further)) /
                         static_cast<double>(std::min(photo.further, white.further)));
}

void print_conversion() {
  bench::print_table(
      {{"Conversion, loops for " + bench::counted_target().name, "a pixel"},
       {{"everything off", number(bench::conversion_pixel(false), 2)},
        {"colours, sharpening, matte plane", number(bench::conversion_pixel(true), 2)}}});
}

}  // namespace

int main(int argc, char** argv) {
  return bench::run_program(
      "Prints what a page takes in instructions, beside a floor that moves the same bytes", argc,
      argv, [](CLI::App& /*app*/) {},
      [] {
        print_pages();
        print_conversion();
      });
}
