// SPDX-License-Identifier: Apache-2.0
//
// The inner loops of the filter and the conversion on a page of a photo, each beside a floor that
// only moves as many bytes with the C library's memcpy, memset and memchr; and Little CMS on the
// same page. A Google Benchmark program, whose words are its own: a loop is "NAME", its floor
// "floor of NAME".
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <functional>
#include <memory>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "bench/colour/page_conversion.h"
#include "bench/colour/printer_colours.h"
#include "bench/colour/test_pictures.h"
#include "image/band_image.h"
#include "model/printer_model.h"
#include "protocol/plane_transfer.h"

namespace {

constexpr std::size_t kWidth = 1852;
constexpr std::size_t kHeight = 1232;
constexpr std::size_t kPixels = kWidth * kHeight;
constexpr int kTopDown = -1;

using Work = std::function<void()>;

struct Loop {
  std::string name;
  Work work;
};

/// All loops and floors. Google Benchmark calls a plain function, with a place here.
std::vector<Loop>& loops() {
  static std::vector<Loop> all;
  return all;
}

void run_loop(benchmark::State& state) {
  const Loop& loop = loops()[static_cast<std::size_t>(state.range(0))];
  for (auto pass : state) {
    static_cast<void>(pass);
    loop.work();
    benchmark::ClobberMemory();
  }
  state.SetLabel(loop.name);
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kPixels));
}

benchmark::internal::Benchmark* const kRunLoop = benchmark::RegisterBenchmark("loop", run_loop);

/// Bytes of memory that a loop has to read and to write for a pixel: what stays in a cache, as
/// tables and the buffer before a write do, is not counted.
struct Moved {
  std::size_t read;
  std::size_t written;
};

tagMVBandImageParams made_band(int depth, std::int64_t height = kHeight) {
  tagMVBandImageParams band{};
  if (!CImageUtility::CreateBandImage(&band, {0, 0, kWidth, height}, depth, kTopDown)) {
    throw std::bad_alloc();
  }
  return band;
}

/// Copies what is both read and written, and sets or reads through the rest. The memory is such as
/// the loops have, and large enough for all of them.
void move_bytes(const Moved& moved) {
  static const tagMVBandImageParams from = made_band(kImageDepth, 2 * kHeight);
  static const tagMVBandImageParams to = made_band(kImageDepth, 2 * kHeight);
  const std::size_t copied = kPixels * std::min(moved.read, moved.written);
  std::memcpy(to.pBits, from.pBits, copied);
  std::memset(to.pBits + copied, 1, kPixels * moved.written - copied);
  // There is no such byte: all of them are looked at.
  benchmark::DoNotOptimize(std::memchr(from.pBits + copied, 0, kPixels * moved.read - copied));
}

void add_loop(const std::string& name, const Moved& moved, Work work) {
  loops().push_back({name, std::move(work)});
  loops().push_back({"floor of " + name, [moved] { move_bytes(moved); }});
}

void add_filter() {
  static tagMVBandImageParams image = made_band(kImageDepth);
  static tagMVBandImageParams sheet = made_band(kImageDepth);
  static tagMVBandImageParams matte = made_band(kMatteDepth);
  static std::FILE* const nowhere = std::fopen("/dev/null", "wb");
  add_loop("a joined sheet filled with white", {0, 6}, [] {
    unsigned char white[] = {0xFF, 0x3F, 0xFF, 0x3F, 0xFF, 0x3F};
    CImageUtility::FillBandImage(&sheet, kImageDepth, white);
  });
  add_loop("a page copied into a sheet", {6, 6},
           [] { CImageUtility::CopyBandImage(&sheet, &image, kImageDepth); });
  add_loop("an image staged and written to /dev/null", {6, 0},
           [] { send_image_data(nowhere, &image); });
  add_loop("a matte plane staged and written to /dev/null", {1, 0},
           [] { send_matte_data(nowhere, &matte); });
}

void add_conversion(const bench::Picture& page, const std::string& name, const Moved& moved,
                    bench::PrintSettings settings) {
  settings.module_folder = TQR7_MODULE_FOLDER;
  const auto conversion = std::make_shared<bench::PageConversion>(page, std::move(settings));
  add_loop(name, moved, [conversion] { conversion->run(); });
}

void add_conversions(const bench::Picture& page) {
  add_conversion(page, "conversion: everything off", {3, 6}, {.colour_conversion = false});
  add_conversion(page, "conversion: sharpening", {3, 6},
                 {.colour_conversion = false, .sharpness = bench::kSharpnessNormal});
  add_conversion(page, "conversion: tone", {3, 6},
                 {.colour_conversion = false, .tone = {1, -1, 2, 10, 12, 14, -8, 5, 9}});
  add_conversion(page, "conversion: matte plane", {3, 7},
                 {.colour_conversion = false, .matte = true});
  add_conversion(page, "conversion: colours", {3, 6}, {});
  add_conversion(page, "conversion: colours, sharpening, matte plane", {3, 7},
                 {.sharpness = bench::kSharpnessNormal, .matte = true});
}

/// Little CMS's own transform to the printer's 16-bit values.
void add_little_cms(const bench::Picture& page, const std::string& name, cmsUInt32Number flags) {
  static std::vector<std::uint16_t> samples(3 * kPixels);
  const cms::Profile srgb(cmsCreate_sRGBProfile());
  const std::shared_ptr<void> transform = bench::transform_between(
      srgb, TYPE_RGB_8, bench::profile_of(printer_model_profile()), TYPE_RGB_16, flags);
  add_loop(name, {3, 6}, [&page, transform] {
    cmsDoTransform(transform.get(), page.pixels.data(), samples.data(),
                   static_cast<cmsUInt32Number>(kPixels));
  });
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv) ||
      std::freopen("/dev/null", "w", stderr) == nullptr) {  // the filter's progress lines
    return 1;
  }
  const bench::Picture page = bench::photo(kWidth, kHeight);
  add_filter();
  add_conversions(page);
  add_little_cms(page, "Little CMS: colours by a 33-point table",
                 cmsFLAGS_FORCE_CLUT | cmsFLAGS_GRIDPOINTS(33) | cmsFLAGS_BLACKPOINTCOMPENSATION);
  // Its fastest way for a matrix profile, which it does not take with black-point compensation.
  add_little_cms(page, "Little CMS: colours by matrix and curves", 0);
  kRunLoop->DenseRange(0, static_cast<std::int64_t>(loops().size()) - 1);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
