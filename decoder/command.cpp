// SPDX-License-Identifier: Apache-2.0
#include "decoder/command.h"

#include <algorithm>

namespace decoder {
namespace {

constexpr std::size_t kStatusRequestLength = 8;
constexpr std::size_t kPrintOutLength = 6;

// The image header's fourth byte is a flag, checked with its other fields.
constexpr std::array<CommandCode, 5> kCodes{{
    {Command::StatusRequest, {0x1B, 'G', 'D', '0'}, 4, kStatusRequestLength},
    {Command::ReadinessQuery, {0x1B, 'G', 'D', '3'}, 4, kBlockLength},
    {Command::JobHeader, {0x1B, 'S', 'P', '0'}, 4, kBlockLength},
    {Command::ImageHeader, {0x1B, 'Z', 'T', 0x01}, 3, kBlockLength},
    {Command::PrintOut, {0x1B, 'B', 'Q', '1'}, 4, kPrintOutLength},
}};

bool begins_with(const CommandCode& code, std::span<const std::uint8_t> bytes) {
  const auto count = static_cast<std::ptrdiff_t>(std::min(bytes.size(), code.fixedBytes));
  return std::equal(bytes.begin(), bytes.begin() + count, code.bytes.begin());
}

}  // namespace

const char* to_string(Command command) {
  switch (command) {
    case Command::None:
      return "stream";
    case Command::StatusRequest:
      return "status request";
    case Command::ReadinessQuery:
      return "readiness query";
    case Command::JobHeader:
      return "job header";
    case Command::ImageHeader:
      return "image header";
    case Command::ImageData:
      return "image data";
    case Command::MatteData:
      return "matte data";
    case Command::PrintOut:
      return "print-out";
  }
  return "unknown";
}

std::span<const CommandCode> command_codes() {
  return kCodes;
}

const CommandCode* find_code(std::span<const std::uint8_t> fourBytes) {
  if (fourBytes.size() < kCodeLength) {
    return nullptr;
  }
  const auto* const found =
      std::find_if(kCodes.begin(), kCodes.end(),
                   [fourBytes](const CommandCode& code) { return begins_with(code, fourBytes); });
  return found == kCodes.end() ? nullptr : &*found;
}

bool is_code_prefix(std::span<const std::uint8_t> bytes) {
  return std::any_of(kCodes.begin(), kCodes.end(),
                     [bytes](const CommandCode& code) { return begins_with(code, bytes); });
}

}  // namespace decoder
