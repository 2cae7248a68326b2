// SPDX-License-Identifier: Apache-2.0
#include "simulator/session.h"

#include <chrono>
#include <limits>

#include "simulator/wording.h"

namespace simulator {
namespace {

constexpr std::uint64_t kNoEnd = std::numeric_limits<std::uint64_t>::max();

}  // namespace

Session::Session(std::uint64_t number, const Printer& printer, ClientConnection& client,
                 const Waiter& waiter)
    : printer_(printer),
      client_(client),
      waiter_(waiter),
      log_(number, printer.tally, printer.contactSheet),
      parser_(*this) {
  NoteTime("opened");
}

void Session::NoteTime(const char* event) const {
  printer_.timeline.Note(log_.Number(), parser_.Offset(), event);
}

// Returns nothing when the connection is to be dropped before the next byte.
std::optional<Received> Session::ReceiveMore() {
  const std::uint64_t end = printer_.faults.DropAt().value_or(kNoEnd);
  if (parser_.Offset() >= end) {
    return std::nullopt;
  }
  const std::optional<std::uint64_t> rate = printer_.faults.BytesPerSecond();
  readsSlowly_ = readsSlowly_ || rate.has_value();
  client_.ReadSlowly(rate);
  // The client comes first: sheets are drawn only while it sends nothing, such as in the pause
  // after a sheet.
  while (!client_.BytesWait() && printer_.sheets.Draw()) {
  }
  return client_.Receive(end - parser_.Offset());
}

bool Session::Run() {
  for (;;) {
    const std::optional<Received> received = ReceiveMore();
    if (!received) {
      Drop();
      return true;
    }
    switch (*received) {
      case Received::Bytes:
        TakeBytes();
        break;
      case Received::EndOfStream:
        NoteTime("end of stream");
        parser_.EndOfStream();
        return true;
      case Received::Broken:
        NoteTime("broken");
        log_.Say("broken: " + client_.Error());
        parser_.EndOfStream();
        return true;
      case Received::Stop:
        Cut("stopped");
        return false;
    }
  }
}

void Session::TakeBytes() {
  printer_.timeline.Note(log_.Number(), parser_.Offset() + client_.Bytes().size(), "bytes");
  const std::string failure = printer_.recorder.Add(client_.Bytes());
  if (!failure.empty()) {
    log_.SayFailure("recording ends: " + failure);
  }
  parser_.Feed(client_.Bytes(), Now());
}

// The simulator itself cuts the stream here, so this is no error of the stream.
void Session::Cut(const std::string& how) {
  NoteTime(how.c_str());
  const decoder::Command within = parser_.Within();
  log_.Say(how +
           (within == decoder::Command::None ? "" : std::string(" within ") + to_string(within)));
  OnSheetCut();
}

void Session::Drop() {
  printer_.faults.Drop();
  client_.CloseHard();
  Cut("dropped after " + counted(parser_.Offset(), "byte"));
}

void Session::SayClosed() {
  if (printer_.contactSheet != nullptr) {
    if (const std::string why = printer_.contactSheet->Write(); !why.empty()) {
      log_.SayFailure("index.html: " + why);
    }
  }
  NoteTime("closed");
  if (const std::string why = printer_.timeline.Flush(); !why.empty()) {
    log_.SayFailure("the timeline ends: " + why);
  }
  log_.Say("closed, " + counted(parser_.Offset(), "byte") + ", " + counted(sheets_, "sheet") +
           ", " + counted(log_.Errors(), "error"));
}

void Session::SendPieces(const AnswerPlan& plan, std::span<const std::uint8_t> answer) {
  Waiter::TimePoint time = std::chrono::steady_clock::now() + plan.delay;
  for (const std::vector<std::uint8_t>& piece : pieces_of(plan, answer)) {
    if (!waiter_.Until(time)) {
      return;  // the next wait for bytes ends the session
    }
    if (!answered_) {
      answered_ = Now();
    }
    if (!client_.Send(piece)) {
      answersLost_ = true;
      log_.Say("answers are lost from here on: " + client_.Error());
      return;
    }
    NoteTime("answered");
    time = std::chrono::steady_clock::now() + kPieceDistance;
  }
}

void Session::GiveAnswer(const AnswerPlan& plan, Question question) {
  const auto asked = std::chrono::steady_clock::now();
  answered_.reset();
  if (!answersLost_) {
    SendPieces(plan, question == Question::Status ? status_answer(plan.number)
                                                  : readiness_answer(plan.number));
  }
  decoder::Answer told = told_by(plan, question);
  // The client waits for one second, and on a busy machine an answer may take longer than that.
  const bool inTime = std::chrono::steady_clock::now() - asked < kSurelyInTime;
  told.sure = told.sure && inTime && !answersLost_ && !readsSlowly_;
  parser_.Answered(told, answered_);
}

decoder::StreamTime Session::Now() const {
  return printer_.simulatedClock
             ? std::nullopt
             : decoder::StreamTime(std::chrono::steady_clock::now().time_since_epoch());
}

void Session::OnCommandBytes(std::uint64_t /*offset*/, decoder::Command command,
                             std::span<const std::uint8_t> bytes) {
  if (printer_.verbose || printer_.contactSheet != nullptr) {
    fields_ = decoder::named_fields(command, bytes);
  }
}

void Session::SayFields(decoder::Command command) const {
  if (!printer_.verbose) {
    return;
  }
  for (const decoder::NamedField& field : fields_) {
    log_.Say(std::string(to_string(command)) + ", " + field.name + ": " + field.value);
  }
}

void Session::OnStatusRequest(std::uint64_t /*offset*/) {
  NoteTime("status request");
  const AnswerPlan plan =
      printer_.faults.Answer(Question::Status, parser_.Course().StatusAboutSheet());
  GiveAnswer(plan, Question::Status);
  log_.Say("status request, " + answer_words(plan));
  SayFields(decoder::Command::StatusRequest);
  printer_.faults.EndByCount();
}

void Session::OnReadinessQuery(std::uint64_t /*offset*/, const decoder::JobHeader& header) {
  NoteTime("readiness query");
  const AnswerPlan plan = printer_.faults.Answer(Question::Readiness, true);
  GiveAnswer(plan, Question::Readiness);
  log_.Say("readiness query, " + sheet_words(header) + ", " + answer_words(plan));
  SayFields(decoder::Command::ReadinessQuery);
  printer_.faults.EndByCount();
}

void Session::OnJobHeader(std::uint64_t /*offset*/, const decoder::JobHeader& header) {
  NoteTime("job header");
  log_.Say("job header, " + job_header_words(header));
  SayFields(decoder::Command::JobHeader);
  jobFields_ = fields_;
}

void Session::OnImageHeader(std::uint64_t /*offset*/, const decoder::ImageHeader& header) {
  NoteTime("image header");
  log_.Say("image header, " + image_header_words(header));
  SayFields(decoder::Command::ImageHeader);
  imageFields_ = fields_;
}

void Session::OnSheetBegin(const decoder::Sheet& sheet) {
  sheet_ = sheet;
  if (!parser_.Course().SheetAllowed() || !printer_.faults.SuppliesLeft()) {
    log_.Say("the sheet is not printed: the printer did not allow it");
    return;
  }
  printer_.sheets.Begin(sheet);
  progress_.Begin(std::uint32_t{sheet.image.height} + sheet.image.matteHeight);
}

void Session::OnImageRow(std::uint32_t row, std::span<const std::uint16_t> samples) {
  if (printer_.sheets.Busy()) {
    printer_.sheets.ImageRow(row, samples);
    progress_.Row();
  }
}

void Session::OnMatteRow(std::uint32_t row, std::span<const std::uint8_t> bytes) {
  if (printer_.sheets.Busy()) {
    printer_.sheets.MatteRow(row, bytes);
    progress_.Row();
  }
}

void Session::OnSheetEnd(const decoder::SheetEnd& end) {
  NoteTime("sheet");
  if (end.badSamples > 0) {
    log_.Say("note: " + counted(end.badSamples, "sample") + " of the sheet above 0x3FFF");
  }
  if (!printer_.sheets.Busy()) {
    return;
  }
  SayPrinted(printer_.sheets.End());
}

void Session::SayPrinted(const SheetResult& result) {
  const std::string name = "sheet " + std::to_string(result.number);
  if (!result.error.empty()) {
    log_.SayFailure(name + " could not be written to " + result.path.string() + ": " +
                    result.error);
    return;
  }
  ++sheets_;
  ++printer_.tally.sheets;
  printer_.faults.SheetPrinted();
  log_.Say(name + " printed to " + result.path.string() + ": " + printed_sheet_words(sheet_));
  if (!result.listError.empty()) {
    log_.SayFailure("sheets.txt: " + result.listError);
  }
  if (!result.thumbnailError.empty()) {
    log_.SayFailure(name + " has no thumbnail: " + result.thumbnailError);
  }
  AddToContactSheet(result);
}

void Session::AddToContactSheet(const SheetResult& result) {
  if (printer_.contactSheet == nullptr) {
    return;
  }
  const std::string file = result.path.filename().string();
  const std::string why = printer_.contactSheet->Add(
      {"Sheet " + std::to_string(result.number) + " of connection " + std::to_string(log_.Number()),
       file, "thumbnails/" + file, printed_sheet_words(sheet_), jobFields_, imageFields_});
  if (!why.empty()) {
    log_.SayFailure("index.html: " + why);
  }
}

void Session::OnSheetCut() {
  if (!printer_.sheets.Busy()) {
    return;
  }
  const SheetResult result = printer_.sheets.Cut();
  const std::string name = "sheet " + std::to_string(result.number) + " was cut and is not printed";
  if (result.error.empty()) {
    log_.Say(name + "; what came of it is in " + result.path.string());
  } else {
    log_.SayFailure(name + "; " + result.path.string() + " could not be written: " + result.error);
  }
}

void Session::OnPrintOut(std::uint64_t /*offset*/, std::uint8_t waitByte) {
  NoteTime("print-out");
  log_.Say("print-out, wait byte " + std::to_string(waitByte));
  SayFields(decoder::Command::PrintOut);
}

void Session::OnError(const decoder::StreamError& error) {
  log_.SayError(error);
}

void Session::OnSkipped(std::uint64_t offset, std::uint64_t count) {
  log_.SaySkipped(offset, count);
}

}  // namespace simulator
