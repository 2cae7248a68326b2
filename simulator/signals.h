// SPDX-License-Identifier: Apache-2.0
//
// Turns signals into descriptors that become readable, so that every wait can end.
#ifndef TQR7_SIMULATOR_SIGNALS_H
#define TQR7_SIMULATOR_SIGNALS_H

#include <cstdint>
#include <optional>

namespace simulator {

/// The ends to wait on and to read from.
struct SignalEnds {
  int stop;    ///< stays readable once SIGTERM or SIGINT came
  int wishes;  ///< a byte for each SIGUSR1 and SIGHUP; take_wish reads it
};

/// What a person can ask of a running printer.
enum class Wish : std::uint8_t {
  SeenTo,  ///< SIGUSR1: the printer has been seen to
  Reread,  ///< SIGHUP: the script is to be read again
};

/// Catches SIGTERM, SIGINT, SIGUSR1 and SIGHUP from now on, and ignores SIGPIPE and SIGXFSZ, which
/// writes then report as errors. A second SIGTERM or SIGINT ends the program at once. Returns
/// nothing when there are no descriptors left.
std::optional<SignalEnds> catch_signals();

/// The next wish, if one came. Does not wait.
std::optional<Wish> take_wish(const SignalEnds& ends);

}  // namespace simulator

#endif  // TQR7_SIMULATOR_SIGNALS_H
