// SPDX-License-Identifier: Apache-2.0
//
// Standard error as the scheduler reads it, in the portions in which a job writes it. A pause shows
// as the line that the preloaded library writes for it.
#ifndef TQR7_TESTS_FILTER_EXPECTED_LOG_H
#define TQR7_TESTS_FILTER_EXPECTED_LOG_H

#include <string>

#include "tests/filter/expected_stream.h"
#include "tests/filter/printer_script.h"

namespace filter_test {

inline const std::string kBanner = "DEBUG: ---------- TQR7Filter main() ---------- \n";
inline const std::string kTwoWays = "DEBUG: CUPS_SC_CMD_GET_BIDI=CUPS_SC_STATUS_OK(1)\n";
inline const std::string kNoTwoWays =
    "DEBUG: Unable to retrieve supply status from printer - nobidirectional I/O available!\n";
inline const std::string kDrained = "DEBUG: CUPS_SC_CMD_DRAIN_OUTPUT=CUPS_SC_STATUS_OK(1)\n";
inline const std::string kCleaned =
    "clean_printer_state() START\n"
    "DEBUG: Not found default(destination) printer.\n"
    "clean_printer_state() END\n";
inline const std::string kStop = "DEBUG: =======> exit(1) Because printer has error\n";
inline const std::string kNoPages = "ERROR: No pages found!\n";
inline const std::string kPaused = "STATE: +paused\n";

/// Bytes in hexadecimal, 16 a line, under a label.
std::string Dump(const std::string& label, const std::string& bytes);

/// A status exchange with this reply, up to the dump of the reply.
std::string StatusExchange(const std::string& reply = kGood);
/// A status exchange whose reply did not come: `result` is the back channel's.
std::string FailedStatusExchange(int result = -1);
/// What follows a good status: the state and all withdrawals.
std::string GoodState();
/// What follows a status with a known error number.
std::string KnownError(const std::string& number, const std::string& keyword);
/// What follows a status without one; `state` is its text.
std::string UnknownError(const std::string& state);
/// From the start of the job up to its first page, with a good printer.
std::string GoodStart();

/// A page being read: `progress` is the percentages as they are told.
std::string PageRead(int page, const std::string& progress, unsigned copies = 1);
/// The percentages of a page of so many lines, read to its end.
std::string ReadingProgress(int lines);
/// The conversion of a page with every option at its default.
std::string Conversion(int rgb, int rgb_total, int op, int op_total);
std::string Conversion(const std::string& params, int rgb, int rgb_total, int op, int op_total);
inline const std::string kDefaultParams = "0x00010007 (0:0:0, 0:0:0, 0:0:0) (0,0,1,0) 3";

/// A readiness exchange with this reply.
std::string ReadinessExchange(const Settings& settings, const std::string& reply);
/// The same up to the end of the drain.
std::string ReadinessQuestion(const Settings& settings);
inline const std::string kExamine = "DEBUG: ExaminePage() START\n";
/// From the status request to the answer that the printer is ready.
std::string ReadySheet(const Settings& settings);
/// The transfer of an image of this many dots.
std::string Transfer(int page, int width, int height);
/// The end of a sheet, with its pause.
std::string SheetDone(int page);

/// All of one sheet on a ready printer, from its status request to its pause.
std::string SheetLog(const Settings& settings, int page, int width, int height);
/// All of a page that fills a sheet of its own, with the stand-in's usual rates.
std::string WholePage(const Settings& settings, int page = 1);

}  // namespace filter_test

#endif  // TQR7_TESTS_FILTER_EXPECTED_LOG_H
