// SPDX-License-Identifier: Apache-2.0
//
// Fuzzes soft proofs with any bytes as the profile: it is refused with a reason, or shows every
// colour of the printer as some colour of the screen, and the same one each time.
#include <array>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "decoder/soft_proof.h"

namespace {

// The corners of the printer's cube, samples above 14 bits, and some between.
constexpr std::array<std::uint16_t, 7> kLevels = {0, 1, 5000, 0x2000, 0x3FFE, 0x3FFF, 0xFFFF};

std::vector<std::uint16_t> colours() {
  std::vector<std::uint16_t> samples;
  for (const std::uint16_t red : kLevels) {
    for (const std::uint16_t green : kLevels) {
      for (const std::uint16_t blue : kLevels) {
        samples.insert(samples.end(), {red, green, blue});
      }
    }
  }
  return samples;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::vector<std::uint16_t> samples = colours();
  std::string why;
  const auto proof = decoder::SoftProof::Through({data, size}, why);
  if ((proof == nullptr) == why.empty()) {
    std::abort();
  }
  if (proof != nullptr) {
    std::vector<std::uint8_t> once(samples.size());
    std::vector<std::uint8_t> again(samples.size());
    proof->ToScreen(samples, once);
    proof->ToScreen(samples, again);
    if (once != again) {
      std::abort();
    }
  }
  return 0;
}
