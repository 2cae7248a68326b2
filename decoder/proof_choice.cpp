// SPDX-License-Identifier: Apache-2.0
#include "decoder/proof_choice.h"

#include <cstdint>
#include <vector>

#include "decoder/profile_file.h"

namespace decoder {

std::string make_proof(const ProofChoice& choice, std::unique_ptr<SoftProof>& proof) {
  std::string why;
  if (choice.profile) {
    const std::vector<std::uint8_t> profile = read_profile_file(*choice.profile, why);
    if (why.empty()) {
      proof = SoftProof::Through(profile, why);
    }
  } else if (!choice.deviceValues) {
    proof = SoftProof::ThroughPrinterModel();
  }
  return why;
}

}  // namespace decoder
