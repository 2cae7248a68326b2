// SPDX-License-Identifier: Apache-2.0
//
// What one command of the stream must repeat of another: the body of the last readiness query in
// the next query and in the job header, the file's settings in the queries of its further sheets,
// the wait byte in the print-out.
#ifndef TQR7_DECODER_REPEATED_SETTINGS_H
#define TQR7_DECODER_REPEATED_SETTINGS_H

#include <array>
#include <cstdint>
#include <optional>

#include "decoder/command.h"
#include "decoder/stream_error.h"

namespace decoder {

/// Takes the commands of one stream in their order and reports where one contradicts another.
/// `fileGoesOn`: the command surely belongs to the file of the settings block before it.
class RepeatedSettings {
 public:
  using Block = std::array<std::uint8_t, kBlockLength>;

  /// A whole block and its offset in the stream. One that is not `sound`, having errors of its own,
  /// is not compared, and nothing is compared with it: one wrong byte shall give one error.
  void TakeQuery(const Block& block, std::uint64_t offset, bool sound, bool fileGoesOn,
                 const ErrorSink& report);
  void TakeJobHeader(const Block& block, std::uint64_t offset, bool sound, const ErrorSink& report);

  /// A whole image header, and whether its sizes are right.
  void TakeImageHeader(const Block& block, std::uint64_t offset, bool sound,
                       const ErrorSink& report);

  /// A whole print-out command's wait byte, and the command's offset.
  void TakePrintOut(std::uint8_t wait, std::uint64_t offset, bool fileGoesOn,
                    const ErrorSink& report);

  /// Any other command: the next query begins anew.
  void TakeOther() { query_.reset(); }

 private:
  void Compare(const Block& block, Command command, std::uint64_t offset,
               const ErrorSink& report) const;

  /// The last readiness query, for as long as the next query or job header must repeat it.
  std::optional<Block> query_;
  std::optional<Block> file_;         ///< the query of the file's last sheet
  std::optional<Block> image_;        ///< the image header of the sheet before
  bool fileGoesOn_ = false;           ///< the sheet asked for surely is the same file's
  std::optional<std::uint8_t> wait_;  ///< of the last settings block since the last print-out
};

}  // namespace decoder

#endif  // TQR7_DECODER_REPEATED_SETTINGS_H
