// SPDX-License-Identifier: Apache-2.0
//
// tqr7 inspect: lists a captured command stream and checks it against the protocol.
#include <cstdio>
#include <memory>
#include <string>

#include "tools/byte_source.h"
#include "tools/command_line.h"
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
    complain("inspect", options.file + ": " + why);
    return kExitCannotTell;
  }
  return inspector.Finish().Clean() ? kExitGood : kExitNotGood;
}

}  // namespace

void add_inspect(CommandLine& program) {
  Subcommand sub =
      program.Add("inspect", "list a captured command stream and hold it against the protocol");
  const auto options = std::make_shared<Options>();
  sub.Text("FILE", options->file, "the stream; - is the standard input").Required();
  sub.Flag("--brief", options->brief, "leave the fields of the commands out");
  sub.Flag("--json", options->json, "write one JSON document");
  sub.Runs([options] { return inspect(*options); });
}

}  // namespace tools
