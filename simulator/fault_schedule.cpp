// SPDX-License-Identifier: Apache-2.0
#include "simulator/fault_schedule.h"

#include <algorithm>

#include "simulator/wording.h"

namespace simulator {
namespace {

using Kind = Fault::Kind;

bool is_supply(const Fault& fault) {
  return fault.kind == Kind::Paper || fault.kind == Kind::Ribbon;
}

bool is_of_connections(const Fault& fault) {
  return fault.kind == Kind::Drop || fault.kind == Kind::Read;
}

// Sets the answer's number; false when an earlier rule has set it, or the number says that all is
// well.
bool set_number(AnswerPlan& plan, std::uint16_t number) {
  if (plan.number != 0 || number == 0) {
    return false;
  }
  plan.number = number;
  return true;
}

// Sets a value; false when an earlier rule has set it.
template <typename T>
bool set_once(T& place, const T& value) {
  if (place != T{}) {
    return false;
  }
  place = value;
  return true;
}

// Applies a fault that changes how the answer is sent; false when it changes nothing.
bool change_way(const Fault& fault, AnswerPlan& plan) {
  switch (fault.kind) {
    case Kind::Late:
      return set_once(plan.delay, fault.delay);
    case Kind::Pieces:
      return set_once(plan.pieces, fault.pieces);
    case Kind::Short:
      return set_once(plan.cutTo, std::optional(fault.count));
    case Kind::Stray:
      return set_once(plan.stray, fault.stray);
    default:
      return false;
  }
}

}  // namespace

FaultSchedule::Entry FaultSchedule::Made(const FaultRule& rule, bool fromScript) const {
  Entry entry;
  entry.rule = rule;
  entry.fromScript = fromScript;
  entry.jobsBefore = jobs_;
  entry.sheetsBefore = sheets_;
  entry.holds = rule.moment.kind == Moment::Kind::Beginning;
  entry.sheetsLeft = rule.fault.count;
  return entry;
}

void FaultSchedule::Add(const std::vector<FaultRule>& rules) {
  for (const FaultRule& rule : rules) {
    entries_.push_back(Made(rule, false));
  }
}

void FaultSchedule::SetScript(const std::vector<FaultRule>& rules) {
  if (!scriptPlace_) {
    scriptPlace_ = entries_.size();
  }
  for (Entry& entry : entries_) {
    if (entry.fromScript && entry.shown > 0 && !entry.over) {
      End(entry, "the script begins anew");
    }
  }
  std::erase_if(entries_, [](const Entry& entry) { return entry.fromScript; });
  std::vector<Entry> made;
  made.reserve(rules.size());
  for (const FaultRule& rule : rules) {
    made.push_back(Made(rule, true));
  }
  entries_.insert(entries_.begin() + static_cast<std::ptrdiff_t>(*scriptPlace_), made.begin(),
                  made.end());
}

void FaultSchedule::ConnectionOpens() {
  connected_ = true;
  ++jobs_;
  for (Entry& entry : entries_) {
    const Moment& moment = entry.rule.moment;
    if (!entry.over && moment.kind == Moment::Kind::Job) {
      entry.holds = jobs_ - entry.jobsBefore >= moment.number;
    }
  }
}

void FaultSchedule::ConnectionCloses() {
  connected_ = false;
  EndByCount();
}

void FaultSchedule::ReachSheet() {
  for (Entry& entry : entries_) {
    const Moment& moment = entry.rule.moment;
    if (!entry.over && moment.kind == Moment::Kind::Sheet) {
      entry.holds = sheets_ - entry.sheetsBefore + 1 >= moment.number;
    }
  }
}

void FaultSchedule::SheetPrinted() {
  ++sheets_;
  for (Entry& entry : entries_) {
    if (entry.holds && entry.sheetsLeft > 0 && is_supply(entry.rule.fault)) {
      --entry.sheetsLeft;
    }
  }
}

bool FaultSchedule::SuppliesLeft() const {
  return std::none_of(entries_.begin(), entries_.end(), [](const Entry& entry) {
    return entry.holds && is_supply(entry.rule.fault) && entry.sheetsLeft == 0;
  });
}

void FaultSchedule::Show(Entry& entry) {
  if (is_of_connections(entry.rule.fault) && entry.shownInJob == jobs_) {
    return;  // it counts once in a connection
  }
  entry.shownInJob = jobs_;
  ++entry.shown;
  if (entry.shown > 1) {
    return;
  }
  if (entry.rule.extent.kind == Extent::Kind::Time) {
    entry.end = now_() + entry.rule.extent.time;
  }
  tell_("fault \"" + to_string(entry.rule) + "\" shows");
}

void FaultSchedule::End(Entry& entry, const std::string& why) {
  entry.holds = false;
  entry.over = true;
  entry.end.reset();
  tell_("fault \"" + to_string(entry.rule) + "\" ended: " + why);
}

// Applies the fault to the answer; false when that changes nothing.
bool FaultSchedule::Changes(const Entry& entry, Question question, AnswerPlan& plan) const {
  const Fault& fault = entry.rule.fault;
  const bool status = question == Question::Status;
  switch (fault.kind) {
    case Kind::Status:
    case Kind::Cover:
      return status && set_number(plan, fault.number);
    case Kind::Paper:
    case Kind::Ribbon:
      return status && entry.sheetsLeft == 0 && set_number(plan, fault.number);
    case Kind::Enable:
      return !status && set_number(plan, fault.number);
    case Kind::Busy:
      return !status && set_number(plan, kEnableBusy);
    default:
      return fault.question == question && change_way(fault, plan);
  }
}

AnswerPlan FaultSchedule::Answer(Question question, bool aboutSheet) {
  EndByTime();
  if (aboutSheet) {
    ReachSheet();
  }
  AnswerPlan plan;
  for (Entry& entry : entries_) {
    const Fault& fault = entry.rule.fault;
    if (entry.holds && fault.kind == Kind::Silent && fault.question == question) {
      plan.silent = true;
      Show(entry);
      return plan;
    }
  }
  for (Entry& entry : entries_) {
    if (entry.holds && Changes(entry, question, plan)) {
      Show(entry);
    }
  }
  return plan;
}

const FaultSchedule::Entry* FaultSchedule::FindDrop() const {
  const Entry* first = nullptr;
  for (const Entry& entry : entries_) {
    if (entry.holds && entry.rule.fault.kind == Kind::Drop &&
        (first == nullptr || entry.rule.fault.count < first->rule.fault.count)) {
      first = &entry;
    }
  }
  return first;
}

std::optional<std::uint64_t> FaultSchedule::DropAt() const {
  const Entry* const drop = FindDrop();
  return drop != nullptr ? std::optional(drop->rule.fault.count) : std::nullopt;
}

void FaultSchedule::Drop() {
  if (const Entry* const drop = FindDrop()) {
    Show(entries_[static_cast<std::size_t>(drop - entries_.data())]);
  }
}

std::optional<std::uint64_t> FaultSchedule::BytesPerSecond() {
  for (Entry& entry : entries_) {
    if (entry.holds && entry.rule.fault.kind == Kind::Read) {
      Show(entry);
      return entry.rule.fault.count;
    }
  }
  return std::nullopt;
}

void FaultSchedule::SeenTo() {
  tell_("a person has seen to the printer");
  for (Entry& entry : entries_) {
    const Fault& fault = entry.rule.fault;
    const bool endless =
        entry.rule.extent.kind == Extent::Kind::Standing && fault.kind != Kind::Busy;
    if (entry.holds && (endless || is_supply(fault) || fault.kind == Kind::Cover)) {
      End(entry, "a person has seen to it");
    }
  }
}

// A slow connection stays slow to its end, even when it is the last one that the rule counts.
bool FaultSchedule::ShownEnough(const Entry& entry) const {
  const Fault& fault = entry.rule.fault;
  if (fault.kind == Kind::Busy) {
    return entry.shown >= fault.count;
  }
  const bool inConnection = fault.kind == Kind::Read && connected_ && entry.shownInJob == jobs_;
  return entry.rule.extent.kind == Extent::Kind::Times && !inConnection &&
         entry.shown >= entry.rule.extent.times;
}

void FaultSchedule::EndByCount() {
  for (Entry& entry : entries_) {
    if (entry.holds && ShownEnough(entry)) {
      End(entry, "after " + counted(entry.shown, "time"));
    }
  }
}

void FaultSchedule::EndByTime() {
  const TimePoint now = now_();
  for (Entry& entry : entries_) {
    if (entry.end && *entry.end <= now) {
      End(entry, "after " + in_seconds(entry.rule.extent.time));
    }
  }
}

std::optional<FaultSchedule::TimePoint> FaultSchedule::NextEnd() const {
  std::optional<TimePoint> next;
  for (const Entry& entry : entries_) {
    if (entry.end && (!next || *entry.end < *next)) {
      next = entry.end;
    }
  }
  return next;
}

}  // namespace simulator
