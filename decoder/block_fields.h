// SPDX-License-Identifier: Apache-2.0
//
// A command's bytes held against a table of its fields. What the table does not list must be zero.
#ifndef TQR7_DECODER_BLOCK_FIELDS_H
#define TQR7_DECODER_BLOCK_FIELDS_H

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "decoder/stream_error.h"

namespace decoder {

/// The values a field may take by itself.
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

/// The byte, or the big-endian number of two bytes, at a place of the block.
std::uint16_t read_byte(std::span<const std::uint8_t> block, std::size_t offset);
std::uint16_t read_number(std::span<const std::uint8_t> block, std::size_t offset);

/// The value that the block has in the field.
std::uint16_t read_field(std::span<const std::uint8_t> block, const FieldRule& rule);

/// The value as the messages write it: "18", or two hexadecimal digits behind "0x".
std::string value_words(std::uint16_t value, Notation notation);

/// Holds the block's bytes from `start` on against the rules, which must be in ascending order and
/// inside the block. Each wrong field, and each run of bytes that should be zero, gives one error.
void check_fields(std::span<const std::uint8_t> block, std::size_t start,
                  std::span<const FieldRule> rules, Command command, std::uint64_t blockOffset,
                  const ErrorSink& report);

/// The name of the field that a byte of the block belongs to.
std::string field_name(std::span<const FieldRule> rules, std::size_t offset);

}  // namespace decoder

#endif  // TQR7_DECODER_BLOCK_FIELDS_H
