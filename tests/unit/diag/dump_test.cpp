// SPDX-License-Identifier: Apache-2.0
//
// Hexadecimal dumps and the dump of a raster page header, compared as whole texts.
#include "diag/dump.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstring>
#include <string>

#include "tests/unit/capture.h"

namespace {

/// The dump of the first `size` bytes 00, 01, 02, …
std::string DumpOfCountingBytes(const char* label, int size) {
  std::array<unsigned char, 300> data{};
  for (std::size_t i = 0; i < data.size(); ++i) {
    data[i] = static_cast<unsigned char>(i);
  }
  Capture err(stderr);
  dump_mem(label, data.data(), size);
  return err.Text();
}

std::string DumpOfHeader(const cups_page_header_t& header) {
  Capture err(stderr);
  dump(&header);
  return err.Text();
}

}  // namespace

TEST(DumpMem, SixteenBytesMakeOneLine) {
  EXPECT_EQ(DumpOfCountingBytes("[STS]", 16),
            "DEBUG: [STS] size=16\n"
            "DEBUG: [STS] 0000: 00 01 02 03 04 05 06 07 08 09 0a 0b 0c 0d 0e 0f\n");
}

TEST(DumpMem, TheSeventeenthByteStartsASecondLine) {
  EXPECT_EQ(DumpOfCountingBytes("[STS]", 17),
            "DEBUG: [STS] size=17\n"
            "DEBUG: [STS] 0000: 00 01 02 03 04 05 06 07 08 09 0a 0b 0c 0d 0e 0f\n"
            "DEBUG: [STS] 0010: 10\n");
}

TEST(DumpMem, TwentyBytesMakeTwoLines) {
  EXPECT_EQ(DumpOfCountingBytes("[STS]", 20),
            "DEBUG: [STS] size=20\n"
            "DEBUG: [STS] 0000: 00 01 02 03 04 05 06 07 08 09 0a 0b 0c 0d 0e 0f\n"
            "DEBUG: [STS] 0010: 10 11 12 13\n");
}

TEST(DumpMem, AnEmptyBlockStillShowsItsFirstOffset) {
  EXPECT_EQ(DumpOfCountingBytes("[CMD]", 0),
            "DEBUG: [CMD] size=0\n"
            "DEBUG: [CMD] 0000:\n");
}

TEST(DumpMem, ANegativeSizeShowsOnlyItself) {
  EXPECT_EQ(DumpOfCountingBytes("[CMD]", -3), "DEBUG: [CMD] size=-3\n");
}

TEST(DumpMem, OffsetsAndBytesAreLowerCaseHexadecimal) {
  const std::string text = DumpOfCountingBytes("label", 258);
  EXPECT_EQ(text.substr(text.size() - 92),
            "DEBUG: label 00f0: f0 f1 f2 f3 f4 f5 f6 f7 f8 f9 fa fb fc fd fe ff\n"
            "DEBUG: label 0100: 00 01\n");
}

TEST(DumpMem, TheLabelIsNoFormat) {
  EXPECT_EQ(DumpOfCountingBytes("%s%n", 1),
            "DEBUG: %s%n size=1\n"
            "DEBUG: %s%n 0000: 00\n");
}

TEST(DumpMem, LeavesStandardOutputUnflushed) {
  Capture out(stdout);
  Capture err(stderr);
  std::fputs("image", stdout);
  dump_mem("[CMD]", "x", 1);
  const std::string arrived = out.Arrived();
  err.Text();
  EXPECT_EQ(out.Text(), "image");
  EXPECT_EQ(arrived, "");
}

TEST(DumpHeader, ShowsEveryFieldOnALineOfItsOwn) {
  cups_page_header_t header = {};
  std::strcpy(header.MediaClass, "class");
  std::strcpy(header.MediaColor, "colour");
  std::strcpy(header.MediaType, "type");
  std::strcpy(header.OutputType, "output");
  header.AdvanceDistance = 101;
  header.AdvanceMedia = CUPS_ADVANCE_PAGE;
  header.Collate = CUPS_TRUE;
  header.CutMedia = CUPS_CUT_SET;
  header.Duplex = CUPS_FALSE;
  header.HWResolution[0] = 300;
  header.HWResolution[1] = 301;
  header.ImagingBoundingBox[0] = 102;
  header.ImagingBoundingBox[1] = 103;
  header.ImagingBoundingBox[2] = 104;
  header.ImagingBoundingBox[3] = 105;
  header.InsertSheet = CUPS_TRUE;
  header.Jog = CUPS_JOG_JOB;
  header.LeadingEdge = CUPS_EDGE_LEFT;
  header.Margins[0] = 106;
  header.Margins[1] = 107;
  header.ManualFeed = CUPS_FALSE;
  header.MediaPosition = 108;
  header.MediaWeight = 109;
  header.MirrorPrint = CUPS_TRUE;
  header.NegativePrint = CUPS_FALSE;
  header.NumCopies = 110;
  header.Orientation = CUPS_ORIENT_270;
  header.OutputFaceUp = CUPS_TRUE;
  header.PageSize[0] = 111;
  header.PageSize[1] = 112;
  header.Separations = CUPS_FALSE;
  header.TraySwitch = CUPS_TRUE;
  header.Tumble = CUPS_FALSE;
  header.cupsWidth = 113;
  header.cupsHeight = 114;
  header.cupsMediaType = 115;
  header.cupsBitsPerColor = 116;
  header.cupsBitsPerPixel = 117;
  header.cupsBytesPerLine = 118;
  header.cupsColorOrder = CUPS_ORDER_PLANAR;
  header.cupsColorSpace = CUPS_CSPACE_ADOBERGB;
  header.cupsCompression = 119;
  header.cupsRowCount = 120;
  header.cupsRowFeed = 121;
  header.cupsRowStep = 122;

  EXPECT_EQ(DumpOfHeader(header),
            "=== cups_page_header_t ===\n"
            "Standard Page Device Dictionary String Values\n"
            "__MediaClass=class        /* MediaClass string */\n"
            "__MediaColor=colour        /* MediaColor string */\n"
            "__MediaType=type        /* MediaType string */\n"
            "__OutputType=output        /* OutputType string */\n"
            "Standard Page Device Dictionary Integer Values\n"
            "__AdvanceDistance=101        /* AdvanceDistance value in points */\n"
            "__AdvanceMedia=CUPS_ADVANCE_PAGE        /* AdvanceMedia value (@link cups_adv_t@) */\n"
            "__Collate=CUPS_TRUE        /* Collated copies value */\n"
            "__CutMedia=CUPS_CUT_SET        /* CutMedia value (@link cups_cut_t@) */\n"
            "__Duplex=CUPS_FALSE        /* Duplexed (double-sided) value */\n"
            "__HWResolution=(300,301)        /* Resolution in dots-per-inch */\n"
            "__ImagingBoundingBox=(102,103)        /* Pixel region that is painted (points, left, "
            "bottom, right, top) */\n"
            "__InsertSheet=CUPS_TRUE        /* InsertSheet value */\n"
            "__Jog=CUPS_JOG_JOB        /* Jog value (@link cups_jog_t@) */\n"
            "__LeadingEdge=CUPS_EDGE_LEFT        /* LeadingEdge value (@link cups_edge_t@) */\n"
            "__Margins=(106,107)        /* Lower-lefthand margins in points */\n"
            "__ManualFeed=CUPS_FALSE        /* ManualFeed value */\n"
            "__MediaPosition=108        /* MediaPosition value */\n"
            "__MediaWeight=109        /* MediaWeight value in grams/m^2 */\n"
            "__MirrorPrint=CUPS_TRUE        /* MirrorPrint value */\n"
            "__NegativePrint=CUPS_FALSE        /* NegativePrint value */\n"
            "__NumCopies=110        /* Number of copies to produce */\n"
            "__Orientation=CUPS_ORIENT_270        /* Orientation value (@link cups_orient_t@) */\n"
            "__OutputFaceUp=CUPS_TRUE        /* OutputFaceUp value */\n"
            "__PageSize=(111,112)        /* Width and length of page in points */\n"
            "__Separations=CUPS_FALSE        /* Separations value */\n"
            "__TraySwitch=CUPS_TRUE        /* TraySwitch value */\n"
            "__Tumble=CUPS_FALSE        /* Tumble value */\n"
            "CUPS Page Device Dictionary Values\n"
            "__cupsWidth=113        /* Width of page image in pixels */\n"
            "__cupsHeight=114        /* Height of page image in pixels */\n"
            "__cupsMediaType=115        /* Media type code */\n"
            "__cupsBitsPerColor=116        /* Number of bits for each color */\n"
            "__cupsBitsPerPixel=117        /* Number of bits for each pixel */\n"
            "__cupsBytesPerLine=118        /* Number of bytes per line */\n"
            "__cupsColorOrder=CUPS_ORDER_PLANAR        /* Order of colors */\n"
            "__cupsColorSpace=CUPS_CSPACE_ADOBERGB        /* True colorspace */\n"
            "__cupsCompression=119        /* Device compression to use */\n"
            "__cupsRowCount=120        /* Rows per band */\n"
            "__cupsRowFeed=121        /* Feed between bands */\n"
            "__cupsRowStep=122        /* Spacing between lines */\n");
}

TEST(DumpHeader, UnknownEnumerationValuesShowTheirNumbers) {
  // A raster stream can hold any number in these fields.
  cups_page_header_t header = {};
  const int wild = 77;
  std::memcpy(&header.AdvanceMedia, &wild, sizeof(wild));
  std::memcpy(&header.Collate, &wild, sizeof(wild));
  std::memcpy(&header.Orientation, &wild, sizeof(wild));
  std::memcpy(&header.cupsColorSpace, &wild, sizeof(wild));
  const std::string text = DumpOfHeader(header);
  EXPECT_NE(text.find("__AdvanceMedia=cups_adv_e(77)  "), std::string::npos);
  EXPECT_NE(text.find("__Collate=cups_bool_e(77)  "), std::string::npos);
  EXPECT_NE(text.find("__Orientation=cups_orient_e(77)  "), std::string::npos);
  EXPECT_NE(text.find("__cupsColorSpace=cups_cspace_e(77)  "), std::string::npos);
}

TEST(DumpHeader, TextsInTheHeaderAreNoFormats) {
  cups_page_header_t header = {};
  std::strcpy(header.MediaType, "%s%n");
  EXPECT_NE(DumpOfHeader(header).find("__MediaType=%s%n        /*"), std::string::npos);
}

TEST(DumpHeader, ATextWithoutAnEndStopsAtItsField) {
  cups_page_header_t header = {};
  std::memset(header.MediaClass, 'a', sizeof(header.MediaClass));
  std::memset(header.OutputType, 'b', sizeof(header.OutputType));
  header.AdvanceDistance = 0x63636363;
  const std::string text = DumpOfHeader(header);
  EXPECT_NE(text.find("__MediaClass=" + std::string(64, 'a') + "        /*"), std::string::npos);
  EXPECT_NE(text.find("__OutputType=" + std::string(64, 'b') + "        /*"), std::string::npos);
}
