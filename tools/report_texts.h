// SPDX-License-Identifier: Apache-2.0
//
// The texts of a bug report: versions, the queue, its PPD's options, the job. Only what is listed
// as needed is told; all else that the scheduler knows stays out.
#ifndef TQR7_TOOLS_REPORT_TEXTS_H
#define TQR7_TOOLS_REPORT_TEXTS_H

#include <cups/ipp.h>

#include <string>
#include <vector>

namespace tools {

/// Of this tool, CUPS, the libraries and the system; `cups` is what the scheduler says of itself.
std::string versions_text(const std::string& toolVersion, const std::string& cups);

/// A queue's attributes, one a line.
std::string queue_text(ipp_t* attributes);

/// A PPD's identity, its filters and its options with choices, the default one in brackets.
struct PpdText {
  std::string text;
  std::vector<std::string> options;  ///< keywords
};
PpdText ppd_text(const std::string& path);

/// A job's attributes and those of its options that are the PPD's or of image placement.
std::string job_text(ipp_t* attributes, const std::vector<std::string>& ppdOptions);

/// The value of an attribute of text; empty when there is none.
std::string text_attribute(ipp_t* attributes, const char* name);

}  // namespace tools

#endif  // TQR7_TOOLS_REPORT_TEXTS_H
