// SPDX-License-Identifier: Apache-2.0
// Tells in a few words what a picture of make-test-picture has become on a raster page:
//
//   page-marks WIDTH HEIGHT <RASTER
//
// The page is what the printer's filter makes of the raster: its first dot on the first of
// WIDTH x HEIGHT, what is over cut off, what is missing white. "covered", or what stays white at
// which edges in dots; then, where it is so, that the picture is mirrored or does not lie upright,
// or turned to the left, and by how much its colours are off.
#include <cups/raster.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {

using Rgb = std::array<int, 3>;

// Clockwise from the upper left quarter of the picture, as one looks at it.
constexpr std::array<Rgb, 4> kQuarters = {
    {{200, 90, 80}, {80, 150, 90}, {210, 180, 90}, {70, 90, 150}}};
constexpr int kFarOff = 60;  ///< colours that are further off belong to another quarter

struct Page {
  int width;
  int height;
  std::vector<unsigned char> rgb;

  unsigned char* At(int x, int y) {
    return &rgb[3 * (static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                     static_cast<std::size_t>(x))];
  }
  bool IsWhite(int x, int y) {
    const unsigned char* const dot = At(x, y);
    return dot[0] == 0xFF && dot[1] == 0xFF && dot[2] == 0xFF;
  }
};

bool read_page(Page& page) {
  cups_raster_t* const raster = cupsRasterOpen(STDIN_FILENO, CUPS_RASTER_READ);
  cups_page_header2_t header;
  if (raster == nullptr || cupsRasterReadHeader2(raster, &header) == 0 ||
      header.cupsBitsPerPixel != 24) {
    return false;
  }
  page.rgb.assign(
      3UL * static_cast<std::size_t>(page.width) * static_cast<std::size_t>(page.height), 0xFF);
  std::vector<unsigned char> line(header.cupsBytesPerLine);
  const int width = std::min(page.width, static_cast<int>(header.cupsWidth));
  for (int y = 0; y < static_cast<int>(header.cupsHeight); ++y) {
    cupsRasterReadPixels(raster, line.data(), header.cupsBytesPerLine);
    if (y < page.height) {
      std::memcpy(page.At(0, y), line.data(), 3UL * static_cast<std::size_t>(width));
    }
  }
  cupsRasterClose(raster);
  return true;
}

bool row_is_white(Page& page, int y) {
  for (int x = 0; x < page.width; ++x) {
    if (!page.IsWhite(x, y)) {
      return false;
    }
  }
  return true;
}

bool column_is_white(Page& page, int x) {
  for (int y = 0; y < page.height; ++y) {
    if (!page.IsWhite(x, y)) {
      return false;
    }
  }
  return true;
}

struct Edges {
  int left = 0, right = 0, top = 0, bottom = 0;
};

Edges find_edges(Page& page) {
  Edges edges;
  while (edges.top < page.height && row_is_white(page, edges.top)) {
    ++edges.top;
  }
  while (edges.bottom < page.height - edges.top &&
         row_is_white(page, page.height - 1 - edges.bottom)) {
    ++edges.bottom;
  }
  while (edges.left < page.width && column_is_white(page, edges.left)) {
    ++edges.left;
  }
  while (edges.right < page.width - edges.left &&
         column_is_white(page, page.width - 1 - edges.right)) {
    ++edges.right;
  }
  return edges;
}

std::string words(const Edges& edges) {
  const std::array<std::pair<const char*, int>, 4> sides = {
      {{"left", edges.left}, {"right", edges.right}, {"top", edges.top}, {"bottom", edges.bottom}}};
  std::string text;
  for (const auto& [side, dots] : sides) {
    if (dots > 0) {
      text += (text.empty() ? "white " : ", ") + std::string(side) + " " + std::to_string(dots);
    }
  }
  return text.empty() ? "covered" : text;
}

int difference(const Rgb& wanted, const unsigned char* found) {
  int most = 0;
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    most = std::max(most, std::abs(wanted[i] - found[i]));
  }
  return most;
}

// By how much the colours are off when the picture, mirrored first or not, lies turned to the right
// by so many quarters.
int difference_turned(Page& page, const Edges& edges, std::size_t quarters, bool mirrored) {
  const int width = page.width - edges.left - edges.right;
  const int height = page.height - edges.top - edges.bottom;
  const int left = edges.left + width / 4;
  const int right = edges.left + width * 3 / 4;
  const int top = edges.top + height / 4;
  const int bottom = edges.top + height * 3 / 4;
  std::array<const unsigned char*, 4> found = {page.At(left, top), page.At(right, top),
                                               page.At(right, bottom), page.At(left, bottom)};
  std::rotate(found.begin(), found.begin() + static_cast<std::ptrdiff_t>(quarters), found.end());
  if (mirrored) {
    std::swap(found[0], found[1]);
    std::swap(found[2], found[3]);
  }
  int most = 0;
  for (std::size_t i = 0; i < found.size(); ++i) {
    most = std::max(most, difference(kQuarters[i], found[i]));
  }
  return most;
}

std::string lie_and_colours(Page& page, const Edges& edges) {
  constexpr std::array<const char*, 8> kLies = {"",
                                                ", turned to the right",
                                                ", upside down",
                                                "",
                                                ", mirrored",
                                                ", mirrored and turned to the right",
                                                ", mirrored and upside down",
                                                ", mirrored and turned to the left"};
  constexpr int kTolerance = 1;
  std::size_t lies = 0;
  int off = 256;
  for (std::size_t i = 0; i < kLies.size(); ++i) {
    if (const int found = difference_turned(page, edges, i % 4, i >= 4); found < off) {
      lies = i;
      off = found;
    }
  }
  if (off > kFarOff) {
    return ", not the picture";
  }
  return kLies[lies] + (off > kTolerance ? ", colours off by " + std::to_string(off) : "");
}

}  // namespace

int main(int argc, char** argv) {
  Page page{argc == 3 ? std::atoi(argv[1]) : 0, argc == 3 ? std::atoi(argv[2]) : 0, {}};
  if (page.width <= 0 || page.height <= 0) {
    std::fprintf(stderr, "usage: page-marks WIDTH HEIGHT <RASTER\n");
    return 2;
  }
  if (!read_page(page)) {
    std::printf("no page\n");
    return 1;
  }
  const Edges edges = find_edges(page);
  std::printf("%s%s\n", words(edges).c_str(), lie_and_colours(page, edges).c_str());
  return 0;
}
