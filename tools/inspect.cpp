// SPDX-License-Identifier: Apache-2.0
//
// tqr7 inspect: a captured command stream listed and held against the protocol.
#include <CLI/CLI.hpp>
#include <cstdio>
#include <memory>
#include <string>

#include "tools/byte_source.h"
#include "tools/exit_status.h"
#include "tools/stream_inspector.h"
#include "tools/subcommands.h"

namespace tools {
namespace {

struct Options {
  std::string file;
  bool json = false;
  bool brief = false;
};

int inspect(const Options& options) {
  const std::unique_ptr<StreamListing> listing = options.json
                                                     ? make_json_listing(stdout, options.file)
                                                     : make_text_listing(stdout, options.brief);
  StreamInspector inspector(*listing);
  const std::string why =
      for_each_piece(options.file, [&inspector](auto bytes) { inspector.Feed(bytes); });
  if (!why.empty()) {
    std::fprintf(stderr, "tqr7 inspect: %s: %s\n", options.file.c_str(), why.c_str());
    return kExitCannotTell;
  }
  return inspector.Finish().Clean() ? kExitGood : kExitNotGood;
}

}  // namespace

void add_inspect(CLI::App& program, int& status) {
  CLI::App* const sub = program.add_subcommand(
      "inspect", "list a captured command stream and hold it against the protocol");
  const auto options = std::make_shared<Options>();
  sub->add_option("FILE", options->file, "the stream; - is the standard input")->required();
  sub->add_flag("--brief", options->brief, "leave the fields of the commands out");
  sub->add_flag("--json", options->json, "write one JSON document");
  sub->get_option("--help")->description("say this and end");
  sub->callback([options, &status] { status = inspect(*options); });
}

}  // namespace tools
