// SPDX-License-Identifier: Apache-2.0
//
// The name of every value of the CUPS enumerations, and what unknown values read.
#include "diag/enum_names.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

namespace {

/// The enumeration's value of that number, known to the enumeration or not.
template <typename Enumeration>
Enumeration Of(int number) {
  return static_cast<Enumeration>(number);
}

/// Expects these names for the values from `first` on.
template <typename Enumeration>
void ExpectNames(int first, std::initializer_list<const char*> names) {
  for (const char* name : names) {
    EXPECT_STREQ(to_string(Of<Enumeration>(first)), name) << first;
    ++first;
  }
}

}  // namespace

TEST(EnumNames, EveryValueHasItsName) {
  ExpectNames<cups_sc_status_e>(
      0, {"CUPS_SC_STATUS_NONE", "CUPS_SC_STATUS_OK", "CUPS_SC_STATUS_IO_ERROR",
          "CUPS_SC_STATUS_TIMEOUT", "CUPS_SC_STATUS_NO_RESPONSE", "CUPS_SC_STATUS_BAD_MESSAGE",
          "CUPS_SC_STATUS_TOO_BIG", "CUPS_SC_STATUS_NOT_IMPLEMENTED"});
  ExpectNames<cups_adv_e>(0, {"CUPS_ADVANCE_NONE", "CUPS_ADVANCE_FILE", "CUPS_ADVANCE_JOB",
                              "CUPS_ADVANCE_SET", "CUPS_ADVANCE_PAGE"});
  ExpectNames<cups_bool_e>(0, {"CUPS_FALSE", "CUPS_TRUE"});
  ExpectNames<cups_cut_e>(
      0, {"CUPS_CUT_NONE", "CUPS_CUT_FILE", "CUPS_CUT_JOB", "CUPS_CUT_SET", "CUPS_CUT_PAGE"});
  ExpectNames<cups_edge_e>(
      0, {"CUPS_EDGE_TOP", "CUPS_EDGE_RIGHT", "CUPS_EDGE_BOTTOM", "CUPS_EDGE_LEFT"});
  ExpectNames<cups_jog_e>(0, {"CUPS_JOG_NONE", "CUPS_JOG_FILE", "CUPS_JOG_JOB", "CUPS_JOG_SET"});
  ExpectNames<cups_order_e>(0, {"CUPS_ORDER_CHUNKED", "CUPS_ORDER_BANDED", "CUPS_ORDER_PLANAR"});
  ExpectNames<cups_orient_e>(
      0, {"CUPS_ORIENT_0", "CUPS_ORIENT_90", "CUPS_ORIENT_180", "CUPS_ORIENT_270"});
  ExpectNames<cups_cspace_e>(
      0, {"CUPS_CSPACE_W",       "CUPS_CSPACE_RGB",    "CUPS_CSPACE_RGBA",   "CUPS_CSPACE_K",
          "CUPS_CSPACE_CMY",     "CUPS_CSPACE_YMC",    "CUPS_CSPACE_CMYK",   "CUPS_CSPACE_YMCK",
          "CUPS_CSPACE_KCMY",    "CUPS_CSPACE_KCMYcm", "CUPS_CSPACE_GMCK",   "CUPS_CSPACE_GMCS",
          "CUPS_CSPACE_WHITE",   "CUPS_CSPACE_GOLD",   "CUPS_CSPACE_SILVER", "CUPS_CSPACE_CIEXYZ",
          "CUPS_CSPACE_CIELab",  "CUPS_CSPACE_RGBW",   "CUPS_CSPACE_SW",     "CUPS_CSPACE_SRGB",
          "CUPS_CSPACE_ADOBERGB"});
  ExpectNames<cups_cspace_e>(
      32, {"CUPS_CSPACE_ICC1", "CUPS_CSPACE_ICC2", "CUPS_CSPACE_ICC3", "CUPS_CSPACE_ICC4",
           "CUPS_CSPACE_ICC5", "CUPS_CSPACE_ICC6", "CUPS_CSPACE_ICC7", "CUPS_CSPACE_ICC8",
           "CUPS_CSPACE_ICC9", "CUPS_CSPACE_ICCA", "CUPS_CSPACE_ICCB", "CUPS_CSPACE_ICCC",
           "CUPS_CSPACE_ICCD", "CUPS_CSPACE_ICCE", "CUPS_CSPACE_ICCF"});
  ExpectNames<cups_cspace_e>(
      48,
      {"CUPS_CSPACE_DEVICE1", "CUPS_CSPACE_DEVICE2", "CUPS_CSPACE_DEVICE3", "CUPS_CSPACE_DEVICE4",
       "CUPS_CSPACE_DEVICE5", "CUPS_CSPACE_DEVICE6", "CUPS_CSPACE_DEVICE7", "CUPS_CSPACE_DEVICE8",
       "CUPS_CSPACE_DEVICE9", "CUPS_CSPACE_DEVICEA", "CUPS_CSPACE_DEVICEB", "CUPS_CSPACE_DEVICEC",
       "CUPS_CSPACE_DEVICED", "CUPS_CSPACE_DEVICEE", "CUPS_CSPACE_DEVICEF"});
}

TEST(EnumNames, AnUnknownSideChannelStatusIsUnknown) {
  EXPECT_STREQ(to_string(Of<cups_sc_status_e>(8)), "UNKNOWN");
  EXPECT_STREQ(to_string(Of<cups_sc_status_e>(-1)), "UNKNOWN");
}

TEST(EnumNames, AnUnknownValueGivesItsTypeAndNumber) {
  EXPECT_STREQ(to_string(Of<cups_adv_e>(5)), "cups_adv_e(5)");
  EXPECT_STREQ(to_string(Of<cups_bool_e>(2)), "cups_bool_e(2)");
  EXPECT_STREQ(to_string(Of<cups_cut_e>(5)), "cups_cut_e(5)");
  EXPECT_STREQ(to_string(Of<cups_edge_e>(4)), "cups_edge_e(4)");
  EXPECT_STREQ(to_string(Of<cups_jog_e>(4)), "cups_jog_e(4)");
  EXPECT_STREQ(to_string(Of<cups_order_e>(3)), "cups_order_e(3)");
  EXPECT_STREQ(to_string(Of<cups_orient_e>(4)), "cups_orient_e(4)");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(63)), "cups_cspace_e(63)");
}

TEST(EnumNames, TheGapsBetweenTheColourSpacesAreUnknown) {
  for (const int value : {21, 22, 23, 24, 25, 26, 27, 28, 29, 30, 31, 47}) {
    EXPECT_EQ(to_string(Of<cups_cspace_e>(value)), "cups_cspace_e(" + std::to_string(value) + ")");
  }
}

TEST(EnumNames, TheSmallestAndLargestNumbersFitTheirBuffer) {
  EXPECT_STREQ(to_string(Of<cups_orient_e>(-2147483647 - 1)), "cups_orient_e(-2147483648)");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(-2147483647 - 1)), "cups_cspace_e(-2147483648)");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(2147483647)), "cups_cspace_e(2147483647)");
}

TEST(EnumNames, TheNextUnknownValueOfATypeOverwritesTheText) {
  const char* first = to_string(Of<cups_adv_e>(9));
  const char* second = to_string(Of<cups_adv_e>(10));
  EXPECT_EQ(first, second);
  EXPECT_STREQ(first, "cups_adv_e(10)");
}

TEST(EnumNames, UnknownValuesOfDifferentTypesKeepTheirTexts) {
  const char* advance = to_string(Of<cups_adv_e>(9));
  const char* cut = to_string(Of<cups_cut_e>(9));
  EXPECT_STREQ(advance, "cups_adv_e(9)");
  EXPECT_STREQ(cut, "cups_cut_e(9)");
}
