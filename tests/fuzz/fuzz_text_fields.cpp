// SPDX-License-Identifier: Apache-2.0
//
// Fuzzes the small readers and writers of texts: cupsFilter lines of any length, file-name
// templates into buffers of any size, lists of numbers, dumps. Input: a buffer's size, a band's
// rectangle and stride, then the text.
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "diag/csv_values.h"
#include "diag/dump.h"
#include "diag/image_files.h"
#include "filter/module_path.h"
#include "tests/fuzz/input.h"

namespace {

using fuzz::require;

void check_filter_line(std::string line, std::size_t size) {
  char* lines[] = {nullptr, line.data()};
  ppd_file_s ppd{};
  ppd.num_filters = 2;
  ppd.filters = lines;
  std::vector<char> buffer(size, 'x');  // exactly as large as promised: the sanitizer watches
  if (get_filter_path(&ppd, buffer.data(), static_cast<int>(size))) {
    const std::size_t length = std::strlen(buffer.data());
    require(length < size && length > 0 && buffer[length - 1] == '/');
    require(line.find(buffer.data()) != std::string::npos);
  } else {
    require(buffer == std::vector<char>(size, 'x'));
  }
}

// What fits is whole; what does not is a beginning of it, and still ends in a zero.
void check_template(const std::string& name_template, std::size_t size,
                    const tagMVBandImageParams& band) {
  std::vector<char> buffer(size, 'x');
  const bool fits = format_string_util(buffer.data(), size, name_template.c_str(), &band);
  require(size > 0 || !fits);
  require(size == 0 || std::memchr(buffer.data(), '\0', size) != nullptr);
  if (fits && name_template.find('%') == std::string::npos) {
    require(name_template == buffer.data());
  }
  if (size > 0 && name_template.find('%') == std::string::npos) {
    require(name_template.starts_with(buffer.data()));
  }
}

void check_lists(std::string text, int count) {
  std::string copy = text;
  const auto wanted = static_cast<std::size_t>(count > 0 ? count : 0);
  std::vector<int> integers(wanted);
  std::vector<double> reals(wanted);
  const int found = AnalyzeCSV(text.data(), count, integers.data());
  require(AnalyzeCSV_dbl(copy.data(), count, reals.data()) == found);
  require(count > 0 || found == 1);
  for (const int value : integers) {
    unsigned short word = 1;
    const bool fitted = int2WORD(&value, &word) == 1;
    require(fitted == (value >= 0 && value <= 0xFFFF));
    require(word == (fitted ? value : value < 0 ? 0 : 0xFFFF));
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  const auto room = input.Take<std::uint8_t>();
  tagMVBandImageParams band{};
  band.rcBand = input.Take<MV_TYPEDEF::tagRECT>();
  band.lStride = input.Take<std::int64_t>();
  const std::vector<std::uint8_t> bytes(input.Rest().begin(), input.Rest().end());
  const std::string text(bytes.begin(), std::find(bytes.begin(), bytes.end(), 0));
  check_filter_line(text, room);
  check_template(text, room, band);
  check_lists(text, room % 16 - 1);
  dump_mem("[CMD]", bytes.data(), static_cast<int>(bytes.size()));
  return 0;
}
