// SPDX-License-Identifier: Apache-2.0
//
// Writes a raster stream for measuring: make-raster [options] FILE, or - for standard output.
#include <fcntl.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <map>
#include <stdexcept>
#include <string>

#include "bench/speed/command_line.h"
#include "bench/speed/raster_pages.h"

namespace {

using bench::Content;
using bench::RasterColours;

const std::map<std::string, Content> kContents = {
    {"photo", Content::Photo}, {"white", Content::White}, {"noise", Content::Noise}};
const std::map<std::string, RasterColours> kColours = {{"rgb", RasterColours::Rgb},
                                                       {"black", RasterColours::Black},
                                                       {"kcmy", RasterColours::KcmyPlanes}};

struct Request {
  std::string file;
  Content content = Content::Photo;
  std::size_t width = 1852;  // the image area of RQ_10x15
  std::size_t height = 1232;
  int pages = 1;
  std::uint32_t seed = 1;
  bool compressed = false;
  bench::RasterStyle style = {};
};

void describe(CLI::App& app, Request& request) {
  constexpr int kMostDots = 20000;
  app.add_option("file", request.file, "where to, - for standard output")->required();
  app.add_option("--content", request.content, "photo, white or noise")
      ->transform(CLI::CheckedTransformer(kContents));
  app.add_option("--colours", request.style.colours,
                 "rgb; black: one bit a pixel; kcmy: four planes of bits")
      ->transform(CLI::CheckedTransformer(kColours));
  app.add_option("--width", request.width, "pixels")->check(CLI::Range(1, kMostDots));
  app.add_option("--height", request.height, "pixels")->check(CLI::Range(1, kMostDots));
  app.add_option("--pages", request.pages, "how many times the page")
      ->check(CLI::NonNegativeNumber);
  app.add_option("--seed", request.seed, "of the noise");
  app.add_option("--compression", request.style.compression, "the header's field");
  app.add_option("--row-count", request.style.row_count, "the header's field");
  app.add_option("--row-feed", request.style.row_feed, "the header's field");
  app.add_option("--row-step", request.style.row_step, "the header's field");
  app.add_flag("--compressed", request.compressed, "in libcups' run lengths");
}

void write(const Request& request) {
  const int file = request.file == "-"
                       ? STDOUT_FILENO
                       : open(request.file.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
  const bench::Picture page =
      bench::page_picture(request.content, request.width, request.height, request.seed);
  bench::RasterStyle style = request.style;
  style.form = request.compressed ? bench::RasterForm::Compressed : bench::RasterForm::Raw;
  const bool written = file >= 0 && bench::write_raster(file, page, request.pages, style);
  if (!written || close(file) != 0) {
    throw std::runtime_error(request.file + ": " + std::strerror(errno));
  }
}

}  // namespace

int main(int argc, char** argv) {
  Request request;
  return bench::run_program(
      "Writes a raster stream for measuring, by libcups' own writer", argc, argv,
      [&](CLI::App& app) { describe(app, request); }, [&] { write(request); });
}
