// SPDX-License-Identifier: Apache-2.0
//
// Waiting that a person can end with control-C, and a service manager with SIGTERM.
#ifndef TQR7_TOOLS_INTERRUPTION_H
#define TQR7_TOOLS_INTERRUPTION_H

#include <csignal>

namespace tools {

/// From its making on, SIGINT and SIGTERM end waits instead of the program: they come through only
/// within a wait, so that none is lost between two. One per process.
class Interruption {
 public:
  Interruption();

  /// Waits; true as soon as somebody asked for the end, now or earlier.
  bool Within(double seconds) const;

 private:
  sigset_t whileWaiting_{};
};

}  // namespace tools

#endif  // TQR7_TOOLS_INTERRUPTION_H
