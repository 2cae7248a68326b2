// SPDX-License-Identifier: Apache-2.0
//
// The five descriptors that the scheduler hands to a filter.
#ifndef TQR7_FILTER_DESCRIPTORS_H
#define TQR7_FILTER_DESCRIPTORS_H

/// Occupies each of descriptors 0 … 4 that is closed, the wrong way round, so that its use fails at
/// once: a file opened later never takes the place of the printer's stream, the log or a channel,
/// and libcups, which waits for ever on a closed back channel, gets an error. Has reads of the back
/// channel return when there is nothing to read, as the scheduler does: libcups reads after its
/// wait whether or not anything came.
void reserve_scheduler_descriptors();

#endif  // TQR7_FILTER_DESCRIPTORS_H
