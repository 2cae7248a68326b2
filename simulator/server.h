// SPDX-License-Identifier: Apache-2.0
//
// The printer's port: listens, and serves one client after another, as the printer does.
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

  /// The port that is listened on.
  std::uint16_t Port() const { return port_; }

  /// Serves clients until a stop is asked for, or `connections` of them are served (no limit when
  /// absent). A client that comes while another is served waits. Returns why no client can be taken
  /// any more, or nothing.
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
