// SPDX-License-Identifier: Apache-2.0
//
// What is listed of a command stream, and the two forms of the list: lines for people, and one JSON
// document for programs.
#ifndef TQR7_TOOLS_STREAM_LISTING_H
#define TQR7_TOOLS_STREAM_LISTING_H

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "decoder/block_fields.h"
#include "decoder/stream_error.h"

namespace tools {

/// A field's value and its rule.
struct ListedField {
  const decoder::FieldRule* rule;
  std::uint16_t value;
};

/// A command with a code of its own.
struct ListedCommand {
  std::uint64_t offset;
  decoder::Command command;
  std::vector<ListedField> fields;
};

/// Image or matte data, as the header before it describes it.
struct ListedPlane {
  std::uint64_t offset;
  decoder::Command command;
  std::uint16_t width;
  std::uint16_t height;
  std::uint64_t bytes;
};

/// The whole stream in numbers.
struct StreamTotals {
  std::uint64_t bytes = 0;
  std::uint64_t commands = 0;  ///< with a code of their own
  std::uint64_t sheets = 0;    ///< that are whole
  std::uint64_t printOuts = 0;
  std::uint64_t errors = 0;
  std::uint64_t badSamples = 0;      ///< samples above 0x3FFF, which is no error
  std::uint64_t errorsUnlisted = 0;  ///< those of `errors` that the list has no space for
  std::uint64_t commandsUnlisted = 0;

  /// Whether there is no error, and the stream is not empty.
  bool Clean() const { return errors == 0 && bytes > 0; }
};

/// Lists what it gets, in the order of the stream.
class StreamListing {
 public:
  StreamListing() = default;
  StreamListing(const StreamListing&) = delete;
  StreamListing& operator=(const StreamListing&) = delete;
  virtual ~StreamListing() = default;

  virtual void Add(const ListedCommand& command) = 0;
  virtual void Add(const ListedPlane& plane) = 0;
  virtual void Add(const decoder::StreamError& error) = 0;
  virtual void AddSkipped(std::uint64_t offset, std::uint64_t count) = 0;
  /// Ends the list. Nothing is added afterwards.
  virtual void Finish(const StreamTotals& totals) = 0;
};

/// Makes lines, without the fields of the commands when `brief`.
std::unique_ptr<StreamListing> make_text_listing(std::FILE* out, bool brief);

/// Makes one JSON document, which Finish writes. `name` is the file's, as the person gave it.
std::unique_ptr<StreamListing> make_json_listing(std::FILE* out, const std::string& name);

/// The field's value as messages write it: decimal, or "0x" and two hexadecimal digits.
std::string value_text(const ListedField& field);

/// What the value means, if that is known: "matte", "fast", "no wait"; otherwise empty.
std::string value_meaning(const ListedField& field);

}  // namespace tools

#endif  // TQR7_TOOLS_STREAM_LISTING_H
