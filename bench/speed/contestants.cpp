// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/contestants.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <stdexcept>

#include "bench/spread.h"
#include "bench/table_printer.h"

namespace bench {

namespace {

template <typename Value>
double median_over(const Entrant& entrant, Value value) {
  std::vector<double> values;
  for (const Usage& usage : entrant.uses) {
    values.push_back(value(usage));
  }
  return median_of(std::move(values));
}

}  // namespace

MeteredRun filter_run(Library library, const std::string& options) {
  MeteredRun run;
  const char* folder = library == Library::Widening ? "/bench/widening" : "";
  run.argv = {std::string(TQR7_BUILD_FOLDER) + folder + "/rastertoprinter",
              "7",
              "anna",
              "Beach",
              "1",
              options};
  run.environment["PPD"] = TQR7_BUILD_FOLDER "/tqr7.ppd";
  run.printer = true;
  return run;
}

MeteredRun floor_run(const std::string& floor) {
  MeteredRun run;
  run.argv = {TQR7_BUILD_FOLDER "/bench/" + floor};
  return run;
}

void run_in_turn(const std::vector<Entrant*>& entrants, int rounds) {
  for (Entrant* entrant : entrants) {
    measure(entrant->run);
  }
  for (int round = 0; round < rounds; ++round) {
    for (Entrant* entrant : entrants) {
      entrant->uses.push_back(measure(entrant->run));
    }
  }
}

double median_cpu(const Entrant& entrant) {
  return median_over(entrant, [](const Usage& usage) { return usage.cpu(); });
}

double added_cpu(const Entrant& less, const Entrant& more) {
  std::vector<double> added;
  for (std::size_t round = 0; round < more.uses.size(); ++round) {
    added.push_back(more.uses[round].cpu() - less.uses[round].cpu());
  }
  return median_of(std::move(added));
}

double median_faults(const Entrant& entrant) {
  return median_over(entrant, [](const Usage& usage) { return static_cast<double>(usage.faults); });
}

double system_share(const Entrant& entrant) {
  double system = 0.0;
  double all = 0.0;
  for (const Usage& usage : entrant.uses) {
    system += usage.system;
    all += usage.cpu();
  }
  return all > 0.0 ? system / all : 0.0;
}

long largest_peak(const Entrant& entrant) {
  long largest = 0;
  for (const Usage& usage : entrant.uses) {
    largest = std::max(largest, usage.peak);
  }
  return largest;
}

void tell_target(const std::string& what, double most, double measured) {
  const char* path = std::getenv("TQR7_TARGETS");
  if (path == nullptr) {
    return;
  }
  std::ofstream file(path, std::ios::app);
  file << "| " << what << " | " << number(most, 2) << " | " << number(measured, 2) << " | "
       << verdict(measured <= most) << " |\n";
  if (!file.flush()) {
    throw std::runtime_error(std::string(path) + ": cannot be written");
  }
}

}  // namespace bench
