// SPDX-License-Identifier: Apache-2.0
#include "decoder/named_fields.h"

#include "decoder/command_blocks.h"

namespace decoder {

std::vector<NamedField> named_fields(Command command, std::span<const std::uint8_t> bytes) {
  std::vector<NamedField> fields;
  for (const FieldRule& rule : field_rules(command)) {
    fields.push_back({rule.name, value_words(read_field(bytes, rule), rule.notation)});
  }
  return fields;
}

}  // namespace decoder
