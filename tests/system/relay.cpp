// SPDX-License-Identifier: Apache-2.0
// A cable that can be pulled: passes a printer's connections on, and fails once in the first.
//
//   relay PRINTER-PORT close BYTES   drops the first connection once BYTES have gone to the printer
//   relay PRINTER-PORT stall BYTES   lets nothing more through from there, until SIGUSR1 comes
//
// Says "listening on 127.0.0.1 port N" first, and "closed" or "stalled" when it fails. Ends on
// SIGTERM.
#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

sockaddr_in loopback(int port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(port));
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  return address;
}

int listen_on_free_port() {
  const int listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in address = loopback(0);
  socklen_t size = sizeof(address);
  auto* generic = reinterpret_cast<sockaddr*>(&address);
  if (listener < 0 || bind(listener, generic, size) != 0 || listen(listener, 8) != 0 ||
      getsockname(listener, generic, &size) != 0) {
    std::perror("relay");
    std::exit(1);
  }
  std::printf("listening on 127.0.0.1 port %d\n", ntohs(address.sin_port));
  return listener;
}

int connect_to(int port) {
  const int printer = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  const sockaddr_in address = loopback(port);
  if (printer < 0 ||
      connect(printer, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0) {
    std::perror("relay: printer");
    std::exit(1);
  }
  return printer;
}

bool write_all(int to, const char* bytes, ssize_t count) {
  while (count > 0) {
    const ssize_t written = send(to, bytes, static_cast<size_t>(count), MSG_NOSIGNAL);
    if (written <= 0) {
      return false;
    }
    bytes += written;
    count -= written;
  }
  return true;
}

// One read passed on: its length, 0 at the end, negative when a side is gone.
ssize_t pass(int from, int to) {
  char bytes[16384];
  const ssize_t count = read(from, bytes, sizeof(bytes));
  return count > 0 && !write_all(to, bytes, count) ? -1 : count;
}

void wait_for_user_signal() {
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGUSR1);
  int received = 0;
  sigwait(&signals, &received);
}

struct Fault {
  bool closes;
  long bytes;  // to the printer, before it happens
  bool happened;
};

// True while the connection is to go on.
bool fail_when_due(Fault* fault, long sent) {
  if (fault->happened || sent < fault->bytes) {
    return true;
  }
  fault->happened = true;
  std::printf("%s\n", fault->closes ? "closed" : "stalled");
  if (!fault->closes) {
    wait_for_user_signal();
  }
  return !fault->closes;
}

void serve(int client, int printer, Fault* fault) {
  long sent = 0;
  pollfd sides[] = {{client, POLLIN, 0}, {printer, POLLIN, 0}};
  while (poll(sides, 2, -1) > 0) {
    if (sides[1].revents != 0 && pass(printer, client) <= 0) {
      return;
    }
    if (sides[0].revents == 0) {
      continue;
    }
    const ssize_t count = pass(client, printer);
    if (count < 0) {
      return;
    }
    if (count == 0) {
      // The printer closes its side in answer.
      shutdown(printer, SHUT_WR);
      sides[0].fd = -1;
    }
    sent += count;
    if (!fail_when_due(fault, sent)) {
      return;
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4 || (std::strcmp(argv[2], "close") != 0 && std::strcmp(argv[2], "stall") != 0)) {
    std::fprintf(stderr, "usage: relay PRINTER-PORT close|stall BYTES\n");
    return 2;
  }
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGUSR1);
  sigprocmask(SIG_BLOCK, &signals, nullptr);
  std::setvbuf(stdout, nullptr, _IOLBF, 0);
  Fault fault = {std::strcmp(argv[2], "close") == 0, std::atol(argv[3]), false};
  const int listener = listen_on_free_port();
  for (;;) {
    const int client = accept(listener, nullptr, nullptr);
    if (client < 0) {
      return 1;
    }
    const int printer = connect_to(std::atoi(argv[1]));
    serve(client, printer, &fault);
    close(printer);
    close(client);
  }
}
