// SPDX-License-Identifier: Apache-2.0
// Takes the place of the C library's sleep in the filter: each second lasts a fiftieth.
//
// The filter pauses five seconds behind each sheet, for the printer's sake. The order of things
// stays as it is, and the tests need not wait.
#include <ctime>

extern "C" unsigned int sleep(unsigned int seconds) {
  constexpr long kNanoseconds = 20'000'000;
  const std::timespec pause = {static_cast<std::time_t>(seconds / 50),
                               static_cast<long>(seconds % 50) * kNanoseconds};
  nanosleep(&pause, nullptr);
  return 0;
}
