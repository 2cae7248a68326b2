// SPDX-License-Identifier: Apache-2.0
//
// Which faults are active now, by the rules in their order, by what has happened so far and by the
// clock.
//
// A rule is active ("holds") from its moment to its end. A client may not notice at once: the fault
// "shows" when it first changes what a client sees. How long or how often it lasts is counted from
// then on.
#ifndef TQR7_SIMULATOR_FAULT_SCHEDULE_H
#define TQR7_SIMULATOR_FAULT_SCHEDULE_H

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "simulator/answer_plan.h"
#include "simulator/fault_rule.h"

namespace simulator {

/// The faults of a whole run, in which connections come one after another.
class FaultSchedule {
 public:
  using TimePoint = std::chrono::steady_clock::time_point;
  using Now = std::function<TimePoint()>;
  using Tell = std::function<void(const std::string& line)>;

  /// Calls `tell` with a line when a fault begins to show and when it ends.
  FaultSchedule(Now now, Tell tell) : now_(std::move(now)), tell_(std::move(tell)) {}

  /// Adds rules after the present ones.
  void Add(const std::vector<FaultRule>& rules);

  /// Replaces the rules of the last script by those of a new one, whose jobs and sheets are counted
  /// from now on. The script keeps its place among the other rules, which stay.
  void SetScript(const std::vector<FaultRule>& rules);

  void ConnectionOpens();
  void ConnectionCloses();
  void SheetPrinted();

  /// How the question is answered now. `aboutSheet`: it is one of the questions before a sheet.
  AnswerPlan Answer(Question question, bool aboutSheet);

  /// False while paper or ribbon is used up.
  bool SuppliesLeft() const;

  /// The byte at which the connection is to be dropped, if at any. Call Drop when it was dropped.
  std::optional<std::uint64_t> DropAt() const;
  void Drop();

  /// The limit on reading now; nothing when bytes are read as they come.
  std::optional<std::uint64_t> BytesPerSecond();

  /// A person has seen to the printer. Ends the active faults that have no end of their own, and
  /// all those of paper, ribbon and cover.
  void SeenTo();

  /// Ends the faults that have shown often enough. Call it after each answer.
  void EndByCount();

  /// Ends the faults that have shown long enough. Call it again at NextEnd at the latest.
  void EndByTime();
  std::optional<TimePoint> NextEnd() const;

 private:
  struct Entry {
    FaultRule rule;
    bool fromScript = false;
    std::uint64_t jobsBefore = 0;    ///< of the run, when the rule was added
    std::uint64_t sheetsBefore = 0;  ///< of the run, when the rule was added
    bool holds = false;              ///< its moment has come, and its end has not
    bool over = false;
    std::uint64_t shown = 0;       ///< in how many answers or connections
    std::uint64_t shownInJob = 0;  ///< the number of the last connection that it showed in
    std::uint64_t sheetsLeft = 0;  ///< until paper or ribbon is used up
    std::optional<TimePoint> end;
  };

  Entry Made(const FaultRule& rule, bool fromScript) const;
  void ReachSheet();
  void Show(Entry& entry);
  void End(Entry& entry, const std::string& why);
  bool ShownEnough(const Entry& entry) const;
  bool Changes(const Entry& entry, Question question, AnswerPlan& plan) const;
  const Entry* FindDrop() const;

  Now now_;
  Tell tell_;
  std::vector<Entry> entries_;
  std::optional<std::size_t> scriptPlace_;  ///< where the script's rules begin
  std::uint64_t jobs_ = 0;
  std::uint64_t sheets_ = 0;
  bool connected_ = false;
};

}  // namespace simulator

#endif  // TQR7_SIMULATOR_FAULT_SCHEDULE_H
