// SPDX-License-Identifier: Apache-2.0
//
// The texts of a bug report: versions, the queue, its PPD's options, the job. They have only the
// attributes that are listed as needed.
#ifndef TQR7_TOOLS_REPORT_TEXTS_H
#define TQR7_TOOLS_REPORT_TEXTS_H

#include <cups/ipp.h>

#include <string>
#include <vector>

namespace tools {

/// The versions of this tool, CUPS, the libraries and the system; `cups` is the scheduler's own
/// version.
std::string versions_text(const std::string& toolVersion, const std::string& cups);

/// A queue's attributes, one on each line.
std::string queue_text(ipp_t* attributes);

/// A PPD's name and version, its filters, and its options with their choices, the default in
/// brackets.
struct PpdText {
  std::string text;
  std::vector<std::string> options;  ///< keywords
};
PpdText ppd_text(const std::string& path);

/// A job's attributes, and its options that are the PPD's or that place images.
std::string job_text(ipp_t* attributes, const std::vector<std::string>& ppdOptions);

/// The value of a text attribute; empty when there is none.
std::string text_attribute(ipp_t* attributes, const char* name);

}  // namespace tools

#endif  // TQR7_TOOLS_REPORT_TEXTS_H
