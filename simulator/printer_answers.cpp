// SPDX-License-Identifier: Apache-2.0
#include "simulator/printer_answers.h"

namespace simulator {
namespace {

constexpr std::size_t kOffsetNumber = 4;

std::vector<std::uint8_t> answer_of(std::size_t length, std::uint16_t number) {
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

}  // namespace simulator
