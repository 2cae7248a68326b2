// SPDX-License-Identifier: Apache-2.0
#include "simulator/connection_log.h"

#include "simulator/event_log.h"
#include "simulator/wording.h"

namespace simulator {
namespace {

constexpr std::uint64_t kErrorLinesMost = 100;

}  // namespace

void ConnectionLog::Say(const std::string& text) const {
  log_event(WithNumber(text));
}

std::string ConnectionLog::WithNumber(const std::string& text) const {
  return "connection " + std::to_string(number_) + ": " + text;
}

void ConnectionLog::AddToContactSheet(const std::string& text) {
  if (contactSheet_ != nullptr) {
    contactSheet_->AddError(WithNumber(text));
  }
}

void ConnectionLog::SayFailure(const std::string& text) {
  ++tally_.failures;
  Say("failure: " + text);
  AddToContactSheet("failure: " + text);
}

bool ConnectionLog::MaySayError() {
  ++errorLines_;
  if (errorLines_ == kErrorLinesMost + 1) {
    Say("further errors of this connection are counted only");
  }
  return errorLines_ <= kErrorLinesMost;
}

void ConnectionLog::SayError(const decoder::StreamError& error) {
  ++errors_;
  ++tally_.errors;
  AddToContactSheet(to_string(error));
  if (MaySayError()) {
    Say("error: " + to_string(error));
  }
}

void ConnectionLog::SaySkipped(std::uint64_t offset, std::uint64_t count) {
  if (MaySayError()) {
    Say("skipped " + counted(count, "byte") + " from offset " + std::to_string(offset) + " on");
  }
}

}  // namespace simulator
