// SPDX-License-Identifier: Apache-2.0
#include "simulator/server.h"

#include <fcntl.h>
#include <netdb.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <memory>

#include "simulator/event_log.h"
#include "simulator/wording.h"

namespace simulator {
namespace {

constexpr int kBacklog = 16;
constexpr int kRetryMilliseconds = 100;

struct AddressDeleter {
  void operator()(addrinfo* list) const { ::freeaddrinfo(list); }
};
using AddressList = std::unique_ptr<addrinfo, AddressDeleter>;

AddressList find_address(const std::string& address, std::uint16_t port, std::string& error) {
  addrinfo hints{};
  hints.ai_family = AF_UNSPEC;
  hints.ai_socktype = SOCK_STREAM;
  hints.ai_flags = AI_NUMERICHOST | AI_NUMERICSERV | AI_PASSIVE;
  addrinfo* list = nullptr;
  const int result = ::getaddrinfo(address.c_str(), std::to_string(port).c_str(), &hints, &list);
  if (result != 0) {
    error = result == EAI_NONAME ? "not a numeric address" : ::gai_strerror(result);
    return nullptr;
  }
  return AddressList(list);
}

// "127.0.0.1 port 40000"
std::string in_words(const sockaddr_storage& address, socklen_t length) {
  std::array<char, NI_MAXHOST> host{};
  std::array<char, NI_MAXSERV> port{};
  if (::getnameinfo(reinterpret_cast<const sockaddr*>(&address), length, host.data(), host.size(),
                    port.data(), port.size(), NI_NUMERICHOST | NI_NUMERICSERV) != 0) {
    return "an unknown address";
  }
  return std::string(host.data()) + " port " + port.data();
}

std::uint16_t port_of(const sockaddr_storage& address) {
  if (address.ss_family == AF_INET6) {
    return ntohs(reinterpret_cast<const sockaddr_in6*>(&address)->sin6_port);
  }
  return ntohs(reinterpret_cast<const sockaddr_in*>(&address)->sin_port);
}

// Whether the next client may be accepted after this error. Waits a moment where something is used
// up, so that the caller does not loop without a pause.
bool may_accept_again(int errorNumber) {
  switch (errorNumber) {
    case EINTR:
    case EAGAIN:
    case ECONNABORTED:
      return true;
    case EMFILE:
    case ENFILE:
    case ENOBUFS:
    case ENOMEM:
    case EPROTO:
      ::poll(nullptr, 0, kRetryMilliseconds);
      return true;
    default:
      return false;
  }
}

}  // namespace

Server::~Server() {
  if (socket_ >= 0) {
    ::close(socket_);
  }
}

std::string Server::Listen(const std::string& address, std::uint16_t port) {
  std::string error;
  const AddressList found = find_address(address, port, error);
  if (!found) {
    return error;
  }
  socket_ = ::socket(found->ai_family, SOCK_STREAM, 0);
  if (socket_ < 0) {
    return error_words(errno);
  }
  const int on = 1;
  ::fcntl(socket_, F_SETFD, FD_CLOEXEC);
  ::fcntl(socket_, F_SETFL, O_NONBLOCK);
  ::setsockopt(socket_, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
  sockaddr_storage bound{};
  socklen_t length = sizeof bound;
  if (::bind(socket_, found->ai_addr, found->ai_addrlen) != 0 || ::listen(socket_, kBacklog) != 0 ||
      ::getsockname(socket_, reinterpret_cast<sockaddr*>(&bound), &length) != 0) {
    return error_words(errno);
  }
  port_ = port_of(bound);
  return {};
}

bool Server::ServeClient(Printer printer, int client, const Waiter& waiter,
                         const std::string& peer) {
  const std::uint64_t number = ++printer.tally.connections;
  log_event("connection " + std::to_string(number) + ": opened from " + peer);
  printer.faults.ConnectionOpens();
  auto connection = std::make_unique<ClientConnection>(client, waiter);
  Session session(number, printer, *connection, waiter);
  const bool goOn = session.Run();
  connection.reset();
  session.SayClosed();
  printer.faults.ConnectionCloses();
  return goOn;
}

std::string Server::Serve(Printer printer, const Waiter& waiter,
                          std::optional<std::uint64_t> connections) {
  while (!connections || printer.tally.connections < *connections) {
    if (waiter.For(socket_, POLLIN) == Woken::Stop) {
      return {};
    }
    sockaddr_storage peer{};
    socklen_t length = sizeof peer;
    const int client = ::accept(socket_, reinterpret_cast<sockaddr*>(&peer), &length);
    if (client < 0 && may_accept_again(errno)) {
      continue;
    }
    if (client < 0) {
      return error_words(errno);
    }
    ::fcntl(client, F_SETFD, FD_CLOEXEC);
    if (!ServeClient(printer, client, waiter, in_words(peer, length))) {
      return {};
    }
  }
  return {};
}

}  // namespace simulator
