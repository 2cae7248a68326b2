// SPDX-License-Identifier: Apache-2.0
#include "tools/photo_check.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <string_view>

#include "language/messages.h"
#include "tools/exif.h"

namespace tools {
namespace {

using language::_;
using language::decimal;
using language::filled;

constexpr double kInch = 300.0;

std::vector<Cut> find_cuts(const Picture& photo, const Placement& placement) {
  const PixelArea& used = placement.used;
  const auto width = static_cast<std::uint32_t>(photo.width);
  const auto height = static_cast<std::uint32_t>(photo.height);
  const std::array<Cut, 4> sides{{
      {"left", used.left, 0, 0},
      {"right", width - used.left - used.width, 0, 0},
      {"top", used.top, 0, 0},
      {"bottom", height - used.top - used.height, 0, 0},
  }};
  std::vector<Cut> cuts;
  for (std::size_t i = 0; i < sides.size(); ++i) {
    Cut cut = sides.at(i);
    const bool across = i < 2;
    cut.share = static_cast<double>(cut.pixels) / (across ? width : height);
    cut.dots =
        cut.pixels * (across ? placement.DotsPerPixelAcross() : placement.DotsPerPixelDown());
    if (cut.pixels > 0) {
      cuts.push_back(cut);
    }
  }
  return cuts;
}

std::vector<White> find_whites(const tagPAPERINFO& paper, const Placement& placement) {
  const auto width = static_cast<std::uint32_t>(paper.nImageWidth);
  const auto height = static_cast<std::uint32_t>(paper.nImageHeight);
  const std::array<White, 4> sides{{
      {"left", placement.left, static_cast<double>(placement.left) / width},
      {"right", width - placement.left - placement.width,
       static_cast<double>(width - placement.left - placement.width) / width},
      {"top", placement.top, static_cast<double>(placement.top) / height},
      {"bottom", height - placement.top - placement.height,
       static_cast<double>(height - placement.top - placement.height) / height},
  }};
  std::vector<White> whites;
  std::copy_if(sides.begin(), sides.end(), std::back_inserter(whites),
               [](const White& side) { return side.dots > 0; });
  return whites;
}

Sharpness judge_sharpness(double dotsPerInch) {
  if (dotsPerInch >= kSharpFrom) {
    return Sharpness::Sharp;
  }
  return dotsPerInch >= kSoftFrom ? Sharpness::Soft : Sharpness::Coarse;
}

// A density that pulls the photo out of shape, as the file has it; those beyond reason are passed
// over.
bool stretches(const photo::PhotoShape& shape) {
  constexpr double kMost = 2;
  const double aspect = shape.perInchAcross > 0 && shape.perInchDown > 0
                            ? shape.perInchDown / shape.perInchAcross
                            : 1;
  return aspect != 1 && aspect <= kMost && aspect >= 1 / kMost;
}

std::vector<std::string> find_notes(const UprightPhoto& photo, const PrintSize& size,
                                    const Placement& placement) {
  std::vector<std::string> notes;
  if (photo.facts.orientation != kExifUpright) {
    // TRANSLATORS: as in "must be turned by 180 degrees to be seen upright".
    notes.push_back(filled(_("The camera's note in the file says that the photo must be %s to be "
                             "seen upright. It is printed so, and all that is said here is said of "
                             "the upright photo."),
                           _(exif_orientation_words(photo.facts.orientation))));
  }
  if (placement.turned) {
    notes.emplace_back(
        _("The photo is turned by a quarter to the left, to lie as the paper does."));
  }
  if (stretches(photo.shape)) {
    notes.push_back(filled(
        _("The file says that its pixels are not square: %1$u to the inch across, %2$u down. "
          "Printing follows that, and stretches the photo; take it out of the file if it looks "
          "wrong."),
        static_cast<unsigned>(std::lround(photo.shape.perInchAcross)),
        static_cast<unsigned>(std::lround(photo.shape.perInchDown))));
  }
  if (photo.profilePassedOver) {
    notes.emplace_back(_("The photo's colour profile cannot be used; it is taken for sRGB."));
  } else if (photo.converted) {
    notes.emplace_back(
        _("The photo's colours are not those of sRGB; they are converted for printing."));
  }
  if (size.TwoOnOnePage()) {
    notes.push_back(filled(_("The sheet is cut into two prints below line %d; one photo on the "
                             "whole page is cut in two."),
                           static_cast<int>(size.paper->nTwoUpSplit)));
  }
  if (size.HalfSheet()) {
    notes.emplace_back(
        _("A sheet takes two such pages; the other half of a lone one stays white."));
  }
  return notes;
}

// The other way of scaling, where this one costs something.
void advise(PhotoCheck& check, PrintScaling scaling) {
  constexpr double kMuch = 0.01;
  const bool lost = std::any_of(check.cuts.begin(), check.cuts.end(),
                                [](const Cut& cut) { return cut.share > kCutMost; });
  const bool white = std::any_of(check.whites.begin(), check.whites.end(),
                                 [](const White& side) { return side.share > kMuch; });
  if (scaling == PrintScaling::Fill && lost) {
    check.notes.emplace_back(
        _("Nothing is cut off with --scaling fit, which is `lp -o print-scaling=fit`."));
  }
  if (scaling == PrintScaling::Fit && white) {
    check.notes.emplace_back(
        _("The page is covered with --scaling fill, which is `lp -o print-scaling=fill`; what goes "
          "beyond it is cut off."));
  }
}

// What is lost at that side, as a rule that is broken.
const char* loss_at(std::string_view side) {
  if (side == "left") {
    return _("lost: more than %s %% is cut off at the left");
  }
  if (side == "right") {
    return _("lost: more than %s %% is cut off at the right");
  }
  return side == "top" ? _("lost: more than %s %% is cut off at the top")
                       : _("lost: more than %s %% is cut off at the bottom");
}

std::vector<std::string> find_rules_broken(const PhotoCheck& check, const std::string& damage) {
  constexpr double kPercent = 100.0;
  std::vector<std::string> broken;
  if (!damage.empty()) {
    broken.push_back(filled(_("damaged: the file is broken (%s)"), damage.c_str()));
  }
  for (const Cut& cut : check.cuts) {
    if (cut.share > kCutMost) {
      broken.push_back(filled(loss_at(cut.side), decimal(kPercent * kCutMost, 1).c_str()));
    }
  }
  if (check.sharpness == Sharpness::Coarse) {
    broken.push_back(filled(_("coarse: less than %.0f pixels to the inch"), kSoftFrom));
  }
  return broken;
}

}  // namespace

// TRANSLATORS: a photo's resolution is sharp, soft or coarse.
const char* to_string(Sharpness sharpness) {
  using language::N_;
  switch (sharpness) {
    case Sharpness::Sharp:
      return N_("sharp");
    case Sharpness::Soft:
      return N_("soft");
    case Sharpness::Coarse:
      return N_("coarse");
  }
  return "";
}

double millimetres(double dots) {
  constexpr double kMillimetresPerInch = 25.4;
  return dots * kMillimetresPerInch / kInch;
}

PhotoCheck check_photo(const UprightPhoto& photo, const PrintSize& size, PrintScaling scaling,
                       const Placement& placement) {
  PhotoCheck check{placement, 0, Sharpness::Sharp, {}, {}, {}, {}};
  check.dotsPerInch =
      kInch / std::max(placement.DotsPerPixelAcross(), placement.DotsPerPixelDown());
  check.sharpness = judge_sharpness(check.dotsPerInch);
  check.cuts = find_cuts(photo.picture, placement);
  check.whites = find_whites(*size.paper, placement);
  check.notes = find_notes(photo, size, placement);
  advise(check, scaling);
  check.rulesBroken = find_rules_broken(check, photo.damage);
  return check;
}

}  // namespace tools
