// SPDX-License-Identifier: Apache-2.0
#include "simulator/fault_rule.h"

#include <array>
#include <cstdio>

#include "decoder/stream_error.h"

namespace simulator {
namespace {

std::string moment_words(const Moment& moment) {
  switch (moment.kind) {
    case Moment::Kind::Beginning:
      return {};
    case Moment::Kind::Job:
      return "job " + std::to_string(moment.number) + ": ";
    case Moment::Kind::Sheet:
      return "sheet " + std::to_string(moment.number) + ": ";
  }
  return {};
}

std::string extent_words(const Extent& extent) {
  switch (extent.kind) {
    case Extent::Kind::Standing:
      return {};
    case Extent::Kind::Time:
      return " for " + in_seconds(extent.time);
    case Extent::Kind::Times:
      return extent.times == 1 ? " once" : ' ' + std::to_string(extent.times) + " times";
  }
  return {};
}

std::string question_word(Question question) {
  return question == Question::Status ? "status" : "enable";
}

std::string pieces_words(const std::vector<std::uint64_t>& pieces) {
  std::string text;
  for (const std::uint64_t piece : pieces) {
    text += " ";
    text += std::to_string(piece);
  }
  return text;
}

std::string stray_words(const std::vector<std::uint8_t>& bytes) {
  std::string text;
  for (const std::uint8_t byte : bytes) {
    std::array<char, 4> digits{};
    std::snprintf(digits.data(), digits.size(), " %02X", unsigned{byte});
    text += digits.data();
  }
  return text;
}

std::string supply_words(const char* supply, const Fault& fault) {
  return supply + std::to_string(fault.count) + " then " + decoder::hex_word(fault.number);
}

std::string fault_words(const Fault& fault) {
  const std::string question = question_word(fault.question);
  switch (fault.kind) {
    case Fault::Kind::Status:
      return "status " + decoder::hex_word(fault.number);
    case Fault::Kind::Enable:
      return "enable " + decoder::hex_word(fault.number);
    case Fault::Kind::Busy:
      return "busy " + std::to_string(fault.count);
    case Fault::Kind::Late:
      return question + " late " + in_seconds(fault.delay);
    case Fault::Kind::Pieces:
      return question + " pieces" + pieces_words(fault.pieces);
    case Fault::Kind::Short:
      return question + " short " + std::to_string(fault.count);
    case Fault::Kind::Stray:
      return question + " stray" + stray_words(fault.stray);
    case Fault::Kind::Silent:
      return question + " silent";
    case Fault::Kind::Drop:
      return "drop at byte " + std::to_string(fault.count);
    case Fault::Kind::Read:
      return "read " + std::to_string(fault.count) + " bytes/s";
    case Fault::Kind::Paper:
      return supply_words("paper ", fault);
    case Fault::Kind::Ribbon:
      return supply_words("ribbon ", fault);
    case Fault::Kind::Cover:
      return "cover " + decoder::hex_word(fault.number);
  }
  return {};
}

}  // namespace

std::string in_seconds(std::chrono::milliseconds time) {
  constexpr int kMilliseconds = 1000;
  std::string text = std::to_string(time.count() / kMilliseconds);
  std::array<char, 8> fraction{};
  std::snprintf(fraction.data(), fraction.size(), ".%03d",
                static_cast<int>(time.count() % kMilliseconds));
  text += fraction.data();
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') {
    text.pop_back();
  }
  return text + " s";
}

std::string to_string(const FaultRule& rule) {
  return moment_words(rule.moment) + fault_words(rule.fault) + extent_words(rule.extent);
}

}  // namespace simulator
