// SPDX-License-Identifier: Apache-2.0
#include "tests/filter/ppd_maker.h"

#include <algorithm>
#include <sstream>

namespace filter_test {
namespace {

struct Option {
  const char* keyword;
  const char* choices;  ///< the first is the default
};

// Choices beyond what a printer's PPD would offer are here for what the filter makes of them.
constexpr Option kOptions[] = {
    {"PageSize",
#define PAPER(name, ...) "RQ_" #name " "
#include "job/paper_list.def"
     "rq_5X15 Letter RQ_5x15x2_3"},
    {"RQSharpness_Common", "Normal None Minus3 Minus2 Minus1 Plus1 Plus2 Plus3 Plus4 minus2"},
    {"RQPrintMode", "Auto Fast Slow fast"},
    {"RQPrintFinish", "Gloss Matte Silk matte"},
    {"RQColorConversion", "Enabled Disabled Maybe DISABLED"},
    {"RQMarginCutOff", "False True Perhaps TRUE"},
    {"RQWaitingNextImage", "True False Perhaps FALSE"},
    {"RQWaitTime", "5 0 30 255 300 -1 70000 soon"},
    {"RQGammaR", "0 1 -2 5 -5 9 -9 40000 dark"},
    {"RQGammaG", "0 1 -2 5 -5 9 -9 40000 dark"},
    {"RQGammaB", "0 1 -2 5 -5 9 -9 40000 dark"},
    {"RQBrightnessR", "0 10 -20 127 128 200 -128 -300 40000 light"},
    {"RQBrightnessG", "0 10 -20 127 128 200 -128 -300 40000 light"},
    {"RQBrightnessB", "0 10 -20 127 128 200 -128 -300 40000 light"},
    {"RQContrastR", "0 10 -20 128 200 -128 -300 70000 40000 hard"},
    {"RQContrastG", "0 10 -20 128 200 -128 -300 70000 40000 hard"},
    {"RQContrastB", "0 10 -20 128 200 -128 -300 70000 40000 hard"},
};

void WriteOption(std::ostream& out, const Option& option, const std::string& default_choice) {
  out << "*OpenUI *" << option.keyword << "/" << option.keyword << ": PickOne\n"
      << "*OrderDependency: 10 AnySetup *" << option.keyword << "\n"
      << "*Default" << option.keyword << ": " << default_choice << "\n";
  std::istringstream choices(option.choices);
  for (std::string choice; choices >> choice;) {
    out << "*" << option.keyword << " " << choice << "/" << choice << ": \"\"\n";
  }
  out << "*CloseUI: *" << option.keyword << "\n";
}

std::string FirstChoice(const Option& option) {
  const std::string choices = option.choices;
  return choices.substr(0, choices.find(' '));
}

}  // namespace

std::string Ppd::Text() const {
  std::ostringstream out;
  out << "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
         "*LanguageVersion: English\n*LanguageEncoding: ISOLatin1\n*PCFileName: \"TEST.PPD\"\n"
         "*Manufacturer: \"Test\"\n*Product: \"(Test)\"\n*ModelName: \"Test\"\n"
         "*ShortNickName: \"Test\"\n*NickName: \"Test\"\n*PSVersion: \"(3010.000) 0\"\n"
         "*LanguageLevel: \"3\"\n*ColorDevice: True\n*DefaultColorSpace: RGB\n"
         "*FileSystem: False\n*Throughput: \"1\"\n*LandscapeOrientation: Plus90\n"
         "*TTRasterizer: Type42\n";
  for (const std::string& filter : filters) {
    out << "*cupsFilter: \"" << filter << "\"\n";
  }
  for (const Option& option : kOptions) {
    if (std::find(without.begin(), without.end(), option.keyword) == without.end()) {
      const auto chosen = defaults.find(option.keyword);
      WriteOption(out, option, chosen == defaults.end() ? FirstChoice(option) : chosen->second);
    }
  }
  return out.str();
}

}  // namespace filter_test
