// SPDX-License-Identifier: Apache-2.0
//
// The exchange between a client and the printer: which command may come where, by what the printer
// answered, how soon and how often. docs/command-stream.md has the order as a table.
//
// A stream alone does not tell everything. A client gives a file up without a word when an answer
// forbids a sheet or the next page fails, and may begin the next file of the job in the same
// connection. So all places are kept in which the client may be, and a command is out of order when
// it can come in none of them.
#ifndef TQR7_DECODER_EXCHANGE_H
#define TQR7_DECODER_EXCHANGE_H

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

#include "decoder/stream_error.h"

namespace decoder {

/// The printer's answer to a question, as it went out.
struct Answer {
  enum class Meaning : std::uint8_t {
    Good,  ///< the printer is well, or ready for the sheet
    Busy,  ///< readiness only: ask again
    Bad,   ///< an error, a refusal, or no whole answer
  };
  Meaning meaning = Meaning::Good;
  std::string words;     ///< what the client could have seen: "0x0100", "no answer"
  bool sure = true;      ///< the client saw this answer in time, and nothing else
  bool strayed = false;  ///< other bytes went out before it, which the client may have read as busy
};

/// Since a moment that is the same for all times of a stream; none where nobody measures.
using StreamTime = std::optional<std::chrono::nanoseconds>;

/// Queries that a client makes at most in one wait: the first, and 91 more while the printer is
/// busy.
inline constexpr std::uint64_t kQueriesMost = 92;
/// A client that was told busy waits so long before it asks again.
inline constexpr std::chrono::seconds kBusyPause{2};

/// Watches one connection.
class Exchange {
 public:
  /// A command's code came. Reports the command when it may not come now, and takes it as come in
  /// either case.
  void Take(Command command, std::uint64_t offset, StreamTime at, const ErrorSink& report);

  /// The settings block that came last is that of a sheet with two prints, or may be.
  void TakeSettings(bool twoPrints) { twoPrints_ = twoPrints; }

  /// The question that was taken last is answered. A question without this call has an answer that
  /// nobody knows. After an answer that is not sure the client may read later ones out of step:
  /// they are then held against its queries and job headers only.
  void Answered(const Answer& answer, StreamTime at);

  /// The last command was a job header: its image header is still due.
  bool ImageHeaderDue() const { return last_ == Command::JobHeader; }

  /// The command taken last can only belong to the file of the settings block before it.
  bool FileGoesOn() const { return fileGoesOn_; }

  /// The status request taken last may be one for a sheet, and not the check with which a file
  /// begins.
  bool StatusAboutSheet() const { return aboutSheet_; }

  /// The answers to the last status request and to the queries after it allow a sheet.
  bool SheetAllowed() const;

 private:
  using Places = std::uint8_t;   // a set of places, by bits
  using Answers = std::uint8_t;  // a set of what the client may have been answered, by bits
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
  std::uint64_t queries_ = 0;  // in this wait
  bool twoPrints_ = true;      // of the last settings block; true while none is known

  bool inStep_ = true;      // every answer so far was sure
  Answers seen_ = Any;      // what the client may have seen as the last answer
  Answers sent_ = Any;      // what it would make of the answer by itself; Any where others mix in
  Answers meant_ = Any;     // what the printer said; Any when that is not known
  Answers status_ = Any;    // meant_ of the last status request
  std::string words_;       // of the last answer
  StreamTime busySince_{};  // when the last answer went out, if it surely was busy

  bool fileGoesOn_ = false;
  bool aboutSheet_ = false;
};

}  // namespace decoder

#endif  // TQR7_DECODER_EXCHANGE_H
