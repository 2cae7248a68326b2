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

// A file has one set of options for all of its sheets; only the rates are each sheet's own.
bool RepeatedSettings::CompareWithFile(const Block& block, std::uint64_t offset,
                                       const ErrorSink& report) const {
  for (const FieldRule& rule : field_rules(Command::ReadinessQuery)) {
    const bool rate = rule.offset == kOffsetRgbRate || rule.offset == kOffsetOpRate;
    const std::uint16_t mine = read_field(block, rule);
    const std::uint16_t theirs = read_field(*file_, rule);
    if (mine != theirs && !rate) {
      report({offset + rule.offset, Command::ReadinessQuery, rule.name,
              value_words(mine, rule.notation),
              value_words(theirs, rule.notation) + " as on the file's sheet before"});
      return false;
    }
  }
  return true;
}

void RepeatedSettings::TakeQuery(const Block& block, std::uint64_t offset, bool sound,
                                 bool fileGoesOn, const ErrorSink& report) {
  wait_ = read_job_header(block).waitByte;
  if (!query_) {
    fileGoesOn_ = fileGoesOn && sound;
  }
  if (sound && query_) {
    Compare(block, Command::ReadinessQuery, offset, report);
  } else if (sound && file_ && fileGoesOn) {
    fileGoesOn_ = CompareWithFile(block, offset, report);
  }
  query_ = file_ = sound ? std::optional(block) : std::nullopt;
}

void RepeatedSettings::TakeJobHeader(const Block& block, std::uint64_t offset, bool sound,
                                     const ErrorSink& report) {
  wait_ = read_job_header(block).waitByte;
  if (sound) {
    Compare(block, Command::JobHeader, offset, report);
  }
  query_.reset();
}

// A paper with a white border and one without have the same settings: the image's place tells them
// apart.
void RepeatedSettings::TakeImageHeader(const Block& block, std::uint64_t offset, bool sound,
                                       const ErrorSink& report) {
  for (const FieldRule& rule : field_rules(Command::ImageHeader)) {
    const bool place = rule.offset >= kOffsetImageLeft && rule.offset <= kOffsetImageHeight;
    if (!sound || !image_ || !fileGoesOn_ || !place) {
      continue;
    }
    const std::uint16_t mine = read_field(block, rule);
    const std::uint16_t theirs = read_field(*image_, rule);
    if (mine != theirs) {
      report({offset + rule.offset, Command::ImageHeader, rule.name,
              value_words(mine, rule.notation),
              value_words(theirs, rule.notation) + " as on the file's sheet before"});
      break;
    }
  }
  image_ = sound ? std::optional(block) : std::nullopt;
  query_.reset();
}

// The wait byte at a file's end is that of its sheets. A file without sheets has said none.
void RepeatedSettings::TakePrintOut(std::uint8_t wait, std::uint64_t offset, bool fileGoesOn,
                                    const ErrorSink& report) {
  if (wait_ && fileGoesOn && wait != *wait_) {
    report({offset + kOffsetPrintOutWait, Command::PrintOut, "wait byte", std::to_string(wait),
            std::to_string(*wait_) + " as in the last settings block"});
  }
  wait_.reset();
  query_.reset();
}

}  // namespace decoder
