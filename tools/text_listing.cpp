// SPDX-License-Identifier: Apache-2.0
#include <cinttypes>
#include <string_view>

#include "simulator/wording.h"
#include "tools/stream_listing.h"

namespace tools {
namespace {

using simulator::counted;

// A field that can have one value only says nothing; when the value is wrong, there is an error.
bool worth_listing(const ListedField& field) {
  return field.rule->allowed.kind != decoder::Allowed::Kind::Exactly;
}

class TextListing : public StreamListing {
 public:
  TextListing(std::FILE* out, bool brief) : out_(out), brief_(brief) {}

  void Add(const ListedCommand& command) override {
    std::fprintf(out_, "offset %" PRIu64 ": %s\n", command.offset, to_string(command.command));
    for (const ListedField& field : command.fields) {
      if (!brief_ && worth_listing(field)) {
        const std::string meaning = value_meaning(field);
        std::fprintf(out_, "  %s: %s%s\n", field.rule->name, value_text(field).c_str(),
                     meaning.empty() ? "" : (" (" + meaning + ")").c_str());
      }
    }
  }

  void Add(const ListedPlane& plane) override {
    std::fprintf(out_, "offset %" PRIu64 ": %s, %u x %u dots, %" PRIu64 " bytes\n", plane.offset,
                 to_string(plane.command), unsigned{plane.width}, unsigned{plane.height},
                 plane.bytes);
  }

  void Add(const decoder::StreamError& error) override {
    std::fprintf(out_, "error: %s\n", to_string(error).c_str());
  }

  void AddSkipped(std::uint64_t offset, std::uint64_t count) override {
    std::fprintf(out_, "offset %" PRIu64 ": %s passed over\n", offset,
                 counted(count, "byte").c_str());
  }

  void Finish(const StreamTotals& totals) override {
    if (totals.errorsUnlisted > 0 || totals.commandsUnlisted > 0) {
      std::fprintf(out_, "not listed: %s, %s\n",
                   counted(totals.commandsUnlisted, "command").c_str(),
                   counted(totals.errorsUnlisted, "error").c_str());
    }
    if (totals.badSamples > 0) {
      std::fprintf(out_, "note: %s above 0x3FFF\n", counted(totals.badSamples, "sample").c_str());
    }
    if (totals.bytes == 0) {
      std::fprintf(out_, "empty: no bytes, no commands\n");
      return;
    }
    std::fprintf(
        out_, "%s, %s, %s, %s, %s\n", counted(totals.bytes, "byte").c_str(),
        counted(totals.commands, "command").c_str(), counted(totals.sheets, "sheet").c_str(),
        counted(totals.printOuts, "print-out").c_str(), counted(totals.errors, "error").c_str());
  }

 private:
  std::FILE* out_;
  bool brief_;
};

}  // namespace

std::string value_text(const ListedField& field) {
  return decoder::value_words(field.value, field.rule->notation);
}

std::string value_meaning(const ListedField& field) {
  struct Known {
    std::string_view name;
    std::uint16_t value;
    const char* meaning;
  };
  constexpr Known kKnown[] = {
      {"finish", 0, "gloss"},    {"finish", 3, "matte"},        {"print mode", 0, "auto"},
      {"print mode", 5, "fast"}, {"wait byte", 255, "no wait"},
  };
  for (const Known& known : kKnown) {
    if (known.name == field.rule->name && known.value == field.value) {
      return known.meaning;
    }
  }
  return {};
}

std::unique_ptr<StreamListing> make_text_listing(std::FILE* out, bool brief) {
  return std::make_unique<TextListing>(out, brief);
}

}  // namespace tools
