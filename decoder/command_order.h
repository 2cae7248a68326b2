// SPDX-License-Identifier: Apache-2.0
//
// Which command may follow which. A connection carries one file of a job or several, and each file
// begins with a status request; a sheet takes a status request, one readiness query or more, the
// job header, the image header and the planes. A file may end without print-out: after an answer
// that forbids the sheet, or after a sheet when the next page failed.
#ifndef TQR7_DECODER_COMMAND_ORDER_H
#define TQR7_DECODER_COMMAND_ORDER_H

#include <cstdint>

#include "decoder/stream_error.h"

namespace decoder {

/// Watches the order of the commands of one connection.
class CommandOrder {
 public:
  /// Reports the command when it is out of order, and takes it as come in either case.
  void Take(Command command, std::uint64_t offset, const ErrorSink& report);

  /// The last command was a job header: its image header is still due.
  bool ImageHeaderDue() const { return last_ == Command::JobHeader; }

 private:
  Command last_ = Command::None;
};

}  // namespace decoder

#endif  // TQR7_DECODER_COMMAND_ORDER_H
