// SPDX-License-Identifier: Apache-2.0
//
// The exchange between a client and the printer: which command may come when, after which answers
// of the printer, how soon and how often. docs/command-stream.md has the order as a table.
//
// The stream does not always show where the client is. It may give a file up silently, because an
// answer forbids a sheet or because a page fails, and then begin the next file of the job in the
// same connection. So this keeps all places where the client can be. A command is out of order when
// it can come at none of them.
#ifndef TQR7_DECODER_EXCHANGE_H
#define TQR7_DECODER_EXCHANGE_H

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

#include "decoder/stream_error.h"

namespace decoder {

/// The printer's answer to a question, as it was sent.
struct Answer {
  enum class Meaning : std::uint8_t {
    Good,  ///< the printer is well, or ready for the sheet
    Busy,  ///< readiness only: ask again
    Bad,   ///< an error, a refusal, or no whole answer
  };
  Meaning meaning = Meaning::Good;
  std::string words;  ///< what the client could have seen: "0x0100", "no answer"
  bool sure = true;   ///< the client saw this answer in time, and nothing else
  bool strayed =
      false;  ///< other bytes were sent before it, which can look like busy to the client
};

/// Time since some moment, which is the same for all times of a stream; none where it is not
/// measured.
using StreamTime = std::optional<std::chrono::nanoseconds>;

/// How many queries a client makes at most for one sheet: the first, and 91 more while the printer
/// is busy.
inline constexpr std::uint64_t kQueriesMost = 92;
/// How long a client waits after the answer busy before it asks again.
inline constexpr std::chrono::seconds kBusyPause{2};

/// Watches one connection.
class Exchange {
 public:
  /// Takes a command when its code has come. Reports it when it may not come now; the exchange goes
  /// on from it in either case.
  void Take(Command command, std::uint64_t offset, StreamTime at, const ErrorSink& report);

  /// Takes whether the last settings block is, or may be, that of a sheet with two prints.
  void TakeSettings(bool twoPrints) { twoPrints_ = twoPrints; }

  /// Takes the answer to the last question. Without this call, the answer counts as unknown. After
  /// an answer that is not sure, the client may take one answer for another: from then on only its
  /// queries and job headers are checked against the answers.
  void Answered(const Answer& answer, StreamTime at);

  /// Whether the last command was a job header, so that an image header must follow.
  bool ImageHeaderDue() const { return last_ == Command::JobHeader; }

  /// Whether the last command can only belong to the same file as the settings block before it.
  bool FileGoesOn() const { return fileGoesOn_; }

  /// Whether the last status request may be one for a sheet, and not the one that begins a file.
  bool StatusAboutSheet() const { return aboutSheet_; }

  /// Whether the answers to the last status request and to the queries after it allow a sheet.
  bool SheetAllowed() const;

 private:
  using Places = std::uint8_t;   // a set of places, as bits
  using Answers = std::uint8_t;  // a set of answers that the client may have seen, as bits
  enum Place : Places {
    Between = 1,      // before, between and after the files
    Begun = 2,        // a file began with its status request
    AskedFirst = 4,   // status requested for the first sheet of a file
    AskedNext = 8,    // … for a further sheet
    Queried = 16,     // readiness queried
    Header = 32,      // the job header came
    AfterSheet = 64,  // the image header came, and its pixels
  };
  enum Known : Answers { Good = 1, Busy = 2, Bad = 4, Any = Good | Busy | Bad };
  enum class When : std::uint8_t { Always, Good, Busy, Bad, BadHalf, GivenUp, GivenUpHalf };
  struct Step {
    Command command;
    Places from;
    When when;
    Places to;
  };
  struct Move {
    Places from = 0;
    Places to = 0;
  };
  static const Step kSteps[];

  static Places PlacesAfter(Command command);

  bool Holds(When when, Answers answers) const;
  Move MoveOf(Command command, Answers answers) const;
  Move MoveOf(Command command) const;
  std::string AllowedNow(bool answered) const;
  std::string Spoken(Command command) const;
  void CheckPace(std::uint64_t offset, StreamTime at, const ErrorSink& report) const;
  StreamError OutOfPlace(Command command, std::uint64_t offset) const;
  StreamError Unanswered(Command command, std::uint64_t offset) const;
  StreamError OutOfOrder(Command command, std::uint64_t offset) const;

  Places places_ = Between;
  Command last_ = Command::None;
  std::uint64_t queries_ = 0;  // for this sheet
  bool twoPrints_ = true;      // of the last settings block; true while none is known

  bool inStep_ = true;      // every answer so far was sure
  Answers seen_ = Any;      // what the client may have seen as the last answer
  Answers sent_ = Any;      // what was sent; Any where other bytes were sent with it
  Answers meant_ = Any;     // what the printer meant; Any when that is not known
  Answers status_ = Any;    // meant_ of the last status request
  std::string words_;       // of the last answer
  StreamTime busySince_{};  // when the last answer went out, if it surely was busy

  bool fileGoesOn_ = false;
  bool aboutSheet_ = false;
};

}  // namespace decoder

#endif  // TQR7_DECODER_EXCHANGE_H
