// SPDX-License-Identifier: Apache-2.0
//
// The last words of the two programs, where nothing comes of a job.
#ifndef TQR7_PHOTO_REFUSAL_H
#define TQR7_PHOTO_REFUSAL_H

#include <string_view>

namespace photo {

/// Why something fails that is right: the machine's fault, not the file's.
inline constexpr char kNoMemory[] = "there is too little memory";

/// "ERROR: The photo cannot be printed: …": it is the file, or what the job wants of it, and
/// printing it again does not help. The operator's tool knows a refused job by these words. Too
/// little memory is told as in say_not_printed. `what` is "photo" or "pages". The programs' exit
/// status, 1.
int say_cannot_be_printed(std::string_view what, std::string_view why);

/// "ERROR: The photo was not printed: …", "… pages were …": something around the program failed.
int say_not_printed(std::string_view what, std::string_view why);

}  // namespace photo

#endif  // TQR7_PHOTO_REFUSAL_H
