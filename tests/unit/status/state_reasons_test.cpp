// SPDX-License-Identifier: Apache-2.0
//
// What the scheduler is told of each state: raises first, then all other keywords withdrawn.
#include "status/state_reasons.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <string>

#include "status/reason_table.h"
#include "tests/unit/capture.h"
#include "tests/unit/status/withdrawals.h"
#include "tests/unit/stderr_calls.h"

namespace {

std::string Report(const PrinterState& state) {
  Capture err(stderr);
  update_printer_state(state);
  return err.Text();
}

/// What a state reports that no row knows.
std::string Unmatched(const std::string& state) {
  return "STATE: +com.corvantiel-error0004\n"
         "DEBUG: com.corvantiel-error0004 " +
         state +
         "\n"
         "DEBUG: error_number part mismatch processing \n" +
         WithdrawalsWithout("com.corvantiel-error0004");
}

}  // namespace

TEST(StateReasons, AGoodPrinterRaisesNothingAndWithdrawsEverything) {
  const std::string text = Report(PrinterState::Good());
  EXPECT_EQ(text, kAllWithdrawals);
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 109);
}

TEST(StateReasons, AnUnavailablePrinterRaisesTheCatchAll) {
  const std::string text = Report(PrinterState::Unavailable());
  EXPECT_EQ(text, Unmatched("UNAVAILABLE"));
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 3 + 108);
}

TEST(StateReasons, UnknownErrorsRaiseTheCatchAllWithTheirNumber) {
  EXPECT_EQ(Report(PrinterState::Error(0x266A)), Unmatched("0x266a"));
  EXPECT_EQ(Report(PrinterState::Error(0x1234)), Unmatched("0x1234"));
}

TEST(StateReasons, ErrorFourRaisesItsOwnKeywordByItsRow) {
  EXPECT_EQ(Report(PrinterState::Error(0x0004)),
            "STATE: +com.corvantiel-error0004\n"
            "DEBUG: com.corvantiel-error0004 0x0004\n" +
                WithdrawalsWithout("com.corvantiel-error0004"));
}

TEST(StateReasons, AKnownErrorRaisesItsKeywordAndWithdrawsTheCatchAll) {
  EXPECT_EQ(Report(PrinterState::Error(0x2665)),
            "STATE: +com.corvantiel-error0008_2665\n"
            "DEBUG: com.corvantiel-error0008_2665 0x2665\n" +
                WithdrawalsWithout("com.corvantiel-error0008_2665"));
}

TEST(StateReasons, EveryKnownErrorRaisesTheKeywordOfItsRow) {
  struct Known {
    unsigned short number;
    const char* keyword;
    const char* text;
  };
  static constexpr Known kKnown[] = {
      {0x0001, "com.corvantiel-error0001", "0x0001"},
      {0x0002, "com.corvantiel-error0002", "0x0002"},
      {0x0003, "com.corvantiel-error0003", "0x0003"},
      {0x0004, "com.corvantiel-error0004", "0x0004"},
      {0x0005, "com.corvantiel-error0005", "0x0005"},
      {0x0032, "com.corvantiel-error0032", "0x0032"},
      {0x0033, "com.corvantiel-error0033", "0x0033"},
      {0x2100, "com.corvantiel-error0007_2100", "0x2100"},
      {0x2110, "com.corvantiel-error0007_2110", "0x2110"},
      {0x2120, "com.corvantiel-error0007_2120", "0x2120"},
      {0x2130, "com.corvantiel-error0007_2130", "0x2130"},
      {0x2190, "com.corvantiel-error0006_2190", "0x2190"},
      {0x2200, "com.corvantiel-error0011_2200", "0x2200"},
      {0x2202, "com.corvantiel-error0015_2202", "0x2202"},
      {0x2390, "com.corvantiel-error0013_2390", "0x2390"},
      {0x2600, "com.corvantiel-error0008_2600", "0x2600"},
      {0x2601, "com.corvantiel-error0008_2601", "0x2601"},
      {0x2602, "com.corvantiel-error0008_2602", "0x2602"},
      {0x2610, "com.corvantiel-error0008_2610", "0x2610"},
      {0x2611, "com.corvantiel-error0008_2611", "0x2611"},
      {0x2620, "com.corvantiel-error0008_2620", "0x2620"},
      {0x2621, "com.corvantiel-error0008_2621", "0x2621"},
      {0x2622, "com.corvantiel-error0008_2622", "0x2622"},
      {0x2623, "com.corvantiel-error0008_2623", "0x2623"},
      {0x2624, "com.corvantiel-error0008_2624", "0x2624"},
      {0x2625, "com.corvantiel-error0008_2625", "0x2625"},
      {0x2626, "com.corvantiel-error0008_2626", "0x2626"},
      {0x2660, "com.corvantiel-error0008_2660", "0x2660"},
      {0x2661, "com.corvantiel-error0008_2661", "0x2661"},
      {0x2662, "com.corvantiel-error0008_2662", "0x2662"},
      {0x2663, "com.corvantiel-error0008_2663", "0x2663"},
      {0x2664, "com.corvantiel-error0008_2664", "0x2664"},
      {0x2665, "com.corvantiel-error0008_2665", "0x2665"},
      {0x2666, "com.corvantiel-error0008_2666", "0x2666"},
      {0x2667, "com.corvantiel-error0008_2667", "0x2667"},
      {0x2668, "com.corvantiel-error0008_2668", "0x2668"},
      {0x2669, "com.corvantiel-error0008_2669", "0x2669"},
      {0x2670, "com.corvantiel-error0008_2670", "0x2670"},
      {0x2671, "com.corvantiel-error0008_2671", "0x2671"},
      {0x2672, "com.corvantiel-error0008_2672", "0x2672"},
      {0x2673, "com.corvantiel-error0008_2673", "0x2673"},
      {0x2674, "com.corvantiel-error0008_2674", "0x2674"},
      {0x2675, "com.corvantiel-error0008_2675", "0x2675"},
      {0x2676, "com.corvantiel-error0008_2676", "0x2676"},
      {0x2677, "com.corvantiel-error0008_2677", "0x2677"},
      {0x2678, "com.corvantiel-error0008_2678", "0x2678"},
      {0x2679, "com.corvantiel-error0008_2679", "0x2679"},
      {0x2680, "com.corvantiel-error0008_2680", "0x2680"},
      {0x2681, "com.corvantiel-error0008_2681", "0x2681"},
      {0x2682, "com.corvantiel-error0008_2682", "0x2682"},
      {0x2683, "com.corvantiel-error0008_2683", "0x2683"},
      {0x2684, "com.corvantiel-error0008_2684", "0x2684"},
      {0x2685, "com.corvantiel-error0008_2685", "0x2685"},
      {0x2686, "com.corvantiel-error0008_2686", "0x2686"},
      {0x2687, "com.corvantiel-error0008_2687", "0x2687"},
      {0x2688, "com.corvantiel-error0008_2688", "0x2688"},
      {0x2689, "com.corvantiel-error0008_2689", "0x2689"},
      {0x2690, "com.corvantiel-error0008_2690", "0x2690"},
      {0x2800, "com.corvantiel-error0010_2800", "0x2800"},
      {0x2900, "com.corvantiel-error0012_2900", "0x2900"},
      {0x3190, "com.corvantiel-error0009_3190", "0x3190"},
      {0x3290, "com.corvantiel-error0009_3290", "0x3290"},
      {0x3490, "com.corvantiel-error0009_3490", "0x3490"},
      {0x3590, "com.corvantiel-error0009_3590", "0x3590"},
      {0x3790, "com.corvantiel-error0009_3790", "0x3790"},
      {0x4093, "com.corvantiel-error0016_4093", "0x4093"},
      {0x4291, "com.corvantiel-error0016_4291", "0x4291"},
      {0x4293, "com.corvantiel-error0016_4293", "0x4293"},
      {0x4391, "com.corvantiel-error0016_4391", "0x4391"},
      {0x4393, "com.corvantiel-error0016_4393", "0x4393"},
      {0x4491, "com.corvantiel-error0016_4491", "0x4491"},
      {0x4493, "com.corvantiel-error0016_4493", "0x4493"},
      {0x6001, "com.corvantiel-error0020_6001", "0x6001"},
      {0x6003, "com.corvantiel-error0020_6003", "0x6003"},
      {0x6011, "com.corvantiel-error0020_6011", "0x6011"},
      {0x6013, "com.corvantiel-error0020_6013", "0x6013"},
      {0x6030, "com.corvantiel-error0028_6030", "0x6030"},
      {0x6100, "com.corvantiel-error0021_6100", "0x6100"},
      {0x6200, "com.corvantiel-error0029_6200", "0x6200"},
      {0x6210, "com.corvantiel-error0029_6210", "0x6210"},
      {0x6220, "com.corvantiel-error0029_6220", "0x6220"},
      {0x6300, "com.corvantiel-error0024_6300", "0x6300"},
      {0x6310, "com.corvantiel-error0024_6310", "0x6310"},
      {0x6320, "com.corvantiel-error0024_6320", "0x6320"},
      {0x6400, "com.corvantiel-error0025_6400", "0x6400"},
      {0x6410, "com.corvantiel-error0025_6410", "0x6410"},
      {0x6430, "com.corvantiel-error0025_6430", "0x6430"},
      {0x6500, "com.corvantiel-error0031_6500", "0x6500"},
      {0x6510, "com.corvantiel-error0031_6510", "0x6510"},
      {0x6520, "com.corvantiel-error0031_6520", "0x6520"},
      {0x6530, "com.corvantiel-error0031_6530", "0x6530"},
      {0x6620, "com.corvantiel-error0027_6620", "0x6620"},
      {0x6700, "com.corvantiel-error0034_6700", "0x6700"},
      {0x6710, "com.corvantiel-error0034_6710", "0x6710"},
      {0x6802, "com.corvantiel-error0019_6802", "0x6802"},
      {0x6900, "com.corvantiel-error0034_6900", "0x6900"},
      {0x6901, "com.corvantiel-error0034_6901", "0x6901"},
      {0x6903, "com.corvantiel-error0034_6903", "0x6903"},
      {0x7054, "com.corvantiel-error0018_7054", "0x7054"},
      {0x7092, "com.corvantiel-error0017_7092", "0x7092"},
      {0x7192, "com.corvantiel-error0017_7192", "0x7192"},
      {0x7194, "com.corvantiel-error0017_7194", "0x7194"},
      {0x7250, "com.corvantiel-error0018_7250", "0x7250"},
      {0x7292, "com.corvantiel-error0017_7292", "0x7292"},
      {0x7350, "com.corvantiel-error0018_7350", "0x7350"},
      {0x7392, "com.corvantiel-error0017_7392", "0x7392"},
      {0x7452, "com.corvantiel-error0018_7452", "0x7452"},
      {0x7493, "com.corvantiel-error0017_7493", "0x7493"},
      {0x7552, "com.corvantiel-error0018_7552", "0x7552"},
  };
  for (const Known& known : kKnown) {
    std::string expected = "STATE: +";
    expected.append(known.keyword).append("\nDEBUG: ").append(known.keyword);
    expected.append(" ").append(known.text).append("\n");
    expected += WithdrawalsWithout(known.keyword);
    EXPECT_EQ(Report(PrinterState::Error(known.number)), expected);
  }
}

TEST(StateReasons, TheWildcardRaisesEveryKeywordInTableOrder) {
  EXPECT_EQ(Report(PrinterState::Any()),
            "STATE: +com.corvantiel-error0001\n"
            "DEBUG: com.corvantiel-error0001 ANY\n"
            "STATE: +com.corvantiel-error0002\n"
            "DEBUG: com.corvantiel-error0002 ANY\n"
            "STATE: +com.corvantiel-error0003\n"
            "DEBUG: com.corvantiel-error0003 ANY\n"
            "STATE: +com.corvantiel-error0004\n"
            "DEBUG: com.corvantiel-error0004 ANY\n"
            "STATE: +com.corvantiel-error0005\n"
            "DEBUG: com.corvantiel-error0005 ANY\n"
            "STATE: +com.corvantiel-error0032\n"
            "DEBUG: com.corvantiel-error0032 ANY\n"
            "STATE: +com.corvantiel-error0033\n"
            "DEBUG: com.corvantiel-error0033 ANY\n"
            "STATE: +com.corvantiel-error0007_2100\n"
            "DEBUG: com.corvantiel-error0007_2100 ANY\n"
            "STATE: +com.corvantiel-error0007_2110\n"
            "DEBUG: com.corvantiel-error0007_2110 ANY\n"
            "STATE: +com.corvantiel-error0007_2120\n"
            "DEBUG: com.corvantiel-error0007_2120 ANY\n"
            "STATE: +com.corvantiel-error0007_2130\n"
            "DEBUG: com.corvantiel-error0007_2130 ANY\n"
            "STATE: +com.corvantiel-error0006_2190\n"
            "DEBUG: com.corvantiel-error0006_2190 ANY\n"
            "STATE: +com.corvantiel-error0011_2200\n"
            "DEBUG: com.corvantiel-error0011_2200 ANY\n"
            "STATE: +com.corvantiel-error0015_2202\n"
            "DEBUG: com.corvantiel-error0015_2202 ANY\n"
            "STATE: +com.corvantiel-error0013_2390\n"
            "DEBUG: com.corvantiel-error0013_2390 ANY\n"
            "STATE: +com.corvantiel-error0008_2600\n"
            "DEBUG: com.corvantiel-error0008_2600 ANY\n"
            "STATE: +com.corvantiel-error0008_2601\n"
            "DEBUG: com.corvantiel-error0008_2601 ANY\n"
            "STATE: +com.corvantiel-error0008_2602\n"
            "DEBUG: com.corvantiel-error0008_2602 ANY\n"
            "STATE: +com.corvantiel-error0008_2610\n"
            "DEBUG: com.corvantiel-error0008_2610 ANY\n"
            "STATE: +com.corvantiel-error0008_2611\n"
            "DEBUG: com.corvantiel-error0008_2611 ANY\n"
            "STATE: +com.corvantiel-error0008_2620\n"
            "DEBUG: com.corvantiel-error0008_2620 ANY\n"
            "STATE: +com.corvantiel-error0008_2621\n"
            "DEBUG: com.corvantiel-error0008_2621 ANY\n"
            "STATE: +com.corvantiel-error0008_2622\n"
            "DEBUG: com.corvantiel-error0008_2622 ANY\n"
            "STATE: +com.corvantiel-error0008_2623\n"
            "DEBUG: com.corvantiel-error0008_2623 ANY\n"
            "STATE: +com.corvantiel-error0008_2624\n"
            "DEBUG: com.corvantiel-error0008_2624 ANY\n"
            "STATE: +com.corvantiel-error0008_2625\n"
            "DEBUG: com.corvantiel-error0008_2625 ANY\n"
            "STATE: +com.corvantiel-error0008_2626\n"
            "DEBUG: com.corvantiel-error0008_2626 ANY\n"
            "STATE: +com.corvantiel-error0008_2660\n"
            "DEBUG: com.corvantiel-error0008_2660 ANY\n"
            "STATE: +com.corvantiel-error0008_2661\n"
            "DEBUG: com.corvantiel-error0008_2661 ANY\n"
            "STATE: +com.corvantiel-error0008_2662\n"
            "DEBUG: com.corvantiel-error0008_2662 ANY\n"
            "STATE: +com.corvantiel-error0008_2663\n"
            "DEBUG: com.corvantiel-error0008_2663 ANY\n"
            "STATE: +com.corvantiel-error0008_2664\n"
            "DEBUG: com.corvantiel-error0008_2664 ANY\n"
            "STATE: +com.corvantiel-error0008_2665\n"
            "DEBUG: com.corvantiel-error0008_2665 ANY\n"
            "STATE: +com.corvantiel-error0008_2666\n"
            "DEBUG: com.corvantiel-error0008_2666 ANY\n"
            "STATE: +com.corvantiel-error0008_2667\n"
            "DEBUG: com.corvantiel-error0008_2667 ANY\n"
            "STATE: +com.corvantiel-error0008_2668\n"
            "DEBUG: com.corvantiel-error0008_2668 ANY\n"
            "STATE: +com.corvantiel-error0008_2669\n"
            "DEBUG: com.corvantiel-error0008_2669 ANY\n"
            "STATE: +com.corvantiel-error0008_2670\n"
            "DEBUG: com.corvantiel-error0008_2670 ANY\n"
            "STATE: +com.corvantiel-error0008_2671\n"
            "DEBUG: com.corvantiel-error0008_2671 ANY\n"
            "STATE: +com.corvantiel-error0008_2672\n"
            "DEBUG: com.corvantiel-error0008_2672 ANY\n"
            "STATE: +com.corvantiel-error0008_2673\n"
            "DEBUG: com.corvantiel-error0008_2673 ANY\n"
            "STATE: +com.corvantiel-error0008_2674\n"
            "DEBUG: com.corvantiel-error0008_2674 ANY\n"
            "STATE: +com.corvantiel-error0008_2675\n"
            "DEBUG: com.corvantiel-error0008_2675 ANY\n"
            "STATE: +com.corvantiel-error0008_2676\n"
            "DEBUG: com.corvantiel-error0008_2676 ANY\n"
            "STATE: +com.corvantiel-error0008_2677\n"
            "DEBUG: com.corvantiel-error0008_2677 ANY\n"
            "STATE: +com.corvantiel-error0008_2678\n"
            "DEBUG: com.corvantiel-error0008_2678 ANY\n"
            "STATE: +com.corvantiel-error0008_2679\n"
            "DEBUG: com.corvantiel-error0008_2679 ANY\n"
            "STATE: +com.corvantiel-error0008_2680\n"
            "DEBUG: com.corvantiel-error0008_2680 ANY\n"
            "STATE: +com.corvantiel-error0008_2681\n"
            "DEBUG: com.corvantiel-error0008_2681 ANY\n"
            "STATE: +com.corvantiel-error0008_2682\n"
            "DEBUG: com.corvantiel-error0008_2682 ANY\n"
            "STATE: +com.corvantiel-error0008_2683\n"
            "DEBUG: com.corvantiel-error0008_2683 ANY\n"
            "STATE: +com.corvantiel-error0008_2684\n"
            "DEBUG: com.corvantiel-error0008_2684 ANY\n"
            "STATE: +com.corvantiel-error0008_2685\n"
            "DEBUG: com.corvantiel-error0008_2685 ANY\n"
            "STATE: +com.corvantiel-error0008_2686\n"
            "DEBUG: com.corvantiel-error0008_2686 ANY\n"
            "STATE: +com.corvantiel-error0008_2687\n"
            "DEBUG: com.corvantiel-error0008_2687 ANY\n"
            "STATE: +com.corvantiel-error0008_2688\n"
            "DEBUG: com.corvantiel-error0008_2688 ANY\n"
            "STATE: +com.corvantiel-error0008_2689\n"
            "DEBUG: com.corvantiel-error0008_2689 ANY\n"
            "STATE: +com.corvantiel-error0008_2690\n"
            "DEBUG: com.corvantiel-error0008_2690 ANY\n"
            "STATE: +com.corvantiel-error0010_2800\n"
            "DEBUG: com.corvantiel-error0010_2800 ANY\n"
            "STATE: +com.corvantiel-error0012_2900\n"
            "DEBUG: com.corvantiel-error0012_2900 ANY\n"
            "STATE: +com.corvantiel-error0009_3190\n"
            "DEBUG: com.corvantiel-error0009_3190 ANY\n"
            "STATE: +com.corvantiel-error0009_3290\n"
            "DEBUG: com.corvantiel-error0009_3290 ANY\n"
            "STATE: +com.corvantiel-error0009_3490\n"
            "DEBUG: com.corvantiel-error0009_3490 ANY\n"
            "STATE: +com.corvantiel-error0009_3590\n"
            "DEBUG: com.corvantiel-error0009_3590 ANY\n"
            "STATE: +com.corvantiel-error0009_3790\n"
            "DEBUG: com.corvantiel-error0009_3790 ANY\n"
            "STATE: +com.corvantiel-error0016_4093\n"
            "DEBUG: com.corvantiel-error0016_4093 ANY\n"
            "STATE: +com.corvantiel-error0016_4291\n"
            "DEBUG: com.corvantiel-error0016_4291 ANY\n"
            "STATE: +com.corvantiel-error0016_4293\n"
            "DEBUG: com.corvantiel-error0016_4293 ANY\n"
            "STATE: +com.corvantiel-error0016_4391\n"
            "DEBUG: com.corvantiel-error0016_4391 ANY\n"
            "STATE: +com.corvantiel-error0016_4393\n"
            "DEBUG: com.corvantiel-error0016_4393 ANY\n"
            "STATE: +com.corvantiel-error0016_4491\n"
            "DEBUG: com.corvantiel-error0016_4491 ANY\n"
            "STATE: +com.corvantiel-error0016_4493\n"
            "DEBUG: com.corvantiel-error0016_4493 ANY\n"
            "STATE: +com.corvantiel-error0020_6001\n"
            "DEBUG: com.corvantiel-error0020_6001 ANY\n"
            "STATE: +com.corvantiel-error0020_6003\n"
            "DEBUG: com.corvantiel-error0020_6003 ANY\n"
            "STATE: +com.corvantiel-error0020_6011\n"
            "DEBUG: com.corvantiel-error0020_6011 ANY\n"
            "STATE: +com.corvantiel-error0020_6013\n"
            "DEBUG: com.corvantiel-error0020_6013 ANY\n"
            "STATE: +com.corvantiel-error0028_6030\n"
            "DEBUG: com.corvantiel-error0028_6030 ANY\n"
            "STATE: +com.corvantiel-error0021_6100\n"
            "DEBUG: com.corvantiel-error0021_6100 ANY\n"
            "STATE: +com.corvantiel-error0029_6200\n"
            "DEBUG: com.corvantiel-error0029_6200 ANY\n"
            "STATE: +com.corvantiel-error0029_6210\n"
            "DEBUG: com.corvantiel-error0029_6210 ANY\n"
            "STATE: +com.corvantiel-error0029_6220\n"
            "DEBUG: com.corvantiel-error0029_6220 ANY\n"
            "STATE: +com.corvantiel-error0024_6300\n"
            "DEBUG: com.corvantiel-error0024_6300 ANY\n"
            "STATE: +com.corvantiel-error0024_6310\n"
            "DEBUG: com.corvantiel-error0024_6310 ANY\n"
            "STATE: +com.corvantiel-error0024_6320\n"
            "DEBUG: com.corvantiel-error0024_6320 ANY\n"
            "STATE: +com.corvantiel-error0025_6400\n"
            "DEBUG: com.corvantiel-error0025_6400 ANY\n"
            "STATE: +com.corvantiel-error0025_6410\n"
            "DEBUG: com.corvantiel-error0025_6410 ANY\n"
            "STATE: +com.corvantiel-error0025_6430\n"
            "DEBUG: com.corvantiel-error0025_6430 ANY\n"
            "STATE: +com.corvantiel-error0031_6500\n"
            "DEBUG: com.corvantiel-error0031_6500 ANY\n"
            "STATE: +com.corvantiel-error0031_6510\n"
            "DEBUG: com.corvantiel-error0031_6510 ANY\n"
            "STATE: +com.corvantiel-error0031_6520\n"
            "DEBUG: com.corvantiel-error0031_6520 ANY\n"
            "STATE: +com.corvantiel-error0031_6530\n"
            "DEBUG: com.corvantiel-error0031_6530 ANY\n"
            "STATE: +com.corvantiel-error0027_6620\n"
            "DEBUG: com.corvantiel-error0027_6620 ANY\n"
            "STATE: +com.corvantiel-error0034_6700\n"
            "DEBUG: com.corvantiel-error0034_6700 ANY\n"
            "STATE: +com.corvantiel-error0034_6710\n"
            "DEBUG: com.corvantiel-error0034_6710 ANY\n"
            "STATE: +com.corvantiel-error0019_6802\n"
            "DEBUG: com.corvantiel-error0019_6802 ANY\n"
            "STATE: +com.corvantiel-error0034_6900\n"
            "DEBUG: com.corvantiel-error0034_6900 ANY\n"
            "STATE: +com.corvantiel-error0034_6901\n"
            "DEBUG: com.corvantiel-error0034_6901 ANY\n"
            "STATE: +com.corvantiel-error0034_6903\n"
            "DEBUG: com.corvantiel-error0034_6903 ANY\n"
            "STATE: +com.corvantiel-error0018_7054\n"
            "DEBUG: com.corvantiel-error0018_7054 ANY\n"
            "STATE: +com.corvantiel-error0017_7092\n"
            "DEBUG: com.corvantiel-error0017_7092 ANY\n"
            "STATE: +com.corvantiel-error0017_7192\n"
            "DEBUG: com.corvantiel-error0017_7192 ANY\n"
            "STATE: +com.corvantiel-error0017_7194\n"
            "DEBUG: com.corvantiel-error0017_7194 ANY\n"
            "STATE: +com.corvantiel-error0018_7250\n"
            "DEBUG: com.corvantiel-error0018_7250 ANY\n"
            "STATE: +com.corvantiel-error0017_7292\n"
            "DEBUG: com.corvantiel-error0017_7292 ANY\n"
            "STATE: +com.corvantiel-error0018_7350\n"
            "DEBUG: com.corvantiel-error0018_7350 ANY\n"
            "STATE: +com.corvantiel-error0017_7392\n"
            "DEBUG: com.corvantiel-error0017_7392 ANY\n"
            "STATE: +com.corvantiel-error0018_7452\n"
            "DEBUG: com.corvantiel-error0018_7452 ANY\n"
            "STATE: +com.corvantiel-error0017_7493\n"
            "DEBUG: com.corvantiel-error0017_7493 ANY\n"
            "STATE: +com.corvantiel-error0018_7552\n"
            "DEBUG: com.corvantiel-error0018_7552 ANY\n");
}

TEST(StateReasons, ACallRemembersNothingOfTheOneBefore) {
  Report(PrinterState::Error(0x2665));
  EXPECT_EQ(Report(PrinterState::Good()), kAllWithdrawals);
}

TEST(StateReasons, EachLineLeavesInOneWrite) {
  // Other filters write to the same stream: a line in two writes can be torn.
  StderrCalls calls;
  update_printer_state(PrinterState::Unavailable());
  const std::vector<std::string> writes = calls.Take();
  EXPECT_EQ(writes.size(), 3U + 108U);
  for (const std::string& write : writes) {
    EXPECT_EQ(write.find('\n'), write.size() - 1) << write;
  }
}

TEST(StateReasons, LeavesStandardOutputUnflushed) {
  Capture out(stdout);
  Capture err(stderr);
  std::fputs("image", stdout);
  update_printer_state(PrinterState::Good());
  const std::string arrived = out.Arrived();
  err.Text();
  EXPECT_EQ(out.Text(), "image");
  EXPECT_EQ(arrived, "");
}
