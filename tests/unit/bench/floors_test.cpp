// SPDX-License-Identifier: Apache-2.0
//
// The floors move the bytes that they are said to: otherwise the filter would be held against too
// little or too much.
#include <gtest/gtest.h>

#include <string>

#include "bench/speed/contestants.h"
#include "bench/speed/raster_file.h"
#include "tests/unit/bench/output_of.h"

namespace {

using bench::Content;
using bench::measure;
using bench::MeteredRun;
using bench::Picture;
using bench::RasterFile;
using bench::RasterForm;
using bench::Streams;

MeteredRun floor_run(const std::string& floor, const std::string& input) {
  MeteredRun run = bench::floor_run(floor);
  run.input = input;
  run.streams = Streams::Pipes;
  return run;
}

MeteredRun filter_run(const std::string& input, const std::string& options) {
  MeteredRun run = bench::filter_run(bench::Library::Widening, options);
  run.input = input;
  run.streams = Streams::Pipes;
  return run;
}

TEST(FloorCopy, WidensEachByteToFourteenBits) {
  const Picture page{2, 2, {{0, 1, 4}, {127, 128, 255}, {64, 3, 2}, {255, 255, 255}}};
  const RasterFile raster(page, 1, {});
  const unsigned char expected[] = {
      0x00, 0x00, 0x40, 0x00, 0x01, 0x01, 0xDF, 0x1F, 0x20, 0x20, 0xFF, 0x3F,
      0x10, 0x10, 0xC0, 0x00, 0x80, 0x00, 0xFF, 0x3F, 0xFF, 0x3F, 0xFF, 0x3F,
  };
  EXPECT_EQ(output_of(floor_run("floor-copy", raster.path())),
            std::string(reinterpret_cast<const char*>(expected), sizeof expected));
}

TEST(FloorCopy, SendsThePixelsThatTheFilterSendsBesideTheWideningLibrary) {
  const Picture page = bench::page_picture(Content::Noise, 1852, 631, 5);
  for (const RasterForm form : {RasterForm::Raw, RasterForm::Compressed}) {
    const RasterFile raster(page, 1, {.form = form});
    const std::string image = output_of(floor_run("floor-copy", raster.path()));
    const std::string stream = output_of(filter_run(raster.path(), "PageSize=RQ_5x15"));
    EXPECT_EQ(image.size(), 1852U * 631U * 6U);
    EXPECT_NE(stream.find(image), std::string::npos);
    EXPECT_LT(stream.size(), image.size() + 4096) << "headers and questions are all there is more";
  }
}

TEST(FloorCopy, SendsEachPage) {
  const Picture page = bench::page_picture(Content::Noise, 30, 20, 5);
  const RasterFile one(page, 1, {});
  const RasterFile two(page, 2, {});
  const std::string image = output_of(floor_run("floor-copy", one.path()));
  EXPECT_EQ(output_of(floor_run("floor-copy", two.path())), image + image);
}

TEST(FloorDrop, ReadsTheWholeStreamAndWritesNothing) {
  const Picture page = bench::page_picture(Content::Noise, 1852, 100, 5);
  const RasterFile raster(page, 2, {});
  EXPECT_EQ(measure(floor_run("floor-drop", raster.path())).bytes, 0U);
}

TEST(FloorWrite, WritesSoManyBytes) {
  MeteredRun run = floor_run("floor-write", "/dev/null");
  run.argv.emplace_back("13689984");
  EXPECT_EQ(measure(run).bytes, 13689984U);
}

TEST(WideningFilter, PrintsMatteAndJoinedSheets) {
  const Picture page = bench::page_picture(Content::Noise, 1852, 616, 5);
  const RasterFile raster(page, 2, {});
  MeteredRun run = filter_run(raster.path(), "PageSize=RQ_5x15x2_2 RQPrintFinish=Matte");
  run.bytes = 1852 * 1232 * 6 + 1852 * 1244;
  EXPECT_EQ(measure(run).pauses, 1U) << "behind its one sheet";
}

}  // namespace
