// SPDX-License-Identifier: Apache-2.0
//
// tqr7 proof as a person runs it.
#include <gmock/gmock.h>

#include <algorithm>
#include <string>

#include "tests/unit/png_file.h"
#include "tests/unit/stream_bytes.h"
#include "tests/unit/temp_file.h"
#include "tests/unit/tool_process.h"

namespace {

using Rgb = PngFile::Rgb;
using stream::Finish;
using testing::HasSubstr;

constexpr char kSheet[] =
    "1852 x 631, gloss, image 1852 x 631 at 0, 0, one print, mode auto, 2026-03-15 10:20:30";

TEST(Proof, WritesEachSheetAsAPngAndSaysSo) {
  const TempFolder folder;
  const std::string job = stream::text_of(stream::small_job());
  const ToolRun run = run_tool({"proof", "-", "-o", folder / "proofs"}, job + job);
  EXPECT_EQ(run.out, folder / "proofs/sheet-0001.png: " + kSheet + "\n" +
                         (folder / "proofs/sheet-0002.png: ") + kSheet + "\n2 sheets, 0 errors\n");
  EXPECT_EQ(run.errors, "");
  EXPECT_EQ(run.status, 0);
  const PngFile png = read_png(folder / "proofs/sheet-0002.png");
  EXPECT_EQ(png.width, 1852U);
  EXPECT_EQ(png.height, 631U);
  EXPECT_TRUE(png.sRgb);
}

TEST(Proof, ShowsTheDeviceValuesWhenAsked) {
  const TempFolder folder;
  const ToolRun run =
      run_tool({"proof", "-", "--output", folder.path().string(), "--device-values"},
               stream::text_of(stream::small_job()));
  EXPECT_EQ(run.status, 0);
  const PngFile png = read_png(folder / "sheet-0001.png");
  EXPECT_FALSE(png.sRgb);
  EXPECT_EQ(png.At(0, 0), (Rgb{128, 128, 128}));  // 0x2000 of 0x3FFF
}

TEST(Proof, DrawsTheEdgeOfAWhiteBorderWhenAsked) {
  const TempFolder plain;
  const TempFolder marked;
  const std::string bytes = stream::text_of(stream::join(
      {stream::status_request(),
       stream::sheet(stream::paper_9x13_wb(), Finish::Gloss, {0xFF, 0x3F, 0xFF, 0x3F, 0xFF, 0x3F}),
       stream::print_out()}));
  run_tool({"proof", "-", "-o", plain.path().string()}, bytes);
  EXPECT_EQ(run_tool({"proof", "-", "-o", marked.path().string(), "--marks"}, bytes).status, 0);
  const Rgb white{255, 255, 255};
  const PngFile sheet = read_png(plain / "sheet-0001.png");
  const PngFile withMarks = read_png(marked / "sheet-0001.png");
  EXPECT_EQ(sheet.pixels, std::vector<std::uint8_t>(sheet.pixels.size(), 255));
  EXPECT_EQ(withMarks.At(40, 40), white);
  EXPECT_EQ(withMarks.At(700, 500), white);
  EXPECT_NE(withMarks.pixels, sheet.pixels);
}

TEST(Proof, ProofsWhatItCanOfAStreamWithErrors) {
  const TempFolder folder;
  std::string bytes = stream::text_of(stream::small_job());
  bytes[5] = 2;
  const ToolRun run = run_tool({"proof", "-", "-o", folder.path().string()}, bytes);
  EXPECT_EQ(run.out, folder / "sheet-0001.png: " + kSheet + "\n1 sheet, 1 error\n");
  EXPECT_EQ(run.errors,
            "tqr7 proof: offset 5: status request, fixed byte 5: came 0x02, allowed 0x00\n");
  EXPECT_EQ(run.status, 1);
}

TEST(Proof, KeepsWhatCameOfASheetThatIsCutOff) {
  const TempFolder folder;
  const std::string bytes = stream::text_of(stream::small_job()).substr(0, 1552 + 1852 * 6 * 100);
  const ToolRun run =
      run_tool({"proof", "-", "-o", folder.path().string(), "--device-values"}, bytes);
  EXPECT_EQ(run.out, folder / "incomplete-0001.png: cut off, " + kSheet + "\n0 sheets, 1 error\n");
  EXPECT_EQ(run.status, 1);
  const PngFile png = read_png(folder / "incomplete-0001.png");
  EXPECT_EQ(png.At(0, 99), (Rgb{128, 128, 128}));
  EXPECT_EQ(png.At(0, 100), (Rgb{255, 255, 255}));
}

TEST(Proof, OfAJobWithoutSheetsIsFine) {
  const TempFolder folder;
  const ToolRun run =
      run_tool({"proof", "-", "-o", folder.path().string()},
               stream::text_of(stream::join({stream::status_request(), stream::print_out()})));
  EXPECT_EQ(run.out, "0 sheets, 0 errors\n");
  EXPECT_EQ(run.status, 0);
}

TEST(Proof, OfAnEmptyStreamIsNotFine) {
  const TempFolder folder;
  EXPECT_EQ(run_tool({"proof", "-", "-o", folder.path().string()}).status, 1);
}

TEST(Proof, NeverReplacesAnEarlierSheet) {
  const TempFolder folder;
  std::ofstream(folder / "sheet-0041.png") << "a print of last week";
  const ToolRun run =
      run_tool({"proof", "-", "-o", folder.path().string()}, stream::text_of(stream::small_job()));
  EXPECT_THAT(run.out, HasSubstr("sheet-0042.png"));
  EXPECT_EQ(ReadFile(folder / "sheet-0041.png"), "a print of last week");
}

TEST(Proof, OfAFileThatCannotBeReadSaysWhy) {
  const TempFolder folder;
  const ToolRun run = run_tool({"proof", folder / "missing", "-o", folder.path().string()});
  EXPECT_EQ(run.errors, "tqr7 proof: " + (folder / "missing") + ": No such file or directory\n");
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.status, 2);
}

TEST(Proof, ThatCannotBeWrittenSaysWhy) {
  const TempFolder folder;
  std::ofstream(folder / "file") << "no folder";
  const ToolRun run = run_tool({"proof", "-", "-o", folder / "file"});
  EXPECT_EQ(run.errors, "tqr7 proof: " + (folder / "file") + ": Not a directory\n");
  EXPECT_EQ(run.status, 2);
}

TEST(Proof, ThroughAFileThatIsNoProfileSaysWhy) {
  const TempFolder folder;
  std::ofstream(folder / "profile") << "no profile";
  const ToolRun run =
      run_tool({"proof", "-", "-o", folder / "proofs", "--profile", folder / "profile"});
  EXPECT_THAT(run.errors, testing::StartsWith("tqr7 proof: " + (folder / "profile") + ": "));
  EXPECT_EQ(run.status, 2);
  EXPECT_FALSE(std::filesystem::exists(folder / "proofs"));
}

TEST(Proof, SaysTheFirstErrorsOnly) {
  const TempFolder folder;
  std::string garbage;
  for (int i = 0; i < 30; ++i) {
    garbage += "\x1BGD0" + std::string("\x01\x00\x01\x16", 4);
  }
  const ToolRun run = run_tool({"proof", "-", "-o", folder.path().string()}, garbage);
  EXPECT_EQ(std::count(run.errors.begin(), run.errors.end(), '\n'), 20);
  EXPECT_EQ(run.out, "0 sheets, 30 errors\n");
}

TEST(Proof, OfASheetThatCannotBeWrittenHasNoAnswer) {
  const TempFolder folder;
  const ToolRun run =
      run_program({"sh", "-c", "trap '' XFSZ; ulimit -f 1; exec \"$0\" proof - -o \"$1\"",
                   TQR7_TOOL, folder.path().string()},
                  stream::text_of(stream::small_job()));
  EXPECT_THAT(run.errors, HasSubstr("tqr7 proof: "));
  EXPECT_EQ(run.status, 2);
}

TEST(Proof, NeedsAFolder) {
  const ToolRun run = run_tool({"proof", "-"});
  EXPECT_EQ(run.errors, "tqr7: --output is required (see --help)\n");
  EXPECT_EQ(run.status, 2);
}

}  // namespace
