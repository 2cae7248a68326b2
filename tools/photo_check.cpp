// SPDX-License-Identifier: Apache-2.0
#include "tools/photo_check.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "language/messages.h"
#include "photo/exif.h"

namespace tools {
namespace {

using language::_;
using language::_n;
using language::decimal;
using language::filled;

constexpr double kInch = 300.0;

// The part of the photo that is printed, on all pages together, in whole pixels.
photo::DotArea pixels_used(const std::vector<photo::Placing>& pages) {
  const auto whole = [](double place) { return static_cast<std::size_t>(std::lround(place)); };
  const photo::PictureArea& first = pages.front().from;
  const photo::PictureArea& last = pages.back().from;
  const std::size_t left = whole(first.left);
  const std::size_t top = whole(first.top);
  return {left, top, std::max<std::size_t>(1, whole(last.left + last.width) - left),
          std::max<std::size_t>(1, whole(last.top + last.height) - top)};
}

photo::DotArea dots_covered(const PhotoJob& job) {
  const photo::DotArea& to = job.plan.layout.pages.front().to;
  const photo::PictureArea area =
      on_sheet({static_cast<double>(to.left), static_cast<double>(to.top),
                static_cast<double>(to.width), static_cast<double>(to.height)},
               job.plan.layout.pageWidth, job.plan.layout.pageHeight, job);
  const auto dots = [](double place) { return static_cast<std::size_t>(place); };
  return {dots(area.left), dots(area.top), dots(area.width), dots(area.height)};
}

std::vector<Cut> find_cuts(const PhotoJob& job, const photo::DotArea& used) {
  const photo::PhotoShape& shape = job.plan.shape;
  const photo::Placing& page = job.plan.layout.pages.front();
  const double across = static_cast<double>(page.to.width) / page.from.width;
  const double down = static_cast<double>(page.to.height) / page.from.height;
  const auto cut = [](const char* side, std::size_t pixels, std::size_t all, double dots) {
    return Cut{side, pixels, static_cast<double>(pixels) / static_cast<double>(all),
               static_cast<double>(pixels) * dots};
  };
  std::vector<Cut> cuts = {
      cut("left", used.left, shape.width, across),
      cut("right", shape.width - used.left - used.width, shape.width, across),
      cut("top", used.top, shape.height, down),
      cut("bottom", shape.height - used.top - used.height, shape.height, down)};
  std::erase_if(cuts, [](const Cut& side) { return side.pixels == 0; });
  return cuts;
}

std::vector<White> find_whites(const tagPAPERINFO& paper, const photo::DotArea& printed) {
  const auto width = static_cast<std::size_t>(paper.nImageWidth);
  const auto height = static_cast<std::size_t>(paper.nImageHeight);
  const auto white = [](const char* side, std::size_t dots, std::size_t all) {
    return White{side, dots, static_cast<double>(dots) / static_cast<double>(all)};
  };
  std::vector<White> whites = {white("left", printed.left, width),
                               white("right", width - printed.left - printed.width, width),
                               white("top", printed.top, height),
                               white("bottom", height - printed.top - printed.height, height)};
  std::erase_if(whites, [](const White& side) { return side.dots == 0; });
  return whites;
}

Sharpness judge_sharpness(double dotsPerInch) {
  if (dotsPerInch >= kSharpFrom) {
    return Sharpness::Sharp;
  }
  return dotsPerInch >= kSoftFrom ? Sharpness::Soft : Sharpness::Coarse;
}

// TRANSLATORS: each is a part of "the photo must be … to be seen upright".
const char* orientation_words(int orientation) {
  using language::N_;
  switch (orientation) {
    case 2:
      return N_("mirrored left to right");
    case 3:
      return N_("turned by 180 degrees");
    case 4:
      return N_("mirrored top to bottom");
    case 5:
      return N_("turned by 90 degrees clockwise and mirrored left to right");
    case 6:
      return N_("turned by 90 degrees clockwise");
    case 7:
      return N_("turned by 90 degrees counter-clockwise and mirrored left to right");
    case 8:
      return N_("turned by 90 degrees counter-clockwise");
    default:
      return "";
  }
}

std::vector<std::string> find_notes(const PhotoJob& job) {
  const photo::PhotoShape& shape = job.plan.shape;
  const int orientation = job.plan.facts.orientation;
  std::vector<std::string> notes;
  if (orientation != photo::kExifUpright) {
    // TRANSLATORS: as in "must be turned by 180 degrees to be seen upright".
    notes.push_back(filled(_("The camera's note in the file says that the photo must be %s to be "
                             "seen upright. It is printed so, and all that is said here is said of "
                             "the upright photo."),
                           _(orientation_words(orientation))));
  }
  if (job.wishes.orientation == 0 && job.plan.layout.turn != photo::kExifUpright) {
    notes.emplace_back(
        _("The photo is turned by a quarter to the left, to lie as the paper does."));
  }
  if (photo::pixel_aspect(shape) != 1) {
    notes.push_back(filled(
        _("The file says that its pixels are not square: %1$u to the inch across, %2$u down. "
          "Printing follows that, and stretches the photo; take it out of the file if it looks "
          "wrong."),
        static_cast<unsigned>(std::lround(shape.perInchAcross)),
        static_cast<unsigned>(std::lround(shape.perInchDown))));
  }
  if (job.page.profilePassedOver) {
    notes.emplace_back(_("The photo's colour profile cannot be used and is passed over."));
  } else if (job.page.coloursConverted) {
    notes.emplace_back(
        _("The photo's colours are not those of sRGB; they are converted for printing."));
  }
  if (const std::size_t pages = job.plan.layout.pages.size(); pages > 1) {
    notes.push_back(filled(_n("The photo takes %zu page, column by column.",
                              "The photo takes %zu pages, column by column.", pages),
                           pages));
  }
  if (has_two_on_one_page(job.size)) {
    notes.push_back(filled(_("The sheet is cut into two prints below line %d; one photo on the "
                             "whole page is cut in two."),
                           static_cast<int>(job.size.paper->nTwoUpSplit)));
  }
  if (is_half_sheet(job.size)) {
    notes.emplace_back(
        _("A sheet takes two such pages; the other half of a lone one stays white."));
  }
  return notes;
}

// The other way of scaling, where this one costs something.
void advise(PhotoCheck& check, photo::Scaling scaling) {
  constexpr double kMuch = 0.01;
  const bool lost = std::any_of(check.cuts.begin(), check.cuts.end(),
                                [](const Cut& cut) { return cut.share > kCutMost; });
  const bool white = std::any_of(check.whites.begin(), check.whites.end(),
                                 [](const White& side) { return side.share > kMuch; });
  if (scaling == photo::Scaling::Fill && lost) {
    check.notes.emplace_back(
        _("Nothing is cut off with --scaling fit, which is `lp -o print-scaling=fit`."));
  }
  if (scaling == photo::Scaling::Fit && white) {
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

std::vector<std::string> find_rules_broken(const PhotoCheck& check, const std::string& refusal) {
  constexpr double kPercent = 100.0;
  std::vector<std::string> broken;
  if (!refusal.empty()) {
    broken.push_back(filled(_("the photo cannot be printed: %s"), refusal.c_str()));
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

photo::PictureArea on_sheet(photo::PictureArea area, std::size_t width, std::size_t height,
                            const PhotoJob& job) {
  if (job.wishes.mirror) {
    area.left = static_cast<double>(width) - area.left - area.width;
  }
  const int turn = job.plan.layout.turn;
  const bool swapped = photo::swaps_sides(turn);
  return photo::area_in_file(area, swapped ? height : width, swapped ? width : height,
                             photo::opposite(turn));
}

PhotoCheck check_photo(const PhotoJob& job) {
  const std::vector<photo::Placing>& pages = job.plan.layout.pages;
  const photo::Placing& page = pages.front();
  PhotoCheck check{pixels_used(pages), dots_covered(job), 0, Sharpness::Sharp, {}, {}, {}, {}};
  check.dotsPerInch = kInch * std::min(page.from.width / static_cast<double>(page.to.width),
                                       page.from.height / static_cast<double>(page.to.height));
  check.sharpness = judge_sharpness(check.dotsPerInch);
  check.cuts = find_cuts(job, check.used);
  check.whites = find_whites(*job.size.paper, check.printed);
  check.notes = find_notes(job);
  advise(check, job.wishes.scaling);
  check.rulesBroken = find_rules_broken(check, job.refusal);
  return check;
}

}  // namespace tools
