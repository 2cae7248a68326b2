// SPDX-License-Identifier: Apache-2.0
//
// SIGTERM and SIGINT turned into a descriptor that becomes readable, so that every wait can end.
#ifndef TQR7_SIMULATOR_STOP_SIGNAL_H
#define TQR7_SIMULATOR_STOP_SIGNAL_H

namespace simulator {

/// Catches SIGTERM and SIGINT from now on, and ignores SIGPIPE and SIGXFSZ, which writes report as
/// errors instead. Returns the descriptor that is readable once a stop was asked for, or −1.
int catch_stop_signals();

}  // namespace simulator

#endif  // TQR7_SIMULATOR_STOP_SIGNAL_H
