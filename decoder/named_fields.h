// SPDX-License-Identifier: Apache-2.0
//
// A command's fields by their names, as a person reads them.
#ifndef TQR7_DECODER_NAMED_FIELDS_H
#define TQR7_DECODER_NAMED_FIELDS_H

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "decoder/command.h"

namespace decoder {

/// A field's name in the documentation, and its value: "sheet width", "1852".
struct NamedField {
  std::string name;
  std::string value;

  bool operator==(const NamedField&) const = default;
};

/// All fields of a whole command, in the order of its bytes; whatever their values.
std::vector<NamedField> named_fields(Command command, std::span<const std::uint8_t> bytes);

}  // namespace decoder

#endif  // TQR7_DECODER_NAMED_FIELDS_H
