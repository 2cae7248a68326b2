// SPDX-License-Identifier: Apache-2.0
#include "status/printer_state.h"

#include <cstdio>

PrinterState PrinterState::Unavailable() {
  return PrinterState(Type::Unavailable);
}

PrinterState PrinterState::Good() {
  return Error(0);
}

PrinterState PrinterState::Error(unsigned short number) {
  return {Type::Available, number};
}

PrinterState PrinterState::Any() {
  return PrinterState(Type::Any);
}

bool PrinterState::operator==(const PrinterState& other) const {
  if (type == Type::Any || other.type == Type::Any) {
    return true;
  }
  if (type == Type::Available && other.type == Type::Available) {
    return error_number == other.error_number;
  }
  return type == Type::Unavailable && other.type == Type::Unavailable;
}

bool PrinterState::operator!=(const PrinterState& other) const {
  return !(*this == other);
}

std::string PrinterState::to_string() const {
  switch (type) {
    case Type::Unavailable:
      return "UNAVAILABLE";
    case Type::Available: {
      if (error_number == 0) {
        return "GOOD";
      }
      char text[8];
      std::snprintf(text, sizeof text, "%#06x", static_cast<unsigned int>(error_number));
      return text;
    }
    case Type::Any:
      return "ANY";
  }
  return "UNKNOWN";
}
