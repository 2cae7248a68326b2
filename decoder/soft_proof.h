// SPDX-License-Identifier: Apache-2.0
//
// What a print would look like: the printer's 14-bit device values to the 8-bit sRGB of a screen,
// through the printer's ICC profile.
#ifndef TQR7_DECODER_SOFT_PROOF_H
#define TQR7_DECODER_SOFT_PROOF_H

#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace decoder {

/// A profile made ready for proofs.
class SoftProof {
 public:
  /// Proofs through a profile of an RGB printer or display, matrix or table kind. Null when it
  /// cannot be used; `why` then says the reason. The bytes may be anything, and are not kept.
  static std::unique_ptr<SoftProof> Through(std::span<const std::uint8_t> profile,
                                            std::string& why);

  /// Proofs through the model of the printer that is compiled in.
  static std::unique_ptr<SoftProof> ThroughPrinterModel();

  SoftProof(const SoftProof&) = delete;
  SoftProof& operator=(const SoftProof&) = delete;
  ~SoftProof();

  /// Rows of R, G, B samples, 0x3FFF being white and so what lies above, to as many bytes of sRGB.
  /// Relative colorimetric with black-point compensation: the paper is the screen's white, the
  /// printer's black its black; what a screen cannot show is clipped.
  void ToScreen(std::span<const std::uint16_t> samples, std::span<std::uint8_t> rgb) const;

 private:
  struct Way;
  explicit SoftProof(std::unique_ptr<const Way> way);

  std::unique_ptr<const Way> way_;
};

}  // namespace decoder

#endif  // TQR7_DECODER_SOFT_PROOF_H
