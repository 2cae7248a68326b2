// SPDX-License-Identifier: Apache-2.0
//
// Converts the same page so many times by the loops for one kind of processor:
// convert-pages off|on PAGES TARGET, the target by Highway's number for it, 0 for the one that
// every processor has. What the instructions of two runs differ by is what the pages take.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "bench/page_conversion.h"
#include "bench/speed/counted_page.h"
#include "conversion/processor.h"

namespace {

// A gradient with grain, which is drawn in no time: the loops take as long for any colours.
bench::Picture gradient() {
  return bench::painted(bench::kCountedWidth, bench::kCountedHeight,
                        [](std::size_t x, std::size_t y) {
                          const std::size_t grain = ((x * 2654435761U + y * 40503U) >> 7U) % 5;
                          const auto byte = [&](std::size_t value) {
                            return static_cast<unsigned char>(value + grain);
                          };
                          return bench::Rgb8{byte(x / 2), byte(y / 2), byte((x + y) / 4)};
                        });
}

bench::PrintSettings settings_of(bool on) {
  bench::PrintSettings settings;
  settings.moduleFolder = TQR7_MODULE_FOLDER;
  settings.colourConversion = on;
  settings.sharpness = on ? bench::kSharpnessNormal : bench::kSharpnessNone;
  settings.matte = on;
  return settings;
}

bool choose(std::int64_t target) {
  const std::vector<std::int64_t> usable = usable_targets();
  if (std::find(usable.begin(), usable.end(), target) == usable.end()) {
    return false;
  }
  use_target(target);
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4 || !choose(std::atoll(argv[3]))) {
    std::fprintf(stderr, "usage: convert-pages off|on PAGES TARGET\n");
    return 2;
  }
  const bench::Picture picture = gradient();
  bench::PageConversion conversion(picture, settings_of(std::string_view(argv[1]) == "on"));
  for (int left = std::atoi(argv[2]); left > 0; --left) {
    if (const long code = conversion.run(); code != 0) {
      std::fprintf(stderr, "convert-pages: MVChangeImage() = %ld\n", code);
      return 1;
    }
  }
  return 0;
}
