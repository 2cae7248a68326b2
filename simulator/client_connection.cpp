// SPDX-License-Identifier: Apache-2.0
#include "simulator/client_connection.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "simulator/wording.h"

namespace simulator {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kSendTimeout{10000};
// The smallest buffer that systems allow, and one larger than they allow: they cut it down.
constexpr std::uint64_t kSmallestBuffer = 65536;
constexpr std::uint64_t kLargestBuffer = 1 << 20;
constexpr std::uint64_t kBuffersPerSecond = 4;
constexpr std::uint64_t kReadsPerSecond = 20;
constexpr std::chrono::milliseconds kCatchUp{100};

bool is_temporary(int errorNumber) {
  return errorNumber == EINTR || errorNumber == EAGAIN || errorNumber == EWOULDBLOCK;
}

}  // namespace

ClientConnection::ClientConnection(int socket, const Waiter& waiter)
    : socket_(socket), waiter_(waiter) {
  const int on = 1;
  // Answers are sent at once. A client that vanished silently is noticed after some time.
  ::setsockopt(socket_, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
  ::setsockopt(socket_, SOL_SOCKET, SO_KEEPALIVE, &on, sizeof on);
}

ClientConnection::~ClientConnection() {
  ::close(socket_);
}

void ClientConnection::CloseHard() {
  const linger atOnce{1, 0};
  ::setsockopt(socket_, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
}

void ClientConnection::ReadSlowly(std::optional<std::uint64_t> bytesPerSecond) {
  if (bytesPerSecond.has_value() != bytesPerSecond_.has_value()) {
    const auto length = static_cast<int>(
        std::clamp(bytesPerSecond.value_or(kBuffersPerSecond * kLargestBuffer) / kBuffersPerSecond,
                   kSmallestBuffer, kLargestBuffer));
    ::setsockopt(socket_, SOL_SOCKET, SO_RCVBUF, &length, sizeof length);
    nextRead_ = Clock::now();
  }
  bytesPerSecond_ = bytesPerSecond;
}

std::size_t ClientConnection::MostNow(std::uint64_t most) const {
  most = std::min<std::uint64_t>(most, buffer_.size());
  if (bytesPerSecond_) {
    most = std::min(most, std::max<std::uint64_t>(*bytesPerSecond_ / kReadsPerSecond, 1));
  }
  return static_cast<std::size_t>(most);
}

Received ClientConnection::ReceiveNow(std::size_t most, bool& again) {
  const ssize_t count = ::recv(socket_, buffer_.data(), most, MSG_DONTWAIT);
  if (count > 0) {
    received_ = static_cast<std::size_t>(count);
    if (bytesPerSecond_) {
      // Makes up for a wait that ended late, but not for a time in which nothing came.
      nextRead_ = std::max(nextRead_, Clock::now() - kCatchUp) +
                  std::chrono::nanoseconds(std::nano::den * received_ / *bytesPerSecond_);
    }
    return Received::Bytes;
  }
  if (count == 0) {
    return Received::EndOfStream;
  }
  again = is_temporary(errno);
  error_ = again ? "" : error_words(errno);
  return Received::Broken;
}

Received ClientConnection::Receive(std::uint64_t most) {
  received_ = 0;
  if (bytesPerSecond_ && !waiter_.Until(nextRead_)) {
    return Received::Stop;
  }
  for (;;) {
    switch (waiter_.For(socket_, POLLIN)) {
      case Woken::Stop:
        return Received::Stop;
      case Woken::Failed:
        error_ = error_words(errno);
        return Received::Broken;
      case Woken::Ready:
      case Woken::TimeUp:
        break;
    }
    bool again = false;
    const Received received = ReceiveNow(MostNow(most), again);
    if (!again) {
      return received;
    }
  }
}

bool ClientConnection::BytesWait() const {
  pollfd wait{socket_, POLLIN, 0};
  return ::poll(&wait, 1, 0) > 0;
}

bool ClientConnection::WaitUntilWritable() {
  switch (waiter_.For(socket_, POLLOUT, Clock::now() + kSendTimeout)) {
    case Woken::Ready:
      return true;
    case Woken::TimeUp:
      error_ = "the client takes no answers";
      return false;
    case Woken::Stop:
      error_ = "stopped";
      return false;
    case Woken::Failed:
      error_ = error_words(errno);
      return false;
  }
  return false;
}

bool ClientConnection::Send(std::span<const std::uint8_t> bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::send(socket_, bytes.data(), bytes.size(), MSG_DONTWAIT);
    if (count >= 0) {
      bytes = bytes.subspan(static_cast<std::size_t>(count));
    } else if (!is_temporary(errno)) {
      error_ = error_words(errno);
      return false;
    } else if (!WaitUntilWritable()) {
      return false;
    }
  }
  return true;
}

}  // namespace simulator
