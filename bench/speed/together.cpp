// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/together.h"

#include "bench/speed/at_once.h"

namespace bench {

namespace {

/// What a child tells of its job.
struct JobFigures {
  double user;
  double system;
  double wall;
  long faults;
  long peak;
  long displaced;
};

JobFigures figures_of(const MeteredRun& run) {
  const Usage usage = measure(run);
  return {usage.user, usage.system, usage.wall, usage.faults, usage.peak, usage.displaced};
}

}  // namespace

Together measure_together(const MeteredRun& run, int queues) {
  Together together;
  for (const JobFigures& job : at_once<JobFigures>(
           queues, [&run] { return figures_of(run); }, &together.wall)) {
    Usage usage;
    usage.user = job.user;
    usage.system = job.system;
    usage.wall = job.wall;
    usage.faults = job.faults;
    usage.peak = job.peak;
    usage.displaced = job.displaced;
    together.jobs.push_back(usage);
  }
  return together;
}

}  // namespace bench
