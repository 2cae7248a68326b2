// SPDX-License-Identifier: Apache-2.0
//
// One client on the network: reads its bytes, sends it answers, and reports how either ended.
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
  EndOfStream,  ///< the client has sent everything
  Broken,       ///< the connection failed; Error says why
  Stop,         ///< the simulator is to stop
};

/// Owns a connected socket.
class ClientConnection {
 public:
  /// Takes the socket over. The waiter must outlive the connection.
  ClientConnection(int socket, const Waiter& waiter);
  ClientConnection(const ClientConnection&) = delete;
  ClientConnection& operator=(const ClientConnection&) = delete;
  ~ClientConnection();

  /// From now on reads at most so many bytes a second; without a number, as they come. What is not
  /// read stays in the network's buffers. They are kept small meanwhile, so that the client has to
  /// wait.
  void ReadSlowly(std::optional<std::uint64_t> bytesPerSecond);

  /// Waits for bytes and takes at most `most` of them, which is above 0. Bytes() returns them until
  /// the next call.
  Received Receive(std::uint64_t most);
  std::span<const std::uint8_t> Bytes() const { return std::span(buffer_).first(received_); }

  /// Whether Receive would return at once.
  bool BytesWait() const;

  /// Sends all bytes, in one piece if the network allows it. Gives up when the client takes nothing
  /// for ten seconds. False on failure; Error says why.
  bool Send(std::span<const std::uint8_t> bytes);

  /// When the connection is closed, the client will get a reset instead of an end of file.
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
