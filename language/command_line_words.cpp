// SPDX-License-Identifier: Apache-2.0
#include "language/command_line_words.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "language/display_width.h"
#include "language/messages.h"

namespace language {
namespace {

class Help : public CLI::Formatter {
 public:
  Help() {
    // The library looks these up by the names that it shows in English.
    label("Usage", _("Usage"));
    label("OPTIONS", _("OPTIONS"));
    label("SUBCOMMAND", _("SUBCOMMAND"));
    label("Positionals", _("Positionals"));
    label("REQUIRED", _("REQUIRED"));
    label("Excludes", _("Excludes"));
    label("TEXT", _("TEXT"));
  }

  std::string make_group(std::string group, bool is_positional,
                         std::vector<const CLI::Option*> options) const override {
    return Formatter::make_group(group == "Options" ? _("Options") : std::move(group),
                                 is_positional, std::move(options));
  }

  std::string make_option(const CLI::Option* option, bool is_positional) const override {
    return Line(make_option_name(option, is_positional) + make_option_opts(option),
                make_option_desc(option));
  }

  std::string make_subcommand(const CLI::App* subcommand) const override {
    return Line(subcommand->get_display_name(true), subcommand->get_description());
  }

 private:
  std::string Line(const std::string& name, const std::string& words) const {
    const std::size_t columns = get_column_width();
    std::string line = padded("  " + name, columns);
    if (words.empty()) {
      return line + "\n";
    }
    if (display_width("  " + name) >= columns) {
      line += "\n" + std::string(columns, ' ');
    }
    return line + words + "\n";
  }
};

// The library's sentences. "%s" stands for a part of the command line. The first sentence that fits
// is used.
constexpr std::array kComplaints = {
    N_("A subcommand is required"),
    N_("%s is required"),
    N_("%s excludes %s"),
    N_("The following argument was not expected: %s"),
    N_("The following arguments were not expected: %s"),
    N_("Could not convert: %s = %s"),
    N_("%s: Value %s not in range %s to %s"),
    N_("%s: %s not in %s"),
    N_("%s: 1 required %s missing"),
    N_("%s: At Most %s required but received %s"),
};

// Whether the text is this sentence. `places` then has the texts in the places of "%s".
bool fits(std::string_view text, std::string_view sentence, std::vector<std::string>& places) {
  constexpr std::string_view kPlace = "%s";
  places.clear();
  std::size_t place = sentence.find(kPlace);
  if (!text.starts_with(sentence.substr(0, place))) {
    return false;
  }
  text.remove_prefix(std::min(place, sentence.size()));
  while (place != std::string_view::npos) {
    sentence.remove_prefix(place + kPlace.size());
    place = sentence.find(kPlace);
    const std::string_view behind = sentence.substr(0, place);
    const std::size_t at = behind.empty() ? text.size() : text.find(behind);
    if (at == std::string_view::npos) {
      return false;
    }
    places.emplace_back(text.substr(0, at));
    text.remove_prefix(at + behind.size());
  }
  return text.empty();
}

}  // namespace

void translate_help(CLI::App& app) {
  app.formatter(std::make_shared<Help>());
}

std::string subcommands_heading() {
  return _("Subcommands");
}

std::string translate_complaint(const std::string& english) {
  constexpr std::size_t kPlacesMost = 4;
  std::vector<std::string> places;
  for (const char* const sentence : kComplaints) {
    if (fits(english, sentence, places)) {
      places.resize(kPlacesMost);
      return filled(_(sentence), places[0].c_str(), places[1].c_str(), places[2].c_str(),
                    places[3].c_str());
    }
  }
  return english;
}

}  // namespace language
