// SPDX-License-Identifier: Apache-2.0
//
// Every state reason that the filter may raise, in the order in which it withdraws them.
#ifndef TQR7_TESTS_FILTER_REASON_KEYWORDS_H
#define TQR7_TESTS_FILTER_REASON_KEYWORDS_H

namespace filter_test {

struct ReasonKeyword {
  const char* keyword;
  unsigned short error_number;  ///< the printer's number that raises it
};

inline constexpr ReasonKeyword kReasonKeywords[] = {
    {"com.corvantiel-error0001", 0x0001},      {"com.corvantiel-error0002", 0x0002},
    {"com.corvantiel-error0003", 0x0003},      {"com.corvantiel-error0004", 0x0004},
    {"com.corvantiel-error0005", 0x0005},      {"com.corvantiel-error0006_2190", 0x2190},
    {"com.corvantiel-error0007_2100", 0x2100}, {"com.corvantiel-error0007_2110", 0x2110},
    {"com.corvantiel-error0007_2120", 0x2120}, {"com.corvantiel-error0007_2130", 0x2130},
    {"com.corvantiel-error0008_2600", 0x2600}, {"com.corvantiel-error0008_2601", 0x2601},
    {"com.corvantiel-error0008_2602", 0x2602}, {"com.corvantiel-error0008_2610", 0x2610},
    {"com.corvantiel-error0008_2611", 0x2611}, {"com.corvantiel-error0008_2620", 0x2620},
    {"com.corvantiel-error0008_2621", 0x2621}, {"com.corvantiel-error0008_2622", 0x2622},
    {"com.corvantiel-error0008_2623", 0x2623}, {"com.corvantiel-error0008_2624", 0x2624},
    {"com.corvantiel-error0008_2625", 0x2625}, {"com.corvantiel-error0008_2626", 0x2626},
    {"com.corvantiel-error0008_2660", 0x2660}, {"com.corvantiel-error0008_2661", 0x2661},
    {"com.corvantiel-error0008_2662", 0x2662}, {"com.corvantiel-error0008_2663", 0x2663},
    {"com.corvantiel-error0008_2664", 0x2664}, {"com.corvantiel-error0008_2665", 0x2665},
    {"com.corvantiel-error0008_2666", 0x2666}, {"com.corvantiel-error0008_2667", 0x2667},
    {"com.corvantiel-error0008_2668", 0x2668}, {"com.corvantiel-error0008_2669", 0x2669},
    {"com.corvantiel-error0008_2670", 0x2670}, {"com.corvantiel-error0008_2671", 0x2671},
    {"com.corvantiel-error0008_2672", 0x2672}, {"com.corvantiel-error0008_2673", 0x2673},
    {"com.corvantiel-error0008_2674", 0x2674}, {"com.corvantiel-error0008_2675", 0x2675},
    {"com.corvantiel-error0008_2676", 0x2676}, {"com.corvantiel-error0008_2677", 0x2677},
    {"com.corvantiel-error0008_2678", 0x2678}, {"com.corvantiel-error0008_2679", 0x2679},
    {"com.corvantiel-error0008_2680", 0x2680}, {"com.corvantiel-error0008_2681", 0x2681},
    {"com.corvantiel-error0008_2682", 0x2682}, {"com.corvantiel-error0008_2683", 0x2683},
    {"com.corvantiel-error0008_2684", 0x2684}, {"com.corvantiel-error0008_2685", 0x2685},
    {"com.corvantiel-error0008_2686", 0x2686}, {"com.corvantiel-error0008_2687", 0x2687},
    {"com.corvantiel-error0008_2688", 0x2688}, {"com.corvantiel-error0008_2689", 0x2689},
    {"com.corvantiel-error0008_2690", 0x2690}, {"com.corvantiel-error0009_3190", 0x3190},
    {"com.corvantiel-error0009_3290", 0x3290}, {"com.corvantiel-error0009_3490", 0x3490},
    {"com.corvantiel-error0009_3590", 0x3590}, {"com.corvantiel-error0009_3790", 0x3790},
    {"com.corvantiel-error0010_2800", 0x2800}, {"com.corvantiel-error0011_2200", 0x2200},
    {"com.corvantiel-error0012_2900", 0x2900}, {"com.corvantiel-error0013_2390", 0x2390},
    {"com.corvantiel-error0015_2202", 0x2202}, {"com.corvantiel-error0016_4093", 0x4093},
    {"com.corvantiel-error0016_4291", 0x4291}, {"com.corvantiel-error0016_4293", 0x4293},
    {"com.corvantiel-error0016_4391", 0x4391}, {"com.corvantiel-error0016_4393", 0x4393},
    {"com.corvantiel-error0016_4491", 0x4491}, {"com.corvantiel-error0016_4493", 0x4493},
    {"com.corvantiel-error0017_7092", 0x7092}, {"com.corvantiel-error0017_7192", 0x7192},
    {"com.corvantiel-error0017_7194", 0x7194}, {"com.corvantiel-error0017_7292", 0x7292},
    {"com.corvantiel-error0017_7392", 0x7392}, {"com.corvantiel-error0017_7493", 0x7493},
    {"com.corvantiel-error0018_7054", 0x7054}, {"com.corvantiel-error0018_7250", 0x7250},
    {"com.corvantiel-error0018_7350", 0x7350}, {"com.corvantiel-error0018_7452", 0x7452},
    {"com.corvantiel-error0018_7552", 0x7552}, {"com.corvantiel-error0019_6802", 0x6802},
    {"com.corvantiel-error0020_6001", 0x6001}, {"com.corvantiel-error0020_6003", 0x6003},
    {"com.corvantiel-error0020_6011", 0x6011}, {"com.corvantiel-error0020_6013", 0x6013},
    {"com.corvantiel-error0021_6100", 0x6100}, {"com.corvantiel-error0024_6300", 0x6300},
    {"com.corvantiel-error0024_6310", 0x6310}, {"com.corvantiel-error0024_6320", 0x6320},
    {"com.corvantiel-error0025_6400", 0x6400}, {"com.corvantiel-error0025_6410", 0x6410},
    {"com.corvantiel-error0025_6430", 0x6430}, {"com.corvantiel-error0027_6620", 0x6620},
    {"com.corvantiel-error0028_6030", 0x6030}, {"com.corvantiel-error0029_6200", 0x6200},
    {"com.corvantiel-error0029_6210", 0x6210}, {"com.corvantiel-error0029_6220", 0x6220},
    {"com.corvantiel-error0031_6500", 0x6500}, {"com.corvantiel-error0031_6510", 0x6510},
    {"com.corvantiel-error0031_6520", 0x6520}, {"com.corvantiel-error0031_6530", 0x6530},
    {"com.corvantiel-error0032", 0x0032},      {"com.corvantiel-error0033", 0x0033},
    {"com.corvantiel-error0034_6700", 0x6700}, {"com.corvantiel-error0034_6710", 0x6710},
    {"com.corvantiel-error0034_6900", 0x6900}, {"com.corvantiel-error0034_6901", 0x6901},
    {"com.corvantiel-error0034_6903", 0x6903},
};

}  // namespace filter_test

#endif  // TQR7_TESTS_FILTER_REASON_KEYWORDS_H
