// SPDX-License-Identifier: Apache-2.0
//
// Fuzzes the small readers of texts: cupsFilter lines of any length, file-name templates into
// buffers of any size, and lists of numbers. The first byte chooses the buffer's size.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "diag/csv_values.h"
#include "diag/image_files.h"
#include "filter/module_path.h"

namespace {

void require(bool holds) {
  if (!holds) {
    std::abort();
  }
}

void check_filter_line(std::string line, std::size_t size) {
  char* lines[] = {line.data()};
  ppd_file_s ppd{};
  ppd.num_filters = 1;
  ppd.filters = lines;
  std::vector<char> buffer(size, 'x');
  if (get_filter_path(&ppd, buffer.data(), static_cast<int>(size))) {
    const std::size_t length = std::strlen(buffer.data());
    require(length < size && buffer[length - 1] == '/');
  }
}

void check_template(const std::string& name_template, std::size_t size) {
  const tagMVBandImageParams band{nullptr, -60, {0, 0, 10, 4}};
  std::vector<char> buffer(size, 'x');  // exactly as large as promised: the sanitizer watches
  format_string_util(buffer.data(), size, name_template.c_str(), &band);
  require(size == 0 || std::memchr(buffer.data(), '\0', size) != nullptr);
}

void check_lists(std::string text, int count) {
  std::string copy = text;
  std::vector<int> integers(static_cast<std::size_t>(count));
  std::vector<double> reals(static_cast<std::size_t>(count));
  const int found = AnalyzeCSV(text.data(), count, integers.data());
  require(AnalyzeCSV_dbl(copy.data(), count, reals.data()) == found);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) {
    return 0;
  }
  const std::string bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
  const std::string text = bytes.c_str();
  check_filter_line(text, data[0]);
  check_template(text, data[0]);
  check_lists(text, data[0] % 16);
  return 0;
}
