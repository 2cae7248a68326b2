// SPDX-License-Identifier: Apache-2.0
#include "bench/colour_figures.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "bench/ciede2000.h"
#include "bench/page_conversion.h"
#include "bench/picture.h"
#include "bench/test_colours.h"
#include "bench/test_pictures.h"
#include "bench/texture_spectrum.h"

namespace bench {

namespace {

PrintSettings plain_settings(bool colourConversion, const std::string& moduleFolder) {
  PrintSettings settings;
  settings.colourConversion = colourConversion;
  settings.moduleFolder = moduleFolder;
  return settings;
}

std::vector<std::uint16_t> samples_of(std::span<const Rgb8> colours, bool colourConversion,
                                      const std::string& moduleFolder) {
  return converted(row_of(colours), plain_settings(colourConversion, moduleFolder));
}

double deviation(std::span<const std::uint16_t> samples) {
  double sum = 0.0;
  double squares = 0.0;
  for (const std::uint16_t sample : samples) {
    sum += sample;
    squares += static_cast<double>(sample) * sample;
  }
  const auto count = static_cast<double>(samples.size());
  return std::sqrt(squares / count - sum / count * (sum / count));
}

}  // namespace

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

Spread round_trip(std::span<const Rgb8> colours, const MeasuredPrinter& printer,
                  const decoder::SoftProof& proof) {
  const std::vector<Rgb8> photo = printable_of(colours, printer.colours);
  if (photo.empty()) {
    return {};
  }
  const std::vector<std::uint16_t> samples = samples_of(photo, true, printer.moduleFolder);
  std::vector<Rgb8> shown(photo.size());
  proof.ToScreen(samples, {shown.data()->data(), 3 * shown.size()});
  std::vector<double> differences;
  for (std::size_t i = 0; i < photo.size(); ++i) {
    differences.push_back(ciede2000(lab_of(photo[i]), lab_of(shown[i])));
  }
  return spread_of(std::move(differences));
}

Spread against_profile(std::span<const Rgb8> colours, const MeasuredPrinter& printer) {
  const std::vector<std::uint16_t> samples = samples_of(colours, true, printer.moduleFolder);
  std::vector<DeviceColour> wanted = printer.colours.device_of(colours);
  std::transform(wanted.begin(), wanted.end(), wanted.begin(), clipped);
  std::vector<DeviceColour> sent;
  for (std::size_t i = 0; i < colours.size(); ++i) {
    sent.push_back(device_of_samples(&samples[3 * i]));
  }
  const std::vector<Lab> truth = printer.colours.print_of(wanted);
  const std::vector<Lab> print = printer.colours.print_of(sent);
  std::vector<double> differences;
  for (std::size_t i = 0; i < colours.size(); ++i) {
    differences.push_back(ciede2000(truth[i], print[i]));
  }
  return spread_of(std::move(differences));
}

GreyAxis grey_axis(bool colourConversion, const std::string& moduleFolder) {
  const auto samples = samples_of(grey_ramp(), colourConversion, moduleFolder);
  GreyAxis axis;
  std::copy(samples.end() - 3, samples.end(), axis.white.begin());
  axis.rising = true;
  for (std::size_t i = 3; i < samples.size(); ++i) {
    axis.rising = axis.rising && samples[i] > samples[i - 3];
  }
  axis.fromNeutral = from_neutral(samples);
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

double noise_gain(int sharpness) {
  const Picture noise = noisy_grey(256, 128);
  PrintSettings settings = plain_settings(false, "");
  const double before = deviation(converted(noise, settings));
  settings.sharpness = sharpness;
  return deviation(converted(noise, settings)) / before;
}

double texture_low_power() {
  constexpr std::size_t kWidth = 1852;
  constexpr std::size_t kHeight = 1232;
  const auto spectrum = radial_spectrum(matte_plane(kWidth, kHeight), kWidth, kHeight);
  return power_below(spectrum, target::kTextureLowFrequency);
}

}  // namespace bench
