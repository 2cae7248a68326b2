// SPDX-License-Identifier: Apache-2.0
//
// One rule of what goes wrong with the simulated printer: what, from when on, and for how long.
#ifndef TQR7_SIMULATOR_FAULT_RULE_H
#define TQR7_SIMULATOR_FAULT_RULE_H

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

namespace simulator {

/// When a rule begins.
struct Moment {
  enum class Kind : std::uint8_t {
    Beginning,
    Job,    ///< from the `number`-th connection on
    Sheet,  ///< from the questions asked before the `number`-th sheet on
  };
  Kind kind = Kind::Beginning;
  std::uint64_t number = 0;

  bool operator==(const Moment&) const = default;
};

/// How long a fault lasts after it first showed.
struct Extent {
  enum class Kind : std::uint8_t {
    Standing,  ///< until a person sees to the printer
    Time,      ///< for `time`
    Times,     ///< in `times` answers or connections
  };
  Kind kind = Kind::Standing;
  std::chrono::milliseconds time{0};
  std::uint64_t times = 0;

  bool operator==(const Extent&) const = default;
};

/// Which of the stream's two questions the answer belongs to.
enum class Question : std::uint8_t { Status, Readiness };

/// What goes wrong. The comments say which of the other fields is used.
struct Fault {
  enum class Kind : std::uint8_t {
    Status,  ///< `number`
    Enable,  ///< `number`
    Busy,    ///< `count` queries
    Late,    ///< `question`, `delay`
    Pieces,  ///< `question`, `pieces`
    Short,   ///< `question`, `count` bytes
    Stray,   ///< `question`, `stray`
    Silent,  ///< `question`
    Drop,    ///< at byte `count`
    Read,    ///< `count` bytes a second
    Paper,   ///< `count` sheets, then `number`
    Ribbon,  ///< `count` sheets, then `number`
    Cover,   ///< `number`
  };
  Kind kind = Kind::Status;
  Question question = Question::Status;
  std::uint16_t number = 0;  ///< an error number or an enable code
  std::uint64_t count = 0;
  std::chrono::milliseconds delay{0};
  std::vector<std::uint64_t> pieces{};  ///< lengths of all pieces but the last
  std::vector<std::uint8_t> stray{};

  bool operator==(const Fault&) const = default;
};

/// A rule as it was written.
struct FaultRule {
  Moment moment{};
  Fault fault{};
  Extent extent{};

  bool operator==(const FaultRule&) const = default;
};

/// The rule as it can be written: "sheet 2: cover 0x1300 for 2.5 s".
std::string to_string(const FaultRule& rule);

/// "2.5 s"
std::string in_seconds(std::chrono::milliseconds time);

}  // namespace simulator

#endif  // TQR7_SIMULATOR_FAULT_RULE_H
