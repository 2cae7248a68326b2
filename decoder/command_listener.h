// SPDX-License-Identifier: Apache-2.0
//
// What the decoder reports: one call for each command, each row of pixels and each error, in the
// order of the stream. The calls do not depend on the pieces in which the bytes came.
#ifndef TQR7_DECODER_COMMAND_LISTENER_H
#define TQR7_DECODER_COMMAND_LISTENER_H

#include <cstdint>
#include <span>

#include "decoder/command_blocks.h"
#include "decoder/stream_error.h"

namespace decoder {

/// A sheet whose sizes have passed every check. Its planes follow.
struct Sheet {
  JobHeader job;
  ImageHeader image;
};

/// What is known of a sheet after its last byte.
struct SheetEnd {
  std::uint64_t offset;      ///< of the byte after the sheet
  std::uint64_t badSamples;  ///< samples above 0x3FFF, which is no error of the stream
};

/// Receives a stream's content. A command is reported when it is complete, after its errors. It is
/// reported even when it has errors, and can then have any values. `offset` is that of its first
/// byte. Spans are valid during the call only.
class CommandListener {
 public:
  CommandListener() = default;
  CommandListener(const CommandListener&) = delete;
  CommandListener& operator=(const CommandListener&) = delete;
  virtual ~CommandListener() = default;

  /// A whole command as it came, with its code. This call comes before the errors of its fields.
  virtual void OnCommandBytes(std::uint64_t /*offset*/, Command /*command*/,
                              std::span<const std::uint8_t> /*bytes*/) {}

  virtual void OnStatusRequest(std::uint64_t /*offset*/) {}
  virtual void OnReadinessQuery(std::uint64_t /*offset*/, const JobHeader& /*header*/) {}
  virtual void OnJobHeader(std::uint64_t /*offset*/, const JobHeader& /*header*/) {}
  virtual void OnImageHeader(std::uint64_t /*offset*/, const ImageHeader& /*header*/) {}

  /// Pixels follow: `sheet.image.height` image rows, then `sheet.image.matteHeight` matte rows.
  virtual void OnSheetBegin(const Sheet& /*sheet*/) {}
  /// One row of the image, `sheet.image.width` pixels of three samples.
  virtual void OnImageRow(std::uint32_t /*row*/, std::span<const std::uint16_t> /*samples*/) {}
  /// One row of the matte plane, `sheet.image.matteWidth` bytes.
  virtual void OnMatteRow(std::uint32_t /*row*/, std::span<const std::uint8_t> /*bytes*/) {}
  virtual void OnSheetEnd(const SheetEnd& /*end*/) {}
  /// The stream ended within the sheet's planes, so there is no OnSheetEnd.
  virtual void OnSheetCut() {}

  virtual void OnPrintOut(std::uint64_t /*offset*/, std::uint8_t /*waitByte*/) {}

  virtual void OnError(const StreamError& /*error*/) {}
  /// Bytes that belong to no command were skipped. An error before this call says why.
  virtual void OnSkipped(std::uint64_t /*offset*/, std::uint64_t /*count*/) {}
};

}  // namespace decoder

#endif  // TQR7_DECODER_COMMAND_LISTENER_H
