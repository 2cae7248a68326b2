// SPDX-License-Identifier: Apache-2.0
//
// A floor: writes so many bytes, and nothing more: floor-write BYTES.
#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <vector>

int main(int argc, char** argv) {
  constexpr std::size_t kBlock = 196608;
  const std::vector<unsigned char> block(kBlock, 0xFF);
  for (unsigned long long left = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 0; left > 0;) {
    const auto bytes = static_cast<std::size_t>(std::min<unsigned long long>(left, kBlock));
    if (std::fwrite(block.data(), bytes, 1, stdout) != 1) {
      return 1;
    }
    left -= bytes;
  }
  return std::fflush(stdout) == 0 ? 0 : 1;
}
