// SPDX-License-Identifier: Apache-2.0
//
// make-seeds TARGET FOLDER: writes what a target should begin with into the folder.
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

#include "tests/fuzz/seeds.h"

namespace {

struct Maker {
  std::string_view target;
  fuzz::Seeds (*make)();
};

constexpr Maker kMakers[] = {
    {"fuzz_bands", fuzz::bands_seeds},
    {"fuzz_command_file", fuzz::command_file_seeds},
    {"fuzz_command_stream", fuzz::command_stream_seeds},
    {"fuzz_conversion", fuzz::conversion_seeds},
    {"fuzz_fault_script", fuzz::fault_script_seeds},
    {"fuzz_page_loop", fuzz::page_loop_seeds},
    {"fuzz_photo", fuzz::photo_seeds},
    {"fuzz_ppd_options", fuzz::ppd_options_seeds},
    {"fuzz_profile", fuzz::profile_seeds},
    {"fuzz_replies", fuzz::replies_seeds},
    {"fuzz_soft_proof", fuzz::profile_seeds},
    {"fuzz_text_fields", fuzz::text_fields_seeds},
};

void write(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary);
  file << bytes;
  file.close();
  if (!file) {
    throw std::runtime_error(path.string() + ": cannot be written");
  }
}

void make(std::string_view target, const std::filesystem::path& folder) {
  for (const Maker& maker : kMakers) {
    if (maker.target == target) {
      for (const fuzz::Seed& seed : maker.make()) {
        write(folder / seed.name, seed.bytes);
      }
      return;
    }
  }
  throw std::runtime_error(std::string(target) + ": no such target");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("Usage: make-seeds TARGET FOLDER\n", stderr);
    return 2;
  }
  try {
    make(argv[1], argv[2]);
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "make-seeds: %s\n", fault.what());
    return 1;
  }
  return 0;
}
