// SPDX-License-Identifier: Apache-2.0
//
// Checks a command's bytes against a table of its fields. Bytes that are not in the table must be
// zero.
#ifndef TQR7_DECODER_BLOCK_FIELDS_H
#define TQR7_DECODER_BLOCK_FIELDS_H

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "decoder/stream_error.h"

namespace decoder {

/// The values that a field may have, whatever the other fields say.
struct Allowed {
  enum class Kind : std::uint8_t { Any, Exactly, Either, Range };
  Kind kind;
  std::uint16_t first;
  std::uint16_t second;
};

constexpr Allowed any() {
  return {Allowed::Kind::Any, 0, 0};
}
constexpr Allowed exactly(std::uint16_t value) {
  return {Allowed::Kind::Exactly, value, value};
}
constexpr Allowed either(std::uint16_t one, std::uint16_t other) {
  return {Allowed::Kind::Either, one, other};
}
constexpr Allowed range(std::uint16_t low, std::uint16_t high) {
  return {Allowed::Kind::Range, low, high};
}

/// How a field's values are written in messages.
enum class Notation : std::uint8_t { Decimal, Hex };

/// One row of a command's table.
struct FieldRule {
  std::uint16_t offset;  ///< in the command
  std::uint16_t size;    ///< 1, or 2 for a big-endian number
  const char* name;
  Notation notation;
  Allowed allowed;
};

/// Reads a byte, or a big-endian number of two bytes, at a place in the block.
std::uint16_t read_byte(std::span<const std::uint8_t> block, std::size_t offset);
std::uint16_t read_number(std::span<const std::uint8_t> block, std::size_t offset);

/// Reads the value of a field.
std::uint16_t read_field(std::span<const std::uint8_t> block, const FieldRule& rule);

/// The value as messages write it: "18" or "0x12".
std::string value_words(std::uint16_t value, Notation notation);

/// Checks the block's bytes from `start` on against the rules, which must be in ascending order and
/// inside the block. Reports one error for each wrong field, and one for each run of bytes between
/// fields that are not all zero.
void check_fields(std::span<const std::uint8_t> block, std::size_t start,
                  std::span<const FieldRule> rules, Command command, std::uint64_t blockOffset,
                  const ErrorSink& report);

/// The name of the field that a byte of the block belongs to.
std::string field_name(std::span<const FieldRule> rules, std::size_t offset);

}  // namespace decoder

#endif  // TQR7_DECODER_BLOCK_FIELDS_H
