// SPDX-License-Identifier: Apache-2.0
//
// Jobs that stand stopped because their own file cannot be printed.
#ifndef TQR7_TOOLS_REFUSED_FILE_H
#define TQR7_TOOLS_REFUSED_FILE_H

#include <string>
#include <string_view>

#include "tools/queue.h"

namespace tools {

/// Whether the words are those of phototopage or rastertopage for a file, or for what a job wants
/// of it, that cannot be printed.
bool refuses_file(std::string_view words);

/// Those words of a job that stands stopped because of its file; empty for any other job. The
/// scheduler keeps the first complaint of a job's programs with it until the job runs again, so
/// they stand there only when nothing else failed before. No person can put words there.
std::string words_on_file(const Job& job);

}  // namespace tools

#endif  // TQR7_TOOLS_REFUSED_FILE_H
