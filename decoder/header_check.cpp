// SPDX-License-Identifier: Apache-2.0
#include "decoder/header_check.h"

#include <array>
#include <chrono>
#include <set>
#include <string>
#include <vector>

#include "decoder/paper_sizes.h"

namespace decoder {
namespace {

// "631, 1232 or 1833"
std::string in_words(const std::set<std::uint16_t>& values) {
  std::vector<std::string> words;
  words.reserve(values.size());
  for (const std::uint16_t value : values) {
    words.push_back(std::to_string(value));
  }
  return alternatives(words);
}

const SheetSize* find_sheet(std::uint16_t width, std::uint16_t height) {
  for (const SheetSize& sheet : sheet_sizes()) {
    if (sheet.width == width && sheet.height == height) {
      return &sheet;
    }
  }
  return nullptr;
}

std::set<std::uint16_t> all_widths() {
  std::set<std::uint16_t> widths;
  for (const SheetSize& sheet : sheet_sizes()) {
    widths.insert(sheet.width);
  }
  return widths;
}

std::set<std::uint16_t> heights_for(std::uint16_t width) {
  std::set<std::uint16_t> heights;
  for (const SheetSize& sheet : sheet_sizes()) {
    if (sheet.width == width) {
      heights.insert(sheet.height);
    }
  }
  return heights;
}

std::string size_text(const JobHeader& job) {
  return std::to_string(job.sheetWidth) + " x " + std::to_string(job.sheetHeight);
}

// A number in a header that can have one value only, because of the fields around it.
struct Expected {
  std::uint16_t offset;
  std::uint16_t value;
  std::uint16_t right;
};

// Reports the numbers that are not the right ones; `why` follows the right value in the message.
template <std::size_t N>
bool check_expected(const std::array<Expected, N>& fields, Command command,
                    std::uint64_t blockOffset, const std::string& why, const ErrorSink& report) {
  bool good = true;
  for (const Expected& field : fields) {
    if (field.value != field.right) {
      good = false;
      report({blockOffset + field.offset, command, field_name(field_rules(command), field.offset),
              std::to_string(field.value), std::to_string(field.right) + why});
    }
  }
  return good;
}

constexpr std::uint16_t kSplit = 616;

// Three fields say the same thing. When one differs from the other two, it is the wrong one.
bool is_two_up(const JobHeader& header, const SheetSize& sheet) {
  const int set = (header.twoUpMode != 0 ? 1 : 0) + (header.twoUpSplit != 0 ? 1 : 0) +
                  (header.twoUpOption != 0 ? 1 : 0);
  return sheet.twoUp && set >= 2;
}

void check_two_up(const JobHeader& header, const SheetSize& sheet, Command command,
                  std::uint64_t blockOffset, const ErrorSink& report) {
  const bool known = header.twoUpMode <= 1 && header.twoUpOption <= 1 &&
                     (header.twoUpSplit == 0 || header.twoUpSplit == kSplit);
  if (!known) {
    return;  // the field has a value that it never may have, and was reported
  }
  const bool twoUp = is_two_up(header, sheet);
  const std::uint16_t flag = twoUp ? 1 : 0;
  const std::uint16_t split = twoUp ? kSplit : 0;
  const std::array<Expected, 3> fields{{{kOffsetTwoUpMode, header.twoUpMode, flag},
                                        {kOffsetTwoUpSplit, header.twoUpSplit, split},
                                        {kOffsetTwoUpOption, header.twoUpOption, flag}}};
  const std::string why =
      sheet.twoUp ? ", as the other two-up fields say" : " on a sheet of " + size_text(header);
  check_expected(fields, command, blockOffset, why, report);
}

std::array<Expected, 4> against(const ImageHeader& image, const ImagePlace& place) {
  return {{{kOffsetImageLeft, image.left, place.left},
           {kOffsetImageTop, image.top, place.top},
           {kOffsetImageWidth, image.width, place.width},
           {kOffsetImageHeight, image.height, place.height}}};
}

int agreeing(const std::array<Expected, 4>& fields) {
  int count = 0;
  for (const Expected& field : fields) {
    count += field.value == field.right ? 1 : 0;
  }
  return count;
}

bool check_place(const ImageHeader& image, const JobHeader& job, const SheetSize& sheet,
                 std::uint64_t blockOffset, const ErrorSink& report) {
  const auto full = against(image, full_image(sheet));
  const auto bordered = against(image, bordered_image(sheet));
  const bool borderAllowed = sheet.borderSide != 0 && !is_two_up(job, sheet);
  const bool border = borderAllowed && agreeing(bordered) > agreeing(full);
  const std::string why =
      std::string(border ? " with a white border" : "") + " on a sheet of " + size_text(job);
  return check_expected(border ? bordered : full, Command::ImageHeader, blockOffset, why, report);
}

bool check_matte(const ImageHeader& image, const JobHeader& job, std::uint64_t blockOffset,
                 const ErrorSink& report) {
  const bool matte = job.finish == kFinishMatte;
  const auto rows = static_cast<std::uint16_t>(job.sheetHeight + kMatteExtraRows);
  const std::array<Expected, 2> fields{
      {{kOffsetMatteWidth, image.matteWidth, matte ? job.sheetWidth : std::uint16_t{0}},
       {kOffsetMatteHeight, image.matteHeight, matte ? rows : std::uint16_t{0}}}};
  const std::string why =
      matte ? " for matte on a sheet of " + size_text(job) : " without the matte finish";
  return check_expected(fields, Command::ImageHeader, blockOffset, why, report);
}

}  // namespace

bool check_sheet(const JobHeader& header, Command command, std::uint64_t blockOffset,
                 const ErrorSink& report) {
  const SheetSize* const sheet = find_sheet(header.sheetWidth, header.sheetHeight);
  if (sheet != nullptr) {
    check_two_up(header, *sheet, command, blockOffset, report);
    return true;
  }
  const std::set<std::uint16_t> heights = heights_for(header.sheetWidth);
  if (heights.empty()) {
    report({blockOffset + kOffsetSheetWidth, command, "sheet width",
            std::to_string(header.sheetWidth), in_words(all_widths())});
  } else {
    report({blockOffset + kOffsetSheetHeight, command, "sheet height",
            std::to_string(header.sheetHeight),
            in_words(heights) + " for a width of " + std::to_string(header.sheetWidth)});
  }
  return false;
}

bool may_carry_two_prints(const JobHeader& header) {
  const SheetSize* const sheet = find_sheet(header.sheetWidth, header.sheetHeight);
  return sheet == nullptr || is_two_up(header, *sheet);
}

bool check_image(const ImageHeader& image, const JobHeader& job, std::uint64_t blockOffset,
                 const ErrorSink& report) {
  const SheetSize* const sheet = find_sheet(job.sheetWidth, job.sheetHeight);
  if (sheet == nullptr) {
    return false;
  }
  const bool placeGood = check_place(image, job, *sheet, blockOffset, report);
  const bool matteGood = check_matte(image, job, blockOffset, report);
  return placeGood && matteGood;
}

void check_date(const ImageHeader& image, std::uint64_t blockOffset, const ErrorSink& report) {
  constexpr unsigned kMonths = 12;
  constexpr unsigned kLongestMonth = 31;
  if (image.month < 1 || image.month > kMonths || image.day < 1 || image.day > kLongestMonth) {
    return;
  }
  const std::chrono::year_month_day_last end{
      std::chrono::year(image.year), std::chrono::month_day_last(std::chrono::month(image.month))};
  const auto days = static_cast<unsigned>(end.day());
  if (image.day > days) {
    report({blockOffset + kOffsetDay, Command::ImageHeader, "day", std::to_string(image.day),
            "1 to " + std::to_string(days) + " in month " + std::to_string(image.month) + " of " +
                std::to_string(image.year)});
  }
}

}  // namespace decoder
