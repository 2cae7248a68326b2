// SPDX-License-Identifier: Apache-2.0
//
// PPD files of a test's own, opened and marked by libcups as the filter does it.
#ifndef TQR7_TESTS_UNIT_PPD_FILE_H
#define TQR7_TESTS_UNIT_PPD_FILE_H

#include <cups/cups.h>
#include <cups/ppd.h>

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/unit/temp_file.h"

/// The lines of an option that is picked from a list; the first choice is its default.
inline std::string PickOne(const std::string& keyword, const std::vector<std::string>& choices) {
  std::ostringstream lines;
  lines << "*OpenUI *" << keyword << ": PickOne\n";
  lines << "*Default" << keyword << ": " << choices.front() << "\n";
  for (const std::string& choice : choices) {
    lines << "*" << keyword << " " << choice << ": \"\"\n";
  }
  lines << "*CloseUI: *" << keyword << "\n";
  return lines.str();
}

/// A PPD with the given lines, its defaults marked.
class PpdFile {
 public:
  explicit PpdFile(const std::string& lines) {
    const std::string name = folder_ / "test.ppd";
    std::ofstream(name) << "*PPD-Adobe: \"4.3\"\n"
                           "*FormatVersion: \"4.3\"\n"
                           "*FileVersion: \"1.0\"\n"
                           "*LanguageVersion: English\n"
                           "*LanguageEncoding: ISOLatin1\n"
                           "*PCFileName: \"TEST.PPD\"\n"
                           "*Manufacturer: \"Test\"\n"
                           "*Product: \"(Test)\"\n"
                           "*ModelName: \"Test\"\n"
                           "*ShortNickName: \"Test\"\n"
                           "*NickName: \"Test\"\n"
                           "*PSVersion: \"(3010.000) 0\"\n"
                        << lines;
    ppd_ = ppdOpenFile(name.c_str());
    if (ppd_ == nullptr) {
      throw std::runtime_error("libcups does not read the PPD");
    }
    ppdMarkDefaults(ppd_);
  }
  ~PpdFile() { ppdClose(ppd_); }
  PpdFile(const PpdFile&) = delete;
  PpdFile& operator=(const PpdFile&) = delete;

  /// Marks a job's options, given as on a command line.
  void Mark(const std::string& job_options) {
    cups_option_t* options = nullptr;
    const int count = cupsParseOptions(job_options.c_str(), 0, &options);
    cupsMarkOptions(ppd_, count, options);
    cupsFreeOptions(count, options);
  }

  ppd_file_t* get() { return ppd_; }

 private:
  TempFolder folder_;
  ppd_file_t* ppd_ = nullptr;
};

#endif  // TQR7_TESTS_UNIT_PPD_FILE_H
