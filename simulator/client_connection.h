// SPDX-License-Identifier: Apache-2.0
//
// One client on the network: bytes from it, answers to it, and every way in which that can end.
#ifndef TQR7_SIMULATOR_CLIENT_CONNECTION_H
#define TQR7_SIMULATOR_CLIENT_CONNECTION_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace simulator {

/// How a wait for bytes ended.
enum class Received : std::uint8_t {
  Bytes,
  EndOfStream,  ///< the client has sent all
  Broken,       ///< the network gave up; see Error
  Stop,         ///< the simulator shall end
};

/// Owns a connected socket.
class ClientConnection {
 public:
  /// Takes the socket over. Waits end when `stopDescriptor` becomes readable.
  ClientConnection(int socket, int stopDescriptor);
  ClientConnection(const ClientConnection&) = delete;
  ClientConnection& operator=(const ClientConnection&) = delete;
  ~ClientConnection();

  /// Waits for bytes; Bytes() has them until the next call.
  Received Receive();
  std::span<const std::uint8_t> Bytes() const { return std::span(buffer_).first(received_); }

  /// Sends all of it, in one piece where the network allows. A client that takes nothing for ten
  /// seconds counts as gone. False on failure; Error says why.
  bool Send(std::span<const std::uint8_t> bytes);

  const std::string& Error() const { return error_; }

 private:
  bool WaitUntilWritable();

  static constexpr std::size_t kBufferLength = 65536;

  int socket_;
  int stopDescriptor_;
  std::size_t received_ = 0;
  std::string error_;
  std::array<std::uint8_t, kBufferLength> buffer_{};
};

}  // namespace simulator

#endif  // TQR7_SIMULATOR_CLIENT_CONNECTION_H
