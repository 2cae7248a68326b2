// SPDX-License-Identifier: Apache-2.0
//
// What there is to list of a command stream, and the two forms in which it is listed: lines for
// people, one JSON document for programs.
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

/// A field's value beside its rule.
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

/// Image or matte data as the header before them announced them.
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
  std::uint64_t commands = 0;  ///< those with a code of their own
  std::uint64_t sheets = 0;    ///< whole ones
  std::uint64_t printOuts = 0;
  std::uint64_t errors = 0;
  std::uint64_t badSamples = 0;      ///< samples above 0x3FFF, which is no error
  std::uint64_t errorsUnlisted = 0;  ///< of `errors`, those beyond the list's length
  std::uint64_t commandsUnlisted = 0;

  /// No error, and not empty.
  bool Clean() const { return errors == 0 && bytes > 0; }
};

/// Takes what is listed, in the order of the stream.
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
  /// The stream is at its end, and nothing more is added.
  virtual void Finish(const StreamTotals& totals) = 0;
};

/// Lines on a stream; without the fields of the commands when `brief`.
std::unique_ptr<StreamListing> make_text_listing(std::FILE* out, bool brief);

/// One JSON document on a stream, written by Finish. `name` is the file's, as it was given.
std::unique_ptr<StreamListing> make_json_listing(std::FILE* out, const std::string& name);

/// The field's value as the messages write it: decimal, or two hexadecimal digits behind "0x".
std::string value_text(const ListedField& field);

/// What the value stands for, where it is known: "matte", "fast", "no wait"; empty otherwise.
std::string value_meaning(const ListedField& field);

}  // namespace tools

#endif  // TQR7_TOOLS_STREAM_LISTING_H
