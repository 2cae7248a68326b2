// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/printer_answers.h"

#include <cups/sidechannel.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <string>

#include "tests/filter/printer_script.h"

namespace bench {

namespace {

// A message of the side channel: command, status, and the length of the data behind them, high byte
// first. libcups knows the channel by the number 4 alone, which the meter may not have free.
constexpr std::size_t kHeadSize = 4;

bool read_head(int side_channel, std::array<unsigned char, kHeadSize>* head) {
  return recv(side_channel, head->data(), head->size(), MSG_WAITALL) ==
         static_cast<ssize_t>(head->size());
}

bool reply(int side_channel, unsigned char command, const std::string& data) {
  std::string message = {static_cast<char>(command), static_cast<char>(CUPS_SC_STATUS_OK), 0,
                         static_cast<char>(data.size())};
  message += data;
  return send(side_channel, message.data(), message.size(), MSG_NOSIGNAL) ==
         static_cast<ssize_t>(message.size());
}

bool put(int back_channel, const std::string& answer) {
  return write(back_channel, answer.data(), answer.size()) == static_cast<ssize_t>(answer.size());
}

}  // namespace

void answer_for_printer(int side_channel, int back_channel) {
  std::array<unsigned char, kHeadSize> head{};
  int drains = 0;
  bool going = true;
  while (going && read_head(side_channel, &head)) {
    if (head[0] == CUPS_SC_CMD_DRAIN_OUTPUT) {
      const bool is_readiness = drains > 0 && drains % 2 == 0;
      ++drains;
      going = put(back_channel, is_readiness ? filter_test::kReady : filter_test::kGood) &&
              reply(side_channel, head[0], {});
    } else {
      going = reply(side_channel, head[0], "\x01");
    }
  }
}

}  // namespace bench
