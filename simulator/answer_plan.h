// SPDX-License-Identifier: Apache-2.0
//
// How one answer goes out: whole and at once, or as the faults of the moment have it.
#ifndef TQR7_SIMULATOR_ANSWER_PLAN_H
#define TQR7_SIMULATOR_ANSWER_PLAN_H

#include <chrono>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "decoder/exchange.h"
#include "simulator/fault_rule.h"

namespace simulator {

/// Pieces of an answer leave this far apart, so that they arrive as pieces.
inline constexpr std::chrono::milliseconds kPieceDistance{50};

/// A client gives an answer up that takes a second to come, on its way as well.
inline constexpr std::chrono::milliseconds kSurelyInTime{900};

/// One answer's number, and what is wrong with its way.
struct AnswerPlan {
  std::uint16_t number = 0;
  std::chrono::milliseconds delay{0};
  std::vector<std::uint64_t> pieces;   ///< lengths of all pieces but the last
  std::optional<std::uint64_t> cutTo;  ///< only so many bytes of it
  std::vector<std::uint8_t> stray;     ///< go out right before it
  bool silent = false;                 ///< no answer at all
};

/// What goes out of `answer`, piece by piece. Stray bytes go with the first piece; nothing of it is
/// empty.
std::vector<std::vector<std::uint8_t>> pieces_of(const AnswerPlan& plan,
                                                 std::span<const std::uint8_t> answer);

/// "answered 0x2665, 2 s late, in 3 pieces" or "not answered". The delay is not left out when the
/// client went away in it.
std::string answer_words(const AnswerPlan& plan);

/// What the answer to a question tells the client: "0x2665", "no answer" or "an answer of 3 bytes".
decoder::Answer told_by(const AnswerPlan& plan, Question question);

}  // namespace simulator

#endif  // TQR7_SIMULATOR_ANSWER_PLAN_H
