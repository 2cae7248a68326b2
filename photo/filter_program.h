// SPDX-License-Identifier: Apache-2.0
//
// What the two programs are as filters of the scheduler: their arguments, and their end.
#ifndef TQR7_PHOTO_FILTER_PROGRAM_H
#define TQR7_PHOTO_FILTER_PROGRAM_H

namespace photo {

/// "job-id user title copies options", with and without the file behind them.
inline constexpr int kArgumentsWithoutFile = 6;
inline constexpr int kArgumentsWithFile = 7;

/// Main of a filter: calls `print` where the number of arguments is right, and tells what that
/// throws in the words of say_not_printed. `what` is "photo" or "pages". Returns the exit status.
int run_filter(const char* what, int (*print)(int argc, char* argv[]), int argc, char* argv[]);

}  // namespace photo

#endif  // TQR7_PHOTO_FILTER_PROGRAM_H
