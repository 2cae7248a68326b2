// SPDX-License-Identifier: Apache-2.0
#include "decoder/date_check.h"

#include <chrono>
#include <string>

namespace decoder {
namespace {

constexpr unsigned kMonths = 12;
constexpr unsigned kLongestMonth = 31;

}  // namespace

void check_date(const ImageHeader& image, std::uint64_t blockOffset, const ErrorSink& report) {
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
