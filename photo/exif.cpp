// SPDX-License-Identifier: Apache-2.0
#include "photo/exif.h"

#include <cstddef>
#include <optional>

namespace photo {
namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::size_t kOffsetFirstDirectory = 4;
constexpr std::size_t kEntryLength = 12;
constexpr std::size_t kOffsetType = 2;   ///< in an entry
constexpr std::size_t kOffsetCount = 4;  ///< in an entry
constexpr std::size_t kOffsetValue = 8;  ///< in an entry
constexpr std::uint32_t kTagOrientation = 0x0112;
constexpr std::uint32_t kTagAcross = 0x011A;
constexpr std::uint32_t kTagDown = 0x011B;
constexpr std::uint32_t kTagExif = 0x8769;      ///< the place of the camera's own directory
constexpr std::uint32_t kTagExchange = 0xA005;  ///< there: the place of the directory on exchange
constexpr std::uint32_t kTagExchangeIndex = 1;  ///< there: the mark
constexpr std::uint32_t kTypeText = 2;
constexpr std::uint32_t kTypeShort = 3;
constexpr std::uint32_t kTypeLong = 4;
constexpr std::uint32_t kTypeFraction = 5;
constexpr int kLastOrientation = 8;

// Reads numbers in the file's byte order, at places that may be outside the file.
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

struct Field {
  std::uint32_t tag;
  std::uint32_t type;
  std::uint32_t count = 1;
};

bool is_field(const Tiff& tiff, std::size_t entry, const Field& field) {
  return tiff.Number(entry, 2) == field.tag && tiff.Number(entry + kOffsetType, 2) == field.type &&
         tiff.Number(entry + kOffsetCount, 4) == field.count;
}

// Returns the place of a field's value, or of the number that says where the value is.
std::optional<std::size_t> find_in(const Tiff& tiff, std::size_t directory, const Field& field) {
  const std::uint32_t entries = tiff.Number(directory, 2).value_or(0);
  for (std::uint32_t i = 0; i < entries; ++i) {
    const std::size_t entry = directory + 2 + i * kEntryLength;
    if (is_field(tiff, entry, field)) {
      return entry + kOffsetValue;
    }
  }
  return std::nullopt;
}

// The same for the first directory.
std::optional<std::size_t> find_field(const Tiff& tiff, std::uint32_t tag, std::uint32_t type) {
  constexpr std::uint32_t kTiff = 42;
  const std::optional<std::uint32_t> directory = tiff.Number(kOffsetFirstDirectory, 4);
  if (tiff.Number(2, 2) != kTiff || !directory) {
    return std::nullopt;
  }
  return find_in(tiff, *directory, {tag, type});
}

std::optional<Tiff> open_tiff(Bytes bytes) {
  if (bytes.size() < kOffsetFirstDirectory || bytes[0] != bytes[1] ||
      (bytes[0] != 'I' && bytes[0] != 'M')) {
    return std::nullopt;
  }
  return Tiff(bytes, bytes[0] == 'I');
}

// A fraction's whole part; 0 where there is none.
std::uint32_t whole_part(const Tiff& tiff, std::uint32_t tag) {
  const std::optional<std::size_t> field = find_field(tiff, tag, kTypeFraction);
  const std::uint32_t place = field ? tiff.Number(*field, 4).value_or(0) : 0;
  const std::uint32_t above = place > 0 ? tiff.Number(place, 4).value_or(0) : 0;
  const std::uint32_t below = place > 0 ? tiff.Number(std::size_t{place} + 4, 4).value_or(0) : 0;
  return below > 0 ? above / below : 0;
}

}  // namespace

int exif_orientation(Bytes bytes) {
  const std::optional<Tiff> tiff = open_tiff(bytes);
  const std::optional<std::size_t> field =
      tiff ? find_field(*tiff, kTagOrientation, kTypeShort) : std::nullopt;
  const auto value = field ? static_cast<int>(tiff->Number(*field, 2).value_or(0)) : 0;
  return value >= 1 && value <= kLastOrientation ? value : kExifUpright;
}

PixelDensity exif_density(Bytes bytes) {
  const std::optional<Tiff> tiff = open_tiff(bytes);
  if (!tiff) {
    return {};
  }
  return {whole_part(*tiff, kTagAcross), whole_part(*tiff, kTagDown)};
}

bool exif_says_adobe_rgb(Bytes bytes) {
  constexpr std::uint32_t kAdobeRgb = 0x52303300;  // "R03"
  const std::optional<Tiff> tiff = open_tiff(bytes);
  const std::optional<std::size_t> camera =
      tiff ? find_field(*tiff, kTagExif, kTypeLong) : std::nullopt;
  const std::optional<std::size_t> exchange =
      camera ? find_in(*tiff, tiff->Number(*camera, 4).value_or(0), {kTagExchange, kTypeLong})
             : std::nullopt;
  const std::optional<std::size_t> index =
      exchange ? find_in(*tiff, tiff->Number(*exchange, 4).value_or(0),
                         {kTagExchangeIndex, kTypeText, 4})
               : std::nullopt;
  if (!index || *index + 4 > bytes.size()) {
    return false;
  }
  const Tiff text(bytes, false);
  return text.Number(*index, 4) == kAdobeRgb;
}

}  // namespace photo
