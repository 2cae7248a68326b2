// SPDX-License-Identifier: Apache-2.0
//
// The backend and the printer behind it: takes the print stream, answers on the side channel
// through libcups, and sends the printer's replies on the back channel as a script says.
#ifndef TQR7_TESTS_FILTER_BACKEND_H
#define TQR7_TESTS_FILTER_BACKEND_H

#include <poll.h>

#include <deque>
#include <string>
#include <vector>

#include "tests/filter/printer_script.h"

namespace filter_test {

class Backend {
 public:
  explicit Backend(Script script);
  ~Backend();
  Backend(const Backend&) = delete;
  Backend& operator=(const Backend&) = delete;

  /// The ends that the filter gets as descriptors 1, 3 and 4.
  int filter_output() const { return filter_output_; }
  int filter_back_channel() const { return filter_back_channel_; }
  int filter_side_channel() const { return filter_side_channel_; }
  /// Called once the filter has them.
  void CloseFilterEnds();

  void set_reading(bool reading) { reading_ = reading; }
  /// Has the printer say more, whatever it was asked.
  void Say(const std::string& bytes) { pieces_.push_back(bytes); }
  /// Takes what waits in the print stream's pipe, in one read.
  void TakeOnce();
  /// True when the filter cannot write any more until the stream is read.
  bool stream_full() const;
  const std::string& received() const { return received_; }

  /// Adds what to wait for.
  void AddPolls(std::vector<pollfd>* polls) const;
  /// Does whatever can be done without waiting.
  void Step();
  /// True while pieces of a reply wait for the filter to read the one before.
  bool has_pieces() const { return !pieces_.empty(); }

 private:
  void ReadStream();
  void CloseStream();
  void AnswerSideChannel();
  void SendSideReply(cups_sc_command_t command, const SideReply& reply);
  void AnswerLastCommand();
  void SendPieces();

  Script script_;
  bool reading_ = true;
  bool side_channel_open_ = true;
  std::string received_;
  std::deque<std::string> pieces_;
  bool close_back_channel_after_pieces_ = false;
  int stream_ = -1;
  int back_channel_ = -1;
  int filter_output_ = -1;
  int filter_back_channel_ = -1;  ///< kept open, to see how much of a reply has been read
  int filter_side_channel_ = -1;
  bool filter_ends_open_ = true;
};

}  // namespace filter_test

#endif  // TQR7_TESTS_FILTER_BACKEND_H
