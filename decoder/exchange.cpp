// SPDX-License-Identifier: Apache-2.0
#include "decoder/exchange.h"

#include <algorithm>
#include <array>
#include <vector>

namespace decoder {
namespace {

constexpr std::array<Command, 5> kCommands = {Command::StatusRequest, Command::ReadinessQuery,
                                              Command::JobHeader, Command::ImageHeader,
                                              Command::PrintOut};

bool is_question(Command command) {
  return command == Command::StatusRequest || command == Command::ReadinessQuery;
}

// "1.9 s": rounded down, so that a time that is too short is never shown as long enough.
std::string in_tenths(std::chrono::nanoseconds time) {
  using Tenths = std::chrono::duration<std::int64_t, std::deci>;
  const std::int64_t tenths = std::max(std::chrono::floor<Tenths>(time), Tenths{0}).count();
  return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10) + " s";
}

}  // namespace

// "Half" is the last page of a file on the paper that joins two pages, when it has no partner. The
// client prints it when the file ends, and sends the print-out whatever the printer answered. The
// first sheet of a file may be such a half until a settings block of the file says its paper.
const Exchange::Step Exchange::kSteps[] = {
    {Command::StatusRequest, Between, When::Always, Begun},
    {Command::StatusRequest, Begun, When::Good, AskedFirst},
    {Command::StatusRequest, Begun, When::Bad, Begun},
    {Command::StatusRequest, AskedFirst | AskedNext, When::Bad, Begun},
    {Command::StatusRequest, Queried, When::GivenUp, Begun},
    {Command::StatusRequest, AfterSheet, When::Always, AskedNext | Begun},
    {Command::ReadinessQuery, AskedFirst | AskedNext, When::Good, Queried},
    {Command::ReadinessQuery, Queried, When::Busy, Queried},
    {Command::JobHeader, Queried, When::Good, Header},
    {Command::ImageHeader, Header, When::Always, AfterSheet},
    {Command::PrintOut, Begun, When::Good, Between},
    {Command::PrintOut, AskedFirst, When::Bad, Between},
    {Command::PrintOut, AskedNext, When::BadHalf, Between},
    {Command::PrintOut, Queried, When::GivenUpHalf, Between},
    {Command::PrintOut, AfterSheet, When::Always, Between},
};

bool Exchange::Holds(When when, Answers answers) const {
  const bool busy = (answers & Busy) != 0;
  const bool bad = (answers & Bad) != 0;
  const bool givenUp = bad || (busy && queries_ >= kQueriesMost);
  switch (when) {
    case When::Always:
      return true;
    case When::Good:
      return (answers & Good) != 0;
    case When::Busy:
      return busy && queries_ < kQueriesMost;
    case When::Bad:
      return bad;
    case When::BadHalf:
      return bad && twoPrints_;
    case When::GivenUp:
      return givenUp;
    case When::GivenUpHalf:
      return givenUp && twoPrints_;
  }
  return false;
}

// The places where the command can come, and the places after it.
Exchange::Move Exchange::MoveOf(Command command, Answers answers) const {
  Move move;
  for (const Step& step : kSteps) {
    const auto from = static_cast<Places>(step.from & places_);
    if (step.command == command && from != 0 && Holds(step.when, answers)) {
      move.from |= from;
      move.to |= step.to;
    }
  }
  return move;
}

// A client must not query or print after an answer that was meant to forbid it, whatever it saw.
// Other commands only have to go with what it may have seen.
Exchange::Move Exchange::MoveOf(Command command) const {
  const bool meant = command == Command::ReadinessQuery || command == Command::JobHeader;
  return MoveOf(command, meant ? sent_ : seen_);
}

// The places after the command, wherever it came.
Exchange::Places Exchange::PlacesAfter(Command command) {
  Places places = 0;
  for (const Step& step : kSteps) {
    places |= step.command == command ? step.to : Places{0};
  }
  return places;
}

void Exchange::Take(Command command, std::uint64_t offset, StreamTime at, const ErrorSink& report) {
  constexpr Places kWithinFile = AskedNext | Queried | AfterSheet;
  constexpr Places kAsked = AskedFirst | AskedNext;
  const Move move = MoveOf(command);
  // By what was sent, if that can have led here; otherwise by what the client may have seen.
  const Places meant = MoveOf(command, sent_).to;
  const Places likely = meant != 0 ? meant : move.to;
  aboutSheet_ = command == Command::StatusRequest && (likely == 0 || (likely & kAsked) != 0);
  fileGoesOn_ = move.to != 0 && (move.from & ~kWithinFile) == 0;
  if (move.to == 0) {
    report(OutOfPlace(command, offset));
    twoPrints_ = true;
  } else if (command == Command::ReadinessQuery) {
    CheckPace(offset, at, report);
  }
  queries_ = command == Command::ReadinessQuery ? queries_ + 1 : 0;
  places_ = move.to != 0 ? move.to : PlacesAfter(command);
  last_ = command;
  if (is_question(command)) {
    seen_ = sent_ = meant_ = Any;
    busySince_.reset();
  }
  if (command == Command::StatusRequest) {
    status_ = Any;
  }
}

void Exchange::Answered(const Answer& answer, StreamTime at) {
  constexpr std::array<Answers, 3> kKnown = {Good, Busy, Bad};
  const Answers meant = kKnown.at(static_cast<std::size_t>(answer.meaning));
  inStep_ = inStep_ && answer.sure;
  seen_ = inStep_ ? meant : Answers{Any};
  sent_ = answer.strayed ? Answers{Any} : meant;
  meant_ = meant;
  words_ = answer.words;
  busySince_ = seen_ == Busy ? at : std::nullopt;
  if (last_ == Command::StatusRequest) {
    status_ = meant;
  }
}

bool Exchange::SheetAllowed() const {
  return (status_ & meant_ & Good) != 0;
}

void Exchange::CheckPace(std::uint64_t offset, StreamTime at, const ErrorSink& report) const {
  if (busySince_ && at && *at - *busySince_ < kBusyPause) {
    report({offset, Command::ReadinessQuery, "pace", in_tenths(*at - *busySince_) + " after busy",
            "2 s or more"});
  }
}

// "a query", "a job header"
std::string Exchange::Spoken(Command command) const {
  if (command == Command::ReadinessQuery) {
    return last_ == command ? "a repeated query" : "a query";
  }
  return std::string("a ") + to_string(command);
}

std::string Exchange::AllowedNow(bool answered) const {
  std::vector<std::string> names;
  for (const Command command : kCommands) {
    if (MoveOf(command).to != 0) {
      names.push_back(answered ? Spoken(command) : to_string(command));
    }
  }
  return alternatives(names);
}

StreamError Exchange::OutOfPlace(Command command, std::uint64_t offset) const {
  if (command == Command::ReadinessQuery && last_ == command && (sent_ & Busy) != 0) {
    return {offset, command, "number of queries", std::to_string(queries_ + 1) + " for one sheet",
            std::to_string(kQueriesMost) + " at most"};
  }
  return MoveOf(command, Any).to != 0 ? Unanswered(command, offset) : OutOfOrder(command, offset);
}

// The error for a command that another answer would have allowed.
StreamError Exchange::Unanswered(Command command, std::uint64_t offset) const {
  const bool repeated = command == Command::ReadinessQuery && last_ == command;
  const bool meant = command == Command::ReadinessQuery || command == Command::JobHeader;
  const char* const field = last_ == Command::StatusRequest ? "answer to the status request"
                                                            : "answer to the readiness query";
  return {offset, command, field, Spoken(command) + " after " + words_,
          meant ? Spoken(command) + " after " + (repeated ? "0x0100" : "0x0000")
                : AllowedNow(true) + " after " + words_};
}

StreamError Exchange::OutOfOrder(Command command, std::uint64_t offset) const {
  const std::string place = last_ == Command::None ? "at the beginning"
                            : places_ == Begun     ? "after the first status request of a file"
                                                   : std::string("after ") + to_string(last_);
  return {offset, command, "order of commands", std::string(to_string(command)) + " " + place,
          AllowedNow(false)};
}

}  // namespace decoder
