// SPDX-License-Identifier: Apache-2.0
//
// tqr7 check as a person runs it.
#include <gmock/gmock.h>

#include <nlohmann/json.hpp>
#include <string>

#include "tests/unit/photo_files.h"
#include "tests/unit/png_file.h"
#include "tests/unit/temp_file.h"
#include "tests/unit/test_profiles.h"
#include "tests/unit/tool_process.h"

namespace {

using Rgb = PngFile::Rgb;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

ToolRun check(const std::string& photo, std::vector<std::string> options) {
  const TempFolder folder;
  std::ofstream(folder / "photo", std::ios::binary) << photo;
  options.insert(options.begin(), {"check", folder / "photo", "--size"});
  return run_tool(options);
}

TEST(Check, OfAPhotoInThePapersShapeIsGood) {
  const ToolRun run = check(jpeg_file(1852, 1232), {"RQ_10x15", "--scaling", "fill"});
  EXPECT_EQ(run.out,
            "Photo:      1852 x 1232 pixels\n"
            "Paper:      RQ_10x15, 1852 x 1232 dots, 156.8 x 104.3 mm\n"
            "Scaling:    fill, to 1852 x 1232 dots\n"
            "Resolution: 300 dpi, sharp (sharp from 240 on, soft from 150, coarse below)\n"
            "Good:       nothing is lost, and nothing is coarse\n");
  EXPECT_EQ(run.errors, "");
  EXPECT_EQ(run.status, 0);
}

TEST(Check, TellsWhatFillCutsOff) {
  const ToolRun run = check(jpeg_file(1600, 1200), {"10x15", "--scaling", "fill"});
  EXPECT_EQ(run.out,
            "Photo:      1600 x 1200 pixels\n"
            "Paper:      RQ_10x15, 1852 x 1232 dots, 156.8 x 104.3 mm\n"
            "Scaling:    fill, to 1852 x 1232 dots\n"
            "Resolution: 259 dpi, sharp (sharp from 240 on, soft from 150, coarse below)\n"
            "Cut off:    top of the photo, 68 pixels, 5.7 % (6.7 mm of paper)\n"
            "Cut off:    bottom of the photo, 68 pixels, 5.7 % (6.7 mm of paper)\n"
            "Note:       Nothing is cut off with --scaling fit, which is `lp -o "
            "print-scaling=fit`.\n"
            "Not good:   lost: more than 1.0 % is cut off at the top\n"
            "Not good:   lost: more than 1.0 % is cut off at the bottom\n");
  EXPECT_EQ(run.status, 1);
}

TEST(Check, TellsWhatFitLeavesWhite) {
  const ToolRun run = check(jpeg_file(1600, 1200), {"10x15"});
  EXPECT_EQ(run.out,
            "Photo:      1600 x 1200 pixels\n"
            "Paper:      RQ_10x15, 1852 x 1232 dots, 156.8 x 104.3 mm\n"
            "Scaling:    fit, to 1643 x 1232 dots\n"
            "Resolution: 292 dpi, sharp (sharp from 240 on, soft from 150, coarse below)\n"
            "Left white: left of the image area, 104 dots, 5.6 % (8.8 mm)\n"
            "Left white: right of the image area, 105 dots, 5.7 % (8.9 mm)\n"
            "Note:       The page is covered with --scaling fill, which is `lp -o "
            "print-scaling=fill`; what goes beyond it is cut off.\n"
            "Good:       nothing is lost, and nothing is coarse\n");
  EXPECT_EQ(run.status, 0);
}

TEST(Check, TellsThatAPortraitPhotoIsTurned) {
  EXPECT_THAT(check(jpeg_file(1232, 1852), {"10x15"}).out,
              HasSubstr("Note:       The photo is turned by a quarter to the left, to lie as the "
                        "paper does.\n"));
}

TEST(Check, CallsAPhotoSoftThatMayStillBePrinted) {
  const ToolRun run = check(jpeg_file(1200, 798), {"10x15"});
  EXPECT_THAT(run.out, HasSubstr("Resolution: 194 dpi, soft ("));
  EXPECT_EQ(run.status, 0);
}

TEST(Check, CallsAPhotoCoarseThatShouldNotBePrinted) {
  const ToolRun run = check(jpeg_file(600, 399), {"10x15"});
  EXPECT_THAT(run.out, HasSubstr("Resolution: 97 dpi, coarse ("));
  EXPECT_THAT(run.out, EndsWith("Not good:   coarse: less than 150 pixels to the inch\n"));
  EXPECT_EQ(run.status, 1);
}

TEST(Check, TellsTheImageAreaInsideAWhiteBorder) {
  EXPECT_THAT(check(jpeg_file(1684, 1084), {"10x15_wb"}).out,
              HasSubstr("Paper:      RQ_10x15_WB, 1852 x 1232 dots, 156.8 x 104.3 mm\n"
                        "Image area: 1684 x 1084 dots, inside a white border\n"));
}

TEST(Check, TellsThatAPageIsHalfASheet) {
  const std::string out = check(jpeg_file(1852, 616), {"5x15x2_2"}).out;
  EXPECT_THAT(out, HasSubstr("Image area: 1852 x 616 dots, one of two prints on the sheet\n"));
  EXPECT_THAT(out, HasSubstr("Note:       A sheet takes two such pages; the other half of a lone "
                             "one stays white.\n"));
}

TEST(Check, TellsThatASheetIsCutInTwo) {
  EXPECT_THAT(check(jpeg_file(1852, 1232), {"5x15x2_1"}).out,
              HasSubstr("Note:       The sheet is cut into two prints below line 616; one photo on "
                        "the whole page is cut in two.\n"));
}

class CheckOnASize : public testing::TestWithParam<const char*> {};

TEST_P(CheckOnASize, KnowsItWithAndWithoutItsBeginning) {
  const std::string size = GetParam();
  EXPECT_THAT(check(jpeg_file(60, 40), {size}).out, HasSubstr("Paper:      " + size + ", "));
  EXPECT_THAT(check(jpeg_file(60, 40), {size.substr(3)}).out,
              HasSubstr("Paper:      " + size + ", "));
}

INSTANTIATE_TEST_SUITE_P(All, CheckOnASize,
                         testing::Values("RQ_9x13", "RQ_10x15", "RQ_13x18", "RQ_15x20", "RQ_5x15",
                                         "RQ_15x15", "RQ_13x13", "RQ_5x15x2_1", "RQ_5x15x2_2",
                                         "RQ_9x13_WB", "RQ_10x15_WB", "RQ_13x18_WB",
                                         "RQ_15x20_WB"));

TEST(Check, TellsThatAPhotoIsTurnedByTheCamerasNote) {
  const std::string out = check(jpeg_file(1232, 1852, exif_data(6)), {"10x15"}).out;
  EXPECT_THAT(out, StartsWith("Photo:      1852 x 1232 pixels\n"));
  EXPECT_THAT(out,
              HasSubstr("Note:       The camera's note in the file says that the photo must be "
                        "turned by 90 degrees clockwise to be seen upright. It is printed so, "
                        "and all that is said here is said of the upright photo.\n"));
  EXPECT_THAT(out, Not(HasSubstr("to lie as the paper does")));
  EXPECT_THAT(check(jpeg_file(1852, 1232, exif_data(1)), {"10x15"}).out, Not(HasSubstr("Note:")));
}

class CheckOfATurnedPhoto : public testing::TestWithParam<std::pair<int, const char*>> {};

TEST_P(CheckOfATurnedPhoto, TellsHowItIsSeenUpright) {
  const auto [orientation, words] = GetParam();
  const std::string photo = jpeg_file(60, 40, exif_data(static_cast<std::uint8_t>(orientation)));
  EXPECT_THAT(check(photo, {"10x15"}).out,
              HasSubstr(std::string("the photo must be ") + words + " to be seen upright."));
}

INSTANTIATE_TEST_SUITE_P(
    All, CheckOfATurnedPhoto,
    testing::Values(std::pair(2, "mirrored left to right"), std::pair(3, "turned by 180 degrees"),
                    std::pair(4, "mirrored top to bottom"),
                    std::pair(5, "turned by 90 degrees clockwise and mirrored left to right"),
                    std::pair(7,
                              "turned by 90 degrees counter-clockwise and mirrored left to right"),
                    std::pair(8, "turned by 90 degrees counter-clockwise")));

TEST(Check, FillsThePageWithAPhotoThatNearlyHasItsShape) {
  const std::string out = check(jpeg_file(3000, 2000), {"10x15"}).out;
  EXPECT_THAT(out, HasSubstr("Scaling:    fit, to 1852 x 1232 dots\n"));
  EXPECT_THAT(out, Not(HasSubstr("Left white:")));
}

TEST(Check, FollowsADensityThatStretchesThePhoto) {
  const ToolRun run = check(with_density(jpeg_file(1600, 1200), 1, 72, 144), {"10x15"});
  EXPECT_THAT(run.out, HasSubstr("Scaling:    fit, to 1852 x 695 dots\n"));
  EXPECT_THAT(run.out,
              HasSubstr("Note:       The file says that its pixels are not square: 72 to the inch "
                        "across, 144 down. Printing follows that, and stretches the photo; take it "
                        "out of the file if it looks wrong.\n"));
}

TEST(Check, TakesTheDensityOfTheExifDataFirst) {
  const std::string photo = jpeg_file(1600, 1200, exif_density_data(100, 100));
  EXPECT_THAT(check(with_density(photo, 1, 72, 144), {"10x15"}).out, Not(HasSubstr("not square")));
}

TEST(Check, TakesNoPartOfADensityWithoutAUnit) {
  EXPECT_THAT(check(with_density(jpeg_file(1600, 1200), 0, 1, 2), {"10x15"}).out,
              Not(HasSubstr("not square")));
}

TEST(Check, CallsAPhotoSharpFrom240DotsOn) {
  // 240 / 300 of 1550 dots, and a pixel less.
  EXPECT_THAT(check(jpeg_file(1240, 1000), {"13x13"}).out, HasSubstr("240 dpi, sharp "));
  EXPECT_THAT(check(jpeg_file(1239, 1000), {"13x13"}).out, HasSubstr("240 dpi, soft "));
}

TEST(Check, AdvisesTheOtherScalingOnlyWhereThisOneCostsMuch) {
  EXPECT_THAT(check(jpeg_file(1838, 1232), {"10x15"}).out, Not(HasSubstr("--scaling")));
  EXPECT_THAT(check(jpeg_file(1800, 1232), {"10x15"}).out, HasSubstr("--scaling fill"));
}

TEST(Check, TellsAProfileThatIsNotSrgb) {
  EXPECT_THAT(
      check(jpeg_file(1852, 1232, {}, profiles::wide_green()), {"10x15"}).out,
      HasSubstr("Note:       The photo's colours are not those of sRGB; they are converted for "
                "printing.\n"));
  EXPECT_THAT(check(jpeg_file(1852, 1232, {}, profiles::srgb()), {"10x15"}).out,
              Not(HasSubstr("Note:")));
}

TEST(Check, TellsAProfileThatCannotBeUsed) {
  const ToolRun run = check(jpeg_file(1852, 1232, {}, {1, 2, 3}), {"10x15"});
  EXPECT_THAT(run.out, HasSubstr("Note:       The photo's colour profile cannot be used and is "
                                 "passed over.\n"));
  EXPECT_EQ(run.status, 0);
}

TEST(Check, SaysThatAPhotoThatIsCutOffCannotBePrinted) {
  const std::string whole = jpeg_file(1852, 1232);
  const ToolRun run = check(whole.substr(0, whole.size() / 2), {"10x15"});
  EXPECT_THAT(run.out, StartsWith("Photo:      1852 x 1232 pixels\n"));
  EXPECT_THAT(run.out, EndsWith("Not good:   the photo cannot be printed: Premature end of JPEG "
                                "file\n"));
  EXPECT_EQ(run.errors, "");
  EXPECT_EQ(run.status, 1);
}

TEST(Check, WritesOneJsonDocument) {
  const TempFolder folder;
  std::ofstream(folder / "photo", std::ios::binary) << jpeg_file(1600, 1200);
  const ToolRun run =
      run_tool({"check", folder / "photo", "--size", "9x13_WB", "--scaling", "fill", "--json"});
  nlohmann::json told = nlohmann::json::parse(run.out);
  EXPECT_EQ(told["photo"],
            nlohmann::json({{"file", folder / "photo"}, {"width", 1600}, {"height", 1200}}));
  EXPECT_EQ(told["size"], "RQ_9x13_WB");
  EXPECT_EQ(told["sheet"], nlohmann::json({{"width", 1550}, {"height", 1082}}));
  EXPECT_EQ(told["image_area"],
            nlohmann::json({{"left", 84}, {"top", 74}, {"width", 1382}, {"height", 934}}));
  EXPECT_EQ(told["scaling"], "fill");
  EXPECT_EQ(told["turned"], false);
  EXPECT_EQ(told["used"],
            nlohmann::json({{"left", 0}, {"top", 59}, {"width", 1600}, {"height", 1082}}));
  EXPECT_EQ(told["printed"],
            nlohmann::json({{"left", 0}, {"top", 0}, {"width", 1382}, {"height", 934}}));
  EXPECT_NEAR(told["dots_per_inch"], 347.3, 0.1);
  EXPECT_EQ(told["sharpness"], "sharp");
  EXPECT_EQ(told["cut_off"][0]["side"], "top");
  EXPECT_EQ(told["cut_off"][0]["pixels"], 59);
  EXPECT_EQ(told["cut_off"][1]["pixels"], 59);
  EXPECT_EQ(told["left_white"], nlohmann::json::array());
  EXPECT_EQ(told["not_good"].size(), 2U);
  EXPECT_EQ(told["good"], false);
  EXPECT_EQ(run.status, 1);
}

TEST(CheckPicture, ShowsTheSheetWithThePhotoTheCutPartsDimmedAndTheWhiteOne) {
  const TempFolder folder;
  std::ofstream(folder / "photo", std::ios::binary) << jpeg_file(1600, 1200);
  const std::string preview = folder / "preview.png";
  EXPECT_EQ(run_tool({"check", folder / "photo", "--size", "9x13_WB", "--scaling", "fill",
                      "--picture", preview})
                .status,
            1);
  const PngFile png = read_png(preview);
  // The sheet of 1550 x 1082 dots with a margin of 3 % of 1550 on each side, 1643 dots in all.
  EXPECT_EQ(png.width, 1000U);
  EXPECT_EQ(png.height, 715U);
  EXPECT_EQ(png.At(10, 10), (Rgb{0xB0, 0xB0, 0xB0}));    // outside
  EXPECT_EQ(png.At(28, 300), (Rgb{0x40, 0x40, 0x40}));   // the sheet's edge
  EXPECT_EQ(png.At(60, 300), (Rgb{0xFF, 0xFF, 0xFF}));   // its border
  EXPECT_EQ(png.At(500, 300), (Rgb{0x80, 0x80, 0x80}));  // the photo
}

TEST(CheckPicture, DimsWhatIsCutOffOutsideTheSheet) {
  const TempFolder folder;
  std::ofstream(folder / "photo", std::ios::binary) << jpeg_file(1200, 1200);
  const std::string preview = folder / "preview.png";
  run_tool(
      {"check", folder / "photo", "--size", "10x15", "--scaling", "fill", "--picture", preview});
  const PngFile png = read_png(preview);
  // The photo is 1852 x 1852 dots, the sheet its middle; 1963 dots in all.
  EXPECT_EQ(png.width, 1000U);
  EXPECT_EQ(png.height, 1000U);
  EXPECT_EQ(png.At(500, 10), (Rgb{0xB0, 0xB0, 0xB0}));
  EXPECT_EQ(png.At(500, 100), (Rgb{162, 162, 162}));  // 0.3 of 0x80 and 0.7 of the ground's 0xB0
  EXPECT_EQ(png.At(500, 500), (Rgb{0x80, 0x80, 0x80}));
  EXPECT_EQ(png.At(500, 900), (Rgb{162, 162, 162}));
}

TEST(CheckPicture, DimsAtTheSheetsEndsWhatIsCutOffOfATurnedPhoto) {
  const TempFolder folder;
  std::ofstream(folder / "photo", std::ios::binary) << jpeg_file(800, 1600);
  const std::string preview = folder / "preview.png";
  run_tool(
      {"check", folder / "photo", "--size", "10x15", "--scaling", "fill", "--picture", preview});
  const PngFile png = read_png(preview);
  EXPECT_EQ(png.At(png.width / 2, png.height / 2), (Rgb{0x80, 0x80, 0x80}));
  EXPECT_EQ(png.At(60, png.height / 2), (Rgb{162, 162, 162}));
  EXPECT_EQ(png.At(png.width - 60, png.height / 2), (Rgb{162, 162, 162}));
}

TEST(CheckPicture, ShowsWhereTheSheetIsCutInTwo) {
  const TempFolder folder;
  std::ofstream(folder / "photo", std::ios::binary) << jpeg_file(1852, 1232);
  const std::string preview = folder / "preview.png";
  run_tool({"check", folder / "photo", "--size", "5x15x2_1", "--picture", preview});
  const PngFile png = read_png(preview);
  int dark = 0;
  for (std::size_t y = png.height / 2 - 30; y < png.height / 2 + 30; ++y) {
    dark += png.At(500, y) == Rgb{0x40, 0x40, 0x40} ? 1 : 0;
  }
  EXPECT_EQ(dark, 1);
}

TEST(CheckPicture, ThatCannotBeWrittenSaysWhy) {
  const ToolRun run = check(jpeg_file(60, 40), {"10x15", "--picture", "/nonexistent/preview.png"});
  EXPECT_THAT(run.errors, StartsWith("tqr7 check: /nonexistent/preview.png: "));
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.status, 2);
}

TEST(Check, OfAFileThatIsNoPhotoSaysSo) {
  const ToolRun run = check("hello", {"10x15"});
  EXPECT_THAT(run.errors, StartsWith("tqr7 check: "));
  EXPECT_THAT(run.errors, EndsWith("/photo: it is neither a JPEG nor a PNG file\n"));
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.status, 2);
}

TEST(Check, OfAFileThatCannotBeReadSaysWhy) {
  const TempFolder folder;
  const ToolRun missing = run_tool({"check", folder / "missing", "--size", "10x15"});
  EXPECT_EQ(missing.errors,
            "tqr7 check: " + (folder / "missing") + ": No such file or directory\n");
  EXPECT_EQ(missing.status, 2);
  const ToolRun directory = run_tool({"check", folder.path().string(), "--size", "10x15"});
  EXPECT_EQ(directory.errors, "tqr7 check: " + folder.path().string() + ": Is a directory\n");
  EXPECT_EQ(directory.status, 2);
}

TEST(Check, TakesASizeByTheNamesThatPeopleGiveIt) {
  const std::string photo = jpeg_file(60, 40);
  for (const char* name : {"rq_10X15", "10x15", "4x6", "102x152mm"}) {
    EXPECT_THAT(check(photo, {name}).out,
                HasSubstr("Paper:      RQ_10x15, 1852 x 1232 dots, 156.8 x 104.3 mm\n"))
        << name;
  }
  EXPECT_EQ(check(photo, {""}).status, 2);
}

TEST(Check, OfASizeThatThereIsNotNamesThoseThatThereAre) {
  const ToolRun run = check(jpeg_file(60, 40), {"A4"});
  EXPECT_EQ(run.errors,
            "tqr7 check: \"A4\" is no size; there are RQ_9x13, RQ_10x15, RQ_13x18, RQ_15x20, "
            "RQ_5x15, RQ_15x15, RQ_13x13, RQ_5x15x2_1, RQ_5x15x2_2, RQ_9x13_WB, RQ_10x15_WB, "
            "RQ_13x18_WB, RQ_15x20_WB\n");
  EXPECT_EQ(run.status, 2);
}

TEST(Check, OfAPhotoThatIsOnlyALineTellsWhatIsWhite) {
  const ToolRun run = check(jpeg_file(3000, 1), {"10x15"});
  EXPECT_THAT(run.out, HasSubstr("Scaling:    fit, to 1852 x 1 dots\n"));
  EXPECT_EQ(run.status, 0);
}

TEST(Check, FollowsTheJobsOptions) {
  const ToolRun run = check(jpeg_file(1600, 1200), {"10x15", "-o", "position=left", "--option",
                                                    "orientation-requested=6"});
  EXPECT_THAT(run.out, HasSubstr("Left white: left of the image area, 209 dots, 11.3 % (17.7 mm)\n"
                                 "Note:       The page is covered"));
  EXPECT_THAT(run.out, Not(HasSubstr("to lie as the paper does")));
}

TEST(Check, NamesTheScalingThatTheJobsOptionsComeTo) {
  const std::string photo = jpeg_file(600, 400);
  EXPECT_THAT(check(photo, {"10x15", "-o", "print-scaling=auto"}).out, HasSubstr("  fill, to "));
  EXPECT_THAT(check(photo, {"10x15_WB", "-o", "print-scaling=auto"}).out, HasSubstr("  fit, to "));
  EXPECT_THAT(check(photo, {"10x15", "-o", "print-scaling=none"}).out,
              HasSubstr("Scaling:    none, to 900 x 600 dots\n"));
  EXPECT_THAT(check(photo, {"10x15", "-o", "scaling=50"}).out,
              HasSubstr("Scaling:    own-size, to 924 x 616 dots\n"));
}

TEST(Check, TellsThatAPhotoTakesSeveralPages) {
  EXPECT_THAT(check(jpeg_file(1852, 1232), {"10x15", "-o", "scaling=200"}).out,
              HasSubstr("Scaling:    own-size, to 1852 x 1232 dots\n"
                        "Resolution: 150 dpi, soft (sharp from 240 on, soft from 150, coarse "
                        "below)\n"
                        "Note:       The photo takes 4 pages, column by column.\n"));
}

TEST(Check, KnowsTwoWaysOfScaling) {
  const ToolRun run = check(jpeg_file(60, 40), {"10x15", "--scaling", "none"});
  EXPECT_EQ(run.errors, "tqr7: --scaling: none not in {fit,fill} (see --help)\n");
  EXPECT_EQ(run.status, 2);
}

}  // namespace
