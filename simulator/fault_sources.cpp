// SPDX-License-Identifier: Apache-2.0
#include "simulator/fault_sources.h"

#include <array>
#include <cerrno>
#include <cstdio>

#include "image/file_handle.h"
#include "simulator/fault_script.h"
#include "simulator/wording.h"

namespace simulator {
namespace {

constexpr std::size_t kScriptLengthMost = 1U << 20U;

std::string place(const std::string& source, const ScriptError& error) {
  return source + ":" + std::to_string(error.column) + ": " + to_string(error);
}

// What is wrong with the file, or nothing.
std::string read_file(const std::string& path, std::string& text) {
  const FileHandle file(std::fopen(path.c_str(), "re"));
  if (file == nullptr) {
    return path + ": " + error_words(errno);
  }
  std::array<char, 4096> bytes{};
  std::size_t count = 0;
  errno = 0;
  while (text.size() <= kScriptLengthMost &&
         (count = std::fread(bytes.data(), 1, bytes.size(), file.get())) > 0) {
    text.append(bytes.data(), count);
  }
  const int errorNumber = std::ferror(file.get()) != 0 ? errno : 0;
  if (errorNumber != 0) {
    return path + ": " + error_words(errorNumber);
  }
  return text.size() > kScriptLengthMost ? path + ": larger than 1 MiB, which no script is" : "";
}

FaultRule short_form(Fault::Kind kind, std::uint16_t number, std::uint64_t count) {
  FaultRule rule;
  rule.fault.kind = kind;
  rule.fault.number = number;
  rule.fault.count = count;
  return rule;
}

std::vector<FaultRule> short_forms(const FaultSources& sources) {
  std::vector<FaultRule> rules;
  if (sources.status != 0) {
    rules.push_back(short_form(Fault::Kind::Status, sources.status, 0));
  }
  if (sources.busy != 0) {
    rules.push_back(short_form(Fault::Kind::Busy, 0, sources.busy));
  }
  if (sources.enable != 0) {
    rules.push_back(short_form(Fault::Kind::Enable, sources.enable, 0));
  }
  return rules;
}

}  // namespace

std::string reload_script(const std::string& path, FaultSchedule& schedule) {
  std::string text;
  if (std::string why = read_file(path, text); !why.empty()) {
    return why;
  }
  const Script script = read_script(text);
  for (const ScriptError& error : script.errors) {
    return place(path + ":" + std::to_string(error.line), error);
  }
  schedule.SetScript(script.rules);
  return {};
}

std::string load_faults(const FaultSources& sources, FaultSchedule& schedule) {
  for (std::size_t i = 0; i < sources.rules.size(); ++i) {
    const Script rule = read_rule(sources.rules[i], i + 1);
    for (const ScriptError& error : rule.errors) {
      return place("--fault " + std::to_string(error.line), error);
    }
    schedule.Add(rule.rules);
  }
  if (!sources.script.empty()) {
    if (std::string why = reload_script(sources.script, schedule); !why.empty()) {
      return why;
    }
  }
  schedule.Add(short_forms(sources));
  return {};
}

}  // namespace simulator
