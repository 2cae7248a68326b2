// SPDX-License-Identifier: Apache-2.0
//
// Queues' conditions as a JSON document.
#include <algorithm>
#include <nlohmann/json.hpp>

#include "tools/condition.h"

namespace tools {
namespace {

using Json = nlohmann::ordered_json;

Json explained(const std::string& keyword, bool harmless, const Explanation& explanation) {
  Json json = {{"keyword", keyword}, {"harmless", harmless}};
  json["number"] = explanation.number ? Json(four_digits(*explanation.number)) : Json(nullptr);
  json["meaning"] = explanation.meaning;
  json["remedy"] = explanation.remedy;
  return json;
}

const char* stopped_by(Standstill kind) {
  switch (kind) {
    case Standstill::Refused:
      return "driver";
    case Standstill::Policy:
      return "error policy";
    case Standstill::ByPerson:
      return "person";
    case Standstill::None:
      break;
  }
  return nullptr;
}

Json standstill(const Condition& condition) {
  const char* const by = stopped_by(condition.cause.kind);
  if (by == nullptr) {
    return nullptr;
  }
  const Explanation explanation = explain_standstill(condition);
  Json json = {{"by", by}};
  json["job"] = condition.cause.job > 0 ? Json(condition.cause.job) : Json(nullptr);
  json["word"] = condition.cause.word.empty() ? Json(nullptr) : Json(condition.cause.word);
  json["meaning"] = explanation.meaning;
  json["remedy"] = explanation.remedy;
  return json;
}

Json bidirectional_json(const Condition& condition) {
  if (condition.isClass || condition.bidirectional == Bidirectional::CannotTell) {
    return nullptr;
  }
  return condition.bidirectional == Bidirectional::Yes;
}

Json refused_files(const Condition& condition) {
  Json list = Json::array();
  for (const RefusedFile& refused : condition.refusedFiles) {
    const Explanation explanation = explain_refused_file(refused);
    list.push_back({{"job", refused.job},
                    {"words", refused.words},
                    {"meaning", explanation.meaning},
                    {"remedy", explanation.remedy}});
  }
  return list;
}

Json queue_json(const Condition& condition) {
  Json json = {{"name", condition.queue},
               {"class", condition.isClass},
               {"good", condition.IsGood()},
               {"state", to_string(condition.state)},
               {"message", condition.message},
               {"accepting", condition.accepting},
               {"standstill", standstill(condition)}};
  json["reasons"] = Json::array();
  for (const Reason& reason : condition.reasons) {
    json["reasons"].push_back(explained(reason.keyword, reason.harmless, reason.explanation));
  }
  json["jobs"] = {{"printing", condition.printing},
                  {"stopped", condition.stopped},
                  {"waiting", condition.waiting},
                  {"held", condition.held}};
  json["refused_files"] = refused_files(condition);
  json["backend"] = condition.isClass ? Json(nullptr) : Json(condition.backend);
  json["bidirectional"] = bidirectional_json(condition);
  if (condition.isClass) {
    json["members"] = condition.members;
  }
  return json;
}

}  // namespace

std::string as_json(const std::vector<Condition>& conditions, bool compact) {
  Json document;
  document["good"] =
      !conditions.empty() && std::all_of(conditions.begin(), conditions.end(),
                                         [](const Condition& each) { return each.IsGood(); });
  document["queues"] = Json::array();
  for (const Condition& condition : conditions) {
    document["queues"].push_back(queue_json(condition));
  }
  constexpr int kIndent = 2;
  return document.dump(compact ? -1 : kIndent) + "\n";
}

}  // namespace tools
