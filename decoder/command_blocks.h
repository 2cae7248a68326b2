// SPDX-License-Identifier: Apache-2.0
//
// The commands byte by byte: the table of each command's fields, and records for the fields of a
// header.
#ifndef TQR7_DECODER_COMMAND_BLOCKS_H
#define TQR7_DECODER_COMMAND_BLOCKS_H

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "decoder/block_fields.h"

namespace decoder {

inline constexpr std::uint8_t kFinishGloss = 0;
inline constexpr std::uint8_t kFinishMatte = 3;

/// The body that the job header and the readiness query share. Distances are in dots.
struct JobHeader {
  std::uint16_t sheetWidth;
  std::uint16_t sheetHeight;
  std::uint8_t waitByte;  ///< waiting time for a next image; 0xFF: do not wait
  std::uint8_t marginCutOff;
  std::uint8_t twoUpMode;
  std::uint16_t twoUpSplit;  ///< line at which the two prints of a sheet meet
  std::uint8_t twoUpOption;
  std::uint8_t finish;
  std::uint8_t printMode;
  std::uint8_t rgbRate;
  std::uint8_t opRate;
};

/// The image header: place and size of the image, size of the matte plane, local time.
struct ImageHeader {
  std::uint8_t flag;
  std::uint16_t left;
  std::uint16_t top;
  std::uint16_t width;
  std::uint16_t height;
  std::uint16_t matteWidth;
  std::uint16_t matteHeight;
  std::uint16_t year;
  std::uint8_t month;
  std::uint8_t day;
  std::uint8_t hour;
  std::uint8_t minute;
  std::uint8_t second;
};

// Offsets of fields that more than one check needs.
inline constexpr std::uint16_t kOffsetSheetWidth = 6;
inline constexpr std::uint16_t kOffsetSheetHeight = 8;
inline constexpr std::uint16_t kOffsetTwoUpMode = 15;
inline constexpr std::uint16_t kOffsetTwoUpSplit = 16;
inline constexpr std::uint16_t kOffsetTwoUpOption = 18;
inline constexpr std::uint16_t kOffsetRgbRate = 81;
inline constexpr std::uint16_t kOffsetOpRate = 82;
inline constexpr std::uint16_t kOffsetImageLeft = 6;
inline constexpr std::uint16_t kOffsetImageTop = 8;
inline constexpr std::uint16_t kOffsetImageWidth = 10;
inline constexpr std::uint16_t kOffsetImageHeight = 12;
inline constexpr std::uint16_t kOffsetMatteWidth = 20;
inline constexpr std::uint16_t kOffsetMatteHeight = 22;
inline constexpr std::uint16_t kOffsetDay = 35;
inline constexpr std::uint16_t kOffsetPrintOutWait = 5;

/// The fields of a command, in ascending order, from the byte after its fixed code bytes on.
std::span<const FieldRule> field_rules(Command command);

/// A field's name in the documentation, and its value: "sheet width", "1852".
struct NamedField {
  std::string name;
  std::string value;

  bool operator==(const NamedField&) const = default;
};

/// All fields of a whole command as a person reads them, in the order of its bytes, whatever their
/// values.
std::vector<NamedField> named_fields(Command command, std::span<const std::uint8_t> bytes);

/// Reads the fields of a whole block of 512 bytes, whatever their values.
JobHeader read_job_header(std::span<const std::uint8_t> block);
ImageHeader read_image_header(std::span<const std::uint8_t> block);

/// Reads the wait byte of a whole print-out command.
std::uint8_t read_print_out_wait(std::span<const std::uint8_t> command);

}  // namespace decoder

#endif  // TQR7_DECODER_COMMAND_BLOCKS_H
