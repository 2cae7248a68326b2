// SPDX-License-Identifier: Apache-2.0
//
// journey-report RECORDS PICTURE: tables of what bench/run-journey has recorded, as Markdown on
// standard output, and a picture of one job of each of the two kinds of photo files.
#include <algorithm>
#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "bench/speed/journey_picture.h"
#include "bench/speed/journey_records.h"
#include "bench/speed/journey_steps.h"
#include "bench/spread.h"
#include "bench/table_printer.h"

namespace bench {
namespace {

constexpr double kMillisecondsPerSecond = 1000.0;

struct Kind {
  const char* name;  // in the records
  const char* words;
};
constexpr std::array<Kind, 4> kKinds{{{"jpeg", "a photo, JPEG"},
                                      {"pdf", "a photo, PDF"},
                                      {"matte", "matte, JPEG"},
                                      {"copies", "two copies, JPEG"}}};

std::vector<Journey> chosen(const std::vector<Journey>& journeys, const std::string& kind,
                            bool marked) {
  std::vector<Journey> found;
  std::copy_if(
      journeys.begin(), journeys.end(), std::back_inserter(found),
      [&](const Journey& journey) { return journey.kind == kind && journey.marked == marked; });
  return found;
}

template <typename Value>
std::vector<double> values_of(const std::vector<Journey>& journeys, Value value) {
  std::vector<double> values;
  std::transform(journeys.begin(), journeys.end(), std::back_inserter(values), value);
  return values;
}

// "median (least–most)", of values in units of `unit` milliseconds.
std::string spread_text(const std::vector<double>& values, double unit, int decimals) {
  const auto [least, most] = std::minmax_element(values.begin(), values.end());
  return number(median_of(values) / unit, decimals) + " (" + number(*least / unit, decimals) + "–" +
         number(*most / unit, decimals) + ")";
}

std::vector<std::string> waiting_row(const std::vector<Journey>& journeys,
                                     const std::string& words) {
  const auto lp = values_of(journeys, [](const Journey& one) { return one.lpEnded; });
  const auto completed = values_of(journeys, [](const Journey& one) { return one.completed; });
  return {words,
          journeys.front().marked ? "yes" : "no",
          std::to_string(journeys.size()),
          spread_text(lp, 1.0, 0),
          spread_text(values_of(journeys, first_byte), 1.0, 0),
          spread_text(values_of(journeys, last_byte), kMillisecondsPerSecond, 2),
          spread_text(completed, kMillisecondsPerSecond, 2)};
}

void print_waiting(const std::vector<Journey>& journeys) {
  Table table{{"Job", "Noted", "Jobs", "lp returns, ms", "First byte, ms", "Last byte, s",
               "Job completed, s"},
              {}};
  for (const Kind& kind : kKinds) {
    for (const bool marked : {false, true}) {
      const std::vector<Journey> found = chosen(journeys, kind.name, marked);
      if (!found.empty()) {
        table.rows.push_back(waiting_row(found, kind.words));
      }
    }
  }
  print_table(table);
}

// Of a kind's jobs, the milliseconds of each kind of step: one list of values for each.
std::vector<std::vector<double>> step_values(const std::vector<Journey>& journeys) {
  std::vector<std::vector<double>> values(kStepKinds);
  for (const Journey& journey : journeys) {
    const auto totals = total_by_kind(steps_of(journey));
    for (std::size_t i = 0; i < kStepKinds; ++i) {
      values[i].push_back(totals.at(i));
    }
  }
  return values;
}

void print_steps(const std::vector<Journey>& journeys) {
  Table table{{"Step", "Whose", "JPEG", "PDF", "Matte", "Two copies"}, {}};
  for (std::size_t i = 0; i < kStepKinds; ++i) {
    const StepWords& words = words_of(static_cast<StepKind>(i));
    table.rows.push_back({words.name, words.whose});
  }
  table.rows.push_back({"all but the pauses", ""});
  table.rows.push_back({"of reading the page: in the calls that read", ""});
  for (const Kind& kind : kKinds) {
    const std::vector<Journey> found = chosen(journeys, kind.name, true);
    const auto values = step_values(found);
    std::vector<double> rest(found.size());
    for (std::size_t i = 0; i < kStepKinds; ++i) {
      table.rows[i].push_back(spread_text(values[i], 1.0, 1));
      for (std::size_t job = 0; job < rest.size(); ++job) {
        rest[job] += static_cast<StepKind>(i) == StepKind::Pause ? 0.0 : values[i][job];
      }
    }
    table.rows[kStepKinds].push_back(spread_text(rest, 1.0, 1));
    table.rows[kStepKinds + 1].push_back(spread_text(values_of(found, waited_for_raster), 1.0, 1));
  }
  print_table(table);
}

void print_costs(const std::vector<Journey>& journeys) {
  Table table{{"Cost of noting, ms", "First byte", "Last byte"}, {}};
  for (const Kind& kind : kKinds) {
    const std::vector<Journey> plain = chosen(journeys, kind.name, false);
    const std::vector<Journey> marked = chosen(journeys, kind.name, true);
    if (!plain.empty() && !marked.empty()) {
      const auto difference = [&](auto value) {
        return number(median_of(values_of(marked, value)) - median_of(values_of(plain, value)), 1);
      };
      table.rows.push_back({kind.words, difference(first_byte), difference(last_byte)});
    }
  }
  print_table(table);
}

// The job whose last byte came neither early nor late.
const Journey& middle_one(std::vector<Journey>& journeys) {
  std::sort(journeys.begin(), journeys.end(), [](const Journey& one, const Journey& other) {
    return last_byte(one) < last_byte(other);
  });
  return journeys.at(journeys.size() / 2);
}

}  // namespace
}  // namespace bench

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "usage: journey-report RECORDS PICTURE\n");
    return 2;
  }
  try {
    const std::vector<bench::Journey> journeys = bench::read_journeys(argv[1]);
    bench::print_waiting(journeys);
    bench::print_steps(journeys);
    bench::print_costs(journeys);
    auto jpeg = bench::chosen(journeys, "jpeg", true);
    auto pdf = bench::chosen(journeys, "pdf", true);
    bench::write_journeys(argv[2], {{"A photo as JPEG, 10 × 15 cm", bench::middle_one(jpeg)},
                                    {"The same photo as PDF", bench::middle_one(pdf)}});
  } catch (const std::exception& error) {
    std::fprintf(stderr, "journey-report: %s\n", error.what());
    return 1;
  }
  return 0;
}
