// SPDX-License-Identifier: Apache-2.0
//
// The backend and the printer as an input scripts them, in place of libcups' side channel, back
// channel and destinations, and of the C library's sleep().
#ifndef TQR7_TESTS_FUZZ_FAKE_PRINTER_H
#define TQR7_TESTS_FUZZ_FAKE_PRINTER_H

#include <cstdint>
#include <string>
#include <vector>

#include "tests/fuzz/input.h"

namespace fuzz {

/// What one read of the back channel gives, as the script's next byte says. Behind the script's end
/// every read fails, or is answered well.
enum class Answer : std::uint8_t {
  Good,     ///< 15 zeros: good, and ready
  Busy,     ///< the readiness query's busy code
  Code,     ///< a whole reply with the code in the script's next two bytes
  Silence,  ///< an empty read
  Failure,  ///< −1
  Piece,    ///< so many of the script's next bytes as the first of them says
};
inline constexpr std::uint8_t kAnswers = 6;

struct FakePrinter {
  Input script{nullptr, 0};
  bool good_in_the_end = false;  ///< how the printer answers behind the script's end
  int side_channel_status = 0;
  std::vector<std::uint8_t> reply;  ///< all that was read since the last request was drained
  int exchanges = 0;                ///< drains so far
  unsigned int slept = 0;           ///< seconds of all pauses
  std::string reasons;              ///< of the default destination; none while empty
};

/// The printer of the running input.
FakePrinter& printer();

}  // namespace fuzz

#endif  // TQR7_TESTS_FUZZ_FAKE_PRINTER_H
