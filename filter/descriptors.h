// SPDX-License-Identifier: Apache-2.0
//
// The five descriptors that the scheduler hands to a filter.
#ifndef TQR7_FILTER_DESCRIPTORS_H
#define TQR7_FILTER_DESCRIPTORS_H

/// Opens a file in the place of each of descriptors 0 … 4 that is closed, so that no file opened
/// later gets the number of the printer's stream, the log or a channel. An input is opened for
/// writing and an output for reading: any use of it fails at once. libcups would wait for ever on a
/// closed back channel.
void reserve_scheduler_descriptors();

/// Makes reads of the back channel return when there is nothing to read, as the scheduler does.
/// libcups reads after its wait even when nothing came. A back channel that is the same file as
/// another of the five descriptors is left alone: they may share one set of flags, and the
/// printer's stream would then lose what the printer does not take at once.
void unblock_back_channel();

#endif  // TQR7_FILTER_DESCRIPTORS_H
