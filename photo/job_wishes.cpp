// SPDX-License-Identifier: Apache-2.0
#include "photo/job_wishes.h"

#include <strings.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

namespace photo {
bool JobOptions::Is(const char* name, const char* value) const {
  const char* const found = Find(name);
  return found != nullptr && strcasecmp(found, value) == 0;
}

bool JobOptions::IsTrue(const char* name) const {
  return Is(name, "true") || Is(name, "yes") || Is(name, "on");
}

int JobOptions::Number(const char* name, int otherwise, int least, int most) const {
  const char* const found = Find(name);
  if (found == nullptr) {
    return otherwise;
  }
  const long number = std::strtol(found, nullptr, 10);
  return static_cast<int>(std::clamp<long>(number, least, most));
}

namespace {

// IPP's option counts before the older ones.
void read_print_scaling(const JobOptions& options, bool borderless, JobWishes& wishes) {
  if (options.Is("print-scaling", "fill")) {
    wishes.scaling = Scaling::Fill;
  } else if (options.Is("print-scaling", "auto")) {
    // People expect a photo to cover the paper, where the paper can be covered.
    wishes.scaling = borderless ? Scaling::Fill : Scaling::Fit;
  } else if (options.Is("print-scaling", "fit") || options.Is("print-scaling", "auto-fit")) {
    wishes.scaling = Scaling::Fit;
  } else {
    wishes.scaling = Scaling::Natural;
  }
}

void read_older_scaling(const JobOptions& options, JobWishes& wishes) {
  constexpr int kPercentMost = 1000;
  const bool fit = options.IsTrue("fit-to-page") || options.IsTrue("fitplot");
  if (options.Find("scaling") != nullptr) {
    wishes.scaling = Scaling::Spread;
    wishes.ofFitted = true;
    wishes.percent = options.Number("scaling", 100, 1, kPercentMost);
  } else if (options.Find("natural-scaling") != nullptr) {
    wishes.scaling = Scaling::Spread;
    wishes.percent = options.Number("natural-scaling", 100, 1, kPercentMost);
  } else if (!fit &&
             (options.Find("fit-to-page") != nullptr || options.Find("fitplot") != nullptr)) {
    wishes.scaling = Scaling::Spread;
  }
  if (options.IsTrue("fill")) {
    wishes.scaling = Scaling::Fill;
  } else if (options.IsTrue("crop-to-fit")) {
    wishes.scaling = Scaling::Natural;
  }
}

// "300" or "300x150". It says how large the photo is, unless another option does.
void read_density(const JobOptions& options, JobWishes& wishes) {
  constexpr int kLeast = 1;
  constexpr int kMost = 9600;
  const char* const ppi = options.Find("ppi");
  int across = 0;
  int down = 0;
  const int read = ppi != nullptr ? std::sscanf(ppi, "%9dx%9d", &across, &down) : 0;
  if (read < 1) {
    return;
  }
  wishes.perInchAcross = std::clamp(across, kLeast, kMost);
  wishes.perInchDown = read > 1 ? std::clamp(down, kLeast, kMost) : wishes.perInchAcross;
  if (wishes.scaling == Scaling::Fit && options.Find("print-scaling") == nullptr) {
    wishes.scaling = Scaling::Spread;
    wishes.percent = 100;
    wishes.ofFitted = false;
  }
}

struct PlaceName {
  const char* name;
  Position position;
};

constexpr std::array<PlaceName, 9> kPlaces = {{{"center", {0, 0}},
                                               {"top", {0, -1}},
                                               {"left", {-1, 0}},
                                               {"right", {1, 0}},
                                               {"top-left", {-1, -1}},
                                               {"top-right", {1, -1}},
                                               {"bottom", {0, 1}},
                                               {"bottom-left", {-1, 1}},
                                               {"bottom-right", {1, 1}}}};

Position read_position(const JobOptions& options) {
  for (const PlaceName& place : kPlaces) {
    if (options.Is("position", place.name)) {
      return place.position;
    }
  }
  return {};
}

int read_orientation(const JobOptions& options) {
  constexpr int kPortrait = 3;
  constexpr int kLandscape = 4;
  constexpr int kLast = 6;
  if (options.Find("orientation-requested") != nullptr) {
    const int asked = options.Number("orientation-requested", 0, 0, kLast + 1);
    return asked >= kPortrait && asked <= kLast ? asked : 0;
  }
  if (options.Find("landscape") == nullptr) {
    return 0;
  }
  const bool no = options.Is("landscape", "no") || options.Is("landscape", "off") ||
                  options.Is("landscape", "false");
  return no ? kPortrait : kLandscape;
}

bool read_collate(const JobOptions& options) {
  const char* const handling = options.Find("multiple-document-handling");
  return options.IsTrue("Collate") ||
         (handling != nullptr && strcasecmp(handling, "separate-documents-uncollated-copies") != 0);
}

constexpr std::array kGreyModes = {"monochrome", "auto-monochrome", "process-monochrome",
                                   "bi-level", "process-bi-level"};

// The limits are those in the manual of CUPS.
void read_tones(const JobOptions& options, JobWishes& wishes) {
  constexpr double kThousand = 1000;
  constexpr double kHundred = 100;
  wishes.gamma = options.Number("gamma", 1000, 1, 10000) / kThousand;
  wishes.brightness = options.Number("brightness", 100, 10, 1000) / kHundred;
  wishes.saturation = options.Number("saturation", 100, 0, 1000);
  wishes.hue = options.Number("hue", 0, -360, 360);
  wishes.grey = asks_for_grey(options);
}

}  // namespace

bool asks_for_grey(const JobOptions& options) {
  return std::any_of(kGreyModes.begin(), kGreyModes.end(),
                     [&](const char* mode) { return options.Is("print-color-mode", mode); });
}

JobWishes read_wishes(const JobOptions& options, const char* copies, bool borderless) {
  constexpr long kCopiesMost = 9999;
  JobWishes wishes;
  if (options.Find("print-scaling") != nullptr) {
    read_print_scaling(options, borderless, wishes);
  } else {
    read_older_scaling(options, wishes);
  }
  read_density(options, wishes);
  wishes.position = read_position(options);
  wishes.orientation = read_orientation(options);
  wishes.mirror = options.IsTrue("mirror");
  wishes.copies = static_cast<int>(std::clamp(std::strtol(copies, nullptr, 10), 1L, kCopiesMost));
  wishes.collate = read_collate(options);
  read_tones(options, wishes);
  return wishes;
}

}  // namespace photo
