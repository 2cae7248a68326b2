// SPDX-License-Identifier: Apache-2.0
//
// How sheets are shown: through the printer's model, through a profile that a person has named, or
// as device values.
#ifndef TQR7_DECODER_PROOF_CHOICE_H
#define TQR7_DECODER_PROOF_CHOICE_H

#include <memory>
#include <optional>
#include <string>

#include "decoder/soft_proof.h"

namespace decoder {

/// What a person has asked for.
struct ProofChoice {
  std::optional<std::string> profile;  ///< path; goes before `deviceValues`
  bool deviceValues = false;
};

/// Makes the proof that was chosen; null for device values, which need none. Returns why the named
/// profile cannot be used, empty when all is well.
std::string make_proof(const ProofChoice& choice, std::unique_ptr<SoftProof>& proof);

}  // namespace decoder

#endif  // TQR7_DECODER_PROOF_CHOICE_H
