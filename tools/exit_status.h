// SPDX-License-Identifier: Apache-2.0
//
// The exit statuses of the operator's tool, the same for every subcommand, so that scripts can rely
// on them.
#ifndef TQR7_TOOLS_EXIT_STATUS_H
#define TQR7_TOOLS_EXIT_STATUS_H

namespace tools {

inline constexpr int kExitGood = 0;
inline constexpr int kExitNotGood = 1;  ///< the answer is no: errors found, not printing, unknown
inline constexpr int kExitCannotTell = 2;  ///< no answer: wrong usage, no file, no scheduler

}  // namespace tools

#endif  // TQR7_TOOLS_EXIT_STATUS_H
