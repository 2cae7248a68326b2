// SPDX-License-Identifier: Apache-2.0
//
// What tqr7 check says and draws of a photo, compared with the page that phototopage makes of it
// with this printer's PPD: where the photo lies, which pixel comes where, its colours, and what is
// refused.
#include <gmock/gmock.h>

#include <array>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <vector>

#include "photo/picture.h"
#include "tests/unit/photo_files.h"
#include "tests/unit/png_file.h"
#include "tests/unit/raster_bytes.h"
#include "tests/unit/temp_file.h"
#include "tests/unit/test_profiles.h"
#include "tests/unit/tool_process.h"

namespace {

using nlohmann::json;
using testing::HasSubstr;

// A photo, checked and printed with the same options.
class CheckAndPrint : public testing::Test {
 protected:
  void Run(const std::string& size, const std::string& options) {
    std::vector<std::string> words = {"check",  photo_,      "--size",           size,
                                      "--json", "--picture", folder_ / "preview"};
    std::istringstream each(options);
    for (std::string option; each >> option;) {
      words.insert(words.end(), {"-o", option});
    }
    check_ = run_tool(words);
    print_ = run_program({"env", std::string("PPD=") + TQR7_PPD, "LC_ALL=C", PHOTOTOPAGE, "1",
                          "anna", "Beach", "1", "PageSize=" + size + " " + options, photo_});
  }

  void Write(const std::string& bytes) { std::ofstream(photo_, std::ios::binary) << bytes; }

  TempFolder folder_;
  const std::string photo_ = folder_ / "photo.jpg";
  ToolRun check_;
  ToolRun print_;
};

struct PlaceCase {
  std::uint32_t width;
  std::uint32_t height;
  const char* size;
  const char* options;
};

void PrintTo(const PlaceCase& that, std::ostream* out) {
  *out << that.width << " x " << that.height << " on " << that.size << ", " << that.options;
}

// Red says the column, green the row.
photo::Picture picture_of_places(std::uint32_t width, std::uint32_t height) {
  photo::Picture picture(width, height);
  for (std::size_t y = 0; y < height; ++y) {
    for (std::size_t x = 0; x < width; ++x) {
      picture.At(x, y)[0] = static_cast<unsigned char>(255 * x / (width - 1));
      picture.At(x, y)[1] = static_cast<unsigned char>(255 * y / (height - 1));
      picture.At(x, y)[2] = 0x80;
    }
  }
  return picture;
}

constexpr Rgb kWhite = {255, 255, 255};
constexpr std::array<std::array<double, 2>, 5> kProbes = {
    {{0.02, 0.03}, {0.97, 0.04}, {0.03, 0.98}, {0.96, 0.97}, {0.4, 0.6}}};

// White begins right outside of the area that is said to be printed.
void expect_area(const RasterPage& page, const json& printed) {
  const std::size_t left = printed["left"];
  const std::size_t top = printed["top"];
  const std::size_t right = left + printed["width"].get<std::size_t>();
  const std::size_t bottom = top + printed["height"].get<std::size_t>();
  if (left > 0) {
    EXPECT_EQ(page.At(left - 1, top), kWhite);
  }
  if (right < page.width) {
    EXPECT_EQ(page.At(right, top), kWhite);
  }
  if (top > 0) {
    EXPECT_EQ(page.At(left, top - 1), kWhite);
  }
  if (bottom < page.height) {
    EXPECT_EQ(page.At(left, bottom), kWhite);
  }
  EXPECT_NE(page.At(left, top), kWhite);
  EXPECT_NE(page.At(right - 1, bottom - 1), kWhite);
}

// The corners of that area show the ends of the part that is said to be used.
void expect_ends(const RasterPage& page, const json& said) {
  const json& used = said["used"];
  const json& printed = said["printed"];
  const auto ends = [](double begin, double length, double all) {
    return std::array{255 * begin / all, 255 * (begin + length) / all};
  };
  const auto [red, redMost] = ends(used["left"], used["width"], said["photo"]["width"]);
  const auto [green, greenMost] = ends(used["top"], used["height"], said["photo"]["height"]);
  std::array<int, 2> least = {255, 255};
  std::array<int, 2> most = {0, 0};
  for (const std::size_t x : {0U, printed["width"].get<unsigned>() - 1}) {
    for (const std::size_t y : {0U, printed["height"].get<unsigned>() - 1}) {
      const Rgb dot =
          page.At(printed["left"].get<std::size_t>() + x, printed["top"].get<std::size_t>() + y);
      for (std::size_t colour = 0; colour < 2; ++colour) {
        least[colour] = std::min(least[colour], dot[colour]);
        most[colour] = std::max(most[colour], dot[colour]);
      }
    }
  }
  EXPECT_NEAR(least[0], red, 2);
  EXPECT_NEAR(most[0], redMost, 2);
  EXPECT_NEAR(least[1], green, 2);
  EXPECT_NEAR(most[1], greenMost, 2);
}

struct Range {
  std::size_t least;
  std::size_t most;
};

// Where the dark line around the sheet is, which has a colour that the photo does not have.
std::array<Range, 2> sheet_in(const PngFile& preview) {
  std::array<Range, 2> sheet = {{{preview.width, 0}, {preview.height, 0}}};
  for (std::size_t y = 0; y < preview.height; ++y) {
    for (std::size_t x = 0; x < preview.width; ++x) {
      if (preview.At(x, y) == Rgb{0x40, 0x40, 0x40}) {
        sheet[0] = {std::min(sheet[0].least, x), std::max(sheet[0].most, x)};
        sheet[1] = {std::min(sheet[1].least, y), std::max(sheet[1].most, y)};
      }
    }
  }
  return sheet;
}

void expect_drawn(const RasterPage& page, const json& said, const PngFile& preview) {
  const auto [across, down] = sheet_in(preview);
  // A page of two on a sheet is drawn by itself.
  const bool half = said["size"] == "RQ_5x15x2_2";
  const double width = half ? page.width : said["sheet"]["width"].get<double>();
  const double height = half ? page.height : said["sheet"]["height"].get<double>();
  for (const auto& [right, below] : kProbes) {
    const auto x = static_cast<std::size_t>(right * page.width);
    const auto y = static_cast<std::size_t>(below * page.height);
    const auto place = [](const Range& range, double share) {
      return range.least +
             static_cast<std::size_t>(share * static_cast<double>(range.most - range.least) + 0.5);
    };
    const double left = said["image_area"]["left"];
    const double top = said["image_area"]["top"];
    const Rgb drawn = preview.At(place(across, (left + static_cast<double>(x)) / width),
                                 place(down, (top + static_cast<double>(y)) / height));
    const Rgb printed = page.At(x, y);
    for (std::size_t colour = 0; colour < 3; ++colour) {
      EXPECT_NEAR(drawn[colour], printed[colour], 3) << x << ", " << y;
    }
  }
}

class PlaceOfAPhoto : public CheckAndPrint, public testing::WithParamInterface<PlaceCase> {};

TEST_P(PlaceOfAPhoto, IsSaidAndDrawnAsItIsPrinted) {
  const PlaceCase& that = GetParam();
  write_picture(photo_, picture_of_places(that.width, that.height));
  Run(that.size, that.options);
  ASSERT_EQ(print_.status, 0) << print_.errors;
  ASSERT_EQ(check_.errors, "");
  const json said = json::parse(check_.out);
  const RasterPage page = pages_of(print_.out).at(0);
  ASSERT_EQ(page.width, said["image_area"]["width"]);
  ASSERT_EQ(page.height, said["image_area"]["height"]);
  expect_area(page, said["printed"]);
  expect_ends(page, said);
  expect_drawn(page, said, read_png(folder_ / "preview"));
}

INSTANTIATE_TEST_SUITE_P(OnEverySize, PlaceOfAPhoto,
                         testing::Values(PlaceCase{900, 600, "RQ_9x13", "print-scaling=fill"},
                                         PlaceCase{1200, 900, "RQ_10x15", "print-scaling=fit"},
                                         PlaceCase{900, 600, "RQ_13x18", "print-scaling=fill"},
                                         PlaceCase{900, 1200, "RQ_15x20", ""},
                                         PlaceCase{800, 625, "RQ_5x15", "print-scaling=fill"},
                                         PlaceCase{900, 600, "RQ_15x15", ""},
                                         PlaceCase{600, 900, "RQ_13x13", "print-scaling=fill"},
                                         PlaceCase{500, 2000, "RQ_5x15x2_1", ""},
                                         PlaceCase{900, 1200, "RQ_5x15x2_2", "print-scaling=fill"},
                                         PlaceCase{901, 600, "RQ_9x13_WB", ""},
                                         PlaceCase{1024, 1075, "RQ_10x15_WB", "print-scaling=fill"},
                                         PlaceCase{600, 800, "RQ_13x18_WB", ""},
                                         PlaceCase{1377, 768, "RQ_15x20_WB",
                                                   "print-scaling=fill"}));

// A picture whose shape is nearly the page's, one that is nearly square, one much too long.
INSTANTIATE_TEST_SUITE_P(AtTheEdges, PlaceOfAPhoto,
                         testing::Values(PlaceCase{1852, 1232, "RQ_10x15", "print-scaling=fill"},
                                         PlaceCase{1852, 1232, "RQ_10x15", ""},
                                         PlaceCase{1555, 2314, "RQ_10x15", "print-scaling=fill"},
                                         PlaceCase{1459, 1463, "RQ_15x15", "print-scaling=fill"},
                                         PlaceCase{1000, 1000, "RQ_10x15", "print-scaling=fill"},
                                         PlaceCase{300, 3000, "RQ_10x15", "print-scaling=fill"},
                                         PlaceCase{3000, 300, "RQ_13x18_WB", ""}));

INSTANTIATE_TEST_SUITE_P(
    ByTheJobsOptions, PlaceOfAPhoto,
    testing::Values(PlaceCase{600, 600, "RQ_10x15", "print-scaling=auto"},
                    PlaceCase{600, 600, "RQ_10x15_WB", "print-scaling=auto"},
                    PlaceCase{900, 600, "RQ_10x15", "print-scaling=none"},
                    PlaceCase{900, 600, "RQ_10x15", "ppi=100 crop-to-fit"},
                    PlaceCase{800, 800, "RQ_10x15", "position=left"},
                    PlaceCase{600, 900, "RQ_13x18_WB", "position=bottom-right"},
                    PlaceCase{600, 900, "RQ_9x13", "print-scaling=fill position=top"},
                    PlaceCase{900, 600, "RQ_9x13", "orientation-requested=4"},
                    PlaceCase{900, 600, "RQ_9x13", "orientation-requested=5 position=left"},
                    PlaceCase{900, 600, "RQ_9x13_WB",
                              "orientation-requested=6 print-scaling=fill position=bottom"},
                    PlaceCase{600, 900, "RQ_9x13", "mirror position=top-left"},
                    PlaceCase{900, 600, "RQ_10x15", "scaling=40 position=right"}));

struct InkCase {
  const char* name;
  std::array<std::uint8_t, 4> samples;
  bool byAdobe;
  bool profile;
  Rgb colour;
};

void PrintTo(const InkCase& that, std::ostream* out) {
  *out << that.name;
}

class InkOfAPhoto : public CheckAndPrint, public testing::WithParamInterface<InkCase> {};

TEST_P(InkOfAPhoto, IsDrawnInTheColoursThatItPrintsIn) {
  const InkCase& that = GetParam();
  Write(cmyk_jpeg(that.samples, that.byAdobe,
                  that.profile ? profiles::black_only_press() : profiles::Profile()));
  Run("RQ_10x15", "");
  EXPECT_THAT(pages_of(print_.out).at(0).At(926, 616), Near(that.colour));
  const PngFile preview = read_png(folder_ / "preview");
  EXPECT_THAT(preview.At(preview.width / 2, preview.height / 2), Near(that.colour));
}

// By the profile that is embedded, black alone is seen: half of it is lightness 50.
INSTANTIATE_TEST_SUITE_P(
    All, InkOfAPhoto,
    testing::Values(InkCase{"by Adobe", {0, 255, 255, 127}, true, false, {0, 127, 127}},
                    InkCase{"not by Adobe", {255, 0, 0, 127}, false, false, {0, 128, 128}},
                    InkCase{"with a profile", {0, 255, 255, 127}, true, true, {118, 118, 118}}));

class QuartersOfAPhoto : public CheckAndPrint, public testing::WithParamInterface<const char*> {};

TEST_P(QuartersOfAPhoto, AreDrawnWhereAndInTheColoursThatTheyPrintIn) {
  const ToolRun made = run_program({MAKE_PHOTO, photo_, "926", "616", GetParam()});
  ASSERT_EQ(made.status, 0) << made.errors;
  Run("RQ_10x15", "");
  const RasterPage page = pages_of(print_.out).at(0);
  const PngFile preview = read_png(folder_ / "preview");
  constexpr std::array<Rgb, 4> kQuarters = {
      {{200, 90, 80}, {80, 150, 90}, {70, 90, 150}, {210, 180, 90}}};
  for (std::size_t i = 0; i < kQuarters.size(); ++i) {
    const std::size_t across = 1 + i % 2 * 2;
    const std::size_t down = 1 + i / 2 * 2;
    EXPECT_THAT(page.At(page.width * across / 4, page.height * down / 4), Near(kQuarters.at(i)));
    EXPECT_THAT(preview.At(preview.width * across / 4, preview.height * down / 4),
                Near(kQuarters.at(i)));
  }
}

INSTANTIATE_TEST_SUITE_P(ByTheCamerasNoteAndTheProfile, QuartersOfAPhoto,
                         testing::Values("exif-2", "exif-6", "adobe-rgb", "adobe-mark",
                                         "display-p3"));

using PhotoOfManyPages = CheckAndPrint;

TEST_F(PhotoOfManyPages, HasAsManyAsItPrintsAndIsDrawnOnTheFirst) {
  write_picture(photo_, picture_of_places(900, 600));
  Run("RQ_10x15", "scaling=200");
  const json said = json::parse(check_.out);
  const std::vector<RasterPage> pages = pages_of(print_.out);
  EXPECT_EQ(said["pages"], 4);
  EXPECT_EQ(pages.size(), 4U);
  expect_drawn(pages.at(0), said, read_png(folder_ / "preview"));
}

TEST_F(PhotoOfManyPages, IsRefusedInTheSameWordsWhereItTakesTooMany) {
  Write(jpeg_file(900, 600));
  Run("RQ_10x15", "ppi=1");
  EXPECT_THAT(print_.errors, HasSubstr("cannot be printed: it would take more than 100 pages.\n"));
  EXPECT_EQ(check_.errors, "tqr7 check: " + photo_ + ": it would take more than 100 pages\n");
}

using SizeOfAPhoto = CheckAndPrint;

TEST_F(SizeOfAPhoto, OfMoreThanAHundredMegapixelsIsGoodAndPrints) {
  Write(jpeg_file(65000, 1600));
  Run("RQ_10x15", "");
  EXPECT_EQ(print_.status, 0) << print_.errors;
  EXPECT_EQ(check_.status, 0) << check_.errors;
  EXPECT_EQ(pages_of(print_.out).size(), 1U);
  EXPECT_EQ(read_png(folder_ / "preview").width, 1000U);
}

struct RefusedCase {
  const char* name;
  std::string photo;
  const char* why;
};

void PrintTo(const RefusedCase& that, std::ostream* out) {
  *out << that.name;
}

class RefusedPhoto : public CheckAndPrint, public testing::WithParamInterface<RefusedCase> {};

TEST_P(RefusedPhoto, IsRefusedInTheSameWords) {
  Write(GetParam().photo);
  Run("RQ_10x15", "");
  const std::string why = GetParam().why;
  EXPECT_THAT(print_.errors, HasSubstr("ERROR: The photo cannot be printed: " + why + ".\n"));
  EXPECT_NE(check_.status, 0);
  if (check_.out.empty()) {
    EXPECT_EQ(check_.errors, "tqr7 check: " + photo_ + ": " + why + "\n");
  } else {
    EXPECT_EQ(json::parse(check_.out)["not_good"][0], "the photo cannot be printed: " + why);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Files, RefusedPhoto,
    testing::Values(
        RefusedCase{"empty", "", "it is neither a JPEG nor a PNG file"},
        RefusedCase{"text", "hello", "it is neither a JPEG nor a PNG file"},
        RefusedCase{"start of a JPEG", "\xFF\xD8\xFF", "Premature end of JPEG file"},
        RefusedCase{"JPEG that is cut off", jpeg_file(900, 600).substr(0, 700),
                    "Premature end of JPEG file"},
        RefusedCase{"JPEG of four thousand megapixels", jpeg_claim(65500, 65500),
                    "it claims to have 65500 x 65500 pixels, more than any photo"},
        RefusedCase{"JPEG of 144 megapixels in steps", jpeg_claim(12000, 12000, true),
                    "it is shown in steps, and too large for that"},
        RefusedCase{"start of a PNG", "\x89PNG\r\n\x1A\n", "Read Error"},
        RefusedCase{"PNG of 2147483647 columns", png_claim(0x7FFFFFFF, 1), "Invalid IHDR data"},
        RefusedCase{"PNG of 64 megapixels in steps", png_claim(8000, 8000, true),
                    "it is interlaced, and too large for that"},
        RefusedCase{"PNG without pixels", png_claim(1000, 1000), "Not enough image data"}));

}  // namespace
