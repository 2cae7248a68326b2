// SPDX-License-Identifier: Apache-2.0
//
// Which faults hold now: the rules in their order, what has happened so far, and the clock.
//
// A rule waits for its moment, then holds; it shows when it first changes what a client sees, and
// time and times of its extent count from there.
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

/// The printer's mind for the whole run. What it is asked and told is that of one connection after
/// another.
class FaultSchedule {
 public:
  using TimePoint = std::chrono::steady_clock::time_point;
  using Now = std::function<TimePoint()>;
  using Tell = std::function<void(const std::string& line)>;

  /// `tell` gets a line when a fault begins to show and when it ends.
  FaultSchedule(Now now, Tell tell) : now_(std::move(now)), tell_(std::move(tell)) {}

  /// Adds rules behind those that are there.
  void Add(const std::vector<FaultRule>& rules);

  /// Puts a script in the place of the script before it, and begins it anew: its jobs and sheets
  /// count from here. Other rules, and the script's own place among them, stay.
  void SetScript(const std::vector<FaultRule>& rules);

  void ConnectionOpens();
  void ConnectionCloses();
  void SheetPrinted();

  /// How the question is answered now. `aboutSheet`: it is one of those asked before a sheet.
  AnswerPlan Answer(Question question, bool aboutSheet);

  /// False while there is no paper or no ribbon.
  bool SuppliesLeft() const;

  /// At which byte of the connection it is dropped, if at any. Drop says that it was.
  std::optional<std::uint64_t> DropAt() const;
  void Drop();

  /// How slowly bytes are read now; nothing when they are read as they come.
  std::optional<std::uint64_t> BytesPerSecond();

  /// A person has seen to the printer: ends what holds and has no end of its own, and every want of
  /// paper or ribbon and every open cover.
  void SeenTo();

  /// Ends what has shown often enough, and says so; due when an answer is out.
  void EndByCount();

  /// Ends what has shown long enough, and says so. NextEnd is when to call it again at the latest.
  void EndByTime();
  std::optional<TimePoint> NextEnd() const;

 private:
  struct Entry {
    FaultRule rule;
    bool fromScript = false;
    std::uint64_t jobsBefore = 0;    ///< of the run, when the rule came
    std::uint64_t sheetsBefore = 0;  ///< of the run, when the rule came
    bool holds = false;              ///< its moment has come, and its end has not
    bool over = false;
    std::uint64_t shown = 0;       ///< answers or connections
    std::uint64_t shownInJob = 0;  ///< the connection that showed it last, by its number
    std::uint64_t sheetsLeft = 0;  ///< of a supply
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
