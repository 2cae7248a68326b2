// SPDX-License-Identifier: Apache-2.0
#include "decoder/stream_parser.h"

#include <algorithm>
#include <string>

#include "decoder/header_check.h"

namespace decoder {
namespace {

// "1B 47 44 37"
std::string code_text(std::span<const std::uint8_t> bytes) {
  std::string text;
  for (const std::uint8_t byte : bytes) {
    text += text.empty() ? "" : " ";
    text += hex_byte(byte).substr(2);
  }
  return text;
}

std::string all_codes() {
  std::string text;
  for (const CommandCode& code : command_codes()) {
    text += text.empty() ? "" : ", ";
    text += code_text(code.bytes);
  }
  return text;
}

}  // namespace

StreamParser::StreamParser(CommandListener& listener)
    : listener_(listener), report_([this](const StreamError& error) { Report(error); }) {}

void StreamParser::Report(const StreamError& error) {
  ++errorCount_;
  listener_.OnError(error);
}

void StreamParser::Feed(Bytes bytes, StreamTime at) {
  at_ = at;
  while (!bytes.empty()) {
    bytes = bytes.subspan(Step(bytes));
  }
}

// Each Take… function moves offset_ itself, before it finishes what the bytes complete.
std::size_t StreamParser::Step(Bytes bytes) {
  switch (mode_) {
    case Mode::Code:
      return TakeCode(bytes);
    case Mode::Block:
      return TakeBlock(bytes);
    case Mode::Image:
      return TakeImage(bytes);
    case Mode::Matte:
      return TakeMatte(bytes);
    case Mode::Search:
      return TakeSearch(bytes);
  }
  return bytes.size();
}

std::size_t StreamParser::TakeCode(Bytes bytes) {
  block_.at(filled_) = bytes.front();
  ++filled_;
  ++offset_;
  if (!is_code_prefix(Block())) {
    RejectCode();
  } else if (filled_ == kCodeLength) {
    BeginBlock(*find_code(Block()));
  }
  return 1;
}

void StreamParser::RejectCode() {
  Report({BlockOffset(), Command::None, "command code", code_text(Block()), all_codes()});
  BeginSearch(BlockOffset());
  scanner_.Take(Block());
}

void StreamParser::BeginSearch(std::uint64_t from) {
  mode_ = Mode::Search;
  searchFrom_ = from;
  scanner_.Reset();
}

std::size_t StreamParser::TakeSearch(Bytes bytes) {
  const std::size_t taken = scanner_.Take(bytes);
  offset_ += taken;
  if (scanner_.Found()) {
    if (scanner_.Skipped() > 0) {
      listener_.OnSkipped(searchFrom_, scanner_.Skipped());
    }
    std::copy(scanner_.Code().begin(), scanner_.Code().end(), block_.begin());
    filled_ = kCodeLength;
    BeginBlock(*find_code(Block()));
  }
  return taken;
}

void StreamParser::BeginBlock(const CommandCode& code) {
  code_ = &code;
  mode_ = Mode::Block;
  exchange_.Take(code.command, BlockOffset(), at_, report_);
}

std::size_t StreamParser::TakeBlock(Bytes bytes) {
  const std::size_t count = std::min(bytes.size(), code_->length - filled_);
  std::copy_n(bytes.begin(), count, block_.begin() + static_cast<std::ptrdiff_t>(filled_));
  filled_ += count;
  offset_ += count;
  if (filled_ == code_->length) {
    FinishBlock();
  }
  return count;
}

void StreamParser::FinishBlock() {
  const std::uint64_t errorsBefore = errorCount_;
  listener_.OnCommandBytes(BlockOffset(), code_->command, Block());
  check_fields(Block(), code_->fixedBytes, field_rules(code_->command), code_->command,
               BlockOffset(), report_);
  mode_ = Mode::Code;
  switch (code_->command) {
    case Command::ReadinessQuery:
      FinishReadinessQuery(errorsBefore);
      break;
    case Command::JobHeader:
      FinishJobHeader(errorsBefore);
      break;
    case Command::ImageHeader:
      FinishImageHeader();
      break;
    case Command::PrintOut:
      FinishPrintOut();
      break;
    default:
      settings_.TakeOther();
      job_.reset();
      listener_.OnStatusRequest(BlockOffset());
      break;
  }
  filled_ = 0;
}

void StreamParser::FinishReadinessQuery(std::uint64_t errorsBefore) {
  const JobHeader header = read_job_header(Block());
  check_sheet(header, code_->command, BlockOffset(), report_);
  job_.reset();
  exchange_.TakeSettings(may_carry_two_prints(header));
  settings_.TakeQuery(block_, BlockOffset(), errorCount_ == errorsBefore, exchange_.FileGoesOn(),
                      report_);
  listener_.OnReadinessQuery(BlockOffset(), header);
}

void StreamParser::FinishJobHeader(std::uint64_t errorsBefore) {
  const JobHeader header = read_job_header(Block());
  job_.reset();
  if (check_sheet(header, code_->command, BlockOffset(), report_)) {
    job_ = header;
  }
  exchange_.TakeSettings(may_carry_two_prints(header));
  settings_.TakeJobHeader(block_, BlockOffset(), errorCount_ == errorsBefore, report_);
  listener_.OnJobHeader(BlockOffset(), header);
}

void StreamParser::FinishImageHeader() {
  const ImageHeader image = read_image_header(Block());
  check_date(image, BlockOffset(), report_);
  const bool good = job_ && check_image(image, *job_, BlockOffset(), report_);
  listener_.OnImageHeader(BlockOffset(), image);
  if (good) {
    sheet_ = {*job_, image};
    badSamples_ = 0;
    plane_.Begin(image.width * kBytesPerPixel, image.height);
    mode_ = Mode::Image;
    listener_.OnSheetBegin(sheet_);
  } else {
    BeginSearch(offset_);
  }
  settings_.TakeImageHeader(block_, BlockOffset(), good, report_);
  job_.reset();
}

void StreamParser::FinishPrintOut() {
  const std::uint8_t wait = read_print_out_wait(Block());
  settings_.TakePrintOut(wait, BlockOffset(), exchange_.FileGoesOn(), report_);
  job_.reset();
  listener_.OnPrintOut(BlockOffset(), wait);
}

std::size_t StreamParser::TakeImage(Bytes bytes) {
  const std::size_t taken = plane_.Take(bytes);
  offset_ += taken;
  if (plane_.RowComplete()) {
    FinishImageRow();
    plane_.NextRow();
    if (plane_.Complete()) {
      BeginMatte();
    }
  }
  return taken;
}

void StreamParser::FinishImageRow() {
  read_samples(plane_.Row(), samples_);
  badSamples_ += count_bad_samples(samples_);
  listener_.OnImageRow(plane_.RowNumber(), samples_);
}

void StreamParser::BeginMatte() {
  plane_.Begin(sheet_.image.matteWidth, sheet_.image.matteHeight);
  mode_ = Mode::Matte;
  if (plane_.Complete()) {
    FinishSheet();
  }
}

std::size_t StreamParser::TakeMatte(Bytes bytes) {
  const std::size_t taken = plane_.Take(bytes);
  offset_ += taken;
  if (plane_.RowComplete()) {
    listener_.OnMatteRow(plane_.RowNumber(), plane_.Row());
    plane_.NextRow();
    if (plane_.Complete()) {
      FinishSheet();
    }
  }
  return taken;
}

void StreamParser::FinishSheet() {
  mode_ = Mode::Code;
  listener_.OnSheetEnd({offset_, badSamples_});
}

Command StreamParser::Within() const {
  switch (mode_) {
    case Mode::Block:
      return code_->command;
    case Mode::Image:
      return Command::ImageData;
    case Mode::Matte:
      return Command::MatteData;
    case Mode::Code:
    case Mode::Search:
      return Command::None;
  }
  return Command::None;
}

void StreamParser::ReportCut(Command command, const char* field, std::uint64_t taken,
                             std::uint64_t whole) {
  const std::string all = std::to_string(whole) + " bytes";
  Report({offset_, command, field, "the end after " + std::to_string(taken) + " of " + all,
          all + ", " + std::to_string(whole - taken) + " more"});
}

void StreamParser::EndOfStream() {
  switch (mode_) {
    case Mode::Code:
      if (filled_ > 0) {
        ReportCut(Command::None, "command code", filled_, kCodeLength);
      } else if (exchange_.ImageHeaderDue()) {
        ReportCut(Command::ImageHeader, "length", 0, kBlockLength);
      }
      break;
    case Mode::Block:
      ReportCut(code_->command, "length", filled_, code_->length);
      break;
    case Mode::Image:
    case Mode::Matte:
      ReportCut(Within(), "length", plane_.BytesTaken(), plane_.BytesExpected());
      listener_.OnSheetCut();
      break;
    case Mode::Search:
      listener_.OnSkipped(searchFrom_, offset_ - searchFrom_);
      break;
  }
}

}  // namespace decoder
