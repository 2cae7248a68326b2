// SPDX-License-Identifier: Apache-2.0
//
// How sheets are shown: through the printer model, through a profile in a file that a person names,
// or as device values.
#ifndef TQR7_DECODER_PROOF_CHOICE_H
#define TQR7_DECODER_PROOF_CHOICE_H

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "decoder/soft_proof.h"

namespace decoder {

/// What a person asked for.
struct ProofChoice {
  std::optional<std::string> profile;  ///< path; overrides `deviceValues`
  bool deviceValues = false;
};

/// Makes the proof that was chosen; null for device values, which need none. Returns why the named
/// profile cannot be used, empty when all is well.
std::string make_proof(const ProofChoice& choice, std::unique_ptr<SoftProof>& proof);

/// The bytes of a profile's file. None when it cannot be read; `why` then says the reason. Of a
/// file that is too large for a profile it reads one byte more than a profile may have. A pipe
/// without a writer is an empty file.
std::vector<std::uint8_t> read_profile_file(const std::string& path, std::string& why);

}  // namespace decoder

#endif  // TQR7_DECODER_PROOF_CHOICE_H
