// SPDX-License-Identifier: Apache-2.0
//
// Every row of the reason table, written out.
#include "status/reason_table.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <iterator>
#include <string>

namespace {

struct ExpectedRow {
  std::uint16_t high;
  std::uint16_t low;
  const char* keyword;
};

constexpr std::array<ExpectedRow, 110> kExpectedRows = {{
    {0x00, 0x00, nullptr},
    {0x00, 0x01, "com.corvantiel-error0001"},
    {0x00, 0x02, "com.corvantiel-error0002"},
    {0x00, 0x03, "com.corvantiel-error0003"},
    {0x00, 0x04, "com.corvantiel-error0004"},
    {0x00, 0x05, "com.corvantiel-error0005"},
    {0x00, 0x32, "com.corvantiel-error0032"},
    {0x00, 0x33, "com.corvantiel-error0033"},
    {0x21, 0x00, "com.corvantiel-error0007_2100"},
    {0x21, 0x10, "com.corvantiel-error0007_2110"},
    {0x21, 0x20, "com.corvantiel-error0007_2120"},
    {0x21, 0x30, "com.corvantiel-error0007_2130"},
    {0x21, 0x90, "com.corvantiel-error0006_2190"},
    {0x22, 0x00, "com.corvantiel-error0011_2200"},
    {0x22, 0x02, "com.corvantiel-error0015_2202"},
    {0x23, 0x90, "com.corvantiel-error0013_2390"},
    {0x26, 0x00, "com.corvantiel-error0008_2600"},
    {0x26, 0x01, "com.corvantiel-error0008_2601"},
    {0x26, 0x02, "com.corvantiel-error0008_2602"},
    {0x26, 0x10, "com.corvantiel-error0008_2610"},
    {0x26, 0x11, "com.corvantiel-error0008_2611"},
    {0x26, 0x20, "com.corvantiel-error0008_2620"},
    {0x26, 0x21, "com.corvantiel-error0008_2621"},
    {0x26, 0x22, "com.corvantiel-error0008_2622"},
    {0x26, 0x23, "com.corvantiel-error0008_2623"},
    {0x26, 0x24, "com.corvantiel-error0008_2624"},
    {0x26, 0x25, "com.corvantiel-error0008_2625"},
    {0x26, 0x26, "com.corvantiel-error0008_2626"},
    {0x26, 0x60, "com.corvantiel-error0008_2660"},
    {0x26, 0x61, "com.corvantiel-error0008_2661"},
    {0x26, 0x62, "com.corvantiel-error0008_2662"},
    {0x26, 0x63, "com.corvantiel-error0008_2663"},
    {0x26, 0x64, "com.corvantiel-error0008_2664"},
    {0x26, 0x65, "com.corvantiel-error0008_2665"},
    {0x26, 0x66, "com.corvantiel-error0008_2666"},
    {0x26, 0x67, "com.corvantiel-error0008_2667"},
    {0x26, 0x68, "com.corvantiel-error0008_2668"},
    {0x26, 0x69, "com.corvantiel-error0008_2669"},
    {0x26, 0x70, "com.corvantiel-error0008_2670"},
    {0x26, 0x71, "com.corvantiel-error0008_2671"},
    {0x26, 0x72, "com.corvantiel-error0008_2672"},
    {0x26, 0x73, "com.corvantiel-error0008_2673"},
    {0x26, 0x74, "com.corvantiel-error0008_2674"},
    {0x26, 0x75, "com.corvantiel-error0008_2675"},
    {0x26, 0x76, "com.corvantiel-error0008_2676"},
    {0x26, 0x77, "com.corvantiel-error0008_2677"},
    {0x26, 0x78, "com.corvantiel-error0008_2678"},
    {0x26, 0x79, "com.corvantiel-error0008_2679"},
    {0x26, 0x80, "com.corvantiel-error0008_2680"},
    {0x26, 0x81, "com.corvantiel-error0008_2681"},
    {0x26, 0x82, "com.corvantiel-error0008_2682"},
    {0x26, 0x83, "com.corvantiel-error0008_2683"},
    {0x26, 0x84, "com.corvantiel-error0008_2684"},
    {0x26, 0x85, "com.corvantiel-error0008_2685"},
    {0x26, 0x86, "com.corvantiel-error0008_2686"},
    {0x26, 0x87, "com.corvantiel-error0008_2687"},
    {0x26, 0x88, "com.corvantiel-error0008_2688"},
    {0x26, 0x89, "com.corvantiel-error0008_2689"},
    {0x26, 0x90, "com.corvantiel-error0008_2690"},
    {0x28, 0x00, "com.corvantiel-error0010_2800"},
    {0x29, 0x00, "com.corvantiel-error0012_2900"},
    {0x31, 0x90, "com.corvantiel-error0009_3190"},
    {0x32, 0x90, "com.corvantiel-error0009_3290"},
    {0x34, 0x90, "com.corvantiel-error0009_3490"},
    {0x35, 0x90, "com.corvantiel-error0009_3590"},
    {0x37, 0x90, "com.corvantiel-error0009_3790"},
    {0x40, 0x93, "com.corvantiel-error0016_4093"},
    {0x42, 0x91, "com.corvantiel-error0016_4291"},
    {0x42, 0x93, "com.corvantiel-error0016_4293"},
    {0x43, 0x91, "com.corvantiel-error0016_4391"},
    {0x43, 0x93, "com.corvantiel-error0016_4393"},
    {0x44, 0x91, "com.corvantiel-error0016_4491"},
    {0x44, 0x93, "com.corvantiel-error0016_4493"},
    {0x60, 0x01, "com.corvantiel-error0020_6001"},
    {0x60, 0x03, "com.corvantiel-error0020_6003"},
    {0x60, 0x11, "com.corvantiel-error0020_6011"},
    {0x60, 0x13, "com.corvantiel-error0020_6013"},
    {0x60, 0x30, "com.corvantiel-error0028_6030"},
    {0x61, 0x00, "com.corvantiel-error0021_6100"},
    {0x62, 0x00, "com.corvantiel-error0029_6200"},
    {0x62, 0x10, "com.corvantiel-error0029_6210"},
    {0x62, 0x20, "com.corvantiel-error0029_6220"},
    {0x63, 0x00, "com.corvantiel-error0024_6300"},
    {0x63, 0x10, "com.corvantiel-error0024_6310"},
    {0x63, 0x20, "com.corvantiel-error0024_6320"},
    {0x64, 0x00, "com.corvantiel-error0025_6400"},
    {0x64, 0x10, "com.corvantiel-error0025_6410"},
    {0x64, 0x30, "com.corvantiel-error0025_6430"},
    {0x65, 0x00, "com.corvantiel-error0031_6500"},
    {0x65, 0x10, "com.corvantiel-error0031_6510"},
    {0x65, 0x20, "com.corvantiel-error0031_6520"},
    {0x65, 0x30, "com.corvantiel-error0031_6530"},
    {0x66, 0x20, "com.corvantiel-error0027_6620"},
    {0x67, 0x00, "com.corvantiel-error0034_6700"},
    {0x67, 0x10, "com.corvantiel-error0034_6710"},
    {0x68, 0x02, "com.corvantiel-error0019_6802"},
    {0x69, 0x00, "com.corvantiel-error0034_6900"},
    {0x69, 0x01, "com.corvantiel-error0034_6901"},
    {0x69, 0x03, "com.corvantiel-error0034_6903"},
    {0x70, 0x54, "com.corvantiel-error0018_7054"},
    {0x70, 0x92, "com.corvantiel-error0017_7092"},
    {0x71, 0x92, "com.corvantiel-error0017_7192"},
    {0x71, 0x94, "com.corvantiel-error0017_7194"},
    {0x72, 0x50, "com.corvantiel-error0018_7250"},
    {0x72, 0x92, "com.corvantiel-error0017_7292"},
    {0x73, 0x50, "com.corvantiel-error0018_7350"},
    {0x73, 0x92, "com.corvantiel-error0017_7392"},
    {0x74, 0x52, "com.corvantiel-error0018_7452"},
    {0x74, 0x93, "com.corvantiel-error0017_7493"},
    {0x75, 0x52, "com.corvantiel-error0018_7552"},
}};

}  // namespace

TEST(ReasonTable, Has110Rows) {
  EXPECT_EQ(std::size(PRINTER_STATE_REASONS), 110U);
}

TEST(ReasonTable, EveryRowHoldsItsErrorNumberAndKeyword) {
  for (std::size_t i = 0; i < kExpectedRows.size(); ++i) {
    const PrinterStateReason& row = PRINTER_STATE_REASONS[i];
    EXPECT_EQ(row.error_high, kExpectedRows[i].high) << "row " << i;
    EXPECT_EQ(row.error_low, kExpectedRows[i].low) << "row " << i;
    EXPECT_STREQ(row.reasons[0], kExpectedRows[i].keyword) << "row " << i;
  }
}

TEST(ReasonTable, NoRowHasASecondKeyword) {
  for (const PrinterStateReason& row : PRINTER_STATE_REASONS) {
    EXPECT_EQ(row.reasons[1], nullptr) << row.error_high << " " << row.error_low;
    EXPECT_EQ(row.reasons[2], nullptr) << row.error_high << " " << row.error_low;
    EXPECT_EQ(row.reasons[3], nullptr) << row.error_high << " " << row.error_low;
  }
}

TEST(ReasonTable, ARowHasRoomForFourKeywords) {
  EXPECT_EQ(std::size(PRINTER_STATE_REASONS[0].reasons), 4U);
}
