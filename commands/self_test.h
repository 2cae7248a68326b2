// SPDX-License-Identifier: Apache-2.0
//
// The job that prints the test page, in the same way as a photo.
#ifndef TQR7_COMMANDS_SELF_TEST_H
#define TQR7_COMMANDS_SELF_TEST_H

#include <cups/ppd.h>

/// Prints one sheet with the size and the settings that are marked in the PPD. Returns false, after
/// the filter's own messages, when the printer is not good or refuses the sheet, or when the page
/// cannot be made. The connection must be bidirectional. `found_good`: the job has asked the
/// printer for its state at its beginning, and need not ask again until the sheet's own check.
bool print_self_test(ppd_file_s* ppd, bool found_good);

#endif  // TQR7_COMMANDS_SELF_TEST_H
