// SPDX-License-Identifier: Apache-2.0
//
// The predicted place of a picture held against the filter that prints photos, with this printer's
// PPD: where on the raster page the picture lies, and which pixel of it comes where.
#include <cups/raster.h>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <unistd.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "tests/unit/temp_file.h"
#include "tests/unit/tools/photo_files.h"
#include "tests/unit/tools/tool_process.h"
#include "tools/picture.h"
#include "tools/placement.h"

namespace tools {
namespace {

struct PlacementCase {
  std::uint32_t width;
  std::uint32_t height;
  const char* size;
  PrintScaling scaling;
};

const char* words(PrintScaling scaling) {
  return scaling == PrintScaling::Fill ? "fill" : "fit";
}

void PrintTo(const PlacementCase& that, std::ostream* out) {
  *out << that.width << " x " << that.height << " on " << that.size << ", " << words(that.scaling);
}

// Red tells the column, green the row.
Picture picture_of_places(std::uint32_t width, std::uint32_t height) {
  Picture picture(width, height);
  for (std::size_t y = 0; y < height; ++y) {
    for (std::size_t x = 0; x < width; ++x) {
      picture.At(x, y)[0] = static_cast<unsigned char>(255 * x / (width - 1));
      picture.At(x, y)[1] = static_cast<unsigned char>(255 * y / (height - 1));
      picture.At(x, y)[2] = 0x80;
    }
  }
  return picture;
}

struct RasterPage {
  std::uint32_t width = 0;
  std::uint32_t height = 0;
  std::vector<unsigned char> rgb;
};

RasterPage read_raster(const std::string& path) {
  RasterPage page;
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  cups_raster_t* const raster = cupsRasterOpen(file, CUPS_RASTER_READ);
  cups_page_header2_t header;
  if (raster != nullptr && cupsRasterReadHeader2(raster, &header) != 0) {
    page.width = header.cupsWidth;
    page.height = header.cupsHeight;
    page.rgb.resize(3UL * page.width * page.height);
    cupsRasterReadPixels(raster, page.rgb.data(), static_cast<unsigned>(page.rgb.size()));
  }
  cupsRasterClose(raster);
  close(file);
  return page;
}

RasterPage print(const PlacementCase& that, const std::string& picture) {
  const TempFolder folder;
  const ToolRun run = run_program(
      {"env", std::string("PPD=") + TQR7_PPD, "LC_ALL=C", PHOTOTOPAGE, "1", "anna", "Beach", "1",
       "PageSize=" + std::string(that.size) + " print-scaling=" + words(that.scaling), picture});
  EXPECT_EQ(run.status, 0) << run.errors;
  std::ofstream(folder / "raster", std::ios::binary) << run.out;
  return read_raster(folder / "raster");
}

// The pixel of the picture that a dot of the raster page shows, by the prediction.
std::array<double, 2> pixel_at(const Placement& placement, double x, double y) {
  const double across =
      (placement.turned ? placement.height - y : x) / placement.DotsPerPixelAcross();
  const double down = (placement.turned ? x : y) / placement.DotsPerPixelDown();
  return {placement.used.left + across, placement.used.top + down};
}

bool is_white(const RasterPage& page, std::size_t x, std::size_t y) {
  const unsigned char* const rgb = &page.rgb[3 * (y * page.width + x)];
  return rgb[0] == 0xFF && rgb[1] == 0xFF && rgb[2] == 0xFF;
}

class PlacementByPhototopage : public testing::TestWithParam<PlacementCase> {};

TEST_P(PlacementByPhototopage, IsAsPredicted) {
  const PlacementCase& that = GetParam();
  const PrintSize& size = *find_print_size(that.size);
  const Placement placement = place_picture({that.width, that.height, 0, 0}, size, that.scaling);
  const TempFolder folder;
  write_picture(folder / "picture.png", picture_of_places(that.width, that.height));
  const RasterPage page = print(that, folder / "picture.png");
  ASSERT_EQ(page.width, static_cast<std::uint32_t>(size.paper->nImageWidth));
  ASSERT_EQ(page.height, static_cast<std::uint32_t>(size.paper->nImageHeight));
  if (placement.left > 0) {
    EXPECT_TRUE(is_white(page, placement.left - 1, placement.top));
    EXPECT_TRUE(is_white(page, placement.left + placement.width, placement.top));
  }
  if (placement.top > 0) {
    EXPECT_TRUE(is_white(page, placement.left, placement.top - 1));
    EXPECT_TRUE(is_white(page, placement.left, placement.top + placement.height));
  }
  EXPECT_FALSE(is_white(page, placement.left, placement.top));
  EXPECT_FALSE(
      is_white(page, placement.left + placement.width - 1, placement.top + placement.height - 1));

  constexpr std::array<std::array<double, 2>, 5> kProbes = {
      {{0.02, 0.03}, {0.97, 0.04}, {0.03, 0.98}, {0.96, 0.97}, {0.4, 0.6}}};
  for (const auto& [right, down] : kProbes) {
    const auto x = static_cast<std::size_t>(right * placement.width);
    const auto y = static_cast<std::size_t>(down * placement.height);
    const auto [column, row] =
        pixel_at(placement, static_cast<double>(x) + 0.5, static_cast<double>(y) + 0.5);
    const unsigned char* const rgb =
        &page.rgb[3 * ((placement.top + y) * page.width + placement.left + x)];
    EXPECT_NEAR(rgb[0], 255 * (column - 0.5) / (that.width - 1), 2) << x << ", " << y;
    EXPECT_NEAR(rgb[1], 255 * (row - 0.5) / (that.height - 1), 2) << x << ", " << y;
  }
}

constexpr PrintScaling kFit = PrintScaling::Fit;
constexpr PrintScaling kFill = PrintScaling::Fill;

INSTANTIATE_TEST_SUITE_P(
    OnEverySize, PlacementByPhototopage,
    testing::Values(
        PlacementCase{900, 600, "RQ_9x13", kFill}, PlacementCase{600, 900, "RQ_9x13", kFit},
        PlacementCase{600, 900, "RQ_10x15", kFill}, PlacementCase{1200, 900, "RQ_10x15", kFit},
        PlacementCase{900, 600, "RQ_13x18", kFill}, PlacementCase{600, 601, "RQ_13x18", kFit},
        PlacementCase{1600, 900, "RQ_15x20", kFill}, PlacementCase{900, 1200, "RQ_15x20", kFit},
        PlacementCase{800, 625, "RQ_5x15", kFill}, PlacementCase{625, 800, "RQ_5x15", kFit},
        PlacementCase{900, 901, "RQ_15x15", kFill}, PlacementCase{900, 600, "RQ_15x15", kFit},
        PlacementCase{600, 900, "RQ_13x13", kFill}, PlacementCase{1301, 419, "RQ_13x13", kFit},
        PlacementCase{1100, 1000, "RQ_5x15x2_1", kFill},
        PlacementCase{500, 2000, "RQ_5x15x2_1", kFit},
        PlacementCase{900, 1200, "RQ_5x15x2_2", kFill},
        PlacementCase{900, 600, "RQ_5x15x2_2", kFit}, PlacementCase{900, 600, "RQ_9x13_WB", kFill},
        PlacementCase{901, 600, "RQ_9x13_WB", kFit},
        PlacementCase{1024, 1075, "RQ_10x15_WB", kFill},
        PlacementCase{900, 900, "RQ_10x15_WB", kFit}, PlacementCase{978, 489, "RQ_13x18_WB", kFill},
        PlacementCase{600, 800, "RQ_13x18_WB", kFit},
        PlacementCase{1377, 768, "RQ_15x20_WB", kFill},
        PlacementCase{1000, 999, "RQ_15x20_WB", kFit}));

// A picture whose shape is nearly the page's, one that is nearly square, one much too long.
INSTANTIATE_TEST_SUITE_P(AtTheEdges, PlacementByPhototopage,
                         testing::Values(PlacementCase{1852, 1232, "RQ_10x15", kFill},
                                         PlacementCase{1852, 1232, "RQ_10x15", kFit},
                                         PlacementCase{1555, 2314, "RQ_10x15", kFill},
                                         PlacementCase{1459, 1463, "RQ_15x15", kFill},
                                         PlacementCase{1000, 1000, "RQ_10x15", kFill},
                                         PlacementCase{300, 3000, "RQ_10x15", kFill},
                                         PlacementCase{3000, 300, "RQ_13x18_WB", kFit}));

}  // namespace
}  // namespace tools
