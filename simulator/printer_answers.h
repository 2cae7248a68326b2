// SPDX-License-Identifier: Apache-2.0
//
// What the simulated printer answers to the two questions of the stream.
#ifndef TQR7_SIMULATOR_PRINTER_ANSWERS_H
#define TQR7_SIMULATOR_PRINTER_ANSWERS_H

#include <cstdint>
#include <vector>

namespace simulator {

inline constexpr std::uint16_t kStatusGood = 0x0000;   ///< the error number of a good printer
inline constexpr std::uint16_t kEnableReady = 0x0000;  ///< the enable code that lets a sheet pass
inline constexpr std::uint16_t kEnableBusy = 0x0100;   ///< ask again

/// An answer as it goes out, and the number in it.
struct Answer {
  std::uint16_t number;
  std::vector<std::uint8_t> bytes;
};

/// The printer's mind, for the whole run: what it answers depends on what it was asked before.
class PrinterAnswers {
 public:
  /// `busyQueries`: how many readiness queries are answered busy before `enableCode` is given.
  PrinterAnswers(std::uint16_t statusNumber, std::uint16_t enableCode, std::uint64_t busyQueries)
      : statusNumber_(statusNumber), enableCode_(enableCode), busyLeft_(busyQueries) {}

  /// 15 bytes: the number in bytes 4 and 5, high byte first; the others are zero.
  Answer ToStatusRequest() const;

  /// 6 bytes: the code in bytes 4 and 5, high byte first; the others are zero.
  Answer ToReadinessQuery();

 private:
  std::uint16_t statusNumber_;
  std::uint16_t enableCode_;
  std::uint64_t busyLeft_;
};

}  // namespace simulator

#endif  // TQR7_SIMULATOR_PRINTER_ANSWERS_H
