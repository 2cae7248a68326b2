// SPDX-License-Identifier: Apache-2.0
//
// Draws what the conversion does, measured through the library itself: colour_plots FOLDER
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <functional>
#include <numbers>
#include <string>
#include <vector>

#include "bench/colour_figures.h"
#include "bench/little_cms.h"
#include "bench/page_conversion.h"
#include "bench/printer_colours.h"
#include "bench/svg_chart.h"
#include "bench/table_printer.h"
#include "bench/test_colours.h"
#include "bench/texture_spectrum.h"

namespace {

using bench::Chart;
using bench::Curve;
using bench::Lab;
using bench::Point;
using bench::PrintSettings;

constexpr const char* kGrey = "#888888";
constexpr const char* kBlue = "#1f5fa8";
constexpr const char* kRed = "#c0392b";

PrintSettings settings_of(bool colourConversion) {
  PrintSettings settings;
  settings.colourConversion = colourConversion;
  settings.moduleFolder = TQR7_MODULE_FOLDER;
  return settings;
}

/// The outermost colours of a lightness: for each hue the largest chroma that is still inside.
std::vector<Point> slice(double lightness, const std::function<bool(const Lab&)>& inside) {
  std::vector<Point> edge;
  for (int hue = 0; hue <= 360; hue += 2) {
    const double angle = hue * std::numbers::pi / 180.0;
    double low = 0.0;
    double high = 160.0;
    while (high - low > 0.05) {
      const double chroma = (low + high) / 2.0;
      const bool within = inside({lightness, chroma * std::cos(angle), chroma * std::sin(angle)});
      (within ? low : high) = chroma;
    }
    edge.push_back({low * std::cos(angle), low * std::sin(angle)});
  }
  return edge;
}

bool on_screen(const Lab& lab) {
  const auto levels = bench::levels_of(lab);
  return bench::printable(levels);
}

/// Whether the print of the nearest device colour is that colour.
bool on_paper(const bench::PrinterColours& printer, const Lab& lab) {
  const std::array<bench::DeviceColour, 1> device = {
      bench::clipped(printer.device_for({&lab, 1}).front())};
  const Lab print = printer.print_of(device).front();
  return std::hypot(print.lightness - lab.lightness, print.a - lab.a, print.b - lab.b) < 0.2;
}

void draw_gamut(const std::string& folder, const bench::PrinterColours& printer) {
  std::vector<Chart> charts;
  for (const int lightness : {30, 55, 80}) {
    charts.push_back(
        {"L* = " + std::to_string(lightness),
         {"a* (green to red)", -120, 120, 40},
         {"b* (blue to yellow)", -120, 120, 40},
         {{"sRGB: what a screen shows", kGrey, slice(lightness, on_screen), true},
          {"the printer's profile", kBlue,
           slice(lightness, [&printer](const Lab& lab) { return on_paper(printer, lab); })}}});
  }
  bench::write_charts(folder + "/gamut.svg", charts);
}

std::string signed_text(int value) {
  std::string text = value > 0 ? "+" : value < 0 ? "−" : "";
  return text += std::to_string(std::abs(value));
}

/// One slider at its settings; `first` is where its three channels begin among the nine.
Chart tone_chart(const char* title, std::size_t first, const std::array<std::int16_t, 5>& steps) {
  constexpr std::array<const char*, 5> kColours = {"#2166ac", "#67a9cf", "#333333", "#ef8a62",
                                                   "#b2182b"};
  Chart chart{
      title, {"value in the photo", 0, 255, 51}, {"device value, per cent", 0, 100, 20}, {}};
  const bench::Picture ramp = bench::row_of(bench::grey_ramp());
  for (std::size_t i = 0; i < steps.size(); ++i) {
    PrintSettings settings = settings_of(false);
    settings.tone[first] = settings.tone[first + 1] = settings.tone[first + 2] = steps[i];
    const std::vector<std::uint16_t> samples = bench::converted(ramp, settings);
    Curve curve{signed_text(steps[i]), kColours[i], {}, false};
    for (std::size_t value = 0; value < 256; value += 3) {
      curve.points.push_back(
          {static_cast<double>(value), samples[3 * value] / bench::kFullScale * 100.0});
    }
    chart.curves.push_back(curve);
  }
  return chart;
}

void draw_tone(const std::string& folder) {
  bench::write_charts(folder + "/tone.svg", {tone_chart("Gamma", 0, {-5, -2, 0, 2, 5}),
                                             tone_chart("Contrast", 3, {-128, -64, 0, 64, 128}),
                                             tone_chart("Brightness", 6, {-128, -64, 0, 64, 128})});
}

constexpr std::size_t kEdgeSide = 64;

/// The middle row across an upright edge from 64 to 192, in 8-bit steps.
std::vector<double> edge_profile(int sharpness) {
  const bench::Picture edge =
      bench::painted(kEdgeSide, kEdgeSide, [](std::size_t x, std::size_t) -> bench::Rgb8 {
        const unsigned char grey = x < kEdgeSide / 2 ? 64 : 192;
        return {grey, grey, grey};
      });
  PrintSettings settings = settings_of(false);
  settings.sharpness = sharpness;
  const std::vector<std::uint16_t> samples = bench::converted(edge, settings);
  std::vector<double> row;
  for (std::size_t x = 0; x < kEdgeSide; ++x) {
    row.push_back(samples[3 * (kEdgeSide / 2 * kEdgeSide + x)] / bench::kFullScale * 255.0);
  }
  return row;
}

void draw_sharpening(const std::string& folder) {
  struct Level {
    const char* name;
    const char* colour;
    int sharpness;
  };
  constexpr std::array<Level, 8> kLevels = {{{"None", kGrey, bench::kSharpnessNone},
                                             {"Minus3", "#a6cee3", 0},
                                             {"Minus2", "#72b0d7", 1},
                                             {"Minus1", "#3f90c5", 2},
                                             {"Normal", "#222222", 3},
                                             {"Plus1", "#f3a15f", 4},
                                             {"Plus2", "#dd6b35", 5},
                                             {"Plus3", "#b2182b", 6}}};
  Chart profile{"An edge from 64 to 192",
                {"dots from the edge", -10, 10, 5},
                {"device value, as 0 … 255", 0, 255, 51},
                {}};
  Curve overshoot{"above 192, on the light side", kBlue, {}, false, true};
  for (const Level& level : kLevels) {
    const std::vector<double> row = edge_profile(level.sharpness);
    Curve curve{level.name, level.colour, {}, level.sharpness == bench::kSharpnessNone};
    for (std::size_t x = kEdgeSide / 2 - 10; x < kEdgeSide / 2 + 10; ++x) {
      curve.points.push_back({static_cast<double>(x) + 0.5 - kEdgeSide / 2.0, row[x]});
    }
    profile.curves.push_back(curve);
    overshoot.points.push_back({static_cast<double>(level.sharpness), row[kEdgeSide / 2] - 192.0});
  }
  bench::write_charts(folder + "/sharpening.svg", {profile,
                                                   {"How far each level goes",
                                                    {"None (−1), Minus3 (0) … Plus3 (6)", -1, 6, 1},
                                                    {"overshoot, in 255ths", 0, 60, 10},
                                                    {overshoot}}});
}

void draw_texture(const std::string& folder) {
  constexpr std::size_t kWidth = 1852;
  constexpr std::size_t kHeight = 1232;
  Curve texture{"matte texture", kBlue, {}};
  for (const bench::RadialPower& ring :
       bench::radial_spectrum(bench::matte_plane(kWidth, kHeight), kWidth, kHeight)) {
    texture.points.push_back({ring.frequency, ring.power});
  }
  const Curve white{"white noise of the same strength", kGrey, {{0.0, 1.0}, {0.5, 1.0}}, true};
  const Curve limit{"at most, below 1/16",
                    kRed,
                    {{0.0, bench::target::kTextureLowPower},
                     {bench::target::kTextureLowFrequency, bench::target::kTextureLowPower},
                     {bench::target::kTextureLowFrequency, 0.0}},
                    true};
  bench::write_charts(folder + "/matte-spectrum.svg",
                      {{"Power of the matte texture",
                        {"cycles a dot, any direction", 0, 0.5, 0.1},
                        {"power; white noise = 1", 0, 2.5, 0.5},
                        {texture, white, limit}}});
}

void draw_grey_axis(const std::string& folder) {
  Chart values{
      "Greys", {"grey in the photo", 0, 255, 51}, {"device value, per cent", 0, 100, 20}, {}};
  Chart neutral{
      "Distance from neutral",
      {"grey in the photo", 0, 255, 51},
      {"1/1023 of full scale", -1.5, 1.5, 0.5},
      {{"allowed", kRed, {{0, 1}, {255, 1}}, true}, {"", kRed, {{0, -1}, {255, -1}}, true}}};
  const bench::Picture ramp = bench::row_of(bench::grey_ramp());
  for (const bool conversion : {true, false}) {
    const std::vector<std::uint16_t> samples = bench::converted(ramp, settings_of(conversion));
    const std::string mode = conversion ? "conversion on" : "conversion off";
    Curve value{mode, conversion ? kBlue : kGrey, {}, !conversion};
    std::array<Curve, 3> channels = {
        {{conversion ? "R, conversion on" : "", "#c0392b", {}, !conversion},
         {conversion ? "G, conversion on" : "", "#2e8b57", {}, !conversion},
         {conversion ? "B, conversion on" : "R, G, B, conversion off",
          "#1f5fa8",
          {},
          !conversion}}};
    for (std::size_t grey = 0; grey < 256; ++grey) {
      const std::uint16_t* pixel = &samples[3 * grey];
      const double mean = (pixel[0] + pixel[1] + pixel[2]) / 3.0;
      const auto x = static_cast<double>(grey);
      value.points.push_back({x, mean / bench::kFullScale * 100.0});
      for (std::size_t channel = 0; channel < 3; ++channel) {
        channels[channel].points.push_back(
            {x, (pixel[channel] - mean) / bench::kFullScale * 1023.0});
      }
    }
    values.curves.push_back(value);
    neutral.curves.insert(neutral.curves.end(), channels.begin(), channels.end());
  }
  bench::write_charts(folder + "/grey-axis.svg", {values, neutral});
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("Usage: colour_plots FOLDER\n", stderr);
    return 2;
  }
  try {
    const std::string folder = argv[1];
    const bench::PrinterColours printer(bench::read_profile(TQR7_MODULE_FOLDER "tqr7.icc"));
    draw_gamut(folder, printer);
    draw_tone(folder);
    draw_sharpening(folder);
    draw_texture(folder);
    draw_grey_axis(folder);
    return 0;
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "colour_plots: %s\n", fault.what());
    return 1;
  }
}
