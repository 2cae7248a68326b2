// SPDX-License-Identifier: Apache-2.0
//
// The words of one job that a bug report does not need to show.
#ifndef TQR7_TOOLS_JOB_WORDS_H
#define TQR7_TOOLS_JOB_WORDS_H

#include <cups/ipp.h>

#include <string>
#include <vector>

#include "tools/personal_words.h"

namespace tools {

/// Its title and documents, its user and machine as the scheduler tells them, and the printers'
/// machines out of the addresses of the queues that it may have run on.
PersonalWords words_of_job(ipp_t* job, const std::vector<std::string>& deviceUris);

/// The user who runs this program, and this machine.
void add_own_names(PersonalWords& words);

}  // namespace tools

#endif  // TQR7_TOOLS_JOB_WORDS_H
