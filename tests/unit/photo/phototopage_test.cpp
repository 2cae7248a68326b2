// SPDX-License-Identifier: Apache-2.0
//
// phototopage as the scheduler runs it: a photo in, raster pages out.
#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "tests/unit/photo/filter_run.h"
#include "tests/unit/photo_files.h"
#include "tests/unit/raster_bytes.h"
#include "tests/unit/temp_file.h"

namespace {

using testing::HasSubstr;
using testing::SizeIs;

constexpr Rgb kRed = {200, 90, 80};
constexpr Rgb kGreen = {80, 150, 90};
constexpr Rgb kBlue = {70, 90, 150};
constexpr Rgb kYellow = {210, 180, 90};

ToolRun run_on(const std::string& file, const std::string& options,
               const std::string& copies = "1") {
  return run_filter(PHOTOTOPAGE, {copies, options, file});
}

// A photo of four quarters, as make-photo leaves it.
class Phototopage : public testing::Test {
 protected:
  std::string Make(const std::string& name, unsigned width, unsigned height,
                   const std::string& kind = "plain") {
    const ToolRun made = run_program(
        {MAKE_PHOTO, folder_ / name, std::to_string(width), std::to_string(height), kind});
    EXPECT_EQ(made.status, 0) << made.errors;
    return folder_ / name;
  }

  std::string Write(const std::string& bytes) {
    std::ofstream(folder_ / "written", std::ios::binary) << bytes;
    return folder_ / "written";
  }

  std::vector<RasterPage> Print(const std::string& file, const std::string& options,
                                const std::string& copies = "1") {
    const ToolRun run = run_on(file, options, copies);
    EXPECT_EQ(run.status, 0) << run.errors;
    return pages_of(run.out);
  }

  TempFolder folder_;
};

void expect_quarters(const RasterPage& page, const std::array<Rgb, 4>& quarters) {
  const std::uint32_t left = page.width / 4;
  const std::uint32_t right = page.width * 3 / 4;
  const std::uint32_t top = page.height / 4;
  const std::uint32_t bottom = page.height * 3 / 4;
  EXPECT_THAT(page.At(left, top), Near(quarters[0]));
  EXPECT_THAT(page.At(right, top), Near(quarters[1]));
  EXPECT_THAT(page.At(left, bottom), Near(quarters[2]));
  EXPECT_THAT(page.At(right, bottom), Near(quarters[3]));
}

TEST_F(Phototopage, WritesAPageOfThePrintersDots) {
  const std::vector<RasterPage> pages =
      Print(Make("photo.jpg", 900, 600), "PageSize=RQ_9x13 print-scaling=fill");
  ASSERT_THAT(pages, SizeIs(1));
  EXPECT_EQ(pages[0].header.cupsWidth, 1550U);
  EXPECT_EQ(pages[0].header.cupsHeight, 1082U);
  EXPECT_EQ(pages[0].header.cupsBytesPerLine, 4650U);
  EXPECT_EQ(pages[0].header.cupsBitsPerColor, 8U);
  EXPECT_EQ(pages[0].header.cupsBitsPerPixel, 24U);
  EXPECT_EQ(pages[0].header.cupsColorSpace, CUPS_CSPACE_RGB);
  EXPECT_EQ(pages[0].header.cupsColorOrder, CUPS_ORDER_CHUNKED);
  EXPECT_EQ(pages[0].header.HWResolution[0], 300U);
  EXPECT_EQ(pages[0].header.NumCopies, 1U);
  expect_quarters(pages[0], {kRed, kGreen, kBlue, kYellow});
}

TEST_F(Phototopage, TakesThePagesSizeFromTheMedia) {
  const std::vector<RasterPage> pages =
      Print(Make("photo.jpg", 300, 200), "media=RQ_10x15_WB print-scaling=fill");
  EXPECT_EQ(pages.at(0).width, 1684U);
  EXPECT_EQ(pages.at(0).height, 1084U);
}

TEST_F(Phototopage, PutsAFittedPhotoIntoTheMiddleOfWhite) {
  const RasterPage page = Print(Make("photo.png", 900, 600), "PageSize=RQ_9x13").at(0);
  EXPECT_EQ(page.At(775, 23), kWhite);
  EXPECT_NE(page.At(774, 24), kWhite);
  EXPECT_NE(page.At(774, 1056), kWhite);
  EXPECT_EQ(page.At(774, 1057), kWhite);
}

TEST_F(Phototopage, FillsAutomaticallyWhereThereIsNoBorder) {
  const std::string photo = Make("photo.png", 600, 600);
  EXPECT_NE(Print(photo, "PageSize=RQ_10x15 print-scaling=auto").at(0).At(0, 0), kWhite);
  EXPECT_NE(Print(photo, "PageSize=RQ_5x15x2_1 print-scaling=auto").at(0).At(0, 0), kWhite);
  EXPECT_NE(Print(photo, "PageSize=RQ_5x15x2_2 print-scaling=auto").at(0).At(0, 0), kWhite);
  EXPECT_EQ(Print(photo, "PageSize=RQ_10x15_WB print-scaling=auto").at(0).At(0, 0), kWhite);
}

TEST_F(Phototopage, TurnsAPortraitToTheLeft) {
  const RasterPage page =
      Print(Make("photo.png", 600, 900), "PageSize=RQ_10x15 print-scaling=fill").at(0);
  expect_quarters(page, {kGreen, kYellow, kRed, kBlue});
}

class OrientationOfAPhoto : public Phototopage, public testing::WithParamInterface<int> {};

TEST_P(OrientationOfAPhoto, IsFollowed) {
  const std::string photo = Make("photo.jpg", 926, 616, "exif-" + std::to_string(GetParam()));
  expect_quarters(Print(photo, "PageSize=RQ_10x15 print-scaling=fill").at(0),
                  {kRed, kGreen, kBlue, kYellow});
}

INSTANTIATE_TEST_SUITE_P(All, OrientationOfAPhoto, testing::Range(1, 9));

TEST_F(Phototopage, CutsAPhotoThatLiesTurnedInItsFileAtTheRightEnds) {
  const std::string photo = Make("photo.jpg", 1000, 1000, "exif-6");
  const RasterPage page = Print(photo, "PageSize=RQ_5x15 print-scaling=fill position=top").at(0);
  EXPECT_THAT(page.At(100, 10), Near(kRed));
  EXPECT_THAT(page.At(1700, 600), Near(kGreen));
}

struct ColourCase {
  const char* name;
  const char* kind;
};

void PrintTo(const ColourCase& that, std::ostream* out) {
  *out << that.kind << " in " << that.name;
}

class ColoursOfAPhoto : public Phototopage, public testing::WithParamInterface<ColourCase> {};

TEST_P(ColoursOfAPhoto, AreThoseThatItsFileMeans) {
  const std::string photo = Make(GetParam().name, 926, 616, GetParam().kind);
  expect_quarters(Print(photo, "PageSize=RQ_10x15 print-scaling=fill").at(0),
                  {kRed, kGreen, kBlue, kYellow});
}

INSTANTIATE_TEST_SUITE_P(
    All, ColoursOfAPhoto,
    testing::Values(ColourCase{"photo.jpg", "adobe-rgb"}, ColourCase{"photo.jpg", "adobe-mark"},
                    ColourCase{"photo.jpg", "display-p3"}, ColourCase{"photo.jpg", "wide-gamma"},
                    ColourCase{"photo.png", "adobe-rgb"}, ColourCase{"photo.png", "display-p3"},
                    ColourCase{"photo.png", "gamma-1"}));

TEST_F(Phototopage, MirrorsAPhoto) {
  expect_quarters(
      Print(Make("photo.png", 926, 616), "PageSize=RQ_10x15 print-scaling=fill mirror").at(0),
      {kGreen, kRed, kYellow, kBlue});
}

TEST_F(Phototopage, TurnsAPhotoAsTheJobSays) {
  const std::string photo = Make("photo.png", 926, 616);
  const std::string options = "PageSize=RQ_10x15 print-scaling=fill orientation-requested=";
  expect_quarters(Print(photo, options + "6").at(0), {kYellow, kBlue, kGreen, kRed});
  expect_quarters(Print(photo, options + "5").at(0), {kBlue, kRed, kYellow, kGreen});
}

TEST_F(Phototopage, WritesEachCopyAsAPage) {
  const std::vector<RasterPage> pages = Print(Make("photo.png", 300, 200), "PageSize=RQ_9x13", "3");
  ASSERT_THAT(pages, SizeIs(3));
  EXPECT_EQ(pages[0].rgb, pages[2].rgb);
  EXPECT_EQ(pages[2].header.NumCopies, 1U);
}

TEST_F(Phototopage, SpreadsALargePhotoOverPagesInTheOrderThatTheJobSays) {
  const std::string photo = Make("photo.png", 926, 616);
  const std::string options = "PageSize=RQ_10x15 scaling=200";
  const auto middle = [](const RasterPage& page) { return page.At(926, 616); };
  const std::vector<RasterPage> pages = Print(photo, options, "2");
  ASSERT_THAT(pages, SizeIs(8));
  EXPECT_THAT(middle(pages[0]), Near(kRed));
  EXPECT_THAT(middle(pages[1]), Near(kRed));
  EXPECT_THAT(middle(pages[2]), Near(kBlue));
  EXPECT_THAT(middle(pages[4]), Near(kGreen));
  const std::vector<RasterPage> sets = Print(photo, options + " Collate=True", "2");
  ASSERT_THAT(sets, SizeIs(8));
  EXPECT_THAT(middle(sets[0]), Near(kRed));
  EXPECT_THAT(middle(sets[1]), Near(kBlue));
  EXPECT_THAT(middle(sets[4]), Near(kRed));
}

TEST_F(Phototopage, ChangesTonesAsTheJobSays) {
  const RasterPage page =
      Print(Make("photo.png", 926, 616), "PageSize=RQ_10x15 print-scaling=fill brightness=50")
          .at(0);
  EXPECT_THAT(page.At(463, 308), Near(Rgb{145, 0, 0}));
}

TEST_F(Phototopage, ReadsStandardInputWithoutAFile) {
  const ToolRun run = run_filter(PHOTOTOPAGE, {"1", "PageSize=RQ_10x15 print-scaling=fill"},
                                 ReadFile(Make("photo.jpg", 926, 616)));
  EXPECT_EQ(run.status, 0) << run.errors;
  expect_quarters(pages_of(run.out).at(0), {kRed, kGreen, kBlue, kYellow});
}

TEST_F(Phototopage, LaysWhatIsTransparentOnWhite) {
  // Dark red, a quarter of it there.
  const RasterPage page =
      Print(Write(transparent_png(200, 0, 0, 64)), "PageSize=RQ_10x15 print-scaling=fill").at(0);
  EXPECT_THAT(page.At(926, 616), Near(Rgb{241, 191, 191}));
}

TEST_F(Phototopage, PrintsGreyPhotos) {
  const RasterPage page =
      Print(Write(jpeg_file(1852, 1232)), "PageSize=RQ_10x15 print-scaling=fill").at(0);
  EXPECT_THAT(page.At(926, 616), Near(Rgb{128, 128, 128}));
}

TEST_F(Phototopage, PrintsBlackAndWhiteAsGreysThatLookAsBright) {
  const RasterPage page = Print(Make("photo.png", 900, 600),
                                "PageSize=RQ_10x15 print-scaling=fill print-color-mode=monochrome")
                              .at(0);
  expect_quarters(page, {Rgb{113, 113, 113}, {131, 131, 131}, {90, 90, 90}, {180, 180, 180}});
}

struct BrokenCase {
  const char* name;
  std::string bytes;
  const char* why;
};

void PrintTo(const BrokenCase& that, std::ostream* out) {
  *out << that.name;
}

class BrokenPhoto : public Phototopage, public testing::WithParamInterface<BrokenCase> {};

TEST_P(BrokenPhoto, IsNotPrinted) {
  const ToolRun run = run_on(Write(GetParam().bytes), "PageSize=RQ_10x15");
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out, "");
  EXPECT_THAT(run.errors, HasSubstr(std::string("ERROR: The photo cannot be printed: ") +
                                    GetParam().why + ".\n"));
}

std::string half(const std::string& file) {
  return file.substr(0, file.size() / 2);
}

INSTANTIATE_TEST_SUITE_P(
    Files, BrokenPhoto,
    testing::Values(
        BrokenCase{"empty", "", "it is neither a JPEG nor a PNG file"},
        BrokenCase{"text", "hello", "it is neither a JPEG nor a PNG file"},
        BrokenCase{"start of a JPEG", "\xFF\xD8\xFF", "Premature end of JPEG file"},
        BrokenCase{"half of a JPEG", half(jpeg_file(900, 600)), "Premature end of JPEG file"},
        BrokenCase{"JPEG of four thousand megapixels", jpeg_claim(65500, 65500),
                   "it claims to have 65500 x 65500 pixels, more than any photo"},
        BrokenCase{"JPEG in 757 steps", jpeg_in_steps(16, 16), "too many scans"},
        BrokenCase{"JPEG of 144 megapixels in steps", jpeg_claim(12000, 12000, true),
                   "it is shown in steps, and too large for that"},
        BrokenCase{"start of a PNG", "\x89PNG\r\n\x1A\n", "Read Error"},
        BrokenCase{"PNG of a million columns", png_claim(1000000, 1000000), "Invalid IHDR data"},
        BrokenCase{"PNG of 3600 megapixels", png_claim(60000, 60000),
                   "it claims to have 60000 x 60000 pixels, more than any photo"},
        BrokenCase{"PNG of 64 megapixels in steps", png_claim(8000, 8000, true),
                   "it is interlaced, and too large for that"},
        BrokenCase{"PNG without pixels", png_claim(1000, 1000), "Not enough image data"}));

TEST_F(Phototopage, RefusesAPhotoThatWouldTakeAHeapOfPaper) {
  const ToolRun run = run_on(Make("photo.png", 900, 600), "PageSize=RQ_10x15 ppi=1");
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out, "");
  EXPECT_THAT(run.errors, HasSubstr("ERROR: The photo cannot be printed: it would take more than "
                                    "100 pages.\n"));
}

TEST_F(Phototopage, SaysThatThereIsNoFile) {
  const ToolRun run = run_on(folder_ / "missing", "");
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.errors, "ERROR: The photo was not printed: its file cannot be read.\n");
}

TEST_F(Phototopage, SaysThatThereIsNoPpd) {
  const ToolRun run = run_program({"env", "PPD=/nonexistent", PHOTOTOPAGE, "7", "anna", "Beach",
                                   "1", "", Make("photo.png", 30, 20)});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.errors, "ERROR: The photo was not printed: the queue's PPD file cannot be read.\n");
}

TEST_F(Phototopage, SaysThatItCannotWrite) {
  const std::string command =
      "trap '' PIPE; '" PHOTOTOPAGE "' 7 anna Beach 1 '' '" + Make("photo.png", 926, 616);
  const std::string said = "INFO: Reading the photo.\n";
  const std::string notPrinted = "ERROR: The photo was not printed: ";
  const auto run = [&](const std::string& output) {
    return run_program({"env", "PPD=" TQR7_PPD, "LC_ALL=C", "sh", "-c", command + output}).errors;
  };
  EXPECT_EQ(run("' >/dev/full"), said + notPrinted + "no page can be written.\n");
  EXPECT_THAT(run("' | head -c 4"),
              HasSubstr(notPrinted + "the printer's filter takes no more.\n"));
}

// The scheduler forgets what it has not read when it sees the end of the program.
TEST_F(Phototopage, EndsAfterItsRefusalHasBeenRead) {
  const std::string photo = Write("no photo");
  const std::string script = "{ '" PHOTOTOPAGE "' 7 anna Beach 1 PageSize=RQ_10x15 '" + photo +
                             "' 2>&1 >/dev/null; echo ended >>'" + photo +
                             "'; } | "
                             "{ sleep 0.2; cat '" +
                             photo + "'; cat; }";
  const ToolRun run = run_program({"env", "PPD=" TQR7_PPD, "sh", "-c", script});
  EXPECT_EQ(run.out,
            "no photo"
            "INFO: Reading the photo.\n"
            "ERROR: The photo cannot be printed: it is neither a JPEG nor a PNG file.\n");
}

TEST(PhototopageUsage, IsToldWhenArgumentsAreMissing) {
  const ToolRun run = run_program({PHOTOTOPAGE, "7", "anna"});
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(run.errors, HasSubstr("Usage: "));
}

}  // namespace
