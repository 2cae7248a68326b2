// SPDX-License-Identifier: Apache-2.0
//
// What a command must repeat of an earlier one. The next query and the job header repeat the body
// of the last readiness query. The queries of a file's further sheets repeat the file's settings.
// The print-out repeats the wait byte.
#ifndef TQR7_DECODER_REPEATED_SETTINGS_H
#define TQR7_DECODER_REPEATED_SETTINGS_H

#include <array>
#include <cstdint>
#include <optional>

#include "decoder/command.h"
#include "decoder/stream_error.h"

namespace decoder {

/// Takes the commands of one stream in their order, and reports where one contradicts another.
/// `fileGoesOn`: the command certainly belongs to the same file as the settings block before it.
class RepeatedSettings {
 public:
  using Block = std::array<std::uint8_t, kBlockLength>;

  /// Takes a whole block and its offset in the stream. A block that is not `sound`, because it has
  /// errors itself, is not compared with others, so that one wrong byte causes one error only.
  void TakeQuery(const Block& block, std::uint64_t offset, bool sound, bool fileGoesOn,
                 const ErrorSink& report);
  void TakeJobHeader(const Block& block, std::uint64_t offset, bool sound, const ErrorSink& report);

  /// Takes a whole image header, and whether its sizes are right.
  void TakeImageHeader(const Block& block, std::uint64_t offset, bool sound,
                       const ErrorSink& report);

  /// Takes the wait byte of a whole print-out command, and the command's offset.
  void TakePrintOut(std::uint8_t wait, std::uint64_t offset, bool fileGoesOn,
                    const ErrorSink& report);

  /// Takes any other command, after which the next query has nothing to repeat.
  void TakeOther() { query_.reset(); }

 private:
  void Compare(const Block& block, Command command, std::uint64_t offset,
               const ErrorSink& report) const;

  /// The last readiness query, as long as the next query or job header must repeat it.
  std::optional<Block> query_;
  std::optional<Block> file_;         ///< the query of the file's last sheet
  std::optional<Block> image_;        ///< the image header of the last sheet
  bool fileGoesOn_ = false;           ///< the next sheet certainly belongs to the same file
  std::optional<std::uint8_t> wait_;  ///< of the last settings block since the last print-out
};

}  // namespace decoder

#endif  // TQR7_DECODER_REPEATED_SETTINGS_H
