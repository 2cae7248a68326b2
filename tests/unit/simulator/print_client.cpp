// SPDX-License-Identifier: Apache-2.0
#include "tests/unit/simulator/print_client.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>

namespace {

constexpr timeval kPatience{30, 0};
constexpr int kSilenceMilliseconds = 200;

}  // namespace

PrintClient::PrintClient(std::uint16_t port) : socket_(::socket(AF_INET, SOCK_STREAM, 0)) {
  ::setsockopt(socket_, SOL_SOCKET, SO_RCVTIMEO, &kPatience, sizeof kPatience);
  ::setsockopt(socket_, SOL_SOCKET, SO_SNDTIMEO, &kPatience, sizeof kPatience);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(port);
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  if (::connect(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
    ::close(socket_);
    socket_ = -1;
  }
}

PrintClient::~PrintClient() {
  if (socket_ >= 0) {
    ::close(socket_);
  }
}

bool PrintClient::Send(const stream::Bytes& bytes) const {
  std::size_t sent = 0;
  while (sent < bytes.size()) {
    const ssize_t count = ::send(socket_, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
    if (count <= 0) {
      return false;
    }
    sent += static_cast<std::size_t>(count);
  }
  return true;
}

std::size_t PrintClient::SendForAWhile(const stream::Bytes& bytes, int milliseconds) const {
  constexpr int kSmallBuffer = 16384;
  ::setsockopt(socket_, SOL_SOCKET, SO_SNDBUF, &kSmallBuffer, sizeof kSmallBuffer);
  std::size_t sent = 0;
  pollfd wait{socket_, POLLOUT, 0};
  while (sent < bytes.size() && ::poll(&wait, 1, milliseconds) > 0) {
    const ssize_t count =
        ::send(socket_, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL | MSG_DONTWAIT);
    sent += count > 0 ? static_cast<std::size_t>(count) : 0;
  }
  return sent;
}

stream::Bytes PrintClient::ReadSome() const {
  stream::Bytes bytes(512);
  const ssize_t got = ::recv(socket_, bytes.data(), bytes.size(), 0);
  bytes.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
  return bytes;
}

stream::Bytes PrintClient::Read(std::size_t count) const {
  stream::Bytes bytes(count);
  const ssize_t got = ::recv(socket_, bytes.data(), count, MSG_WAITALL);
  bytes.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
  return bytes;
}

bool PrintClient::AnswerComes() const {
  pollfd wait{socket_, POLLIN, 0};
  return ::poll(&wait, 1, kSilenceMilliseconds) > 0;
}

bool PrintClient::Finish() const {
  ::shutdown(socket_, SHUT_WR);
  std::array<char, 4096> bytes{};
  for (;;) {
    const ssize_t count = ::recv(socket_, bytes.data(), bytes.size(), 0);
    if (count <= 0) {
      return count == 0;
    }
  }
}

void PrintClient::Break() {
  const linger atOnce{1, 0};
  ::setsockopt(socket_, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
  ::close(socket_);
  socket_ = -1;
}

bool print(std::uint16_t port, const stream::Bytes& bytes) {
  const PrintClient client(port);
  return client.Connected() && client.Send(bytes) && client.Finish();
}
