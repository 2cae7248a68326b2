// SPDX-License-Identifier: Apache-2.0
#include "decoder/repeated_settings.h"

#include <algorithm>

#include "decoder/command_blocks.h"

namespace decoder {

void RepeatedSettings::Compare(const Block& block, Command command, std::uint64_t offset,
                               const ErrorSink& report) const {
  if (!query_) {
    return;
  }
  const auto [mine, theirs] =
      std::mismatch(block.begin() + kCodeLength, block.end(), query_->begin() + kCodeLength);
  if (mine == block.end()) {
    return;
  }
  const auto at = static_cast<std::size_t>(mine - block.begin());
  report({offset + at, command, field_name(field_rules(command), at), hex_byte(*mine),
          hex_byte(*theirs) + " as in the last readiness query"});
}

void RepeatedSettings::TakeQuery(const Block& block, std::uint64_t offset, bool sound,
                                 const ErrorSink& report) {
  wait_ = read_job_header(block).waitByte;
  if (sound) {
    Compare(block, Command::ReadinessQuery, offset, report);
    query_ = block;
  } else {
    query_.reset();
  }
}

void RepeatedSettings::TakeJobHeader(const Block& block, std::uint64_t offset, bool sound,
                                     const ErrorSink& report) {
  wait_ = read_job_header(block).waitByte;
  if (sound) {
    Compare(block, Command::JobHeader, offset, report);
  }
  query_.reset();
}

// The settings are a job's: the wait byte at its end is that of its sheets. A job without sheets
// has said none.
void RepeatedSettings::TakePrintOut(std::uint8_t wait, std::uint64_t offset,
                                    const ErrorSink& report) {
  if (wait_ && wait != *wait_) {
    report({offset + kOffsetPrintOutWait, Command::PrintOut, "wait byte", std::to_string(wait),
            std::to_string(*wait_) + " as in the last settings block"});
  }
  wait_.reset();
  query_.reset();
}

}  // namespace decoder
