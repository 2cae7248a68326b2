// SPDX-License-Identifier: Apache-2.0
//
// What the printer's last answers allow its client to send next, and which of the client's
// questions are about a sheet.
#ifndef TQR7_SIMULATOR_PERMISSION_H
#define TQR7_SIMULATOR_PERMISSION_H

#include <string>

#include "simulator/answer_plan.h"

namespace simulator {

/// Follows one connection.
class Permission {
 public:
  void StatusAnswered(const AnswerPlan& answer);
  void ReadinessAnswered(const AnswerPlan& answer);
  void SheetDone() { fileBegins_ = false; }
  void PrintOutDone() { fileBegins_ = true; }

  /// A status request would now be the check with which a file begins, and not one for a sheet: at
  /// the beginning, behind a print-out, and behind an answer that ends a file early.
  bool FileBegins() const { return fileBegins_; }

  bool QueryAllowed() const { return status_.Good(); }

  /// A client asks again only while the printer is busy; stray bytes may have told it so.
  bool RepeatAllowed() const { return !asked_ || readiness_.Busy() || !readiness_.stray.empty(); }

  bool JobHeaderAllowed() const { return readiness_.Good(); }
  bool SheetAllowed() const { return QueryAllowed() && JobHeaderAllowed(); }

  /// The answers as the client saw them, in words.
  std::string StatusSeen() const { return seen_words(status_); }
  std::string ReadinessSeen() const { return seen_words(readiness_); }

 private:
  bool fileBegins_ = true;
  bool asked_ = false;  ///< for readiness, since the last status request
  AnswerPlan status_;
  AnswerPlan readiness_;
};

}  // namespace simulator

#endif  // TQR7_SIMULATOR_PERMISSION_H
