// SPDX-License-Identifier: Apache-2.0
#include "simulator/printer_answers.h"

#include <cstddef>

namespace simulator {
namespace {

// Clients wait for at least so many bytes. No more are sent: bytes that the client does not take
// with this answer would be taken for the beginning of the next one.
constexpr std::size_t kStatusReplyLength = 15;
constexpr std::size_t kReadinessReplyLength = 6;
constexpr std::size_t kOffsetNumber = 4;

Answer answer_of(std::size_t length, std::uint16_t number) {
  Answer answer{number, std::vector<std::uint8_t>(length, 0)};
  answer.bytes[kOffsetNumber] = static_cast<std::uint8_t>(number >> 8U);
  answer.bytes[kOffsetNumber + 1] = static_cast<std::uint8_t>(number & 0xFFU);
  return answer;
}

}  // namespace

Answer PrinterAnswers::ToStatusRequest() const {
  return answer_of(kStatusReplyLength, statusNumber_);
}

Answer PrinterAnswers::ToReadinessQuery() {
  if (busyLeft_ > 0) {
    --busyLeft_;
    return answer_of(kReadinessReplyLength, kEnableBusy);
  }
  return answer_of(kReadinessReplyLength, enableCode_);
}

}  // namespace simulator
