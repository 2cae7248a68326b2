// SPDX-License-Identifier: Apache-2.0
//
// One job of the soak: runs it, sends SIGTERM, and judges how it ended.
#ifndef TQR7_TESTS_FILTER_CANCEL_SOAK_RUN_H
#define TQR7_TESTS_FILTER_CANCEL_SOAK_RUN_H

#include <map>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "tests/filter/cancel_soak_kinds.h"

namespace cancel_soak {

enum class End { Killed, Cut, Undisturbed };

/// The same job without SIGTERM.
struct Undisturbed {
  filter_test::Outcome outcome;
  std::vector<std::size_t> headers;  ///< where in the stream each sheet's headers begin
  double seconds = 0;
};

struct Result {
  End end = End::Undisturbed;
  bool in_data = false;      ///< cut within what a sheet's headers announced
  double milliseconds = 0;   ///< from SIGTERM, or the reader taking all again, to the end
  std::string failure = {};  ///< empty when all holds
};

/// Undisturbed jobs, each run once for the sheets that are the turn's.
class References {
 public:
  const Undisturbed& Of(const Kind& kind, const Sheets& sheets);

 private:
  std::string sheets_;
  std::map<std::pair<Printer, int>, Undisturbed> jobs_;
};

Result CancelJob(const Kind& kind, const Sheets& sheets, const Undisturbed& undisturbed,
                 std::mt19937& random);

}  // namespace cancel_soak

#endif  // TQR7_TESTS_FILTER_CANCEL_SOAK_RUN_H
