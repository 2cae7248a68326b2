// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/growth_points.h"

#include <algorithm>

#include "bench/spread.h"

namespace bench {

namespace {

constexpr double kMilliseconds = 1e3;
constexpr double kKilobyte = 1024.0;  // as the kernel counts them
constexpr double kMegabyte = 1e6;

template <typename Value>
std::vector<double> values_of(const std::vector<Usage>& rounds, Value value) {
  std::vector<double> values;
  values.reserve(rounds.size());
  for (const Usage& usage : rounds) {
    values.push_back(value(usage));
  }
  return values;
}

double milliseconds_of(const Usage& usage) {
  return usage.cpu() * kMilliseconds;
}

double lowest(const std::vector<double>& values) {
  return *std::min_element(values.begin(), values.end());
}

double highest(const std::vector<double>& values) {
  return *std::max_element(values.begin(), values.end());
}

int further_pages(const Paper& paper) {
  return (kSheets[2] - kSheets[1]) * paper.pages_of_sheet();
}

std::vector<double> further_costs(const SizePoint& point, std::size_t program) {
  const std::vector<Usage>& shorter = point.of[1][program].rounds;
  const std::vector<Usage>& longer = point.of[2][program].rounds;
  std::vector<double> costs;
  for (std::size_t round = 0; round < longer.size(); ++round) {
    costs.push_back((milliseconds_of(longer[round]) - milliseconds_of(shorter[round])) /
                    further_pages(*point.paper));
  }
  return costs;
}

}  // namespace

const char* name_of(Program program) {
  switch (program) {
    case Program::FloorCopy:
      return "floor, same traffic";
    case Program::Widening:
      return "filter, widening only";
    case Program::Conversion:
      break;
  }
  return "filter, our conversion";
}

double Measured::cpu() const {
  return median_of(values_of(rounds, milliseconds_of));
}

double Measured::lowest_cpu() const {
  return lowest(values_of(rounds, milliseconds_of));
}

double Measured::highest_cpu() const {
  return highest(values_of(rounds, milliseconds_of));
}

double Measured::faults() const {
  return median_of(
      values_of(rounds, [](const Usage& usage) { return static_cast<double>(usage.faults); }));
}

double Measured::peak() const {
  return highest(values_of(rounds, [](const Usage& usage) {
    return static_cast<double>(usage.peak) * kKilobyte / kMegabyte;
  }));
}

double SizePoint::further(std::size_t program) const {
  return median_of(further_costs(*this, program));
}

double SizePoint::lowest_further(std::size_t program) const {
  return lowest(further_costs(*this, program));
}

double SizePoint::highest_further(std::size_t program) const {
  return highest(further_costs(*this, program));
}

double SizePoint::further_faults(std::size_t program) const {
  return (of[2][program].faults() - of[1][program].faults()) / further_pages(*paper);
}

}  // namespace bench
