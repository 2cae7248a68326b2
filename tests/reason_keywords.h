// SPDX-License-Identifier: Apache-2.0
//
// Every state reason that the filter may raise, and the lines that withdraw them: the tests' own
// list.
#ifndef TQR7_TESTS_REASON_KEYWORDS_H
#define TQR7_TESTS_REASON_KEYWORDS_H

#include <sstream>
#include <string>
#include <vector>

struct ReasonKeyword {
  std::string keyword;
  unsigned short error_number;  ///< the printer's number that raises it
};

/// All of them, in the order in which they are withdrawn. A keyword is
/// "com.corvantiel-error0008_2665", of the class 0008, or "com.corvantiel-error0001" for an error
/// that is a class of its own.
inline std::vector<ReasonKeyword> ReasonKeywords() {
  struct ErrorClass {
    const char* name;
    const char* numbers;
  };
  static constexpr ErrorClass kClasses[] = {
      {"0001", "0001"},
      {"0002", "0002"},
      {"0003", "0003"},
      {"0004", "0004"},
      {"0005", "0005"},
      {"0006", "2190"},
      {"0007", "2100 2110 2120 2130"},
      {"0008",
       "2600 2601 2602 2610 2611 2620 2621 2622 2623 2624 2625 2626 "
       "2660 2661 2662 2663 2664 2665 2666 2667 2668 2669 "
       "2670 2671 2672 2673 2674 2675 2676 2677 2678 2679 "
       "2680 2681 2682 2683 2684 2685 2686 2687 2688 2689 2690"},
      {"0009", "3190 3290 3490 3590 3790"},
      {"0010", "2800"},
      {"0011", "2200"},
      {"0012", "2900"},
      {"0013", "2390"},
      {"0015", "2202"},
      {"0016", "4093 4291 4293 4391 4393 4491 4493"},
      {"0017", "7092 7192 7194 7292 7392 7493"},
      {"0018", "7054 7250 7350 7452 7552"},
      {"0019", "6802"},
      {"0020", "6001 6003 6011 6013"},
      {"0021", "6100"},
      {"0024", "6300 6310 6320"},
      {"0025", "6400 6410 6430"},
      {"0027", "6620"},
      {"0028", "6030"},
      {"0029", "6200 6210 6220"},
      {"0031", "6500 6510 6520 6530"},
      {"0032", "0032"},
      {"0033", "0033"},
      {"0034", "6700 6710 6900 6901 6903"},
  };
  std::vector<ReasonKeyword> keywords;
  for (const ErrorClass& error_class : kClasses) {
    std::istringstream numbers(error_class.numbers);
    for (std::string number; numbers >> number;) {
      std::string keyword = "com.corvantiel-error";
      keyword += error_class.name;
      if (number != error_class.name) {
        keyword += "_";
        keyword += number;
      }
      keywords.push_back({keyword, static_cast<unsigned short>(std::stoul(number, nullptr, 16))});
    }
  }
  return keywords;
}

/// The lines that withdraw every reason but one.
inline std::string Withdrawals(const std::string& but = {}) {
  std::string text;
  for (const ReasonKeyword& reason : ReasonKeywords()) {
    if (reason.keyword != but) {
      text += "STATE: -" + reason.keyword + "\n";
    }
  }
  return text;
}

#endif  // TQR7_TESTS_REASON_KEYWORDS_H
