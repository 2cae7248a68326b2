// SPDX-License-Identifier: Apache-2.0
//
// The five descriptors that the scheduler hands to a filter.
#ifndef TQR7_FILTER_DESCRIPTORS_H
#define TQR7_FILTER_DESCRIPTORS_H

/// Occupies each of descriptors 0 … 4 that is closed, the wrong way round, so that its use fails at
/// once: a file opened later never takes the place of the printer's stream, the log or a channel,
/// and libcups, which waits for ever on a closed back channel, gets an error.
void reserve_scheduler_descriptors();

/// Has reads of the back channel return when there is nothing to read, as the scheduler does:
/// libcups reads after its wait whether or not anything came. Not where the back channel is the
/// same file as another of the five: they may share one set of flags, and the stream would lose
/// what the printer does not take at once.
void unblock_back_channel();

#endif  // TQR7_FILTER_DESCRIPTORS_H
