// SPDX-License-Identifier: Apache-2.0
#include "tools/exif.h"

#include <cstddef>
#include <optional>

namespace tools {
namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::size_t kOffsetFirstDirectory = 4;
constexpr std::size_t kEntryLength = 12;
constexpr std::size_t kOffsetType = 2;   ///< in an entry
constexpr std::size_t kOffsetCount = 4;  ///< in an entry
constexpr std::size_t kOffsetValue = 8;  ///< in an entry
constexpr std::uint32_t kTagOrientation = 0x0112;
constexpr std::uint32_t kTypeShort = 3;
constexpr int kLastOrientation = 8;

// Numbers at places that may lie anywhere, in the file's byte order.
class Tiff {
 public:
  Tiff(Bytes bytes, bool littleEndian) : bytes_(bytes), littleEndian_(littleEndian) {}

  std::optional<std::uint32_t> Number(std::size_t offset, std::size_t size) const {
    if (offset > bytes_.size() || size > bytes_.size() - offset) {
      return std::nullopt;
    }
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < size; ++i) {
      const std::size_t place = littleEndian_ ? size - 1 - i : i;
      number = number * 256U + bytes_[offset + place];
    }
    return number;
  }

 private:
  Bytes bytes_;
  bool littleEndian_;
};

bool is_orientation(const Tiff& tiff, std::size_t entry) {
  return tiff.Number(entry, 2) == kTagOrientation &&
         tiff.Number(entry + kOffsetType, 2) == kTypeShort &&
         tiff.Number(entry + kOffsetCount, 4) == 1U;
}

}  // namespace

int exif_orientation(Bytes bytes) {
  if (bytes.size() < kOffsetFirstDirectory || bytes[0] != bytes[1] ||
      (bytes[0] != 'I' && bytes[0] != 'M')) {
    return kExifUpright;
  }
  const Tiff tiff(bytes, bytes[0] == 'I');
  constexpr std::uint32_t kTiff = 42;
  const std::optional<std::uint32_t> directory = tiff.Number(kOffsetFirstDirectory, 4);
  if (tiff.Number(2, 2) != kTiff || !directory) {
    return kExifUpright;
  }
  const std::uint32_t entries = tiff.Number(*directory, 2).value_or(0);
  for (std::uint32_t i = 0; i < entries; ++i) {
    const std::size_t entry = std::size_t{*directory} + 2 + i * kEntryLength;
    if (is_orientation(tiff, entry)) {
      const auto value = static_cast<int>(tiff.Number(entry + kOffsetValue, 2).value_or(0));
      return value >= 1 && value <= kLastOrientation ? value : kExifUpright;
    }
  }
  return kExifUpright;
}

const char* exif_orientation_words(int orientation) {
  switch (orientation) {
    case 2:
      return "mirrored left to right";
    case 3:
      return "turned by 180 degrees";
    case 4:
      return "mirrored top to bottom";
    case 5:
      return "turned by 90 degrees clockwise and mirrored left to right";
    case 6:
      return "turned by 90 degrees clockwise";
    case 7:
      return "turned by 90 degrees counter-clockwise and mirrored left to right";
    case 8:
      return "turned by 90 degrees counter-clockwise";
    default:
      return "";
  }
}

}  // namespace tools
