// SPDX-License-Identifier: Apache-2.0
//
// Signals that another library in the process handles, such as one that was preloaded.
#ifndef TQR7_FILTER_FOREIGN_SIGNALS_H
#define TQR7_FILTER_FOREIGN_SIGNALS_H

/// Holds back, for the rest of the job, every signal that has a handler by now, except SIGTERM and
/// those that a fault of the process itself raises. Under the scheduler there are none. An
/// interrupted call would lose bytes of an image without a word, since the C library drops what its
/// stream holds when a write is interrupted; it would take an answer that is late for one that does
/// not come; and it would cut a pause short.
void hold_back_foreign_signals();

#endif  // TQR7_FILTER_FOREIGN_SIGNALS_H
