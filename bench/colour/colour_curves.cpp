// SPDX-License-Identifier: Apache-2.0
//
// Writes the points of the pictures in docs/colour.md, measured through the library itself:
// colour_curves FOLDER. Blocks of points as gnuplot has them, each under its name; draw.gnuplot
// draws.
#include <array>
#include <cmath>
#include <cstdio>
#include <exception>
#include <fstream>
#include <numbers>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/colour/page_conversion.h"
#include "bench/colour/printer_colours.h"
#include "bench/colour/test_pictures.h"

namespace {

/// A file of blocks.
class Blocks {
 public:
  explicit Blocks(const std::string& path) : path_(path), file_(path) {}

  void begin(const std::string& name) { file_ << "\n\n\"" << name << "\"\n"; }
  void point(double x, double y) { file_ << x << ' ' << y << '\n'; }
  void close() {
    if (!file_.flush()) {
      throw std::runtime_error(path_ + ": cannot be written");
    }
  }

 private:
  std::string path_;
  std::ofstream file_;
};

/// Whether the look of the nearest device colour is that colour.
bool reaches(const bench::PrinterColours& device, const cmsCIELab& lab) {
  const std::array<bench::DeviceColour, 1> nearest = {bench::clipped(device.device_for(lab))};
  const cmsCIELab look = device.look_of(nearest).front();
  return cmsDeltaE(&look, &lab) < 0.2;
}

/// The outermost colours of a lightness: for each hue the largest chroma that the device reaches.
void write_slice(Blocks& file, double lightness, const bench::PrinterColours& device) {
  for (int hue = 0; hue <= 360; hue += 4) {
    const double across = std::cos(hue * std::numbers::pi / 180.0);
    const double up = std::sin(hue * std::numbers::pi / 180.0);
    double low = 0.0;
    double high = 160.0;
    while (high - low > 0.05) {
      const double chroma = (low + high) / 2.0;
      (reaches(device, {lightness, chroma * across, chroma * up}) ? low : high) = chroma;
    }
    file.point(low * across, low * up);
  }
}

void write_gamut(const std::string& folder) {
  const bench::PrinterColours screen{cms::Profile(cmsCreate_sRGBProfile())};
  const bench::PrinterColours printer(
      bench::profile_of(bench::read_profile(TQR7_MODULE_FOLDER "tqr7.icc")));
  Blocks file(folder + "/gamut");
  for (const int lightness : {30, 55, 80}) {
    file.begin("sRGB: what a screen shows");
    write_slice(file, lightness, screen);
    file.begin("the printer's profile");
    write_slice(file, lightness, printer);
  }
  file.close();
}

/// One slider at its settings; `first` is where its three channels begin among the nine.
void write_slider(Blocks& file, std::size_t first, const std::array<std::int16_t, 5>& steps) {
  const std::vector<bench::Rgb8> greys = bench::grey_ramp();
  for (const std::int16_t step : steps) {
    bench::PrintSettings settings{.colour_conversion = false};
    settings.tone[first] = settings.tone[first + 1] = settings.tone[first + 2] = step;
    const auto samples = bench::converted({greys.size(), 1, greys}, settings);
    file.begin(std::to_string(step));
    for (std::size_t value = 0; value < greys.size(); value += 5) {
      file.point(static_cast<double>(value), samples[3 * value] / bench::kFullScale * 100.0);
    }
  }
}

void write_tone(const std::string& folder) {
  Blocks file(folder + "/tone");
  write_slider(file, 0, {-5, -2, 0, 2, 5});
  write_slider(file, 3, {-128, -64, 0, 64, 128});
  write_slider(file, 6, {-128, -64, 0, 64, 128});
  file.close();
}

/// The middle row across an upright edge from 64 to 192, at every sharpness.
void write_sharpening(const std::string& folder) {
  constexpr std::array kLevels = {"None",   "Minus3", "Minus2", "Minus1",
                                  "Normal", "Plus1",  "Plus2",  "Plus3"};
  constexpr std::size_t kSide = 64;
  const bench::Picture edge = bench::painted(kSide, kSide, [](std::size_t x, std::size_t) {
    return x < kSide / 2 ? bench::Rgb8{64, 64, 64} : bench::Rgb8{192, 192, 192};
  });
  Blocks file(folder + "/sharpening");
  for (std::size_t i = 0; i < kLevels.size(); ++i) {
    const auto samples = bench::converted(
        edge,
        {.colour_conversion = false, .sharpness = static_cast<int>(i) + bench::kSharpnessNone});
    file.begin(kLevels[i]);
    for (std::size_t x = kSide / 2 - 10; x < kSide / 2 + 10; ++x) {
      file.point(static_cast<double>(x) + 0.5 - kSide / 2.0,
                 samples[3 * (kSide / 2 * kSide + x)] / bench::kFullScale * 255.0);
    }
  }
  file.close();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("Usage: colour_curves FOLDER\n", stderr);
    return 2;
  }
  try {
    write_gamut(argv[1]);
    write_tone(argv[1]);
    write_sharpening(argv[1]);
    return 0;
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "colour_curves: %s\n", fault.what());
    return 1;
  }
}
