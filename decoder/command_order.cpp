// SPDX-License-Identifier: Apache-2.0
#include "decoder/command_order.h"

#include <algorithm>
#include <vector>

namespace decoder {
namespace {

std::vector<Command> allowed_after(Command last) {
  switch (last) {
    case Command::StatusRequest:
      // Print-out: a job without pages, or whose last half sheet the printer did not take.
      return {Command::StatusRequest, Command::ReadinessQuery, Command::PrintOut};
    case Command::ReadinessQuery:
      // Status request: the sheet was refused, and the next file of the job begins.
      return {Command::ReadinessQuery, Command::JobHeader, Command::StatusRequest,
              Command::PrintOut};
    case Command::JobHeader:
      return {Command::ImageHeader};
    case Command::ImageHeader:
    case Command::ImageData:
    case Command::MatteData:
      return {Command::StatusRequest, Command::PrintOut};
    case Command::None:
    case Command::PrintOut:
      return {Command::StatusRequest};
  }
  return {};
}

std::string names(const std::vector<Command>& commands) {
  std::string text;
  for (std::size_t i = 0; i < commands.size(); ++i) {
    const bool final = i + 1 == commands.size();
    text += i == 0 ? "" : (final ? " or " : ", ");
    text += to_string(commands[i]);
  }
  return text;
}

}  // namespace

void CommandOrder::Take(Command command, std::uint64_t offset, const ErrorSink& report) {
  const std::vector<Command> allowed = allowed_after(last_);
  if (std::find(allowed.begin(), allowed.end(), command) == allowed.end()) {
    const std::string place =
        last_ == Command::None ? "at the beginning" : std::string("after ") + to_string(last_);
    report({offset, command, "order of commands", std::string(to_string(command)) + " " + place,
            names(allowed)});
  }
  last_ = command;
}

}  // namespace decoder
