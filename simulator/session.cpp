// SPDX-License-Identifier: Apache-2.0
#include "simulator/session.h"

#include "simulator/event_log.h"
#include "simulator/wording.h"

namespace simulator {
namespace {

// A stream of garbage could fill a disk with lines; after these, errors are counted only.
constexpr std::uint64_t kErrorLinesMost = 100;

}  // namespace

Session::Session(std::uint64_t number, Printer printer, ClientConnection& client)
    : number_(number), printer_(printer), client_(client), parser_(*this) {}

void Session::Say(const std::string& text) const {
  log_event("connection " + std::to_string(number_) + ": " + text);
}

void Session::SayFailure(const std::string& text) {
  ++printer_.tally.failures;
  Say("failure: " + text);
}

bool Session::Run() {
  for (;;) {
    switch (client_.Receive()) {
      case Received::Bytes:
        TakeBytes();
        break;
      case Received::EndOfStream:
        parser_.EndOfStream();
        return true;
      case Received::Broken:
        Say("broken: " + client_.Error());
        parser_.EndOfStream();
        return true;
      case Received::Stop:
        Stop();
        return false;
    }
  }
}

void Session::TakeBytes() {
  const std::string failure = printer_.recorder.Add(client_.Bytes());
  if (!failure.empty()) {
    SayFailure("recording ends: " + failure);
  }
  parser_.Feed(client_.Bytes());
}

// Cut by the simulator's own end: that is no error of the stream.
void Session::Stop() {
  const decoder::Command within = parser_.Within();
  Say(std::string("stopped") +
      (within == decoder::Command::None ? "" : std::string(" within ") + to_string(within)));
  OnSheetCut();
}

void Session::SayClosed() const {
  Say("closed, " + counted(parser_.Offset(), "byte") + ", " + counted(sheets_, "sheet") + ", " +
      counted(errors_, "error"));
}

void Session::SendAnswer(const Answer& answer) {
  if (!answersLost_ && !client_.Send(answer.bytes)) {
    answersLost_ = true;
    Say("answers are lost from here on: " + client_.Error());
  }
}

void Session::OnStatusRequest(std::uint64_t /*offset*/) {
  const Answer answer = printer_.answers.ToStatusRequest();
  statusAnswered_ = answer.number;
  enableAnswered_ = kEnableReady;
  SendAnswer(answer);
  Say("status request, answered " + hex_number(answer.number));
}

void Session::OnReadinessQuery(std::uint64_t offset, const decoder::JobHeader& header) {
  if (statusAnswered_ != kStatusGood) {
    OnError({offset, decoder::Command::ReadinessQuery, "answer to the status request",
             "a query after " + hex_number(statusAnswered_), "a query after 0x0000"});
  }
  const Answer answer = printer_.answers.ToReadinessQuery();
  enableAnswered_ = answer.number;
  SendAnswer(answer);
  Say("readiness query, " + sheet_words(header) + ", answered " + hex_number(answer.number));
}

bool Session::SheetForbidden() const {
  return statusAnswered_ != kStatusGood || enableAnswered_ != kEnableReady;
}

void Session::OnJobHeader(std::uint64_t offset, const decoder::JobHeader& header) {
  if (enableAnswered_ != kEnableReady) {
    OnError({offset, decoder::Command::JobHeader, "answer to the readiness query",
             "a job header after " + hex_number(enableAnswered_), "a job header after 0x0000"});
  }
  Say("job header, " + job_header_words(header));
}

void Session::OnImageHeader(std::uint64_t /*offset*/, const decoder::ImageHeader& header) {
  Say("image header, " + image_header_words(header));
}

void Session::OnSheetBegin(const decoder::Sheet& sheet) {
  sheet_ = sheet;
  if (SheetForbidden()) {
    Say("the sheet is not printed: the printer did not allow it");
    return;
  }
  printer_.sheets.Begin(sheet);
}

void Session::OnImageRow(std::uint32_t row, std::span<const std::uint16_t> samples) {
  printer_.sheets.ImageRow(row, samples);
}

void Session::OnMatteRow(std::uint32_t row, std::span<const std::uint8_t> bytes) {
  printer_.sheets.MatteRow(row, bytes);
}

void Session::OnSheetEnd(const decoder::SheetEnd& end) {
  if (end.badSamples > 1) {
    Say(counted(end.badSamples, "sample") + " of the sheet above 0x3FFF");
  }
  if (!printer_.sheets.Busy()) {
    return;
  }
  const SheetResult result = printer_.sheets.End();
  const std::string name = "sheet " + std::to_string(result.number);
  if (!result.error.empty()) {
    SayFailure(name + " could not be written to " + result.path.string() + ": " + result.error);
    return;
  }
  ++sheets_;
  ++printer_.tally.sheets;
  Say(name + " printed to " + result.path.string() + ": " + printed_sheet_words(sheet_));
  if (!result.listError.empty()) {
    SayFailure("sheets.txt: " + result.listError);
  }
}

void Session::OnSheetCut() {
  if (!printer_.sheets.Busy()) {
    return;
  }
  const SheetResult result = printer_.sheets.Cut();
  const std::string name = "sheet " + std::to_string(result.number) + " was cut and is not printed";
  if (result.error.empty()) {
    Say(name + "; what came of it is in " + result.path.string());
  } else {
    SayFailure(name + "; " + result.path.string() + " could not be written: " + result.error);
  }
}

void Session::OnPrintOut(std::uint64_t /*offset*/, std::uint8_t waitByte) {
  Say("print-out, wait byte " + std::to_string(waitByte));
}

bool Session::MaySayError() {
  ++errorLines_;
  if (errorLines_ == kErrorLinesMost + 1) {
    Say("further errors of this connection are counted only");
  }
  return errorLines_ <= kErrorLinesMost;
}

void Session::OnError(const decoder::StreamError& error) {
  ++errors_;
  ++printer_.tally.errors;
  if (MaySayError()) {
    Say("error: " + to_string(error));
  }
}

void Session::OnSkipped(std::uint64_t offset, std::uint64_t count) {
  if (MaySayError()) {
    Say("skipped " + counted(count, "byte") + " from offset " + std::to_string(offset) + " on");
  }
}

}  // namespace simulator
