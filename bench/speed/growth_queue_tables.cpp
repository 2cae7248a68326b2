// SPDX-License-Identifier: Apache-2.0
#include <string>

#include "bench/speed/growth_figures.h"
#include "bench/speed/growth_tables.h"
#include "bench/spread.h"
#include "bench/table_printer.h"

namespace bench {

namespace {

/// The median over the rounds of what one queue's share of a page is.
template <typename Value>
double a_page(const std::vector<Together>& rounds, int queues, Value value) {
  std::vector<double> values;
  values.reserve(rounds.size());
  for (const Together& round : rounds) {
    values.push_back(round.sum_of(value) / (queues * kPagesOfAQueue));
  }
  return median_of(values);
}

double probe_ratio(const QueuesPoint& point, const QueuesPoint& alone, double ProbeTimes::*kind) {
  std::vector<double> ratios;
  for (std::size_t round = 0; round < point.probe.size(); ++round) {
    ratios.push_back(point.probe[round].*kind / (alone.probe[round].*kind));
  }
  return median_of(ratios);
}

}  // namespace

void print_queues(const std::vector<QueuesPoint>& queues) {
  Table table{{"Program", "queues at once", "CPU, ms a page", "against one queue", "pages a second",
               "against one queue", "page faults a page", "times displaced a page"},
              {}};
  for (std::size_t i = 0; i < kPrograms.size(); ++i) {
    for (const QueuesPoint& point : queues) {
      table.rows.push_back(
          {name_of(kPrograms[i]), std::to_string(point.queues), number(queue_cost(point, i), 2),
           times(queue_cost(point, i) / queue_cost(queues.front(), i)),
           number(pages_a_second(point, i), 0),
           times(pages_a_second(point, i) / pages_a_second(queues.front(), i)),
           number(a_page(point.of[i], point.queues, [](const Usage& job) { return job.faults; }),
                  0),
           number(a_page(point.of[i], point.queues, [](const Usage& job) { return job.displaced; }),
                  2)});
    }
  }
  print_table(table);
}

void print_probe(const std::vector<QueuesPoint>& queues) {
  Table table{{"The same work in so many processes at once, CPU of each against one alone",
               "arithmetic in registers", "copies within 1 MB", "copies among 20 MB",
               "fresh memory", "reading the jobs' file"},
              {}};
  for (const QueuesPoint& point : queues) {
    table.rows.push_back({std::to_string(point.queues),
                          times(probe_ratio(point, queues.front(), &ProbeTimes::registers)),
                          times(probe_ratio(point, queues.front(), &ProbeTimes::cache)),
                          times(probe_ratio(point, queues.front(), &ProbeTimes::memory)),
                          times(probe_ratio(point, queues.front(), &ProbeTimes::fresh)),
                          times(probe_ratio(point, queues.front(), &ProbeTimes::file))});
  }
  print_table(table);
}

}  // namespace bench
