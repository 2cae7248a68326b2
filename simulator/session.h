// SPDX-License-Identifier: Apache-2.0
//
// One connection from its first byte to its last: reads the stream, answers the questions, prints
// the sheets, and says what happens.
#ifndef TQR7_SIMULATOR_SESSION_H
#define TQR7_SIMULATOR_SESSION_H

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "decoder/command_listener.h"
#include "decoder/stream_parser.h"
#include "simulator/client_connection.h"
#include "simulator/connection_log.h"
#include "simulator/contact_sheet.h"
#include "simulator/event_log.h"
#include "simulator/fault_schedule.h"
#include "simulator/sheet_printer.h"
#include "simulator/stream_recorder.h"
#include "simulator/timeline.h"
#include "simulator/waiter.h"

namespace simulator {

/// The printer that the connections share.
struct Printer {
  FaultSchedule& faults;
  SheetPrinter& sheets;
  StreamRecorder& recorder;
  Timeline& timeline;
  Tally& tally;
  ContactSheet* contactSheet = nullptr;  ///< null: no contact sheet is kept
  bool verbose = false;                  ///< says every field of every command
  bool simulatedClock = false;  ///< the clients have a clock of their own: how soon they ask is not
                                ///< checked
};

/// Serves one client.
class Session : private decoder::CommandListener {
 public:
  /// `number` names the connection in the event lines. Printer, client and waiter must outlive
  /// the session.
  Session(std::uint64_t number, const Printer& printer, ClientConnection& client,
          const Waiter& waiter);

  /// Serves the client until it has sent everything, is gone or is dropped, or until the simulator
  /// is to stop. False only when it is to stop. The caller must close the connection at once,
  /// because clients wait for that.
  bool Run();

  /// Sums the connection up in one line, after it was closed.
  void SayClosed();

 private:
  void OnCommandBytes(std::uint64_t offset, decoder::Command command,
                      std::span<const std::uint8_t> bytes) override;
  void OnStatusRequest(std::uint64_t offset) override;
  void OnReadinessQuery(std::uint64_t offset, const decoder::JobHeader& header) override;
  void OnJobHeader(std::uint64_t offset, const decoder::JobHeader& header) override;
  void OnImageHeader(std::uint64_t offset, const decoder::ImageHeader& header) override;
  void OnSheetBegin(const decoder::Sheet& sheet) override;
  void OnImageRow(std::uint32_t row, std::span<const std::uint16_t> samples) override;
  void OnMatteRow(std::uint32_t row, std::span<const std::uint8_t> bytes) override;
  void OnSheetEnd(const decoder::SheetEnd& end) override;
  void OnSheetCut() override;
  void OnPrintOut(std::uint64_t offset, std::uint8_t waitByte) override;
  void OnError(const decoder::StreamError& error) override;
  void OnSkipped(std::uint64_t offset, std::uint64_t count) override;

  void GiveAnswer(const AnswerPlan& plan, Question question);
  decoder::StreamTime Now() const;
  void SendPieces(const AnswerPlan& plan, std::span<const std::uint8_t> answer);
  std::optional<Received> ReceiveMore();
  void TakeBytes();
  void NoteTime(const char* event) const;
  void Drop();
  void SayFields(decoder::Command command) const;
  void SayPrinted(const SheetResult& result);
  void AddToContactSheet(const SheetResult& result);
  void Cut(const std::string& how);

  Printer printer_;
  ClientConnection& client_;
  const Waiter& waiter_;
  ConnectionLog log_;
  decoder::StreamParser parser_;

  bool answersLost_ = false;
  bool readsSlowly_ = false;      ///< now or earlier: questions may wait in the network's buffers
  decoder::StreamTime answered_;  ///< when the first bytes of the last answer went out
  decoder::Sheet sheet_{};
  SheetProgress progress_;
  std::vector<decoder::NamedField> fields_;  ///< of the last command
  std::vector<decoder::NamedField> jobFields_;
  std::vector<decoder::NamedField> imageFields_;
  std::uint64_t sheets_ = 0;
};

}  // namespace simulator

#endif  // TQR7_SIMULATOR_SESSION_H
