// SPDX-License-Identifier: Apache-2.0
//
// The first question of a job: does anything come back from the printer?
#ifndef TQR7_STATUS_CONNECTION_CHECK_H
#define TQR7_STATUS_CONNECTION_CHECK_H

/// Asks the backend, for at most 30 seconds, whether it can carry the printer's answers. False,
/// after a "DEBUG: " line, when it cannot or does not say so.
bool connection_is_bidirectional();

#endif  // TQR7_STATUS_CONNECTION_CHECK_H
