// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/together.h"

#include "bench/speed/at_once.h"

namespace bench {

Together measure_together(const MeteredRun& run, int queues) {
  Together together;
  together.jobs = at_once<Usage>(
      queues, [&run] { return measure(run); }, &together.wall);
  return together;
}

}  // namespace bench
