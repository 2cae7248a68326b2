// SPDX-License-Identifier: Apache-2.0
//
// One client on the network: bytes from it, answers to it, and every way in which that can end.
#ifndef TQR7_SIMULATOR_CLIENT_CONNECTION_H
#define TQR7_SIMULATOR_CLIENT_CONNECTION_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "simulator/waiter.h"

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
  /// Takes the socket over. The waiter must outlive the connection.
  ClientConnection(int socket, const Waiter& waiter);
  ClientConnection(const ClientConnection&) = delete;
  ClientConnection& operator=(const ClientConnection&) = delete;
  ~ClientConnection();

  /// Reads no more than so many bytes a second from now on, or as they come. What is not read stays
  /// in the network's buffers, which are kept small for as long: the client feels it.
  void ReadSlowly(std::optional<std::uint64_t> bytesPerSecond);

  /// Waits for bytes, `most` at most, which is above 0; Bytes() has them until the next call.
  Received Receive(std::uint64_t most);
  std::span<const std::uint8_t> Bytes() const { return std::span(buffer_).first(received_); }

  /// Whether Receive would find something at once.
  bool BytesWait() const;

  /// Sends all of it, in one piece where the network allows. A client that takes nothing for ten
  /// seconds counts as gone. False on failure; Error says why.
  bool Send(std::span<const std::uint8_t> bytes);

  /// Closes hard in the end: the client gets a reset and no end of file.
  void CloseHard();

  const std::string& Error() const { return error_; }

 private:
  Received ReceiveNow(std::size_t most, bool& again);
  std::size_t MostNow(std::uint64_t most) const;
  bool WaitUntilWritable();

  static constexpr std::size_t kBufferLength = 65536;

  int socket_;
  const Waiter& waiter_;
  std::optional<std::uint64_t> bytesPerSecond_;
  Waiter::TimePoint nextRead_;
  std::size_t received_ = 0;
  std::string error_;
  std::array<std::uint8_t, kBufferLength> buffer_{};
};

}  // namespace simulator

#endif  // TQR7_SIMULATOR_CLIENT_CONNECTION_H
