// SPDX-License-Identifier: Apache-2.0
//
// The printer's condition as far as it is known, in one small value.
#ifndef TQR7_STATUS_PRINTER_STATE_H
#define TQR7_STATUS_PRINTER_STATE_H

#include <cstdint>
#include <string>

/// The printer's 16-bit error number (0: all is well), or that it gave no usable reply, or a
/// wildcard.
class PrinterState {
 public:
  enum class Type : std::int32_t {
    Unavailable = 0,  ///< no usable reply
    Available = 1,    ///< the printer answered with error_number
    Any = 2,          ///< equals every state
  };

  explicit PrinterState(Type state_type) : type(state_type), error_number(0) {}
  PrinterState(Type state_type, unsigned short number) : type(state_type), error_number(number) {}

  static PrinterState Unavailable();
  static PrinterState Good();
  /// Error(0) is the same value as Good().
  static PrinterState Error(unsigned short number);
  static PrinterState Any();

  /// The wildcard equals every state. Available states are equal if their numbers are. Unavailable
  /// states equal each other.
  bool operator==(const PrinterState& other) const;
  bool operator!=(const PrinterState& other) const;

  /// "UNAVAILABLE", "GOOD", the number as 0x2110, "ANY" or, outside the enumeration, "UNKNOWN".
  std::string to_string() const;

  Type type;
  std::uint16_t error_number;  ///< high byte: group, low byte: detail
};

#endif  // TQR7_STATUS_PRINTER_STATE_H
