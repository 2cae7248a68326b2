// SPDX-License-Identifier: Apache-2.0
//
// tqr7 check: how a photo will come out on a paper size, before paper is spent.
#include <cerrno>
#include <cstdio>
#include <exception>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <system_error>

#include "image/file_handle.h"
#include "language/display_width.h"
#include "language/messages.h"
#include "tools/command_line.h"
#include "tools/json_output.h"
#include "tools/photo_check.h"
#include "tools/plain_text.h"
#include "tools/sheet_preview.h"
#include "tools/subcommands.h"

namespace tools {
namespace {

using language::_;
using language::_n;
using language::decimal;
using language::filled;
using language::N_;

using Json = nlohmann::ordered_json;

struct Options {
  std::string photo;
  std::string size;
  std::string scaling;
  std::string job;  ///< more of its options
  std::string picture;
  bool json = false;

  std::string ForJob() const {
    return (scaling.empty() ? "" : "print-scaling=" + scaling + " ") + job;
  }
};

// A folder is opened without complaint, and fails when it is read.
FileHandle open_file(const std::string& path) {
  FileHandle file(std::fopen(path.c_str(), "rbe"));
  if (file == nullptr || (std::fgetc(file.get()) == EOF && std::ferror(file.get()) != 0)) {
    throw std::system_error(errno, std::generic_category(), path);
  }
  return file;
}

int cannot(const std::string& why) {
  complain("check", why);
  return kExitCannotTell;
}

// TRANSLATORS: "Photo:" to "Good:" are printed below each other, each followed by a value.
constexpr const char* kPhoto = N_("Photo:");
constexpr const char* kPaper = N_("Paper:");
constexpr const char* kImageArea = N_("Image area:");
constexpr const char* kScaling = N_("Scaling:");
constexpr const char* kResolution = N_("Resolution:");
constexpr const char* kCutOff = N_("Cut off:");
constexpr const char* kLeftWhite = N_("Left white:");
constexpr const char* kNote = N_("Note:");
constexpr const char* kNotGood = N_("Not good:");
constexpr const char* kGood = N_("Good:");

void print_line(const char* label, const std::string& value) {
  const language::Labels labels{_(kPhoto),      _(kPaper),  _(kImageArea), _(kScaling),
                                _(kResolution), _(kCutOff), _(kLeftWhite), _(kNote),
                                _(kNotGood),    _(kGood)};
  std::printf("%s%s\n", labels(_(label)).c_str(), value.c_str());
}

// As JSON has it.
const char* to_string(photo::Scaling scaling) {
  switch (scaling) {
    case photo::Scaling::Fit:
      return "fit";
    case photo::Scaling::Fill:
      return "fill";
    case photo::Scaling::Natural:
      return "none";
    default:
      return "own-size";
  }
}

void print_paper(const NamedPaper& size) {
  const tagPAPERINFO& paper = *size.paper;
  print_line(kPaper,
             filled(_("%1$s, %2$d x %3$d dots, %4$s x %5$s mm"), size.choice,
                    static_cast<int>(paper.nPaperWidth), static_cast<int>(paper.nPaperHeight),
                    decimal(millimetres(static_cast<double>(paper.nPaperWidth)), 1).c_str(),
                    decimal(millimetres(static_cast<double>(paper.nPaperHeight)), 1).c_str()));
  if (paper.nImageWidth != paper.nPaperWidth || paper.nImageHeight != paper.nPaperHeight) {
    const char* const form = is_half_sheet(size)
                                 ? _("%1$d x %2$d dots, one of two prints on the sheet")
                                 : _("%1$d x %2$d dots, inside a white border");
    print_line(kImageArea, filled(form, static_cast<int>(paper.nImageWidth),
                                  static_cast<int>(paper.nImageHeight)));
  }
}

// "left of the photo"
const char* side_of_photo(std::string_view side) {
  if (side == "left") {
    return _("left of the photo");
  }
  if (side == "right") {
    return _("right of the photo");
  }
  return side == "top" ? _("top of the photo") : _("bottom of the photo");
}

// The same of the page.
const char* side_of_area(std::string_view side) {
  if (side == "left") {
    return _("left of the image area");
  }
  if (side == "right") {
    return _("right of the image area");
  }
  return side == "top" ? _("top of the image area") : _("bottom of the image area");
}

void print_losses(const PhotoCheck& check) {
  constexpr double kPercent = 100.0;
  for (const Cut& cut : check.cuts) {
    const std::string pixels =
        filled(_n("%zu pixel", "%zu pixels", cut.pixels), std::size_t{cut.pixels});
    // TRANSLATORS: as in "left of the photo, 12 pixels, 3.1 % (4.0 mm of paper)".
    print_line(kCutOff, filled(_("%1$s, %2$s, %3$s %% (%4$s mm of paper)"), side_of_photo(cut.side),
                               pixels.c_str(), decimal(kPercent * cut.share, 1).c_str(),
                               decimal(millimetres(cut.dots), 1).c_str()));
  }
  for (const White& white : check.whites) {
    const std::string dots = filled(_n("%zu dot", "%zu dots", white.dots), std::size_t{white.dots});
    const std::string length = decimal(millimetres(static_cast<double>(white.dots)), 1);
    // TRANSLATORS: as in "right of the image area, 12 dots, 3.1 % (4.0 mm)".
    print_line(kLeftWhite,
               filled(_("%1$s, %2$s, %3$s %% (%4$s mm)"), side_of_area(white.side), dots.c_str(),
                      decimal(kPercent * white.share, 1).c_str(), length.c_str()));
  }
}

void print_text(const PhotoJob& job, const PhotoCheck& check) {
  const photo::PhotoShape& shape = job.plan.shape;
  print_line(kPhoto, filled(_("%1$zu x %2$zu pixels"), shape.width, shape.height));
  print_paper(job.size);
  // TRANSLATORS: %1$s is fit, fill, none or own-size.
  print_line(kScaling, filled(_("%1$s, to %2$zu x %3$zu dots"), to_string(job.wishes.scaling),
                              check.printed.width, check.printed.height));
  // TRANSLATORS: %2$s is sharp, soft or coarse.
  print_line(kResolution,
             filled(_("%1$.0f dpi, %2$s (sharp from %3$.0f on, soft from %4$.0f, coarse below)"),
                    check.dotsPerInch, _(to_string(check.sharpness)), kSharpFrom, kSoftFrom));
  print_losses(check);
  for (const std::string& note : check.notes) {
    print_line(kNote, note);
  }
  for (const std::string& rule : check.rulesBroken) {
    print_line(kNotGood, rule);
  }
  if (check.rulesBroken.empty()) {
    print_line(kGood, _("nothing is lost, and nothing is coarse"));
  }
}

Json area_json(const photo::DotArea& area) {
  return {{"left", area.left}, {"top", area.top}, {"width", area.width}, {"height", area.height}};
}

Json json_of(const std::string& file, const PhotoJob& job, const PhotoCheck& check) {
  Json cuts = Json::array();
  for (const Cut& cut : check.cuts) {
    cuts.push_back({{"side", cut.side},
                    {"pixels", cut.pixels},
                    {"share", cut.share},
                    {"dots", cut.dots},
                    {"millimetres", millimetres(cut.dots)}});
  }
  Json whites = Json::array();
  for (const White& white : check.whites) {
    whites.push_back({{"side", white.side},
                      {"dots", white.dots},
                      {"share", white.share},
                      {"millimetres", millimetres(static_cast<double>(white.dots))}});
  }
  const tagPAPERINFO& paper = *job.size.paper;
  const photo::PhotoShape& shape = job.plan.shape;
  return {{"photo", {{"file", file}, {"width", shape.width}, {"height", shape.height}}},
          {"size", job.size.choice},
          {"sheet", {{"width", paper.nPaperWidth}, {"height", paper.nPaperHeight}}},
          {"image_area",
           {{"left", paper.nImageLeft},
            {"top", paper.nImageTop},
            {"width", paper.nImageWidth},
            {"height", paper.nImageHeight}}},
          {"scaling", to_string(job.wishes.scaling)},
          {"pages", job.plan.layout.pages.size()},
          {"turned", job.plan.layout.turn != photo::kExifUpright},
          {"used", area_json(check.used)},
          {"printed", area_json(check.printed)},
          {"dots_per_inch", check.dotsPerInch},
          {"sharpness", to_string(check.sharpness)},
          {"cut_off", std::move(cuts)},
          {"left_white", std::move(whites)},
          {"notes", check.notes},
          {"not_good", check.rulesBroken},
          {"good", check.rulesBroken.empty()}};
}

std::string all_sizes() {
  std::string names;
  for (const NamedPaper& size : named_papers()) {
    names += (names.empty() ? "" : ", ") + std::string(size.choice);
  }
  return names;
}

int check(const Options& options) {
  const NamedPaper* const size = find_paper(options.size);
  if (size == nullptr) {
    return cannot(filled(_("\"%s\" is no size; there are %s"), plain_text(options.size).c_str(),
                         all_sizes().c_str()));
  }
  const FileHandle file = open_file(options.photo);
  const photo::JobOptions jobOptions(options.ForJob().c_str());
  PhotoJob job{
      *size, photo::read_wishes(jobOptions, "1", size->paper->nImageLeft == 0), {}, {}, {}};
  if (std::string why = photo::plan_pages(
          file.get(), static_cast<std::size_t>(size->paper->nImageWidth),
          static_cast<std::size_t>(size->paper->nImageHeight), job.wishes, job.plan);
      !why.empty()) {
    return cannot(options.photo + ": " + why);
  }
  const photo::Layout& layout = job.plan.layout;
  // The last page reads the file as far as any.
  job.refusal = photo::make_page(file.get(), layout, layout.pages.size() - 1, job.wishes, job.page);
  const PhotoCheck result = [&] {
    const language::English for_programs(options.json);
    return check_photo(job);
  }();
  if (!options.picture.empty() && job.refusal.empty()) {
    photo::Picture preview;
    std::string why = draw_preview(file.get(), job, result, preview);
    why = why.empty() ? photo::write_picture(options.picture, preview) : why;
    if (!why.empty()) {
      return cannot(options.picture + ": " + why);
    }
  }
  if (options.json) {
    print_json(stdout, json_of(options.photo, job, result));
  } else {
    print_text(job, result);
  }
  return result.rulesBroken.empty() ? kExitGood : kExitNotGood;
}

int check_or_say_why(const Options& options) {
  try {
    return check(options);
  } catch (const std::exception& error) {
    return cannot(error.what());
  }
}

}  // namespace

void add_check(CommandLine& program) {
  Subcommand sub = program.Add(
      "check", _("say how a photo will come out on a paper size, before paper is spent"));
  const auto options = std::make_shared<Options>();
  sub.Text("PHOTO", options->photo, _("a JPEG or PNG file")).Required();
  sub.Text("--size", options->size, _("paper size, such as RQ_10x15, 10x15 or 4x6"))
      .Called("SIZE")
      .Required();
  sub.Text("--scaling", options->scaling,
           _("print-scaling of the job: fit, the system's own choice for photos, or fill"))
      .Called("fit|fill")
      .OneOf({"fit", "fill"});
  sub.Text("-o,--option", options->job, _("an option of the job, as lp takes it"))
      .Called("NAME=VALUE")
      .Repeated();
  sub.Text("--picture", options->picture, _("PNG file to draw the sheet with the photo on it to"))
      .Called("FILE");
  sub.Flag("--json", options->json, _("write one JSON document"));
  sub.Runs([options] { return check_or_say_why(*options); });
}

}  // namespace tools
