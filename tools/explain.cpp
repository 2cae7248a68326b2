// SPDX-License-Identifier: Apache-2.0
//
// tqr7 explain: what an error number or a queue's reason means, and what to do.
#include <cstdio>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>

#include "language/display_width.h"
#include "language/messages.h"
#include "tools/command_line.h"
#include "tools/error_text.h"
#include "tools/explanation.h"
#include "tools/json_output.h"
#include "tools/plain_text.h"
#include "tools/subcommands.h"

namespace tools {
namespace {

using language::_;
using language::filled;

using Json = nlohmann::ordered_json;

struct Options {
  std::string text;
  bool all = false;
  bool json = false;
};

Json json_of(const Explanation& told) {
  return {{"in_table", told.inTable},
          {"number", told.number ? Json(four_digits(*told.number)) : Json()},
          {"keyword", told.keyword.empty() ? Json() : Json(told.keyword)},
          {"class", told.errorClass.empty() ? Json() : Json(told.errorClass)},
          {"meaning", told.meaning},
          {"remedy", told.remedy}};
}

void print(const Explanation& told) {
  // TRANSLATORS: "Number:" to "To do:" are below each other, each with a value after it.
  const char* const number = _("Number:");
  const char* const error_class = _("Class:");
  const char* const keyword = _("Keyword:");
  const char* const meaning = _("Meaning:");
  const char* const remedy = _("To do:");
  const language::Labels labels{number, error_class, keyword, meaning, remedy};
  const auto line = [&labels](const char* label, const std::string& value) {
    std::printf("%s%s\n", labels(label).c_str(), value.c_str());
  };
  if (told.number) {
    line(number, four_digits(*told.number));
  }
  if (!told.errorClass.empty()) {
    line(error_class, told.errorClass);
  }
  if (!told.keyword.empty()) {
    line(keyword, told.keyword);
  } else if (told.inTable) {
    // TRANSLATORS: no keyword is raised.
    line(keyword, _("none is raised"));
  }
  line(meaning, told.meaning);
  line(remedy, told.remedy);
}

int explain_one(const Options& options) {
  Explanation told;
  {
    const language::English for_programs(options.json);
    told = explain_text(options.text);
  }
  told.keyword = plain_text(told.keyword);
  if (options.json) {
    print_json(stdout, json_of(told));
  } else {
    print(told);
  }
  if (!told.inTable) {
    complain("explain", filled(_("\"%s\" is not in the table of the printer's errors"),
                               plain_text(options.text).c_str()));
  }
  return told.inTable ? kExitGood : kExitNotGood;
}

int list_all(const Options& options) {
  const language::English for_programs(options.json);
  Json rows = Json::array();
  for (const Explanation& told : explain_all()) {
    if (options.json) {
      rows.push_back(json_of(told));
    } else if (told.keyword.empty()) {
      std::printf("%s  %s\n", four_digits(*told.number).c_str(), _("good, raises nothing"));
    } else {
      std::printf("%s  %s  %s\n", four_digits(*told.number).c_str(),
                  filled(_("class %s"), told.errorClass.c_str()).c_str(), told.keyword.c_str());
    }
  }
  if (options.json) {
    print_json(stdout, rows);
  }
  return kExitGood;
}

}  // namespace

void add_explain(CommandLine& program) {
  Subcommand sub = program.Add(
      "explain", _("say what an error number or a queue's reason means and what to do"));
  const auto options = std::make_shared<Options>();
  const Argument text =
      sub.Text("NUMBER|KEYWORD", options->text,
               _("error number in hexadecimal digits, or a reason that the queue shows"));
  sub.Flag("--all", options->all, _("list the table of the printer's errors")).NotWith(text);
  sub.Flag("--json", options->json, _("write one JSON document"));
  sub.Runs([options, text] {
    if (!options->all && !text.Given()) {
      Subcommand::IsMissing(_("NUMBER|KEYWORD or --all"));
    }
    return options->all ? list_all(*options) : explain_one(*options);
  });
}

}  // namespace tools
