// SPDX-License-Identifier: Apache-2.0
#include "simulator/client_connection.h"

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace simulator {
namespace {

constexpr int kSendTimeoutMilliseconds = 10000;

std::string error_words(int errorNumber) {
  return std::generic_category().message(errorNumber);
}

bool is_temporary(int errorNumber) {
  return errorNumber == EINTR || errorNumber == EAGAIN || errorNumber == EWOULDBLOCK;
}

}  // namespace

ClientConnection::ClientConnection(int socket, int stopDescriptor)
    : socket_(socket), stopDescriptor_(stopDescriptor) {
  const int on = 1;
  // Answers leave at once, and a client that vanished without a word is noticed in the end.
  ::setsockopt(socket_, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
  ::setsockopt(socket_, SOL_SOCKET, SO_KEEPALIVE, &on, sizeof on);
}

ClientConnection::~ClientConnection() {
  ::close(socket_);
}

Received ClientConnection::Receive() {
  received_ = 0;
  for (;;) {
    std::array<pollfd, 2> waits{{{stopDescriptor_, POLLIN, 0}, {socket_, POLLIN, 0}}};
    if (::poll(waits.data(), waits.size(), -1) < 0 && errno != EINTR) {
      error_ = error_words(errno);
      return Received::Broken;
    }
    if (waits[0].revents != 0) {
      return Received::Stop;
    }
    if (waits[1].revents == 0) {
      continue;
    }
    const ssize_t count = ::recv(socket_, buffer_.data(), buffer_.size(), MSG_DONTWAIT);
    if (count > 0) {
      received_ = static_cast<std::size_t>(count);
      return Received::Bytes;
    }
    if (count == 0) {
      return Received::EndOfStream;
    }
    if (!is_temporary(errno)) {
      error_ = error_words(errno);
      return Received::Broken;
    }
  }
}

bool ClientConnection::WaitUntilWritable() {
  for (;;) {
    std::array<pollfd, 2> waits{{{stopDescriptor_, POLLIN, 0}, {socket_, POLLOUT, 0}}};
    const int ready = ::poll(waits.data(), waits.size(), kSendTimeoutMilliseconds);
    if (ready < 0 && errno == EINTR) {
      continue;
    }
    if (ready < 0) {
      error_ = error_words(errno);
    } else if (ready == 0) {
      error_ = "the client takes no answers";
    } else if (waits[0].revents != 0) {
      error_ = "stopped";
    } else {
      return true;
    }
    return false;
  }
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
