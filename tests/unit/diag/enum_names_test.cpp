// SPDX-License-Identifier: Apache-2.0
//
// The name of every value of the CUPS enumerations, and what unknown values read.
#include "diag/enum_names.h"

#include <gtest/gtest.h>

#include <string>

namespace {

/// The enumeration's value of that number, known to the enumeration or not.
template <typename Enumeration>
Enumeration Of(int number) {
  return static_cast<Enumeration>(number);
}

}  // namespace

TEST(EnumNames, EverySideChannelStatusHasItsName) {
  EXPECT_STREQ(to_string(Of<cups_sc_status_e>(0)), "CUPS_SC_STATUS_NONE");
  EXPECT_STREQ(to_string(Of<cups_sc_status_e>(1)), "CUPS_SC_STATUS_OK");
  EXPECT_STREQ(to_string(Of<cups_sc_status_e>(2)), "CUPS_SC_STATUS_IO_ERROR");
  EXPECT_STREQ(to_string(Of<cups_sc_status_e>(3)), "CUPS_SC_STATUS_TIMEOUT");
  EXPECT_STREQ(to_string(Of<cups_sc_status_e>(4)), "CUPS_SC_STATUS_NO_RESPONSE");
  EXPECT_STREQ(to_string(Of<cups_sc_status_e>(5)), "CUPS_SC_STATUS_BAD_MESSAGE");
  EXPECT_STREQ(to_string(Of<cups_sc_status_e>(6)), "CUPS_SC_STATUS_TOO_BIG");
  EXPECT_STREQ(to_string(Of<cups_sc_status_e>(7)), "CUPS_SC_STATUS_NOT_IMPLEMENTED");
}

TEST(EnumNames, EveryAdvanceHasItsName) {
  EXPECT_STREQ(to_string(Of<cups_adv_e>(0)), "CUPS_ADVANCE_NONE");
  EXPECT_STREQ(to_string(Of<cups_adv_e>(1)), "CUPS_ADVANCE_FILE");
  EXPECT_STREQ(to_string(Of<cups_adv_e>(2)), "CUPS_ADVANCE_JOB");
  EXPECT_STREQ(to_string(Of<cups_adv_e>(3)), "CUPS_ADVANCE_SET");
  EXPECT_STREQ(to_string(Of<cups_adv_e>(4)), "CUPS_ADVANCE_PAGE");
}

TEST(EnumNames, EveryTruthValueHasItsName) {
  EXPECT_STREQ(to_string(Of<cups_bool_e>(0)), "CUPS_FALSE");
  EXPECT_STREQ(to_string(Of<cups_bool_e>(1)), "CUPS_TRUE");
}

TEST(EnumNames, EveryCutHasItsName) {
  EXPECT_STREQ(to_string(Of<cups_cut_e>(0)), "CUPS_CUT_NONE");
  EXPECT_STREQ(to_string(Of<cups_cut_e>(1)), "CUPS_CUT_FILE");
  EXPECT_STREQ(to_string(Of<cups_cut_e>(2)), "CUPS_CUT_JOB");
  EXPECT_STREQ(to_string(Of<cups_cut_e>(3)), "CUPS_CUT_SET");
  EXPECT_STREQ(to_string(Of<cups_cut_e>(4)), "CUPS_CUT_PAGE");
}

TEST(EnumNames, EveryEdgeHasItsName) {
  EXPECT_STREQ(to_string(Of<cups_edge_e>(0)), "CUPS_EDGE_TOP");
  EXPECT_STREQ(to_string(Of<cups_edge_e>(1)), "CUPS_EDGE_RIGHT");
  EXPECT_STREQ(to_string(Of<cups_edge_e>(2)), "CUPS_EDGE_BOTTOM");
  EXPECT_STREQ(to_string(Of<cups_edge_e>(3)), "CUPS_EDGE_LEFT");
}

TEST(EnumNames, EveryJogHasItsName) {
  EXPECT_STREQ(to_string(Of<cups_jog_e>(0)), "CUPS_JOG_NONE");
  EXPECT_STREQ(to_string(Of<cups_jog_e>(1)), "CUPS_JOG_FILE");
  EXPECT_STREQ(to_string(Of<cups_jog_e>(2)), "CUPS_JOG_JOB");
  EXPECT_STREQ(to_string(Of<cups_jog_e>(3)), "CUPS_JOG_SET");
}

TEST(EnumNames, EveryColourOrderHasItsName) {
  EXPECT_STREQ(to_string(Of<cups_order_e>(0)), "CUPS_ORDER_CHUNKED");
  EXPECT_STREQ(to_string(Of<cups_order_e>(1)), "CUPS_ORDER_BANDED");
  EXPECT_STREQ(to_string(Of<cups_order_e>(2)), "CUPS_ORDER_PLANAR");
}

TEST(EnumNames, EveryOrientationHasItsName) {
  EXPECT_STREQ(to_string(Of<cups_orient_e>(0)), "CUPS_ORIENT_0");
  EXPECT_STREQ(to_string(Of<cups_orient_e>(1)), "CUPS_ORIENT_90");
  EXPECT_STREQ(to_string(Of<cups_orient_e>(2)), "CUPS_ORIENT_180");
  EXPECT_STREQ(to_string(Of<cups_orient_e>(3)), "CUPS_ORIENT_270");
}

TEST(EnumNames, EveryColourSpaceHasItsName) {
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(0)), "CUPS_CSPACE_W");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(1)), "CUPS_CSPACE_RGB");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(2)), "CUPS_CSPACE_RGBA");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(3)), "CUPS_CSPACE_K");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(4)), "CUPS_CSPACE_CMY");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(5)), "CUPS_CSPACE_YMC");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(6)), "CUPS_CSPACE_CMYK");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(7)), "CUPS_CSPACE_YMCK");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(8)), "CUPS_CSPACE_KCMY");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(9)), "CUPS_CSPACE_KCMYcm");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(10)), "CUPS_CSPACE_GMCK");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(11)), "CUPS_CSPACE_GMCS");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(12)), "CUPS_CSPACE_WHITE");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(13)), "CUPS_CSPACE_GOLD");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(14)), "CUPS_CSPACE_SILVER");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(15)), "CUPS_CSPACE_CIEXYZ");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(16)), "CUPS_CSPACE_CIELab");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(17)), "CUPS_CSPACE_RGBW");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(18)), "CUPS_CSPACE_SW");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(19)), "CUPS_CSPACE_SRGB");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(20)), "CUPS_CSPACE_ADOBERGB");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(32)), "CUPS_CSPACE_ICC1");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(33)), "CUPS_CSPACE_ICC2");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(34)), "CUPS_CSPACE_ICC3");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(35)), "CUPS_CSPACE_ICC4");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(36)), "CUPS_CSPACE_ICC5");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(37)), "CUPS_CSPACE_ICC6");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(38)), "CUPS_CSPACE_ICC7");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(39)), "CUPS_CSPACE_ICC8");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(40)), "CUPS_CSPACE_ICC9");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(41)), "CUPS_CSPACE_ICCA");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(42)), "CUPS_CSPACE_ICCB");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(43)), "CUPS_CSPACE_ICCC");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(44)), "CUPS_CSPACE_ICCD");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(45)), "CUPS_CSPACE_ICCE");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(46)), "CUPS_CSPACE_ICCF");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(48)), "CUPS_CSPACE_DEVICE1");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(49)), "CUPS_CSPACE_DEVICE2");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(50)), "CUPS_CSPACE_DEVICE3");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(51)), "CUPS_CSPACE_DEVICE4");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(52)), "CUPS_CSPACE_DEVICE5");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(53)), "CUPS_CSPACE_DEVICE6");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(54)), "CUPS_CSPACE_DEVICE7");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(55)), "CUPS_CSPACE_DEVICE8");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(56)), "CUPS_CSPACE_DEVICE9");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(57)), "CUPS_CSPACE_DEVICEA");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(58)), "CUPS_CSPACE_DEVICEB");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(59)), "CUPS_CSPACE_DEVICEC");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(60)), "CUPS_CSPACE_DEVICED");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(61)), "CUPS_CSPACE_DEVICEE");
  EXPECT_STREQ(to_string(Of<cups_cspace_e>(62)), "CUPS_CSPACE_DEVICEF");
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
  const char* truth = to_string(Of<cups_bool_e>(9));
  const char* cut = to_string(Of<cups_cut_e>(9));
  const char* edge = to_string(Of<cups_edge_e>(9));
  const char* jog = to_string(Of<cups_jog_e>(9));
  const char* order = to_string(Of<cups_order_e>(9));
  const char* orientation = to_string(Of<cups_orient_e>(9));
  const char* space = to_string(Of<cups_cspace_e>(99));
  EXPECT_STREQ(advance, "cups_adv_e(9)");
  EXPECT_STREQ(truth, "cups_bool_e(9)");
  EXPECT_STREQ(cut, "cups_cut_e(9)");
  EXPECT_STREQ(edge, "cups_edge_e(9)");
  EXPECT_STREQ(jog, "cups_jog_e(9)");
  EXPECT_STREQ(order, "cups_order_e(9)");
  EXPECT_STREQ(orientation, "cups_orient_e(9)");
  EXPECT_STREQ(space, "cups_cspace_e(99)");
}
