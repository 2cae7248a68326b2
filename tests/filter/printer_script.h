// SPDX-License-Identifier: Apache-2.0
//
// What the backend and the printer behind it answer in a test.
#ifndef TQR7_TESTS_FILTER_PRINTER_SCRIPT_H
#define TQR7_TESTS_FILTER_PRINTER_SCRIPT_H

#include <cups/sidechannel.h>

#include <deque>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace filter_test {

using namespace std::string_literals;

/// The backend's answer to one request on the side channel.
struct SideReply {
  cups_sc_status_t status = CUPS_SC_STATUS_OK;
  std::string data = {};
  bool silent = false;
  std::string frame = {};   ///< when not empty, sent as it stands in place of a well-formed answer
  bool then_close = false;  ///< the backend closes its side of the channel
};

/// The printer's answer to one status request or readiness query.
struct Reply {
  std::vector<std::string> pieces = {};  ///< each is sent once the filter has read the one before
  bool then_close_back_channel = false;
  bool then_close_stream = false;  ///< the backend takes no more of the print stream
  bool then_hold_stream = false;   ///< the backend stops reading, until the job is finished
};

inline Reply Answer(std::string bytes) {
  return {.pieces = {std::move(bytes)}};
}
inline const Reply kSilence = {};

/// The environment of a job whose printer falls silent: the filter waits as long as it asks for.
inline const std::map<std::string, std::string> kRealWaits = {{"FILTER_TEST_READ_SCALE", "1"}};

/// A status reply with the given error number in its place.
inline std::string StatusReply(unsigned char group, unsigned char detail) {
  std::string reply = "\x11\x22\x33\x44__\x55\x66\x77\x88\x99\xAA\xBB\xCC\xDD"s;
  reply[4] = static_cast<char>(group);
  reply[5] = static_cast<char>(detail);
  return reply;
}

/// A readiness reply with the given enable code in its place.
inline std::string EnableReply(unsigned char high, unsigned char low) {
  std::string reply = "\xA1\xB2\xC3\xD4__"s;
  reply[4] = static_cast<char>(high);
  reply[5] = static_cast<char>(low);
  return reply;
}

inline const std::string kGood = StatusReply(0, 0);
inline const std::string kReady = EnableReply(0, 0);
inline const std::string kBusy = EnableReply(1, 0);

/// Answers in turn. Where a list has run out, the backend supports two ways and drains, and the
/// printer is good and ready.
struct Script {
  SideReply bidi = {.data = "\x01"};
  std::deque<SideReply> drains = {};
  std::deque<Reply> status = {};
  std::deque<Reply> readiness = {};
  /// The backend takes this many bytes of the print stream, then closes it.
  std::size_t stream_limit = std::string::npos;
  /// Of a stream that is too long to keep, only the end is: enough to see the printer's questions.
  bool forget_stream = false;
};

}  // namespace filter_test

#endif  // TQR7_TESTS_FILTER_PRINTER_SCRIPT_H
