// SPDX-License-Identifier: Apache-2.0
#include <nlohmann/json.hpp>

#include "tools/json_output.h"
#include "tools/stream_listing.h"

namespace tools {
namespace {

using Json = nlohmann::ordered_json;

// "margin cut-off" as a key: "margin_cut_off".
std::string key_of(std::string name) {
  for (char& letter : name) {
    if (letter == ' ' || letter == '-') {
      letter = '_';
    } else if (letter >= 'A' && letter <= 'Z') {
      letter = static_cast<char>(letter - 'A' + 'a');
    }
  }
  return name;
}

class JsonListing : public StreamListing {
 public:
  JsonListing(std::FILE* out, const std::string& name) : out_(out) { document_["file"] = name; }

  void Add(const ListedCommand& command) override {
    Json fields = Json::object();
    for (const ListedField& field : command.fields) {
      fields[key_of(field.rule->name)] = field.value;
    }
    commands_.push_back({{"offset", command.offset},
                         {"command", to_string(command.command)},
                         {"fields", std::move(fields)}});
  }

  void Add(const ListedPlane& plane) override {
    commands_.push_back({{"offset", plane.offset},
                         {"command", to_string(plane.command)},
                         {"width", plane.width},
                         {"height", plane.height},
                         {"bytes", plane.bytes}});
  }

  void Add(const decoder::StreamError& error) override {
    errors_.push_back({{"offset", error.offset},
                       {"command", to_string(error.command)},
                       {"field", error.field},
                       {"came", error.came},
                       {"allowed", error.allowed}});
  }

  void AddSkipped(std::uint64_t offset, std::uint64_t count) override {
    skipped_.push_back({{"offset", offset}, {"bytes", count}});
  }

  void Finish(const StreamTotals& totals) override {
    document_["clean"] = totals.Clean();
    document_["bytes"] = totals.bytes;
    document_["command_count"] = totals.commands;
    document_["sheet_count"] = totals.sheets;
    document_["print_out_count"] = totals.printOuts;
    document_["error_count"] = totals.errors;
    document_["bad_sample_count"] = totals.badSamples;
    document_["commands_not_listed"] = totals.commandsUnlisted;
    document_["errors_not_listed"] = totals.errorsUnlisted;
    document_["commands"] = std::move(commands_);
    document_["errors"] = std::move(errors_);
    document_["skipped"] = std::move(skipped_);
    print_json(out_, document_);
  }

 private:
  std::FILE* out_;
  Json document_ = Json::object();
  Json commands_ = Json::array();
  Json errors_ = Json::array();
  Json skipped_ = Json::array();
};

}  // namespace

std::unique_ptr<StreamListing> make_json_listing(std::FILE* out, const std::string& name) {
  return std::make_unique<JsonListing>(out, name);
}

}  // namespace tools
