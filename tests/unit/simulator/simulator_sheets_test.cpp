// SPDX-License-Identifier: Apache-2.0
//
// The sheets that the printer leaves, read back with libpng.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "tests/unit/png_file.h"
#include "tests/unit/simulator/print_client.h"
#include "tests/unit/simulator/printer_process.h"
#include "tests/unit/stream_bytes.h"
#include "tests/unit/temp_file.h"

namespace {

using stream::Bytes;
using stream::Finish;
using testing::Each;
using testing::ElementsAre;

constexpr std::size_t kPixels = 1552;  // of a job of one sheet

class Sheets : public testing::Test {
 protected:
  std::string InFolder(const std::string& name) const { return (folder_.path() / name).string(); }

  std::string Text(const std::string& name) const {
    std::ifstream file(folder_.path() / name);
    std::stringstream text;
    text << file.rdbuf();
    return text.str();
  }

  TempFolder folder_;
  // Pixels are held against what was sent.
  PrinterProcess printer_{{"--output", folder_.path().string(), "--device-values"}};
};

Bytes job_of(const Bytes& sheet) {
  return stream::join({stream::status_request(), sheet, stream::print_out()});
}

TEST_F(Sheets, HaveTheSizeOfThePaperAndSayTheirResolution) {
  ASSERT_TRUE(print(printer_.Port(), stream::small_job()));
  EXPECT_EQ(printer_.Stop(), 0);
  EXPECT_THAT(folder_.Names(), ElementsAre("sheet-0001.png", "sheets.txt"));
  const PngFile png = read_png(InFolder("sheet-0001.png"));
  EXPECT_EQ(png.width, 1852U);
  EXPECT_EQ(png.height, 631U);
  EXPECT_EQ(png.bitDepth, 8);
  EXPECT_EQ(png.colorType, 2);
  EXPECT_EQ(png.dotsPerMetre, 11811U);
  EXPECT_THAT(png.pixels, Each(128));
}

TEST_F(Sheets, ShowEachPixelInItsPlaceAndColour) {
  Bytes job = job_of(stream::sheet(stream::paper_5x15(), Finish::Gloss, {0, 0, 0, 0, 0, 0}));
  const Bytes first = {0xFF, 0x3F, 0x34, 0x12, 0x00, 0x20};
  const Bytes last = {0x00, 0x00, 0x00, 0x00, 0xFF, 0x3F};
  std::copy(first.begin(), first.end(), job.begin() + kPixels);
  std::copy(last.begin(), last.end(), job.end() - 6 - 6);
  ASSERT_TRUE(print(printer_.Port(), job));
  EXPECT_EQ(printer_.Stop(), 0);
  const PngFile png = read_png(InFolder("sheet-0001.png"));
  EXPECT_THAT(png.At(0, 0), ElementsAre(255, 73, 128));
  EXPECT_THAT(png.At(1, 0), ElementsAre(0, 0, 0));
  EXPECT_THAT(png.At(0, 1), ElementsAre(0, 0, 0));
  EXPECT_THAT(png.At(1850, 630), ElementsAre(0, 0, 0));
  EXPECT_THAT(png.At(1851, 630), ElementsAre(0, 0, 255));
}

TEST_F(Sheets, WithAWhiteBorderHaveTheImageInside) {
  ASSERT_TRUE(print(printer_.Port(), job_of(stream::sheet(stream::paper_9x13_wb(), Finish::Gloss,
                                                          {0x34, 0x12, 0, 0, 0, 0}))));
  EXPECT_EQ(printer_.Stop(), 0);
  const PngFile png = read_png(InFolder("sheet-0001.png"));
  EXPECT_EQ(png.width, 1550U);
  EXPECT_EQ(png.height, 1082U);
  EXPECT_THAT(png.At(0, 0), ElementsAre(255, 255, 255));
  EXPECT_THAT(png.At(83, 74), ElementsAre(255, 255, 255));
  EXPECT_THAT(png.At(84, 73), ElementsAre(255, 255, 255));
  EXPECT_THAT(png.At(84, 74), ElementsAre(73, 0, 0));
  EXPECT_THAT(png.At(1465, 1007), ElementsAre(73, 0, 0));
  EXPECT_THAT(png.At(1466, 1007), ElementsAre(255, 255, 255));
  EXPECT_THAT(png.At(1465, 1008), ElementsAre(255, 255, 255));
  EXPECT_THAT(png.At(1549, 1081), ElementsAre(255, 255, 255));
}

TEST_F(Sheets, ShowTheMatteTexture) {
  Bytes job = job_of(
      stream::sheet(stream::paper_5x15(), Finish::Matte, {0xFF, 0x3F, 0x34, 0x12, 0, 0}, 0xFF));
  constexpr std::size_t kMatte = kPixels + 7011672;
  job.at(kMatte) = 0x00;
  job.at(kMatte + 1) = 0x80;
  job.at(kMatte + 1168611) = 0x00;
  job.at(kMatte + 1168612) = 0x00;  // below the sheet
  ASSERT_TRUE(print(printer_.Port(), job));
  EXPECT_EQ(printer_.Stop(), 0);
  const PngFile png = read_png(InFolder("sheet-0001.png"));
  EXPECT_EQ(png.height, 631U);
  EXPECT_THAT(png.At(0, 0), ElementsAre(223, 64, 0));
  EXPECT_THAT(png.At(1, 0), ElementsAre(239, 68, 0));
  EXPECT_THAT(png.At(2, 0), ElementsAre(255, 73, 0));
  EXPECT_THAT(png.At(1851, 630), ElementsAre(223, 64, 0));
  EXPECT_THAT(png.At(0, 630), ElementsAre(255, 73, 0));
}

TEST_F(Sheets, AreSaidInALineEach) {
  ASSERT_TRUE(print(printer_.Port(), stream::small_job()));
  EXPECT_EQ(printer_.WaitForLine("printed"),
            "connection 1: sheet 1 printed to " + InFolder("sheet-0001.png") +
                ": 1852 x 631, gloss, image 1852 x 631 at 0, 0, one print, mode auto, "
                "2026-03-15 10:20:30");
  EXPECT_EQ(printer_.Stop(), 0);
  EXPECT_EQ(Text("sheets.txt"),
            "sheet-0001.png: 1852 x 631, gloss, image 1852 x 631 at 0, 0, one print, mode auto, "
            "2026-03-15 10:20:30\n");
}

TEST_F(Sheets, OfAWholeJobAreToldEventByEvent) {
  ASSERT_TRUE(print(printer_.Port(), job_of(stream::sheet(stream::paper_5x15x2(), Finish::Matte,
                                                          {0, 0, 0, 0, 0, 0}))));
  EXPECT_EQ(printer_.Stop(), 0);
  const std::string opened = "connection 1: opened from 127.0.0.1 port ";
  const std::string lines = printer_.Lines();
  const std::size_t at = lines.find(opened);
  ASSERT_NE(at, std::string::npos);
  EXPECT_EQ(
      lines.substr(lines.find('\n', at) + 1),
      "connection 1: status request, answered 0x0000\n"
      "connection 1: status request, answered 0x0000\n"
      "connection 1: readiness query, 1852 x 1232, matte, answered 0x0000\n"
      "connection 1: job header, 1852 x 1232, matte, mode auto, two prints, split at line 616, "
      "margin cut-off 0, wait 5, RGB rate 42, OP rate 100\n"
      "connection 1: image header, image 1852 x 1232 at 0, 0, matte plane 1852 x 1244, "
      "2026-03-15 10:20:30\n"
      "connection 1: sheet 1 printed to " +
          InFolder("sheet-0001.png") +
          ": 1852 x 1232, matte, image 1852 x 1232 at 0, 0, two prints, split at line 616, mode "
          "auto, 2026-03-15 10:20:30\n"
          "connection 1: print-out, wait byte 5\n"
          "connection 1: closed, 15995430 bytes, 1 sheet, 0 errors\n"
          "stopped after 1 connection, 1 sheet, 0 errors\n");
}

// What a sample means is the conversion library's affair.
TEST_F(Sheets, WithSamplesAbove14BitsArePrintedAndToldOf) {
  Bytes job = stream::small_job();
  job.at(kPixels + 1) = 0xFF;
  job.at(kPixels + 3) = 0xFF;
  ASSERT_TRUE(print(printer_.Port(), job));
  EXPECT_EQ(printer_.WaitForLine("above"),
            "connection 1: note: 2 samples of the sheet above 0x3FFF");
  EXPECT_EQ(printer_.Stop(), 0);
  EXPECT_THAT(read_png(InFolder("sheet-0001.png")).At(0, 0), ElementsAre(255, 255, 128));
}

}  // namespace
