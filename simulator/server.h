// SPDX-License-Identifier: Apache-2.0
//
// The printer's port: serves one client after another, as the printer does.
#ifndef TQR7_SIMULATOR_SERVER_H
#define TQR7_SIMULATOR_SERVER_H

#include <cstdint>
#include <optional>
#include <string>

#include "simulator/session.h"

namespace simulator {

/// A listening socket.
class Server {
 public:
  Server() = default;
  Server(const Server&) = delete;
  Server& operator=(const Server&) = delete;
  ~Server();

  /// Listens on a numeric address (IPv4 or IPv6); port 0 takes a free one. Returns what went wrong,
  /// or nothing.
  std::string Listen(const std::string& address, std::uint16_t port);

  /// The port that it listens on.
  std::uint16_t Port() const { return port_; }

  /// Serves clients until the simulator is to stop, or until it has served `connections` of them. A
  /// client that comes while another one is served has to wait. Returns why it cannot accept
  /// further clients, or nothing.
  std::string Serve(Printer printer, const Waiter& waiter,
                    std::optional<std::uint64_t> connections);

 private:
  static bool ServeClient(Printer printer, int client, const Waiter& waiter,
                          const std::string& peer);

  int socket_ = -1;
  std::uint16_t port_ = 0;
};

}  // namespace simulator

#endif  // TQR7_SIMULATOR_SERVER_H
