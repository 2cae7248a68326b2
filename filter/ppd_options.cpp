// SPDX-License-Identifier: Apache-2.0
#include "filter/ppd_options.h"

#include <strings.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>

#include "job/paper_table.h"

namespace {

struct NamedValue {
  const char* name;
  std::uint8_t value;
};

// The values are the printer's and the conversion library's own codes; their gaps are real.
constexpr NamedValue kSharpness[] = {{"None", 0},   {"Minus3", 1}, {"Minus2", 2}, {"Minus1", 3},
                                     {"Normal", 4}, {"Plus1", 5},  {"Plus2", 6},  {"Plus3", 7}};
constexpr NamedValue kPrintMode[] = {{"Auto", 0}, {"Fast", 5}};
constexpr NamedValue kPrintFinish[] = {{"Gloss", 0}, {"Matte", kFinishMatte}};
constexpr NamedValue kColorConversion[] = {{"Enabled", 1}, {"Disabled", 0}};
constexpr NamedValue kTrueFalse[] = {{"True", 1}, {"False", 0}};

const char* marked_choice(ppd_file_s* ppd, const char* keyword) {
  const ppd_choice_t* choice = ppdFindMarkedChoice(ppd, keyword);
  return choice != nullptr ? choice->choice : nullptr;
}

const tagPAPERINFO& marked_paper(ppd_file_s* ppd) {
  if (const char* choice = marked_choice(ppd, "PageSize"); choice != nullptr) {
    for (const NamedPaper& known : named_papers()) {
      if (strcasecmp(choice, known.choice) == 0) {
        return *known.paper;
      }
    }
  }
  return PAPER_9x13;
}

template <std::size_t N>
std::uint8_t marked_value(ppd_file_s* ppd, const char* keyword, const NamedValue (&values)[N],
                          std::uint8_t default_value) {
  const char* choice = marked_choice(ppd, keyword);
  if (choice == nullptr) {
    return default_value;
  }
  const auto* known = std::find_if(
      std::begin(values), std::end(values),
      [choice](const NamedValue& value) { return strcasecmp(choice, value.name) == 0; });
  return known != std::end(values) ? known->value : default_value;
}

void copy_geometry(const tagPAPERINFO& paper, tagPRINTSETTING* settings) {
  settings->nPaperWidth = static_cast<std::int32_t>(paper.nPaperWidth);
  settings->nPaperHeight = static_cast<std::int32_t>(paper.nPaperHeight);
  settings->nImageWidth = static_cast<std::int32_t>(paper.nImageWidth);
  settings->nImageHeight = static_cast<std::int32_t>(paper.nImageHeight);
  settings->nImageLeft = static_cast<std::int32_t>(paper.nImageLeft);
  settings->nImageTop = static_cast<std::int32_t>(paper.nImageTop);
  settings->byTwoUpMode = paper.byTwoUpMode;
  settings->nTwoUpSplit = paper.nTwoUpSplit;
  settings->byTwoUpOption = paper.byTwoUpOption;
  settings->nJoinPages = paper.nJoinPages;
  settings->nJoinGap = paper.nJoinGap;
  settings->bHalfSheetLast = (paper.bHalfSheetLast & 1U) != 0;
}

void set_defaults(tagPRINTSETTING* settings) {
  settings->bySharpness = 4;
  std::fill(std::begin(settings->byReserved), std::end(settings->byReserved), std::uint8_t{0});
  settings->byPrintMode = 0;
  settings->byPrintFinish = 0;
  settings->byColorConversion = 1;
  settings->byMarginCutOff = 0;
  settings->byWaitNextImage = 1;
  settings->byWaitTime = 5;
  for (std::int16_t(*tone)[3] : {&settings->nGamma, &settings->nContrast, &settings->nBrightness}) {
    std::fill(std::begin(*tone), std::end(*tone), std::int16_t{0});
  }
}

void get_named_options(ppd_file_s* ppd, tagPRINTSETTING* settings) {
  settings->bySharpness =
      marked_value(ppd, "RQSharpness_Common", kSharpness, settings->bySharpness);
  settings->byPrintMode = marked_value(ppd, "RQPrintMode", kPrintMode, settings->byPrintMode);
  settings->byPrintFinish =
      marked_value(ppd, "RQPrintFinish", kPrintFinish, settings->byPrintFinish);
  settings->byColorConversion =
      marked_value(ppd, "RQColorConversion", kColorConversion, settings->byColorConversion);
  settings->byMarginCutOff =
      marked_value(ppd, "RQMarginCutOff", kTrueFalse, settings->byMarginCutOff);
  settings->byWaitNextImage =
      marked_value(ppd, "RQWaitingNextImage", kTrueFalse, settings->byWaitNextImage);
}

using ReadTone = int (*)(ppd_file_s*, const char*, int);

void get_tone(ppd_file_s* ppd, ReadTone read, const char* const (&keywords)[3],
              std::int16_t (&tone)[3]) {
  for (std::size_t channel = 0; channel < 3; ++channel) {
    tone[channel] = static_cast<std::int16_t>(read(ppd, keywords[channel], tone[channel]));
  }
}

void get_numeric_options(ppd_file_s* ppd, tagPRINTSETTING* settings) {
  settings->byWaitTime =
      static_cast<std::uint8_t>(get_ppd_val(ppd, "RQWaitTime", settings->byWaitTime));
  get_tone(ppd, get_setting_gamma, {"RQGammaR", "RQGammaG", "RQGammaB"}, settings->nGamma);
  get_tone(ppd, get_setting_brightness, {"RQBrightnessR", "RQBrightnessG", "RQBrightnessB"},
           settings->nBrightness);
  get_tone(ppd, get_setting_contrast, {"RQContrastR", "RQContrastG", "RQContrastB"},
           settings->nContrast);
}

}  // namespace

void get_print_setting(ppd_file_s* ppd, tagPRINTSETTING* settings) {
  copy_geometry(marked_paper(ppd), settings);
  set_defaults(settings);
  get_named_options(ppd, settings);
  get_numeric_options(ppd, settings);
}

int get_ppd_val(ppd_file_s* ppd, const char* keyword, int default_value) {
  const char* choice = marked_choice(ppd, keyword);
  if (choice == nullptr) {
    return default_value;
  }
  // Reads as atoi does, but is also defined for numbers outside its range.
  return static_cast<std::int16_t>(std::strtol(choice, nullptr, 10));
}

int get_setting_gamma(ppd_file_s* ppd, const char* keyword, int default_value) {
  return std::clamp(get_ppd_val(ppd, keyword, default_value), -5, 5);
}

int get_setting_brightness(ppd_file_s* ppd, const char* keyword, int default_value) {
  return std::clamp(get_ppd_val(ppd, keyword, default_value), -128, 128);
}

int get_setting_contrast(ppd_file_s* ppd, const char* keyword, int default_value) {
  return std::clamp(get_ppd_val(ppd, keyword, default_value), -128, 128);
}
