// SPDX-License-Identifier: Apache-2.0
//
// tqr7 inspect: lists a captured command stream and checks it against the protocol.
#include <cstdint>
#include <cstdio>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "decoder/command_blocks.h"
#include "decoder/command_listener.h"
#include "decoder/plane_reader.h"
#include "decoder/stream_parser.h"
#include "tools/byte_source.h"
#include "tools/command_line.h"
#include "tools/stream_listing.h"
#include "tools/subcommands.h"

namespace tools {
namespace {

struct Options {
  std::string file;
  bool json = false;
  bool brief = false;
};

constexpr std::uint64_t kErrorsListedMost = 200;
constexpr std::uint64_t kCommandsListedMost = 100'000;  // about 15,000 sheets

std::vector<ListedField> fields_of(decoder::Command command, std::span<const std::uint8_t> bytes) {
  std::vector<ListedField> fields;
  for (const decoder::FieldRule& rule : decoder::field_rules(command)) {
    fields.push_back({&rule, decoder::read_field(bytes, rule)});
  }
  return fields;
}

// Inspects one stream, which may consist of several connections, one after the other.
class StreamInspector : private decoder::CommandListener {
 public:
  /// The listing must outlive the inspector.
  explicit StreamInspector(StreamListing& listing) : listing_(listing), parser_(*this) {}

  /// Takes the next bytes of the stream.
  void Feed(std::span<const std::uint8_t> bytes) { parser_.Feed(bytes); }

  /// Ends the stream and finishes the listing. Feed nothing afterwards.
  const StreamTotals& Finish() {
    parser_.EndOfStream();
    totals_.bytes = parser_.Offset();
    listing_.Finish(totals_);
    return totals_;
  }

 private:
  // After so many errors a stream is garbage, and its commands are of no use to a person either.
  bool ListsStill() const {
    return totals_.errors <= kErrorsListedMost && totals_.commands <= kCommandsListedMost;
  }

  void OnCommandBytes(std::uint64_t offset, decoder::Command command,
                      std::span<const std::uint8_t> bytes) override {
    ++totals_.commands;
    if (ListsStill()) {
      listing_.Add(ListedCommand{offset, command, fields_of(command, bytes)});
    } else {
      ++totals_.commandsUnlisted;
    }
  }

  void OnImageHeader(std::uint64_t offset, const decoder::ImageHeader& /*header*/) override {
    planeOffset_ = offset + decoder::kBlockLength;
  }

  void OnSheetBegin(const decoder::Sheet& sheet) override {
    image_ = sheet.image;
    const std::uint64_t bytes = decoder::kBytesPerPixel * image_.width * image_.height;
    if (ListsStill()) {
      listing_.Add(ListedPlane{planeOffset_, decoder::Command::ImageData, image_.width,
                               image_.height, bytes});
    }
    planeOffset_ += bytes;
  }

  void OnImageRow(std::uint32_t row, std::span<const std::uint16_t> /*samples*/) override {
    if (row + 1 == image_.height && image_.matteHeight > 0 && ListsStill()) {
      const std::uint64_t bytes = std::uint64_t{image_.matteWidth} * image_.matteHeight;
      listing_.Add(ListedPlane{planeOffset_, decoder::Command::MatteData, image_.matteWidth,
                               image_.matteHeight, bytes});
    }
  }

  void OnSheetEnd(const decoder::SheetEnd& end) override {
    ++totals_.sheets;
    totals_.badSamples += end.badSamples;
  }

  void OnPrintOut(std::uint64_t /*offset*/, std::uint8_t /*waitByte*/) override {
    ++totals_.printOuts;
  }

  void OnError(const decoder::StreamError& error) override {
    ++totals_.errors;
    if (ListsStill()) {
      listing_.Add(error);
    } else {
      ++totals_.errorsUnlisted;
    }
  }

  void OnSkipped(std::uint64_t offset, std::uint64_t count) override {
    if (ListsStill()) {
      listing_.AddSkipped(offset, count);
    }
  }

  StreamListing& listing_;
  decoder::StreamParser parser_;
  StreamTotals totals_;
  std::uint64_t planeOffset_ = 0;
  decoder::ImageHeader image_{};
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
      program.Add("inspect", "list a captured command stream and check it against the protocol");
  const auto options = std::make_shared<Options>();
  sub.Text("FILE", options->file, "the stream; - is the standard input").Required();
  sub.Flag("--brief", options->brief, "leave the fields of the commands out");
  sub.Flag("--json", options->json, "write one JSON document");
  sub.Runs([options] { return inspect(*options); });
}

}  // namespace tools
