// SPDX-License-Identifier: Apache-2.0
#include "tests/unit/decoder/event_recording.h"

#include "decoder/stream_parser.h"

void EventRecording::OnStatusRequest(std::uint64_t offset) {
  events.push_back("status request at " + std::to_string(offset));
}

void EventRecording::OnReadinessQuery(std::uint64_t offset, const decoder::JobHeader& header) {
  events.push_back("readiness query at " + std::to_string(offset));
  jobs.push_back(header);
}

void EventRecording::OnJobHeader(std::uint64_t offset, const decoder::JobHeader& header) {
  events.push_back("job header at " + std::to_string(offset));
  jobs.push_back(header);
}

void EventRecording::OnImageHeader(std::uint64_t offset, const decoder::ImageHeader& header) {
  events.push_back("image header at " + std::to_string(offset));
  images.push_back(header);
}

void EventRecording::OnSheetBegin(const decoder::Sheet& sheet) {
  events.push_back("sheet " + std::to_string(sheet.job.sheetWidth) + " x " +
                   std::to_string(sheet.job.sheetHeight));
  samples.clear();
  matte.clear();
  imageRows_ = 0;
  matteRows_ = 0;
}

void EventRecording::OnImageRow(std::uint32_t row, std::span<const std::uint16_t> rowSamples) {
  if (row != imageRows_) {
    events.push_back("image row " + std::to_string(row) + " out of turn");
  }
  ++imageRows_;
  samples.insert(samples.end(), rowSamples.begin(), rowSamples.end());
}

void EventRecording::OnMatteRow(std::uint32_t row, std::span<const std::uint8_t> bytes) {
  if (row != matteRows_) {
    events.push_back("matte row " + std::to_string(row) + " out of turn");
  }
  ++matteRows_;
  matte.insert(matte.end(), bytes.begin(), bytes.end());
}

void EventRecording::OnSheetEnd(const decoder::SheetEnd& end) {
  events.push_back("sheet end at " + std::to_string(end.offset) + ", " +
                   std::to_string(imageRows_) + " image rows, " + std::to_string(matteRows_) +
                   " matte rows, " + std::to_string(end.badSamples) + " bad samples");
}

void EventRecording::OnSheetCut() {
  events.push_back("sheet cut, " + std::to_string(imageRows_) + " image rows, " +
                   std::to_string(matteRows_) + " matte rows");
}

void EventRecording::OnPrintOut(std::uint64_t offset, std::uint8_t waitByte) {
  events.push_back("print-out at " + std::to_string(offset) + ", wait byte " +
                   std::to_string(waitByte));
}

void EventRecording::OnError(const decoder::StreamError& error) {
  errors.push_back(to_string(error));
  events.push_back(to_string(error));
}

void EventRecording::OnSkipped(std::uint64_t offset, std::uint64_t count) {
  events.push_back("skipped " + std::to_string(count) + " bytes from " + std::to_string(offset));
}

void decode_open(const stream::Bytes& bytes, EventRecording& recording) {
  decoder::StreamParser parser(recording);
  parser.Feed(bytes);
}

void decode(const stream::Bytes& bytes, EventRecording& recording) {
  decoder::StreamParser parser(recording);
  parser.Feed(bytes);
  parser.EndOfStream();
}

std::vector<std::string> errors_open(const stream::Bytes& bytes) {
  EventRecording recording;
  decode_open(bytes, recording);
  return recording.errors;
}

std::vector<std::string> errors_of(const stream::Bytes& bytes) {
  EventRecording recording;
  decode(bytes, recording);
  return recording.errors;
}
