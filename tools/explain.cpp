// SPDX-License-Identifier: Apache-2.0
//
// tqr7 explain: what an error number or a queue's reason means, and what to do.
#include <cstdio>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>

#include "status/reason_table.h"
#include "tools/command_line.h"
#include "tools/error_text.h"
#include "tools/exit_status.h"
#include "tools/explanation.h"
#include "tools/json_output.h"
#include "tools/plain_text.h"
#include "tools/subcommands.h"

namespace tools {
namespace {

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
  if (told.number) {
    std::printf("Number:  %s\n", four_digits(*told.number).c_str());
  }
  if (!told.errorClass.empty()) {
    std::printf("Class:   %s\n", told.errorClass.c_str());
  }
  if (!told.keyword.empty()) {
    std::printf("Keyword: %s\n", told.keyword.c_str());
  } else if (told.inTable) {
    std::printf("Keyword: none is raised\n");
  }
  std::printf("Meaning: %s\nTo do:   %s\n", told.meaning.c_str(), told.remedy.c_str());
}

int explain_one(const Options& options) {
  Explanation told = explain_text(options.text);
  told.keyword = plain_text(told.keyword);
  if (options.json) {
    print_json(stdout, json_of(told));
  } else {
    print(told);
  }
  if (!told.inTable) {
    std::fprintf(stderr, "tqr7 explain: \"%s\" is not in the table of the printer's errors\n",
                 plain_text(options.text).c_str());
  }
  return told.inTable ? kExitGood : kExitNotGood;
}

int explain_all(const Options& options) {
  constexpr std::uint16_t kGroup = 256;
  Json rows = Json::array();
  for (const PrinterStateReason& row : PRINTER_STATE_REASONS) {
    const Explanation told = explain_number(
        static_cast<std::uint16_t>(row.error_high * kGroup + (row.error_low & 0xFFU)));
    if (options.json) {
      rows.push_back(json_of(told));
    } else if (told.keyword.empty()) {
      std::printf("%s  good, raises nothing\n", four_digits(*told.number).c_str());
    } else {
      std::printf("%s  class %s  %s\n", four_digits(*told.number).c_str(), told.errorClass.c_str(),
                  told.keyword.c_str());
    }
  }
  if (options.json) {
    print_json(stdout, rows);
  }
  return kExitGood;
}

}  // namespace

void add_explain(CommandLine& program) {
  Subcommand sub =
      program.Add("explain", "say what an error number or a queue's reason means and what to do");
  const auto options = std::make_shared<Options>();
  const Argument text =
      sub.Text("NUMBER|KEYWORD", options->text,
               "error number in hexadecimal digits, or a reason that the queue shows");
  sub.Flag("--all", options->all, "list the table of the printer's errors").NotWith(text);
  sub.Flag("--json", options->json, "write one JSON document");
  sub.Runs([options, text] {
    if (!options->all && !text.Given()) {
      Subcommand::IsMissing("NUMBER|KEYWORD or --all");
    }
    return options->all ? explain_all(*options) : explain_one(*options);
  });
}

}  // namespace tools
