// SPDX-License-Identifier: Apache-2.0
//
// phototopage and rastertopage as filters of the scheduler: their arguments, and what they say when
// they cannot print a job.
#ifndef TQR7_PHOTO_FILTER_PROGRAM_H
#define TQR7_PHOTO_FILTER_PROGRAM_H

#include <string_view>

namespace photo {

/// "job-id user title copies options", without and with a file after them.
inline constexpr int kArgumentsWithoutFile = 6;
inline constexpr int kArgumentsWithFile = 7;

/// Main of a filter: calls `print` when the number of arguments is right, and reports its
/// exceptions by say_not_printed. `what` is "photo" or "pages". Returns the exit status.
int run_filter(const char* what, int (*print)(int argc, char* argv[]), int argc, char* argv[]);

/// "ERROR: The photo cannot be printed: …": because of its file or of the job's options, so
/// printing it again does not help. tqr7 status finds a refused job by these words. If there was
/// too little memory, it says what say_not_printed does. `what` is "photo" or "pages". Returns the
/// programs' exit status, 1.
int say_cannot_be_printed(std::string_view what, std::string_view why);

/// "ERROR: The photo was not printed: …", "… pages were …": something else failed. Returns 1.
int say_not_printed(std::string_view what, std::string_view why);

}  // namespace photo

#endif  // TQR7_PHOTO_FILTER_PROGRAM_H
