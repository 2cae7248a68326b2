// SPDX-License-Identifier: Apache-2.0
#include "decoder/repeated_settings.h"

#include <algorithm>

#include "decoder/command_blocks.h"

namespace decoder {
namespace {

using Block = RepeatedSettings::Block;

// All sheets of a file have the same options; only the rates differ.
bool is_files_setting(const FieldRule& rule) {
  return rule.offset != kOffsetRgbRate && rule.offset != kOffsetOpRate;
}

// A paper with a white border has the same settings as one without. Only the image's place is
// different.
bool is_place(const FieldRule& rule) {
  return rule.offset >= kOffsetImageLeft && rule.offset <= kOffsetImageHeight;
}

// Reports the first field of this kind that differs from the file's last sheet; false then.
bool repeats(const Block& block, const Block& before, bool (*counts)(const FieldRule&),
             Command command, std::uint64_t offset, const ErrorSink& report) {
  for (const FieldRule& rule : field_rules(command)) {
    const std::uint16_t mine = read_field(block, rule);
    const std::uint16_t theirs = read_field(before, rule);
    if (counts(rule) && mine != theirs) {
      report({offset + rule.offset, command, rule.name, value_words(mine, rule.notation),
              value_words(theirs, rule.notation) + " as on the file's sheet before"});
      return false;
    }
  }
  return true;
}

}  // namespace

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
                                 bool fileGoesOn, const ErrorSink& report) {
  wait_ = read_job_header(block).waitByte;
  if (!query_) {
    fileGoesOn_ = fileGoesOn && sound;
  }
  if (sound && query_) {
    Compare(block, Command::ReadinessQuery, offset, report);
  } else if (sound && file_ && fileGoesOn) {
    fileGoesOn_ = repeats(block, *file_, is_files_setting, Command::ReadinessQuery, offset, report);
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

void RepeatedSettings::TakeImageHeader(const Block& block, std::uint64_t offset, bool sound,
                                       const ErrorSink& report) {
  if (sound && image_ && fileGoesOn_) {
    repeats(block, *image_, is_place, Command::ImageHeader, offset, report);
  }
  image_ = sound ? std::optional(block) : std::nullopt;
  query_.reset();
}

// The wait byte at the end of a file is that of its sheets. A file without sheets has none.
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
