// SPDX-License-Identifier: Apache-2.0
#include "simulator/fault_script.h"

#include <algorithm>
#include <array>
#include <optional>

#include "decoder/stream_error.h"
#include "simulator/answer_plan.h"
#include "simulator/rule_words.h"

namespace simulator {
namespace {

constexpr std::uint64_t kCountMost = 1'000'000'000;
constexpr std::uint64_t kNumberMost = 0xFFFF;

constexpr std::size_t kPiecesMost = 64;
constexpr std::size_t kStrayMost = 512;

constexpr std::array<std::string_view, 8> kFaultWords{"status", "enable", "busy",   "drop",
                                                      "read",   "paper",  "ribbon", "cover"};

// "status", "enable", … or "cover", in quotation marks.
std::string fault_alternatives() {
  std::vector<std::string> quoted;
  quoted.reserve(kFaultWords.size());
  for (const std::string_view word : kFaultWords) {
    quoted.push_back('"' + std::string(word) + '"');
  }
  return decoder::alternatives(quoted);
}

std::uint64_t reply_length(Question question) {
  return question == Question::Status ? kStatusAnswerLength : kReadinessAnswerLength;
}

// Whether the next number begins "K times" and is not another item of a list.
bool times_follow(const RuleWords& words) {
  return words.Next(1) == "times";
}

bool take_count(RuleWords& words, std::uint64_t low, std::uint64_t high, std::uint64_t& count) {
  const std::optional<std::uint64_t> number = words.Number(low, high);
  count = number.value_or(0);
  return number.has_value();
}

bool take_number(RuleWords& words, std::uint64_t low, std::uint16_t& number) {
  std::uint64_t taken = 0;
  const bool good = take_count(words, low, kNumberMost, taken);
  number = static_cast<std::uint16_t>(taken);
  return good;
}

bool take_time(RuleWords& words, std::chrono::milliseconds& time) {
  const std::optional<std::chrono::milliseconds> taken = words.Time();
  time = taken.value_or(std::chrono::milliseconds(0));
  return taken.has_value();
}

bool take_pieces(RuleWords& words, Fault& fault) {
  const std::uint64_t most = reply_length(fault.question) - 1;
  do {
    std::uint64_t piece = 0;
    if (!take_count(words, 1, most, piece)) {
      return false;
    }
    fault.pieces.push_back(piece);
  } while (read_number(words.Next()) && !times_follow(words) && fault.pieces.size() < kPiecesMost);
  return true;
}

// No word that may follow a list of bytes has two characters.
bool take_stray(RuleWords& words, Fault& fault) {
  do {
    const std::optional<std::uint8_t> byte = words.Byte();
    if (!byte) {
      return false;
    }
    fault.stray.push_back(*byte);
  } while (words.Next().size() == 2 && !times_follow(words) && fault.stray.size() < kStrayMost);
  return true;
}

bool take_answer_fault(RuleWords& words, Question question, Fault& fault) {
  fault.question = question;
  if (words.Take("late")) {
    fault.kind = Fault::Kind::Late;
    return take_time(words, fault.delay);
  }
  if (words.Take("pieces")) {
    fault.kind = Fault::Kind::Pieces;
    return take_pieces(words, fault);
  }
  if (words.Take("short")) {
    fault.kind = Fault::Kind::Short;
    return take_count(words, 1, reply_length(question) - 1, fault.count);
  }
  if (words.Take("stray")) {
    fault.kind = Fault::Kind::Stray;
    return take_stray(words, fault);
  }
  if (words.Take("silent")) {
    fault.kind = Fault::Kind::Silent;
    return true;
  }
  // The kind says which question it is about.
  fault.question = Question::Status;
  fault.kind = question == Question::Status ? Fault::Kind::Status : Fault::Kind::Enable;
  const std::optional<std::uint64_t> number =
      words.Number(0, kNumberMost, R"(, "late", "pieces", "short", "stray" or "silent")");
  fault.number = static_cast<std::uint16_t>(number.value_or(0));
  return number.has_value();
}

bool take_supply(RuleWords& words, Fault::Kind kind, Fault& fault) {
  fault.kind = kind;
  return take_count(words, 0, kCountMost, fault.count) && words.Require("then") &&
         take_number(words, 1, fault.number);
}

bool take_connection_fault(RuleWords& words, Fault& fault) {
  if (words.Take("drop")) {
    fault.kind = Fault::Kind::Drop;
    return words.Require("at") && words.Require("byte") &&
           take_count(words, 0, kCountMost, fault.count);
  }
  if (words.Take("read")) {
    fault.kind = Fault::Kind::Read;
    return take_count(words, 1, kCountMost, fault.count) && words.Require("bytes/s");
  }
  return words.Fail(fault_alternatives());
}

bool take_fault(RuleWords& words, Fault& fault) {
  if (words.Take("status")) {
    return take_answer_fault(words, Question::Status, fault);
  }
  if (words.Take("enable")) {
    return take_answer_fault(words, Question::Readiness, fault);
  }
  if (words.Take("busy")) {
    fault.kind = Fault::Kind::Busy;
    return take_count(words, 1, kCountMost, fault.count);
  }
  if (words.Take("paper")) {
    return take_supply(words, Fault::Kind::Paper, fault);
  }
  if (words.Take("ribbon")) {
    return take_supply(words, Fault::Kind::Ribbon, fault);
  }
  if (words.Take("cover")) {
    fault.kind = Fault::Kind::Cover;
    return take_number(words, 1, fault.number);
  }
  return take_connection_fault(words, fault);
}

bool take_moment(RuleWords& words, Moment& moment) {
  if (words.Take("job")) {
    moment.kind = Moment::Kind::Job;
  } else if (words.Take("sheet")) {
    moment.kind = Moment::Kind::Sheet;
  } else {
    const auto* const end = kFaultWords.end();
    return std::find(kFaultWords.begin(), end, words.Next()) != end ||
           words.Fail(R"("job", "sheet", )" + fault_alternatives());
  }
  return take_count(words, 1, kCountMost, moment.number) && words.Require(":");
}

// "busy K" says already how often, so it takes no "K times".
bool take_extent(RuleWords& words, const Fault& fault, Extent& extent) {
  const bool mayCount = fault.kind != Fault::Kind::Busy;
  if (words.AtEnd()) {
    return true;
  }
  if (words.Take("for")) {
    extent.kind = Extent::Kind::Time;
    return take_time(words, extent.time);
  }
  if (mayCount && words.Take("once")) {
    extent.kind = Extent::Kind::Times;
    extent.times = 1;
    return true;
  }
  if (mayCount && read_number(words.Next())) {
    extent.kind = Extent::Kind::Times;
    return take_count(words, 1, kCountMost, extent.times) && words.Require("times");
  }
  return words.Fail(mayCount ? "\"for\", a number of times, \"once\" or the end of the rule"
                             : "\"for\" or the end of the rule");
}

bool take_rule(RuleWords& words, FaultRule& rule) {
  return take_moment(words, rule.moment) && take_fault(words, rule.fault) &&
         take_extent(words, rule.fault, rule.extent) &&
         (words.AtEnd() || words.Fail("the end of the rule"));
}

}  // namespace

std::string to_string(const ScriptError& error) {
  return "came " + error.came + ", expected " + error.expected;
}

Script read_rule(std::string_view text, std::size_t line) {
  RuleWords words(text);
  FaultRule rule;
  if (take_rule(words, rule)) {
    return {{rule}, {}};
  }
  return {{}, {{line, words.ErrorColumn(), words.Came(), words.Expected()}}};
}

Script read_script(std::string_view text) {
  Script script;
  for (std::size_t line = 1; !text.empty(); ++line) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view whole = text.substr(0, end);
    const std::string_view rule = whole.substr(0, whole.find('#'));
    text.remove_prefix(std::min(end + 1, text.size()));
    if (RuleWords(rule).AtEnd()) {
      continue;
    }
    const Script one = read_rule(rule, line);
    if (!one.errors.empty()) {
      return {{}, one.errors};
    }
    script.rules.push_back(one.rules.front());
  }
  return script;
}

}  // namespace simulator
