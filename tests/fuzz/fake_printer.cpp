// SPDX-License-Identifier: Apache-2.0
#include "tests/fuzz/fake_printer.h"

#include <cups/cups.h>
#include <cups/sidechannel.h>
#include <unistd.h>

#include <array>
#include <ctime>

namespace fuzz {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::size_t kRoom = 512;  // what the filter reads into
constexpr std::size_t kWholeReply = 15;
constexpr std::size_t kOffsetCode = 4;

Bytes whole_reply(std::uint8_t high, std::uint8_t low) {
  Bytes reply(kWholeReply);
  reply[kOffsetCode] = high;
  reply[kOffsetCode + 1] = low;
  return reply;
}

// The read's bytes; none for silence. False for a read that fails.
bool next_answer(FakePrinter& fake, Bytes& bytes) {
  if (fake.script.Rest().empty()) {
    bytes = whole_reply(0, 0);
    return fake.good_in_the_end;
  }
  switch (static_cast<Answer>(fake.script.Take<std::uint8_t>() % kAnswers)) {
    case Answer::Good:
      bytes = whole_reply(0, 0);
      return true;
    case Answer::Busy:
      bytes = whole_reply(1, 0);
      return true;
    case Answer::Code: {
      const auto high = fake.script.Take<std::uint8_t>();
      bytes = whole_reply(high, fake.script.Take<std::uint8_t>());
      return true;
    }
    case Answer::Silence:
      return true;
    case Answer::Failure:
      return false;
    case Answer::Piece: {
      const auto piece = fake.script.TakeBytes(fake.script.Take<std::uint8_t>());
      bytes.assign(piece.begin(), piece.end());
      return true;
    }
  }
  return false;
}

}  // namespace

FakePrinter& printer() {
  static FakePrinter fake;
  return fake;
}

}  // namespace fuzz

extern "C" cups_sc_status_t cupsSideChannelDoRequest(cups_sc_command_t command, char* data,
                                                     int* datalen, double timeout) {
  fuzz::FakePrinter& fake = fuzz::printer();
  fuzz::require(timeout > 0 && *datalen == static_cast<int>(fuzz::kRoom));
  // A backend may leave anything in the buffer that it was lent, as far as it reaches.
  std::memset(data, 0x5A, static_cast<std::size_t>(*datalen));
  if (command == CUPS_SC_CMD_DRAIN_OUTPUT) {
    fake.reply.clear();
    ++fake.exchanges;
  } else {
    data[0] = static_cast<char>(fake.script.Take<std::uint8_t>());
    *datalen = fake.script.Take<std::uint8_t>();
  }
  return static_cast<cups_sc_status_t>(fake.side_channel_status);
}

extern "C" ssize_t cupsBackChannelRead(char* buffer, std::size_t bytes, double timeout) {
  fuzz::FakePrinter& fake = fuzz::printer();
  // No more than the room that is left behind what was read before.
  fuzz::require(timeout > 0 && bytes > 0 && bytes + fake.reply.size() <= fuzz::kRoom);
  std::vector<std::uint8_t> answer;
  if (!fuzz::next_answer(fake, answer)) {
    return -1;
  }
  const std::size_t count = std::min(bytes, answer.size());
  // All of the room is the backend's to write to: the sanitizer sees a room that is none.
  std::memset(buffer, 0x5A, bytes);
  std::copy_n(answer.begin(), count, buffer);
  fake.reply.insert(fake.reply.end(), answer.begin(),
                    answer.begin() + static_cast<std::ptrdiff_t>(count));
  return static_cast<ssize_t>(count);
}

extern "C" int cupsGetDests(cups_dest_t** dests) {
  static std::array<char, 6> queue = {"photo"};
  static std::array<char, 22> name = {"printer-state-reasons"};
  static cups_option_t reasons;
  static cups_dest_t destination;
  reasons = {name.data(), fuzz::printer().reasons.data()};
  destination = {queue.data(), nullptr, 1, 1, &reasons};
  *dests = &destination;
  return fuzz::printer().reasons.empty() ? 0 : 1;
}

extern "C" cups_dest_t* cupsGetDest(const char* /*name*/, const char* /*instance*/, int num_dests,
                                    cups_dest_t* dests) {
  return num_dests > 0 ? dests : nullptr;
}

extern "C" void cupsFreeDests(int /*num_dests*/, cups_dest_t* /*dests*/) {}

// libFuzzer's own thread, which watches the memory, sleeps as ever.
extern "C" unsigned int sleep(unsigned int seconds) {
  if (gettid() != getpid()) {
    const std::timespec pause{static_cast<std::time_t>(seconds), 0};
    nanosleep(&pause, nullptr);
    return 0;
  }
  fuzz::printer().slept += seconds;
  return 0;
}
