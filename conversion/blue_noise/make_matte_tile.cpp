// SPDX-License-Identifier: Apache-2.0
//
// Writes the matte texture's tile as source code, when the library is built:
// make-matte-tile FILE.cpp
#include <cstdint>
#include <cstdio>
#include <vector>

#include "conversion/blue_noise/void_and_cluster.h"
#include "conversion/matte.h"
#include "conversion/matte_tile.h"
#include "image/file_handle.h"

namespace {

/// Turns ranks into levels. The numbers of dots of any two levels differ by one at most.
unsigned level_of_rank(std::uint32_t rank) {
  constexpr std::uint64_t kLevels = kMatteHighest - kMatteLowest + 1;
  return static_cast<unsigned>(kMatteLowest + rank * kLevels / (kMatteTileSide * kMatteTileSide));
}

void write_tile(std::FILE* file, const std::vector<std::uint32_t>& ranks) {
  std::fprintf(file,
               "#include \"conversion/matte_tile.h\"\n\n"
               "const unsigned char kMatteTile[kMatteTileSide][kMatteTileSide] = {\n");
  for (std::size_t y = 0; y < kMatteTileSide; ++y) {
    std::fprintf(file, "{");
    for (std::size_t x = 0; x < kMatteTileSide; ++x) {
      std::fprintf(file, "%u,", level_of_rank(ranks[y * kMatteTileSide + x]));
    }
    std::fprintf(file, "},\n");
  }
  std::fprintf(file, "};\n");
}

void write_row_sums(std::FILE* file, const std::vector<std::uint32_t>& ranks) {
  std::fprintf(file, "\nconst std::uint32_t kMatteRowSums[kMatteTileSide] = {\n");
  for (std::size_t y = 0; y < kMatteTileSide; ++y) {
    unsigned sum = 0;
    for (std::size_t x = 0; x < kMatteTileSide; ++x) {
      sum += level_of_rank(ranks[y * kMatteTileSide + x]);
    }
    std::fprintf(file, "%u,\n", sum);
  }
  std::fprintf(file, "};\n");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: make-matte-tile FILE.cpp\n");
    return 2;
  }
  FileHandle file(std::fopen(argv[1], "w"));
  if (!file) {
    std::perror(argv[1]);
    return 1;
  }
  const std::vector<std::uint32_t> ranks = blue_noise_ranks(kMatteTileSide);
  write_tile(file.get(), ranks);
  write_row_sums(file.get(), ranks);
  const bool written = std::ferror(file.get()) == 0;
  if (std::fclose(file.release()) != 0 || !written) {
    std::perror(argv[1]);
    return 1;
  }
  return 0;
}
