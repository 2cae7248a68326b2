// SPDX-License-Identifier: Apache-2.0
//
// The printer's answers to the two questions of the stream: their bytes, and how one of them is
// sent, whole and at once or as the faults of the moment change it.
#ifndef TQR7_SIMULATOR_ANSWER_PLAN_H
#define TQR7_SIMULATOR_ANSWER_PLAN_H

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "decoder/exchange.h"
#include "simulator/fault_rule.h"

namespace simulator {

inline constexpr std::uint16_t kStatusGood = 0x0000;   ///< the error number of a good printer
inline constexpr std::uint16_t kEnableReady = 0x0000;  ///< the enable code that lets a sheet pass
inline constexpr std::uint16_t kEnableBusy = 0x0100;   ///< ask again

// A client waits for at least so many bytes. No more are sent: the client would take further bytes
// for the beginning of the next answer.
inline constexpr std::size_t kStatusAnswerLength = 15;
inline constexpr std::size_t kReadinessAnswerLength = 6;

/// 15 bytes: the number in bytes 4 and 5, high byte first; the others are zero.
std::vector<std::uint8_t> status_answer(std::uint16_t number);

/// 6 bytes: the code in bytes 4 and 5, high byte first; the others are zero.
std::vector<std::uint8_t> readiness_answer(std::uint16_t code);

/// The time between two pieces of an answer, so that they arrive as pieces.
inline constexpr std::chrono::milliseconds kPieceDistance{50};

/// An answer that is sent within this time reaches the client before it gives up, after one second.
inline constexpr std::chrono::milliseconds kSurelyInTime{900};

/// One answer's number, and what goes wrong when it is sent.
struct AnswerPlan {
  std::uint16_t number = 0;
  std::chrono::milliseconds delay{0};
  std::vector<std::uint64_t> pieces;   ///< lengths of all pieces but the last
  std::optional<std::uint64_t> cutTo;  ///< how many bytes of it are sent; all without
  std::vector<std::uint8_t> stray;     ///< bytes that are sent right before it
  bool silent = false;                 ///< no answer at all
};

/// What is sent of `answer`, piece by piece. Stray bytes are in the first piece. No piece is empty.
std::vector<std::vector<std::uint8_t>> pieces_of(const AnswerPlan& plan,
                                                 std::span<const std::uint8_t> answer);

/// "answered 0x2665, in pieces, 2 s late" or "not answered". It says the delay even when the client
/// did not wait for the answer.
std::string answer_words(const AnswerPlan& plan);

/// The answer as the client could see it: "0x2665", "no answer" or "an answer of 3 bytes".
decoder::Answer told_by(const AnswerPlan& plan, Question question);

}  // namespace simulator

#endif  // TQR7_SIMULATOR_ANSWER_PLAN_H
