// SPDX-License-Identifier: Apache-2.0
//
// Prints how true the conversion's colours are, as Markdown: colour_accuracy. The status is 1 when
// a figure is missed, 2 when something could not be measured.
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/colour/colour_figures.h"
#include "bench/colour/test_pictures.h"

namespace {

using bench::Spread;

struct ColourSet {
  const char* name;
  std::vector<bench::Rgb8> colours;
};

bool g_all_met = true;

const char* verdict(bool met) {
  g_all_met = g_all_met && met;
  return met ? "met" : "MISSED";
}

void print_row(const char* name, const Spread& spread, const Spread& most) {
  std::printf("| %s | %zu | %.4f | %.4f | %.3f | %s |\n", name, spread.count, spread.mean,
              spread.percentile95, spread.largest, verdict(within(spread, most)));
}

void print_head(const char* what, const Spread& most) {
  std::printf("| %s, ΔE00 | Colours | Mean | 95 %% within | Largest | |\n", what);
  std::printf("|---|---:|---:|---:|---:|---|\n| At most | | %.1f | %.1f | %.1f | |\n", most.mean,
              most.percentile95, most.largest);
}

void print_colours(const bench::MeasuredPrinter& printer, const decoder::SoftProof& proof) {
  const ColourSet sets[] = {{"Colour checker, 24 patches", bench::colour_checker()},
                            {"Greys 0 … 255", bench::grey_ramp()},
                            {"Photo (skin, sky, foliage)", bench::photo(463, 308).pixels},
                            {"All of sRGB, at random", bench::random_colours(100000)}};
  print_head("Photo → print → proof, printable colours", bench::kRoundTripMost);
  for (const ColourSet& set : sets) {
    print_row(set.name, bench::round_trip(set.colours, printer, proof), bench::kRoundTripMost);
  }
  std::printf("\n");
  print_head("Against Little CMS in floating point", bench::kProfileMost);
  for (const ColourSet& set : sets) {
    print_row(set.name, bench::against_profile(set.colours, printer), bench::kProfileMost);
  }
}

void print_limit(const char* what, double measured, double most) {
  std::printf("| %s | %.2f | %.3f | %s |\n", what, most, measured, verdict(measured <= most));
}

void print_greys(const std::string& folder) {
  std::printf("\n| Greys and detail | At most | Measured | |\n|---|---:|---:|---|\n");
  for (const bool conversion : {true, false}) {
    const std::string mode = conversion ? ", conversion on" : ", conversion off";
    const bench::GreyAxis axis = bench::grey_axis(conversion, folder);
    print_limit(("White: steps from full scale" + mode).c_str(), axis.white, 0);
    print_limit(("Greys 0 … 255: steps that do not rise" + mode).c_str(), axis.level, 0);
    print_limit(("Greys: 1023rds from neutral" + mode).c_str(), axis.from_neutral,
                bench::kFromNeutralMost);
  }
  print_limit("Sharpened zone plate: 1023rds from neutral", bench::sharpened_from_neutral(folder),
              bench::kFromNeutralMost);
  print_limit("Noise of ±2 after Normal sharpening, times", bench::noise_gain(),
              bench::kNoiseGainMost);
}

void measure() {
  const std::string folder = TQR7_MODULE_FOLDER;
  const std::vector<unsigned char> profile = bench::read_profile(folder + "tqr7.icc");
  std::string why;
  const auto proof = decoder::SoftProof::Through(profile, why);
  if (proof == nullptr) {
    throw std::runtime_error("no proof through " + folder + "tqr7.icc: " + why);
  }
  print_colours({folder, bench::PrinterColours(bench::profile_of(profile))}, *proof);
  print_greys(folder);
}

}  // namespace

int main() {
  try {
    measure();
    return g_all_met ? 0 : 1;
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "colour_accuracy: %s\n", fault.what());
    return 2;
  }
}
