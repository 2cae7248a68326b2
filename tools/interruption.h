// SPDX-License-Identifier: Apache-2.0
//
// Waits that a person can end with control-C, and a service manager with SIGTERM.
#ifndef TQR7_TOOLS_INTERRUPTION_H
#define TQR7_TOOLS_INTERRUPTION_H

#include <csignal>

namespace tools {

/// As long as it exists, SIGINT and SIGTERM end a wait and not the program. They are blocked
/// between waits, so that none is lost. One per process.
class Interruption {
 public:
  Interruption();

  /// Waits. Returns true at once when a signal comes or has come before.
  bool Within(double seconds) const;

 private:
  sigset_t whileWaiting_{};
};

}  // namespace tools

#endif  // TQR7_TOOLS_INTERRUPTION_H
