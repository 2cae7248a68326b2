// SPDX-License-Identifier: Apache-2.0
//
// The first question of a job: does anything come back from the printer?
#ifndef TQR7_STATUS_CONNECTION_CHECK_H
#define TQR7_STATUS_CONNECTION_CHECK_H

/// Asks the backend, for at most 30 seconds, whether it passes on the printer's answers. If it does
/// not, or does not answer, writes a "DEBUG: " line and returns false.
bool connection_is_bidirectional();

#endif  // TQR7_STATUS_CONNECTION_CHECK_H
