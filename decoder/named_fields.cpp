// SPDX-License-Identifier: Apache-2.0
#include "decoder/named_fields.h"

#include "decoder/command_blocks.h"

namespace decoder {

std::vector<NamedField> named_fields(Command command, std::span<const std::uint8_t> bytes) {
  std::vector<NamedField> fields;
  for (const FieldRule& rule : field_rules(command)) {
    const std::uint16_t value =
        rule.size == 1 ? read_byte(bytes, rule.offset) : read_number(bytes, rule.offset);
    fields.push_back(
        {rule.name, rule.notation == Notation::Hex ? hex_byte(value) : std::to_string(value)});
  }
  return fields;
}

}  // namespace decoder
