// SPDX-License-Identifier: Apache-2.0
#include "tests/filter/backend.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <tuple>
#include <utility>

#include "tests/filter/descriptors.h"

namespace filter_test {
namespace {

constexpr std::string_view kStatusRequest{"\x1BGD0\0\0\1\x16", 8};
constexpr std::string_view kReadinessQuery = "\x1BGD3";
constexpr std::size_t kReadinessQueryLength = 512;

template <typename Entry>
Entry TakeNext(std::deque<Entry>* entries, Entry otherwise) {
  if (entries->empty()) {
    return otherwise;
  }
  Entry next = entries->front();
  entries->pop_front();
  return next;
}

}  // namespace

Backend::Backend(Script script) : script_(std::move(script)) {
  std::tie(stream_, filter_output_) = HighPipe();
  std::tie(filter_back_channel_, back_channel_) = HighPipe();
  int ends[2];
  EXPECT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, ends), 0);
  filter_side_channel_ = MoveHigh(ends[1]);
  dup2(ends[0], CUPS_SC_FD);  // libcups knows the side channel by this number alone
  close(ends[0]);
  fcntl(CUPS_SC_FD, F_SETFD, FD_CLOEXEC);
  fcntl(stream_, F_SETFL, O_NONBLOCK);
  // As the scheduler hands them out: libcups reads the back channel after its wait whether or not
  // anything came.
  fcntl(filter_back_channel_, F_SETFL, O_NONBLOCK);
  fcntl(back_channel_, F_SETFL, O_NONBLOCK);
  fcntl(filter_side_channel_, F_SETFL, O_NONBLOCK);
  fcntl(CUPS_SC_FD, F_SETFL, O_NONBLOCK);
}

Backend::~Backend() {
  CloseFilterEnds();
  CloseStream();
  CloseAndForget(&back_channel_);
  CloseAndForget(&filter_back_channel_);
  ReserveChannelDescriptors();
}

void Backend::CloseFilterEnds() {
  if (std::exchange(filter_ends_open_, false)) {
    close(filter_output_);
    close(filter_side_channel_);
  }
}

bool Backend::stream_full() const {
  int waiting = 0;
  return ioctl(stream_, FIONREAD, &waiting) == 0 && waiting >= fcntl(stream_, F_GETPIPE_SZ);
}

void Backend::AddPolls(std::vector<pollfd>* polls) const {
  if (stream_ >= 0 && reading_) {
    polls->push_back({stream_, POLLIN, 0});
  }
  if (side_channel_open_) {
    polls->push_back({CUPS_SC_FD, POLLIN, 0});
  }
}

void Backend::Step() {
  if (reading_) {
    ReadStream();
  }
  pollfd side{CUPS_SC_FD, POLLIN, 0};
  if (side_channel_open_ && poll(&side, 1, 0) > 0) {
    AnswerSideChannel();
  }
  SendPieces();
}

void Backend::ReadStream() {
  static std::array<char, 65536> buffer;
  while (stream_ >= 0) {
    const std::size_t room = std::min(buffer.size(), script_.stream_limit - received_.size());
    const ssize_t bytes = room == 0 ? 0 : read(stream_, buffer.data(), room);
    if (bytes < 0) {
      return;
    }
    if (bytes == 0) {
      CloseStream();
      return;
    }
    received_.append(buffer.data(), static_cast<std::size_t>(bytes));
    if (script_.forget_stream && received_.size() > kReadinessQueryLength) {
      received_.erase(0, received_.size() - kReadinessQueryLength);
    }
  }
}

void Backend::TakeOnce() {
  std::array<char, 65536> buffer;
  const ssize_t bytes = read(stream_, buffer.data(), buffer.size());
  if (bytes > 0) {
    received_.append(buffer.data(), static_cast<std::size_t>(bytes));
  }
}

void Backend::CloseStream() {
  CloseAndForget(&stream_);
}

void Backend::AnswerSideChannel() {
  cups_sc_command_t command = CUPS_SC_CMD_NONE;
  cups_sc_status_t status = CUPS_SC_STATUS_NONE;
  std::array<char, 512> data{};
  int length = static_cast<int>(data.size());
  if (cupsSideChannelRead(&command, &status, data.data(), &length, 1.0) != 0) {
    side_channel_open_ = false;
    return;
  }
  EXPECT_EQ(length, 0) << "neither request carries data";
  if (command == CUPS_SC_CMD_GET_BIDI) {
    SendSideReply(command, script_.bidi);
    return;
  }
  EXPECT_EQ(command, CUPS_SC_CMD_DRAIN_OUTPUT);
  ReadStream();
  SendSideReply(command, TakeNext(&script_.drains, SideReply{}));
  AnswerLastCommand();
}

void Backend::SendSideReply(cups_sc_command_t command, const SideReply& reply) {
  if (!reply.frame.empty()) {
    EXPECT_EQ(write(CUPS_SC_FD, reply.frame.data(), reply.frame.size()),
              static_cast<ssize_t>(reply.frame.size()));
  } else if (!reply.silent) {
    EXPECT_EQ(cupsSideChannelWrite(command, reply.status, reply.data.data(),
                                   static_cast<int>(reply.data.size()), 1.0),
              0);
  }
  if (reply.then_close) {
    shutdown(CUPS_SC_FD, SHUT_RDWR);
    side_channel_open_ = false;
  }
}

// The filter drains after each of its two questions and after nothing else.
void Backend::AnswerLastCommand() {
  const std::string_view received = received_;
  Reply reply;
  if (received.ends_with(kStatusRequest)) {
    reply = TakeNext(&script_.status, Answer(kGood));
  } else if (received.size() >= kReadinessQueryLength &&
             received.substr(received.size() - kReadinessQueryLength)
                 .starts_with(kReadinessQuery)) {
    reply = TakeNext(&script_.readiness, Answer(kReady));
  } else if (stream_ >= 0) {
    ADD_FAILURE() << "output was drained without a question at its end";
  }
  pieces_.insert(pieces_.end(), reply.pieces.begin(), reply.pieces.end());
  close_back_channel_after_pieces_ = reply.then_close_back_channel;
  if (reply.then_close_stream) {
    CloseStream();
  }
  if (reply.then_hold_stream) {
    reading_ = false;
  }
}

void Backend::SendPieces() {
  int unread = 0;
  while (!pieces_.empty() && ioctl(filter_back_channel_, FIONREAD, &unread) == 0 && unread == 0) {
    const std::string& piece = pieces_.front();
    EXPECT_EQ(write(back_channel_, piece.data(), piece.size()), static_cast<ssize_t>(piece.size()));
    pieces_.pop_front();
  }
  if (pieces_.empty() && close_back_channel_after_pieces_) {
    CloseAndForget(&back_channel_);
  }
}

}  // namespace filter_test
