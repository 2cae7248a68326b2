// SPDX-License-Identifier: Apache-2.0
#include "commands/setting_words.h"

#include <cstdint>
#include <cstdio>

#include "job/paper_table.h"

namespace {

constexpr const char* kSharpness[] = {"None", "-3", "-2", "-1", "Normal", "+1", "+2", "+3"};
constexpr std::uint8_t kModeFast = 5;

// What print dialogs say of two prints is too long for a line.
std::string short_words(const NamedPaper& known) {
  std::string words = known.words;
  if (known.paper->byTwoUpMode == 0) {
    return words;
  }
  return words.substr(0, words.find(',')) +
         (known.paper->nJoinPages == 1 ? ", two, a page each" : ", two on one page");
}

bool is_on(std::uint8_t flag) {
  return (flag & 1U) != 0;
}

std::string sheet_words(const tagPRINTSETTING& settings) {
  constexpr double kMillimetresADot = 25.4 / 300;
  char text[64];
  std::snprintf(text, sizeof text, "%dx%d dots, %.1fx%.1f mm", settings.nPaperWidth,
                settings.nPaperHeight, settings.nPaperWidth * kMillimetresADot,
                settings.nPaperHeight * kMillimetresADot);
  return text;
}

std::string finish_words(const tagPRINTSETTING& settings) {
  std::string words = settings.byPrintFinish == kFinishMatte ? "Matte" : "Gloss";
  words += settings.byPrintMode == kModeFast ? ", fast mode" : ", automatic mode";
  return words;
}

std::string sharpness_words(std::uint8_t sharpness) {
  return sharpness < std::size(kSharpness) ? kSharpness[sharpness] : std::to_string(sharpness);
}

std::string tone_words(const std::int16_t (&tone)[3]) {
  char text[64];
  std::snprintf(text, sizeof text, "R %d  G %d  B %d", tone[0], tone[1], tone[2]);
  return text;
}

std::string wait_words(const tagPRINTSETTING& settings) {
  return is_on(settings.byWaitNextImage) ? std::to_string(settings.byWaitTime) + " for a next image"
                                         : "Not for a next image";
}

}  // namespace

std::string printable(std::string_view text) {
  std::string result(text.substr(0, kLongestValue));
  for (char& character : result) {
    if (character < ' ' || character > '~') {
      character = '?';
    }
  }
  return result;
}

std::string paper_words(const tagPRINTSETTING& settings) {
  for (const NamedPaper& known : named_papers()) {
    const tagPAPERINFO& paper = *known.paper;
    if (paper.nPaperWidth == settings.nPaperWidth && paper.nPaperHeight == settings.nPaperHeight &&
        paper.nImageHeight == settings.nImageHeight && paper.byTwoUpMode == settings.byTwoUpMode) {
      return short_words(known);
    }
  }
  return "Unknown";
}

std::vector<SettingLine> setting_words(const tagPRINTSETTING& settings, std::string_view queue) {
  return {
      {"Paper", paper_words(settings)},
      {"Sheet", sheet_words(settings)},
      {"Finish", finish_words(settings)},
      {"Colour", is_on(settings.byColorConversion) ? "By the printer's profile" : "Not converted"},
      {"Sharpness", sharpness_words(settings.bySharpness)},
      {"Gamma", tone_words(settings.nGamma)},
      {"Brightness", tone_words(settings.nBrightness)},
      {"Contrast", tone_words(settings.nContrast)},
      {"Margin", is_on(settings.byMarginCutOff) ? "Cut off" : "Not cut off"},
      {"Wait", wait_words(settings)},
      {"Driver", printable("TQR7 " TQR7_VERSION ", queue " + std::string(queue))},
      {"Edges", "Steps of 5 dots; ticks of 0.5 mm"},
  };
}
