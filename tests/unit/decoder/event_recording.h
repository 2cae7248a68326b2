// SPDX-License-Identifier: Apache-2.0
//
// Everything that the decoder tells, as lines in the order it was told, and the pixels.
#ifndef TQR7_TESTS_UNIT_DECODER_EVENT_RECORDING_H
#define TQR7_TESTS_UNIT_DECODER_EVENT_RECORDING_H

#include <cstdint>
#include <string>
#include <vector>

#include "decoder/command_listener.h"
#include "tests/unit/stream_bytes.h"

/// Keeps all calls. Rows are not lines of their own; the sheet's end says how many there were.
class EventRecording : public decoder::CommandListener {
 public:
  std::vector<std::string> events;  ///< errors included
  std::vector<std::string> errors;
  std::vector<std::uint16_t> samples;  ///< of the last sheet
  std::vector<std::uint8_t> matte;     ///< of the last sheet
  std::vector<decoder::JobHeader> jobs;
  std::vector<decoder::ImageHeader> images;

  void OnStatusRequest(std::uint64_t offset) override;
  void OnReadinessQuery(std::uint64_t offset, const decoder::JobHeader& header) override;
  void OnJobHeader(std::uint64_t offset, const decoder::JobHeader& header) override;
  void OnImageHeader(std::uint64_t offset, const decoder::ImageHeader& header) override;
  void OnSheetBegin(const decoder::Sheet& sheet) override;
  void OnImageRow(std::uint32_t row, std::span<const std::uint16_t> rowSamples) override;
  void OnMatteRow(std::uint32_t row, std::span<const std::uint8_t> bytes) override;
  void OnSheetEnd(const decoder::SheetEnd& end) override;
  void OnSheetCut() override;
  void OnPrintOut(std::uint64_t offset, std::uint8_t waitByte) override;
  void OnError(const decoder::StreamError& error) override;
  void OnSkipped(std::uint64_t offset, std::uint64_t count) override;

 private:
  std::uint32_t imageRows_ = 0;
  std::uint32_t matteRows_ = 0;
};

/// Adds what these bytes give; the stream may go on.
void decode_open(const stream::Bytes& bytes, EventRecording& recording);

/// Adds what a whole stream gives, its end included.
void decode(const stream::Bytes& bytes, EventRecording& recording);

/// The errors of an unfinished stream, and of a whole one.
std::vector<std::string> errors_open(const stream::Bytes& bytes);
std::vector<std::string> errors_of(const stream::Bytes& bytes);

#endif  // TQR7_TESTS_UNIT_DECODER_EVENT_RECORDING_H
