// SPDX-License-Identifier: Apache-2.0
#include "decoder/command_blocks.h"

#include <array>

namespace decoder {
namespace {

using enum Notation;

constexpr std::uint16_t kOffsetWait = 10;
constexpr std::uint16_t kOffsetMarginCutOff = 14;
constexpr std::uint16_t kOffsetFinish = 48;
constexpr std::uint16_t kOffsetPrintMode = 49;

constexpr std::uint16_t kOffsetFlag = 3;
constexpr std::uint16_t kOffsetYear = 32;
constexpr std::uint16_t kOffsetMonth = 34;
constexpr std::uint16_t kOffsetHour = 36;
constexpr std::uint16_t kOffsetMinute = 37;
constexpr std::uint16_t kOffsetSecond = 38;

constexpr std::array<FieldRule, 4> kStatusRequestFields{{
    {4, 1, "fixed byte 4", Hex, exactly(0x00)},
    {5, 1, "fixed byte 5", Hex, exactly(0x00)},
    {6, 1, "fixed byte 6", Hex, exactly(0x01)},
    {7, 1, "fixed byte 7", Hex, exactly(0x16)},
}};

// The sheet's size and the two-up fields are checked in header_check.
constexpr std::array<FieldRule, 16> kJobHeaderFields{{
    {4, 1, "fixed byte 4", Hex, exactly(0x00)},
    {5, 1, "fixed byte 5", Hex, exactly(0x33)},
    {kOffsetSheetWidth, 2, "sheet width", Decimal, any()},
    {kOffsetSheetHeight, 2, "sheet height", Decimal, any()},
    {kOffsetWait, 1, "wait byte", Decimal, any()},
    {kOffsetMarginCutOff, 1, "margin cut-off", Decimal, either(0, 1)},
    {kOffsetTwoUpMode, 1, "two-up mode", Decimal, either(0, 1)},
    {kOffsetTwoUpSplit, 2, "two-up split", Decimal, either(0, 616)},
    {kOffsetTwoUpOption, 1, "two-up option", Decimal, either(0, 1)},
    {kOffsetFinish, 1, "finish", Decimal, either(kFinishGloss, kFinishMatte)},
    {kOffsetPrintMode, 1, "print mode", Decimal, either(0, 5)},
    {50, 1, "fixed byte 50", Hex, exactly(0x01)},
    {58, 1, "fixed byte 58", Hex, exactly(0x02)},
    {80, 1, "fixed byte 80", Hex, exactly(0x01)},
    {kOffsetRgbRate, 1, "RGB rate", Decimal, any()},
    {kOffsetOpRate, 1, "OP rate", Decimal, any()},
}};

// The place, the sizes and the date are checked in header_check.
constexpr std::array<FieldRule, 15> kImageHeaderFields{{
    {kOffsetFlag, 1, "flag", Hex, exactly(0x01)},
    {4, 1, "fixed byte 4", Hex, exactly(0x00)},
    {5, 1, "fixed byte 5", Hex, exactly(0x09)},
    {kOffsetImageLeft, 2, "image left", Decimal, any()},
    {kOffsetImageTop, 2, "image top", Decimal, any()},
    {kOffsetImageWidth, 2, "image width", Decimal, any()},
    {kOffsetImageHeight, 2, "image height", Decimal, any()},
    {kOffsetMatteWidth, 2, "matte width", Decimal, any()},
    {kOffsetMatteHeight, 2, "matte height", Decimal, any()},
    {kOffsetYear, 2, "year", Decimal, range(1000, 9999)},
    {kOffsetMonth, 1, "month", Decimal, range(1, 12)},
    {kOffsetDay, 1, "day", Decimal, range(1, 31)},
    {kOffsetHour, 1, "hour", Decimal, range(0, 23)},
    {kOffsetMinute, 1, "minute", Decimal, range(0, 59)},
    {kOffsetSecond, 1, "second", Decimal, range(0, 59)},
}};

constexpr std::array<FieldRule, 2> kPrintOutFields{{
    {4, 1, "fixed byte 4", Hex, exactly(0x00)},
    {kOffsetPrintOutWait, 1, "wait byte", Decimal, any()},
}};

std::uint8_t byte_at(std::span<const std::uint8_t> block, std::size_t offset) {
  return block[offset];
}

}  // namespace

std::span<const FieldRule> field_rules(Command command) {
  switch (command) {
    case Command::StatusRequest:
      return kStatusRequestFields;
    case Command::ReadinessQuery:
    case Command::JobHeader:
      return kJobHeaderFields;
    case Command::ImageHeader:
      return kImageHeaderFields;
    case Command::PrintOut:
      return kPrintOutFields;
    case Command::None:
    case Command::ImageData:
    case Command::MatteData:
      return {};
  }
  return {};
}

std::vector<NamedField> named_fields(Command command, std::span<const std::uint8_t> bytes) {
  std::vector<NamedField> fields;
  for (const FieldRule& rule : field_rules(command)) {
    fields.push_back({rule.name, value_words(read_field(bytes, rule), rule.notation)});
  }
  return fields;
}

JobHeader read_job_header(std::span<const std::uint8_t> block) {
  JobHeader header{};
  header.sheetWidth = read_number(block, kOffsetSheetWidth);
  header.sheetHeight = read_number(block, kOffsetSheetHeight);
  header.waitByte = byte_at(block, kOffsetWait);
  header.marginCutOff = byte_at(block, kOffsetMarginCutOff);
  header.twoUpMode = byte_at(block, kOffsetTwoUpMode);
  header.twoUpSplit = read_number(block, kOffsetTwoUpSplit);
  header.twoUpOption = byte_at(block, kOffsetTwoUpOption);
  header.finish = byte_at(block, kOffsetFinish);
  header.printMode = byte_at(block, kOffsetPrintMode);
  header.rgbRate = byte_at(block, kOffsetRgbRate);
  header.opRate = byte_at(block, kOffsetOpRate);
  return header;
}

ImageHeader read_image_header(std::span<const std::uint8_t> block) {
  ImageHeader header{};
  header.flag = byte_at(block, kOffsetFlag);
  header.left = read_number(block, kOffsetImageLeft);
  header.top = read_number(block, kOffsetImageTop);
  header.width = read_number(block, kOffsetImageWidth);
  header.height = read_number(block, kOffsetImageHeight);
  header.matteWidth = read_number(block, kOffsetMatteWidth);
  header.matteHeight = read_number(block, kOffsetMatteHeight);
  header.year = read_number(block, kOffsetYear);
  header.month = byte_at(block, kOffsetMonth);
  header.day = byte_at(block, kOffsetDay);
  header.hour = byte_at(block, kOffsetHour);
  header.minute = byte_at(block, kOffsetMinute);
  header.second = byte_at(block, kOffsetSecond);
  return header;
}

std::uint8_t read_print_out_wait(std::span<const std::uint8_t> command) {
  return byte_at(command, kOffsetPrintOutWait);
}

}  // namespace decoder
