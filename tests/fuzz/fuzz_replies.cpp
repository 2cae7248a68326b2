// SPDX-License-Identifier: Apache-2.0
//
// Fuzzes what comes back from a printer: replies in any pieces, silence, failures, busy answers
// without end. What the filter concludes is held against the bytes that it had read by then.
//
// Input: what to ask, the side channel's status, flags, the length of the queue's reasons, the
// reasons, the answers' script.
#include <cstdint>
#include <string>

#include "job/job_state.h"
#include "protocol/readiness_check.h"
#include "status/connection_check.h"
#include "status/printer_check.h"
#include "status/status_query.h"
#include "tests/fuzz/fake_printer.h"
#include "tests/fuzz/small_papers.h"
#include "tests/fuzz/streams.h"

namespace {

using fuzz::printer;
using fuzz::require;

constexpr std::size_t kWholeStatus = 15;
constexpr std::size_t kWholeReadiness = 6;
constexpr int kMostQueries = 92;            // of a printer that stays busy
constexpr unsigned int kLongestWait = 182;  // seconds
constexpr int kQuestions = 5;

// The number in bytes 4 and 5, or −1 where the reply is too short.
int code_of_reply(std::size_t whole) {
  const auto& reply = printer().reply;
  return reply.size() < whole ? -1 : reply[4] * 256 + reply[5];
}

void ask_state() {
  const PrinterState state = get_printer_state();
  const int code = code_of_reply(kWholeStatus);
  require(code < 0 ? state == PrinterState::Unavailable()
                   : state == PrinterState::Error(static_cast<unsigned short>(code)));
  require(printer().exchanges == 1 && printer().slept == 0);
}

void ask_if_good() {
  const bool good = printer_is_good();
  require(good == (code_of_reply(kWholeStatus) == 0));
}

void ask_readiness(const tagPRINTSETTING& settings) {
  require(wr_esc_enable(fpOut, &settings) == code_of_reply(kWholeReadiness));
}

// The text that stands for the last reply.
bool stands_for(const std::string& text, int code) {
  switch (code) {
    case -1:
      // An exchange that fails behind a busy answer counts as an answer that is none.
      return text == (printer().exchanges == 1 ? "wr_esc_enable() Error" : "protocol-error");
    case 0x0000:
      return text.empty();
    case 0x0100:
      return text == "Timeout Error" && printer().exchanges == kMostQueries;
    case 0x0001:
      return text == "ERROR CMD_GET_ENABLE[00 + 01]";
    case 0x0101:
      return text == "ERROR CMD_GET_ENABLE[01 + 01]";
    case 0x0200:
      return text == "ERROR CMD_GET_ENABLE[02 + 00]";
    case 0x0201:
      return text == "ERROR CMD_GET_ENABLE[02 + 01]";
    case 0xFFFF:
      return text == "ERROR CMD_GET_ENABLE[FF + FF]";
    default:
      return text == "protocol-error";
  }
}

void ask_until_ready(const tagPRINTSETTING& settings) {
  const std::string text = ExaminePage(&settings);
  require(stands_for(text, code_of_reply(kWholeReadiness)));
  require(printer().exchanges >= 1 && printer().exchanges <= kMostQueries);
  require(printer().slept <= kLongestWait);
}

void ask_for_two_ways(std::span<const std::uint8_t> script) {
  const bool two_ways = connection_is_bidirectional();
  const bool said_so =
      printer().side_channel_status == 1 && script.size() >= 2 && script[0] == 1 && script[1] == 1;
  require(two_ways == said_so);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  const int question = input.Take<std::uint8_t>() % kQuestions;
  fuzz::FakePrinter fresh;
  fresh.side_channel_status = input.Take<std::uint8_t>() - 1;  // −1: no answer within the time
  fresh.good_in_the_end = (input.Take<std::uint8_t>() & 1U) != 0;
  const auto reasons = input.TakeBytes(input.Take<std::uint8_t>());
  fresh.reasons.assign(reasons.begin(), reasons.end());
  fresh.script = input;
  printer() = fresh;

  const tagPRINTSETTING settings = settings_of(fuzz::kSmallPapers[0]);
  const fuzz::PrinterStream stream([](std::span<const std::uint8_t>) {});
  switch (question) {
    case 0:
      ask_state();
      break;
    case 1:
      ask_if_good();
      break;
    case 2:
      ask_readiness(settings);
      break;
    case 3:
      ask_until_ready(settings);
      break;
    default:
      ask_for_two_ways(input.Rest());
      break;
  }
  return 0;
}
