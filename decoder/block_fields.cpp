// SPDX-License-Identifier: Apache-2.0
#include "decoder/block_fields.h"

namespace decoder {
namespace {

bool fits(std::uint16_t value, const Allowed& allowed) {
  switch (allowed.kind) {
    case Allowed::Kind::Any:
      return true;
    case Allowed::Kind::Exactly:
    case Allowed::Kind::Either:
      return value == allowed.first || value == allowed.second;
    case Allowed::Kind::Range:
      return value >= allowed.first && value <= allowed.second;
  }
  return false;
}

std::string allowed_words(const Allowed& allowed, Notation notation) {
  std::string first = value_words(allowed.first, notation);
  const std::string second = value_words(allowed.second, notation);
  switch (allowed.kind) {
    case Allowed::Kind::Any:
      return "any value";
    case Allowed::Kind::Exactly:
      return first;
    case Allowed::Kind::Either:
      return first + " or " + second;
    case Allowed::Kind::Range:
      return first + " to " + second;
  }
  return {};
}

// Reports one error for the whole run, at its first wrong byte, so that a block of garbage makes
// only a few lines.
void check_zero_run(std::span<const std::uint8_t> block, std::size_t from, std::size_t end,
                    Command command, std::uint64_t blockOffset, const ErrorSink& report) {
  std::size_t firstWrong = end;
  std::size_t wrongBytes = 0;
  for (std::size_t at = from; at < end; ++at) {
    if (block[at] != 0) {
      firstWrong = wrongBytes == 0 ? at : firstWrong;
      ++wrongBytes;
    }
  }
  if (wrongBytes == 0) {
    return;
  }
  std::string came = hex_byte(block[firstWrong]);
  if (wrongBytes > 1) {
    came += " and " + std::to_string(wrongBytes - 1) + " more that are not zero";
  }
  report({blockOffset + firstWrong, command, "zero fill byte " + std::to_string(firstWrong), came,
          "0x00"});
}

}  // namespace

std::uint16_t read_byte(std::span<const std::uint8_t> block, std::size_t offset) {
  return block[offset];
}

std::uint16_t read_number(std::span<const std::uint8_t> block, std::size_t offset) {
  return static_cast<std::uint16_t>(block[offset] << 8U | block[offset + 1]);
}

std::uint16_t read_field(std::span<const std::uint8_t> block, const FieldRule& rule) {
  return rule.size == 1 ? read_byte(block, rule.offset) : read_number(block, rule.offset);
}

std::string value_words(std::uint16_t value, Notation notation) {
  return notation == Notation::Hex ? hex_byte(value) : std::to_string(value);
}

void check_fields(std::span<const std::uint8_t> block, std::size_t start,
                  std::span<const FieldRule> rules, Command command, std::uint64_t blockOffset,
                  const ErrorSink& report) {
  std::size_t checked = start;
  for (const FieldRule& rule : rules) {
    check_zero_run(block, checked, rule.offset, command, blockOffset, report);
    const std::uint16_t value = read_field(block, rule);
    if (!fits(value, rule.allowed)) {
      report({blockOffset + rule.offset, command, rule.name, value_words(value, rule.notation),
              allowed_words(rule.allowed, rule.notation)});
    }
    checked = static_cast<std::size_t>(rule.offset) + rule.size;
  }
  check_zero_run(block, checked, block.size(), command, blockOffset, report);
}

std::string field_name(std::span<const FieldRule> rules, std::size_t offset) {
  for (const FieldRule& rule : rules) {
    if (offset >= rule.offset && offset < static_cast<std::size_t>(rule.offset) + rule.size) {
      return rule.name;
    }
  }
  return "zero fill byte " + std::to_string(offset);
}

}  // namespace decoder
