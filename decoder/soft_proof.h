// SPDX-License-Identifier: Apache-2.0
//
// Shows what a print would look like: converts the printer's 14-bit device values to the 8-bit sRGB
// of a screen, through the printer's ICC profile.
#ifndef TQR7_DECODER_SOFT_PROOF_H
#define TQR7_DECODER_SOFT_PROOF_H

#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace decoder {

/// A profile that is ready for proofs.
class SoftProof {
 public:
  /// Proofs through a profile of an RGB printer or display, of matrix or tables. Returns null when
  /// it cannot be used, and says the reason in `why`. The bytes may be anything, and are not kept.
  static std::unique_ptr<SoftProof> Through(std::span<const std::uint8_t> profile,
                                            std::string& why);

  /// Proofs through the printer model that is compiled in.
  static std::unique_ptr<SoftProof> ThroughPrinterModel();

  SoftProof(const SoftProof&) = delete;
  SoftProof& operator=(const SoftProof&) = delete;
  ~SoftProof();

  /// Converts rows of R, G, B samples to as many bytes of sRGB. 0x3FFF and all above is white.
  /// Relative colorimetric with black-point compensation: the paper becomes the screen's white, and
  /// the printer's black the screen's black. Colours that a screen cannot show are clipped.
  void ToScreen(std::span<const std::uint16_t> samples, std::span<std::uint8_t> rgb) const;

 private:
  struct Way;
  explicit SoftProof(std::unique_ptr<const Way> way);

  std::unique_ptr<const Way> way_;
};

}  // namespace decoder

#endif  // TQR7_DECODER_SOFT_PROOF_H
