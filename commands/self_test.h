// SPDX-License-Identifier: Apache-2.0
//
// The job that prints the test page, on the way that a photo takes.
#ifndef TQR7_COMMANDS_SELF_TEST_H
#define TQR7_COMMANDS_SELF_TEST_H

#include <cups/ppd.h>

/// Prints one sheet of the size and with the settings that are marked in the PPD. False, with the
/// filter's own messages, when the printer is not good, does not take the sheet, or the page cannot
/// be made. The connection must be bidirectional. `found_good`: the job has asked the printer for
/// its state, which begins it, and need not ask again before the sheet's own check.
bool print_self_test(ppd_file_s* ppd, bool found_good);

#endif  // TQR7_COMMANDS_SELF_TEST_H
