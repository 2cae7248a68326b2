// SPDX-License-Identifier: Apache-2.0
#include "simulator/answer_plan.h"

#include <algorithm>

#include "decoder/stream_error.h"
#include "simulator/wording.h"

namespace simulator {
namespace {

std::vector<std::uint8_t> answer_of(std::size_t length, std::uint16_t number) {
  constexpr std::size_t kOffsetNumber = 4;
  std::vector<std::uint8_t> bytes(length, 0);
  bytes[kOffsetNumber] = static_cast<std::uint8_t>(number >> 8U);
  bytes[kOffsetNumber + 1] = static_cast<std::uint8_t>(number & 0xFFU);
  return bytes;
}

}  // namespace

std::vector<std::uint8_t> status_answer(std::uint16_t number) {
  return answer_of(kStatusAnswerLength, number);
}

std::vector<std::uint8_t> readiness_answer(std::uint16_t code) {
  return answer_of(kReadinessAnswerLength, code);
}

std::vector<std::vector<std::uint8_t>> pieces_of(const AnswerPlan& plan,
                                                 std::span<const std::uint8_t> answer) {
  if (plan.silent) {
    return {};
  }
  std::span<const std::uint8_t> rest = answer.first(static_cast<std::size_t>(
      std::min<std::uint64_t>(plan.cutTo.value_or(answer.size()), answer.size())));
  std::vector<std::vector<std::uint8_t>> pieces(1, plan.stray);
  for (const std::uint64_t length : plan.pieces) {
    const auto taken = rest.first(std::min<std::size_t>(length, rest.size()));
    pieces.back().insert(pieces.back().end(), taken.begin(), taken.end());
    rest = rest.subspan(taken.size());
    if (rest.empty()) {
      return pieces;
    }
    pieces.emplace_back();
  }
  pieces.back().insert(pieces.back().end(), rest.begin(), rest.end());
  return pieces;
}

std::string answer_words(const AnswerPlan& plan) {
  if (plan.silent) {
    return "not answered";
  }
  std::string text = "answered " + decoder::hex_word(plan.number);
  if (plan.cutTo) {
    text += ", only " + counted(*plan.cutTo, "byte") + " of it";
  }
  if (!plan.pieces.empty()) {
    text += ", in pieces";
  }
  if (!plan.stray.empty()) {
    text += ", behind " + counted(plan.stray.size(), "stray byte");
  }
  if (plan.delay.count() > 0) {
    text += ", " + in_seconds(plan.delay) + " late";
  }
  return text;
}

decoder::Answer told_by(const AnswerPlan& plan, Question question) {
  using Meaning = decoder::Answer::Meaning;
  decoder::Answer answer;
  if (plan.silent || plan.cutTo) {
    answer.meaning = Meaning::Bad;
    answer.words = plan.silent ? "no answer" : "an answer of " + counted(*plan.cutTo, "byte");
  } else {
    const bool busy = question == Question::Readiness && plan.number == kEnableBusy;
    answer.meaning = plan.number == 0 ? Meaning::Good : busy ? Meaning::Busy : Meaning::Bad;
    answer.words = decoder::hex_word(plan.number);
  }
  answer.strayed = !plan.stray.empty();
  answer.sure = !plan.silent && !plan.cutTo && !answer.strayed && plan.delay < kSurelyInTime;
  return answer;
}

}  // namespace simulator
