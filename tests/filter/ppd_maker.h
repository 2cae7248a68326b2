// SPDX-License-Identifier: Apache-2.0
//
// A PPD with every option that the filter reads, written by the test so that each choice, odd ones
// included, can be a default or be asked for by a job.
#ifndef TQR7_TESTS_FILTER_PPD_MAKER_H
#define TQR7_TESTS_FILTER_PPD_MAKER_H

#include <map>
#include <string>
#include <vector>

namespace filter_test {

struct Ppd {
  /// The cupsFilter lines' values.
  std::vector<std::string> filters = {
      "application/vnd.cups-raster 0 /opt/printer/filter/rastertoprinter"};
  /// Defaults other than each option's first choice.
  std::map<std::string, std::string> defaults = {};
  /// Options that this PPD lacks.
  std::vector<std::string> without = {};

  std::string Text() const;
};

}  // namespace filter_test

#endif  // TQR7_TESTS_FILTER_PPD_MAKER_H
