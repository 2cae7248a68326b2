// SPDX-License-Identifier: Apache-2.0
//
// Prints how true the conversion's colours are: colour_accuracy. The status is 1 when a figure is
// missed, 2 when something could not be measured.
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/colour_figures.h"
#include "bench/little_cms.h"
#include "bench/module_folder.h"
#include "bench/page_conversion.h"
#include "bench/table_printer.h"
#include "bench/table_profile.h"
#include "bench/test_colours.h"
#include "bench/test_pictures.h"

namespace {

using bench::number;
using bench::Spread;
using bench::Table;
namespace target = bench::target;

struct ColourSet {
  std::string name;
  std::vector<bench::Rgb8> colours;
};

std::vector<ColourSet> colour_sets() {
  return {{"Colour checker, 24 patches", bench::colour_checker()},
          {"Greys 0 … 255", bench::grey_ramp()},
          {"Photo (skin, sky, foliage)", bench::photo(463, 308).pixels},
          {"Regular grid, 17 levels a channel", bench::colour_grid(17)},
          {"All of sRGB, 100 000 at random", bench::random_colours(100000)}};
}

/// Whether all that was measured so far is as good as it should be.
class Verdicts {
 public:
  std::string operator()(bool met) {
    all_ = all_ && met;
    return bench::verdict(met);
  }
  bool all() const { return all_; }

 private:
  bool all_ = true;
};

std::string at_most(double limit, int decimals) {
  return "≤ " + number(limit, decimals);
}

void round_trip_table(const std::vector<ColourSet>& sets, const bench::MeasuredPrinter& printer,
                      const decoder::SoftProof& proof, Verdicts& verdicts) {
  Table table{
      {"Photo → print → proof, ΔE00", "Printable", "Mean", "95 % within", "Largest", ""},
      {{"Target", "", at_most(target::kRoundTripMean, 1),
        at_most(target::kRoundTripPercentile95, 1), at_most(target::kRoundTripLargest, 1), ""}}};
  for (const ColourSet& set : sets) {
    const Spread spread = bench::round_trip(set.colours, printer, proof);
    const bool met = spread.count > 0 && spread.mean <= target::kRoundTripMean &&
                     spread.percentile95 <= target::kRoundTripPercentile95 &&
                     spread.largest <= target::kRoundTripLargest;
    table.rows.push_back(
        {set.name, std::to_string(spread.count) + " of " + std::to_string(set.colours.size()),
         number(spread.mean, 3), number(spread.percentile95, 3), number(spread.largest, 3),
         verdicts(met)});
  }
  bench::print_table(table);
}

void profile_table(const char* title, double largestAllowed, const std::vector<ColourSet>& sets,
                   const bench::MeasuredPrinter& printer, Verdicts& verdicts) {
  Table table{
      {title, "Colours", "Mean", "95 % within", "Largest", ""},
      {{"Target", "", at_most(target::kProfileMean, 1), "", at_most(largestAllowed, 1), ""}}};
  for (const ColourSet& set : sets) {
    const Spread spread = bench::against_profile(set.colours, printer);
    const bool met = spread.mean <= target::kProfileMean && spread.largest <= largestAllowed;
    table.rows.push_back({set.name, std::to_string(spread.count), number(spread.mean, 4),
                          number(spread.percentile95, 4), number(spread.largest, 3),
                          verdicts(met)});
  }
  bench::print_table(table);
}

void grey_rows(const char* mode, const bench::GreyAxis& axis, Table& table, Verdicts& verdicts) {
  const auto& white = axis.white;
  const bool full = white[0] == 0x3FFF && white[1] == 0x3FFF && white[2] == 0x3FFF;
  table.rows.push_back(
      {std::string("White, ") + mode, "16383 16383 16383",
       std::to_string(white[0]) + " " + std::to_string(white[1]) + " " + std::to_string(white[2]),
       verdicts(full)});
  table.rows.push_back({std::string("Greys 0 … 255, ") + mode, "every step rises",
                        axis.rising ? "every step rises" : "a step does not",
                        verdicts(axis.rising)});
  table.rows.push_back({std::string("Farthest from neutral, ") + mode, "≤ 1/1023",
                        number(axis.fromNeutral, 3) + "/1023",
                        verdicts(axis.fromNeutral <= target::kFromNeutral)});
}

double sharpened_from_neutral(const bench::Picture& picture, const std::string& moduleFolder) {
  bench::PrintSettings settings;
  settings.sharpness = bench::kSharpnessNormal;
  settings.moduleFolder = moduleFolder;
  return bench::from_neutral(bench::converted(picture, settings));
}

void grey_and_detail_table(const std::string& moduleFolder, Verdicts& verdicts) {
  Table table{{"Greys and detail", "Target", "Measured", ""}, {}};
  grey_rows("conversion on", bench::grey_axis(true, moduleFolder), table, verdicts);
  grey_rows("conversion off", bench::grey_axis(false, moduleFolder), table, verdicts);
  const auto neutral = [&](const char* what, const bench::Picture& picture) {
    const double distance = sharpened_from_neutral(picture, moduleFolder);
    table.rows.push_back({std::string("Farthest from neutral, ") + what, "≤ 1/1023",
                          number(distance, 3) + "/1023",
                          verdicts(distance <= target::kFromNeutral)});
  };
  neutral("sharpened text", bench::text());
  neutral("sharpened zone plate", bench::zone_plate(512));
  const double gain = bench::noise_gain(bench::kSharpnessNormal);
  table.rows.push_back({"Noise of ±2 behind Normal sharpening", "≤ 1.15 ×", number(gain, 3) + " ×",
                        verdicts(gain <= target::kNoiseGain)});
  const double power = bench::texture_low_power();
  table.rows.push_back({"Matte texture below 1/16 cycle a pixel", "≤ 0.35 of white noise",
                        number(power, 4), verdicts(power <= target::kTextureLowPower)});
  bench::print_table(table);
}

bool measure() {
  Verdicts verdicts;
  const std::vector<ColourSet> sets = colour_sets();
  const std::string modelFolder = TQR7_MODULE_FOLDER;
  const bench::ProfileBytes model = bench::read_profile(modelFolder + "tqr7.icc");
  std::string why;
  const auto proof = decoder::SoftProof::Through(model, why);
  if (proof == nullptr) {
    throw std::runtime_error("no proof through " + modelFolder + "tqr7.icc: " + why);
  }
  const bench::MeasuredPrinter printer{modelFolder, bench::PrinterColours(model)};
  round_trip_table(sets, printer, *proof, verdicts);
  profile_table("Against Little CMS in floating point, ΔE00", target::kProfileLargest, sets,
                printer, verdicts);

  const bench::ProfileBytes own = bench::table_profile();
  const bench::ModuleFolder ownFolder(own);
  profile_table("The same, an owner's table profile, ΔE00", target::kTableProfileLargest, sets,
                {ownFolder.path(), bench::PrinterColours(own)}, verdicts);

  grey_and_detail_table(modelFolder, verdicts);
  return verdicts.all();
}

}  // namespace

int main() {
  try {
    return measure() ? 0 : 1;
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "colour_accuracy: %s\n", fault.what());
    return 2;
  }
}
