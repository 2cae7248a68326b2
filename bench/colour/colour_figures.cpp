// SPDX-License-Identifier: Apache-2.0
#include "bench/colour/colour_figures.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numeric>
#include <utility>

#include "bench/colour/page_conversion.h"
#include "bench/colour/test_pictures.h"

namespace bench {

namespace {

std::vector<std::uint16_t> samples_of(std::span<const Rgb8> colours, bool colour_conversion,
                                      const std::string& module_folder) {
  const Picture row{colours.size(), 1, {colours.begin(), colours.end()}};
  return converted(row, {.colour_conversion = colour_conversion, .module_folder = module_folder});
}

Spread differences(std::span<const cmsCIELab> wanted, std::span<const cmsCIELab> got) {
  std::vector<double> values;
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    values.push_back(cmsCIE2000DeltaE(&wanted[i], &got[i], 1, 1, 1));
  }
  return spread_of(std::move(values));
}

/// What sRGB colours look like on a screen.
std::vector<cmsCIELab> look_on_screen(std::span<const Rgb8> colours) {
  static const PrinterColours screen{cms::Profile(cmsCreate_sRGBProfile())};
  std::vector<DeviceColour> levels(colours.size());
  std::transform(colours.begin(), colours.end(), levels.begin(), on_screen);
  return screen.look_of(levels);
}

std::vector<Rgb8> printable_of(std::span<const Rgb8> colours, const PrinterColours& printer) {
  const std::vector<DeviceColour> devices = printer.device_of(colours);
  std::vector<Rgb8> result;
  for (std::size_t i = 0; i < colours.size(); ++i) {
    if (printable(devices[i])) {
      result.push_back(colours[i]);
    }
  }
  return result;
}

double deviation(std::span<const std::uint16_t> samples) {
  const auto count = static_cast<double>(samples.size());
  const double mean = std::accumulate(samples.begin(), samples.end(), 0.0) / count;
  double squares = 0.0;
  for (const std::uint16_t sample : samples) {
    squares += (sample - mean) * (sample - mean);
  }
  return std::sqrt(squares / count);
}

}  // namespace

Spread spread_of(std::vector<double> values) {
  if (values.empty()) {
    return {};
  }
  std::sort(values.begin(), values.end());
  const std::size_t count = values.size();
  const double sum = std::accumulate(values.begin(), values.end(), 0.0);
  return {count, sum / static_cast<double>(count), values[(count * 95 + 99) / 100 - 1],
          values.back()};
}

bool within(const Spread& spread, const Spread& most) {
  return spread.count > 0 && spread.mean <= most.mean && spread.percentile95 <= most.percentile95 &&
         spread.largest <= most.largest;
}

Spread round_trip(std::span<const Rgb8> colours, const MeasuredPrinter& printer,
                  const decoder::SoftProof& proof) {
  const std::vector<Rgb8> photo = printable_of(colours, printer.colours);
  if (photo.empty()) {
    return {};
  }
  const std::vector<std::uint16_t> samples = samples_of(photo, true, printer.module_folder);
  std::vector<Rgb8> shown(photo.size());
  proof.ToScreen(samples, {shown.data()->data(), 3 * shown.size()});
  return differences(look_on_screen(photo), look_on_screen(shown));
}

Spread against_profile(std::span<const Rgb8> colours, const MeasuredPrinter& printer) {
  const std::vector<std::uint16_t> samples = samples_of(colours, true, printer.module_folder);
  std::vector<DeviceColour> wanted = printer.colours.device_of(colours);
  std::transform(wanted.begin(), wanted.end(), wanted.begin(), clipped);
  std::vector<DeviceColour> sent;
  for (std::size_t i = 0; i < samples.size(); i += 3) {
    sent.push_back(
        {samples[i] / kFullScale, samples[i + 1] / kFullScale, samples[i + 2] / kFullScale});
  }
  return differences(printer.colours.look_of(wanted), printer.colours.look_of(sent));
}

GreyAxis grey_axis(bool colour_conversion, const std::string& module_folder) {
  const auto samples = samples_of(grey_ramp(), colour_conversion, module_folder);
  GreyAxis axis{.from_neutral = from_neutral(samples)};
  for (std::size_t i = 3; i < samples.size(); ++i) {
    axis.level += samples[i] > samples[i - 3] ? 0 : 1;
  }
  for (std::size_t i = samples.size() - 3; i < samples.size(); ++i) {
    axis.white = std::max(axis.white, std::abs(0x3FFF - samples[i]));
  }
  return axis;
}

double from_neutral(std::span<const std::uint16_t> samples) {
  double farthest = 0.0;
  for (std::size_t i = 0; i + 2 < samples.size(); i += 3) {
    const double mean = (samples[i] + samples[i + 1] + samples[i + 2]) / 3.0;
    for (std::size_t channel = 0; channel < 3; ++channel) {
      farthest = std::max(farthest, std::abs(samples[i + channel] - mean));
    }
  }
  return farthest / kFullScale * 1023.0;
}

double sharpened_from_neutral(const std::string& module_folder) {
  return from_neutral(
      converted(zone_plate(512), {.sharpness = kSharpnessNormal, .module_folder = module_folder}));
}

double noise_gain() {
  const Picture noise = noisy_grey(256, 128);
  const double before = deviation(converted(noise, {.colour_conversion = false}));
  return deviation(converted(noise, {.colour_conversion = false, .sharpness = kSharpnessNormal})) /
         before;
}

}  // namespace bench
