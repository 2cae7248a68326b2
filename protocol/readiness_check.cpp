// SPDX-License-Identifier: Apache-2.0
#include "protocol/readiness_check.h"

#include <cups/sidechannel.h>
#include <poll.h>
#include <unistd.h>

#include <array>

#include "diag/dump.h"
#include "job/job_state.h"
#include "protocol/command_block.h"
#include "protocol/job_header.h"
#include "status/printer_exchange.h"

namespace {

constexpr int kExchangeFailed = -1;
constexpr int kReady = 0x0000;
constexpr int kBusy = 0x0100;

constexpr std::size_t kReplyMin = 6;
constexpr std::size_t kOffsetCodeHigh = 4;
constexpr std::size_t kOffsetCodeLow = 5;

constexpr unsigned int kBusyStep = 2;     // seconds between two queries of a busy printer
constexpr unsigned int kBusyLimit = 180;  // seconds

// An empty read does not mean that the back channel has ended: the answer may come with the next
// one. But if the backend is gone, every read returns empty at once and for ever, while the
// scheduler waits for the filter. So empty reads in a row are counted. After each of the first few,
// which are more than any backend causes, we read again at once. After each later one we first take
// a nap, so that other processes run. The naps add up to the time that we wait for a busy printer.
constexpr int kEmptyReadsAtOnce = 4096;
constexpr int kNap = 20;                              // milliseconds
constexpr int kNaps = int{kBusyLimit} * 1000 / kNap;  // after them the channel counts as closed

// Counts empty reads in a row and takes the naps. After the last nap the channel is read no more.
class EmptyReads {
 public:
  bool channel_is_closed() {
    ++reads_;
    if (reads_ < kEmptyReadsAtOnce) {
      return false;
    }
    if (reads_ == kEmptyReadsAtOnce + kNaps) {
      return true;
    }
    poll(nullptr, 0, kNap);
    return false;
  }

  void start_anew() { reads_ = 0; }

 private:
  int reads_ = 0;
};

// Bytes of the reply, 6 or more, or −1.
int read_reply(char* buffer) {
  EmptyReads empty;
  std::size_t total = 0;
  while (total < kReplyMin) {
    const ssize_t count =
        cupsBackChannelRead(buffer + total, kReplyBufferSize - total, kReplyTimeout);
    if (count < 0 || (count == 0 && empty.channel_is_closed())) {
      std::fprintf(stderr, "DEBUG: cupsBackChannelRead() failed. ret=%zd\n", count);
      return -1;
    }
    if (count > 0) {
      empty.start_anew();
    }
    total += static_cast<std::size_t>(count);
  }
  return static_cast<int>(total);
}

// What the printer's answer means to the operator. If paper and ribbon do not match (0x0001), the
// queue goes on; every other refusal pauses it.
struct Refusal {
  int code;
  bool pauses;
  const char* error;  // of the "ERROR: " line
};

constexpr Refusal kRefusals[] = {
    {0x0001, false, "pagesize-inkribbon-unmuch"},
    {0x0101, true, "pagesize-inkribbon-unmuch"},
    {0x0200, true, "driver-setting-unmuch"},
    {0x0201, true, "pagesize-inkribbon-unmuch"},
    {0xFFFF, true, "out-of-range"},
};

constexpr Refusal kUnknownAnswer = {0, true, "protocol-error"};
constexpr Refusal kStillBusy = {kBusy, true, "memory-timeout"};

void report(const Refusal& refusal, int code) {
  if (refusal.pauses) {
    std::fprintf(stderr, "STATE: +paused\n");
  }
  std::fprintf(stderr, "ERROR: %s %#06x\n", refusal.error, static_cast<unsigned int>(code));
}

// Allocates no memory: a printer that is ready gets its sheet in any case.
std::array<char, 32> code_name(int code) {
  std::array<char, 32> name{};
  const auto bits = static_cast<unsigned int>(code);
  std::snprintf(name.data(), name.size(), "CMD_GET_ENABLE[%02X + %02X]", (bits >> 8U) & 0xFFU,
                bits & 0xFFU);
  return name;
}

// Writes the lines of any answer but busy, and returns the check's result.
std::string classify(int code) {
  if (code == kReady) {
    std::fprintf(stderr, "DEBUG: %s\n", code_name(code).data());
    return "";
  }
  for (const Refusal& refusal : kRefusals) {
    if (refusal.code == code) {
      std::fprintf(stderr, "DEBUG: %s\n", code_name(code).data());
      report(refusal, code);
      return std::string("ERROR ") + code_name(code).data();
    }
  }
  std::fprintf(stderr, "DEBUG: PROTOCOL ERROR\n");
  report(kUnknownAnswer, code);
  return kUnknownAnswer.error;
}

}  // namespace

int wr_esc_enable(std::FILE* /*out*/, const tagPRINTSETTING* settings) {
  unsigned char query[kCommandBlockSize] = {0x1B, 'G', 'D', '3'};
  std::fprintf(stderr, "DEBUG: buf cmd{0x1B, 'G', 'D', '3'}\n");
  std::fprintf(stderr, "DEBUG: buf wr_esc_enable() START\n");
  create_header_sp(query, settings);
  dump_mem("[CMD]", query, static_cast<int>(sizeof query));
  if (!send_request(query, sizeof query)) {
    return kExchangeFailed;
  }
  char reply[kReplyBufferSize] = {};
  drain_output(reply);
  const int total = read_reply(reply);
  if (total < 0) {
    return kExchangeFailed;
  }
  dump_mem("[STS]CMD_GET_ENABLE", reply, total);
  std::fprintf(stderr, "DEBUG: buf wr_esc_enable() END\n");
  const auto high = static_cast<unsigned char>(reply[kOffsetCodeHigh]);
  const auto low = static_cast<unsigned char>(reply[kOffsetCodeLow]);
  return high * 256 + low;
}

std::string ExaminePage(const tagPRINTSETTING* settings) {
  std::fprintf(stderr, "DEBUG: ExaminePage() START\n");
  int code = wr_esc_enable(fpOut, settings);
  if (code == kExchangeFailed) {
    return "wr_esc_enable() Error";
  }
  for (unsigned int waited = 0; code == kBusy; waited += kBusyStep) {
    std::fprintf(stderr, "DEBUG: %s\n", code_name(code).data());
    sleep(kBusyStep);
    code = wr_esc_enable(fpOut, settings);
    if (code == kBusy && waited == kBusyLimit) {
      report(kStillBusy, code);
      return "Timeout Error";
    }
  }
  return classify(code);
}
