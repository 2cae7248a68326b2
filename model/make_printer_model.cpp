// SPDX-License-Identifier: Apache-2.0
//
// Makes the printer's profile while the build runs: make-printer-model PROFILE SOURCE writes the
// ICC profile of the printer model, and the same bytes as a C++ source.
#include <cstddef>
#include <cstdio>
#include <exception>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "model/model_numbers.h"
#include "model/model_profile.h"

namespace {

bool write_file(const char* path, const std::string& content) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file << content;
  file.close();
  if (!file) {
    std::fprintf(stderr, "%s: cannot be written\n", path);
  }
  return static_cast<bool>(file);
}

std::string source_of(const std::vector<unsigned char>& profile) {
  constexpr std::size_t kBytesALine = 20;
  std::ostringstream source;
  source << "// Made by make-printer-model; change model/model_numbers.h instead.\n"
            "#include \"model/printer_model.h\"\n\n"
            "namespace {\n\nconstexpr unsigned char kProfile[] = {";
  for (std::size_t i = 0; i < profile.size(); ++i) {
    source << (i % kBytesALine == 0 ? "\n    " : " ") << static_cast<unsigned>(profile[i]) << ',';
  }
  source << "\n};\n\n}  // namespace\n\n"
            "std::span<const unsigned char> printer_model_profile() {\n  return kProfile;\n}\n";
  return source.str();
}

int make(const char* profilePath, const char* sourcePath) {
  std::string why;
  const std::vector<unsigned char> profile = make_model_profile(kPrinterModel, why);
  if (profile.empty()) {
    std::fprintf(stderr, "model/model_numbers.h: %s\n", why.c_str());
    return 1;
  }
  const std::string bytes(profile.begin(), profile.end());
  return write_file(profilePath, bytes) && write_file(sourcePath, source_of(profile)) ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("Usage: make-printer-model PROFILE SOURCE\n", stderr);
    return 2;
  }
  try {
    return make(argv[1], argv[2]);
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "make-printer-model: %s\n", fault.what());
    return 1;
  }
}
