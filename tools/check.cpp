// SPDX-License-Identifier: Apache-2.0
//
// tqr7 check: how a photo will come out on a paper size, before paper is spent.
#include <cstdio>
#include <exception>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>

#include "simulator/wording.h"
#include "tools/command_line.h"
#include "tools/exit_status.h"
#include "tools/json_output.h"
#include "tools/photo_check.h"
#include "tools/plain_text.h"
#include "tools/sheet_preview.h"
#include "tools/subcommands.h"

namespace tools {
namespace {

using simulator::counted;
using Json = nlohmann::ordered_json;

struct Options {
  std::string photo;
  std::string size;
  std::string scaling = "fit";
  std::string picture;
  bool json = false;

  PrintScaling Scaling() const {
    return scaling == "fill" ? PrintScaling::Fill : PrintScaling::Fit;
  }
};

int cannot(const std::string& why) {
  std::fprintf(stderr, "tqr7 check: %s\n", why.c_str());
  return kExitCannotTell;
}

void print_paper(const PrintSize& size) {
  const tagPAPERINFO& paper = *size.paper;
  std::printf("Paper:      %s, %d x %d dots, %.1f x %.1f mm\n", size.name,
              static_cast<int>(paper.nPaperWidth), static_cast<int>(paper.nPaperHeight),
              millimetres(static_cast<double>(paper.nPaperWidth)),
              millimetres(static_cast<double>(paper.nPaperHeight)));
  if (paper.nImageWidth != paper.nPaperWidth || paper.nImageHeight != paper.nPaperHeight) {
    std::printf("Image area: %d x %d dots, %s\n", static_cast<int>(paper.nImageWidth),
                static_cast<int>(paper.nImageHeight),
                size.HalfSheet() ? "one of two prints on the sheet" : "inside a white border");
  }
}

void print_text(const Options& options, const PictureFile& photo, const PrintSize& size,
                const PhotoCheck& check) {
  std::printf("Photo:      %zu x %zu pixels\n", photo.picture.width, photo.picture.height);
  print_paper(size);
  std::printf("Scaling:    %s, to %u x %u dots from the image area's top left corner\n",
              options.scaling.c_str(), check.placement.width, check.placement.height);
  std::printf("Resolution: %.0f dpi, %s (sharp from %.0f on, soft from %.0f, coarse below)\n",
              check.dotsPerInch, to_string(check.sharpness), kSharpFrom, kSoftFrom);
  constexpr double kPercent = 100.0;
  for (const Cut& cut : check.cuts) {
    std::printf("Cut off:    %s of the photo, %s, %.1f %% (%.1f mm of paper)\n", cut.side,
                counted(cut.pixels, "pixel").c_str(), kPercent * cut.share, millimetres(cut.dots));
  }
  for (const White& white : check.whites) {
    std::printf("Left white: %s of the image area, %s, %.1f %% (%.1f mm)\n", white.side,
                counted(white.dots, "dot").c_str(), kPercent * white.share,
                millimetres(white.dots));
  }
  for (const std::string& note : check.notes) {
    std::printf("Note:       %s\n", note.c_str());
  }
  for (const std::string& rule : check.rulesBroken) {
    std::printf("Not good:   %s\n", rule.c_str());
  }
  if (check.rulesBroken.empty()) {
    std::printf("Good:       nothing is lost, and nothing is coarse\n");
  }
}

Json json_of(const Options& options, const PictureFile& photo, const PrintSize& size,
             const PhotoCheck& check) {
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
                      {"millimetres", millimetres(white.dots)}});
  }
  const tagPAPERINFO& paper = *size.paper;
  const PixelArea& used = check.placement.used;
  return {
      {"photo",
       {{"file", options.photo}, {"width", photo.picture.width}, {"height", photo.picture.height}}},
      {"size", size.name},
      {"sheet", {{"width", paper.nPaperWidth}, {"height", paper.nPaperHeight}}},
      {"image_area",
       {{"left", paper.nImageLeft},
        {"top", paper.nImageTop},
        {"width", paper.nImageWidth},
        {"height", paper.nImageHeight}}},
      {"scaling", options.scaling},
      {"turned", check.placement.turned},
      {"used",
       {{"left", used.left}, {"top", used.top}, {"width", used.width}, {"height", used.height}}},
      {"printed", {{"width", check.placement.width}, {"height", check.placement.height}}},
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
  for (const PrintSize& size : print_sizes()) {
    names += (names.empty() ? "" : ", ") + std::string(size.name);
  }
  return names;
}

int check(const Options& options) {
  const PrintSize* const size = find_print_size(options.size);
  if (size == nullptr) {
    return cannot(std::string("\"") + plain_text(options.size) + "\" is no size; there are " +
                  all_sizes());
  }
  const PictureFile photo = read_picture_file(options.photo);
  const Placement placement = place_picture(static_cast<std::uint32_t>(photo.picture.width),
                                            static_cast<std::uint32_t>(photo.picture.height), *size,
                                            options.Scaling(), photo.density.Aspect());
  if (placement.Empty()) {
    return cannot(options.photo + ": so narrow a picture that nothing of it is printed");
  }
  const PhotoCheck result = check_photo(photo, *size, options.Scaling(), placement);
  if (!options.picture.empty()) {
    write_picture(options.picture, draw_preview(photo.picture, *size, placement));
  }
  if (options.json) {
    print_json(stdout, json_of(options, photo, *size, result));
  } else {
    print_text(options, photo, *size, result);
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
  Subcommand sub =
      program.Add("check", "say how a photo will come out on a paper size, before paper is spent");
  const auto options = std::make_shared<Options>();
  sub.Text("PHOTO", options->photo, "a JPEG or PNG file").Required();
  sub.Text("--size", options->size, "paper size, with or without RQ_").Called("SIZE").Required();
  sub.Text("--scaling", options->scaling,
           "print-scaling of the job: fit, the system's own choice for photos, or fill")
      .Called("fit|fill")
      .OneOf({"fit", "fill"});
  sub.Text("--picture", options->picture, "PNG file to draw the sheet with the photo on it to")
      .Called("FILE");
  sub.Flag("--json", options->json, "write one JSON document");
  sub.Runs([options] { return check_or_say_why(*options); });
}

}  // namespace tools
