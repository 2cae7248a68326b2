// SPDX-License-Identifier: Apache-2.0
#include "status/state_reasons.h"

#include <cups/cups.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <set>
#include <string>

#include "status/reason_table.h"

namespace {

constexpr unsigned int kHighestDetail = 0xFF;
constexpr char kCatchAllReason[] = "com.corvantiel-error0004";

// The table's keywords that have not been raised, in the byte order in which they are withdrawn.
using ClearSet = std::set<std::string>;

ClearSet every_reason() {
  ClearSet keywords;
  for (const PrinterStateReason& row : PRINTER_STATE_REASONS) {
    for (const char* keyword : row.reasons) {
      if (keyword == nullptr) {
        break;
      }
      keywords.insert(keyword);
    }
  }
  return keywords;
}

bool matches(const PrinterStateReason& row, const PrinterState& state) {
  const unsigned int details = row.error_low;
  const bool is_range = details > kHighestDetail;
  const unsigned int first = is_range ? details & kHighestDetail : details;
  const unsigned int last = is_range ? details >> 8U : details;
  for (unsigned int detail = first; detail <= last; ++detail) {
    const auto number = static_cast<unsigned short>(row.error_high * 256U + detail);
    if (state == PrinterState::Error(number)) {
      return true;
    }
  }
  return false;
}

void raise(const char* keyword, const PrinterState& state, ClearSet& to_clear) {
  to_clear.erase(keyword);
  std::fprintf(stderr, "STATE: +%s\n", keyword);
  std::fprintf(stderr, "DEBUG: %s %s\n", keyword, state.to_string().c_str());
}

}  // namespace

void update_printer_state(const PrinterState& state) {
  ClearSet to_clear = every_reason();
  bool matched = false;
  for (const PrinterStateReason& row : PRINTER_STATE_REASONS) {
    if (!matches(row, state)) {
      continue;
    }
    matched = true;
    for (const char* keyword : row.reasons) {
      if (keyword == nullptr) {
        break;
      }
      raise(keyword, state, to_clear);
    }
  }
  if (!matched) {
    raise(kCatchAllReason, state, to_clear);
    std::fprintf(stderr, "DEBUG: error_number part mismatch processing \n");
  }
  for (const std::string& keyword : to_clear) {
    std::fprintf(stderr, "STATE: -%s\n", keyword.c_str());
  }
}

namespace {

// A text without a keyword also gets its line, which then names none.
// strtok_r cuts up the copy.
// cppcheck-suppress passedByValue
void withdraw_each(std::string reasons) {
  char* rest = nullptr;
  const char* keyword = strtok_r(reasons.data(), ",", &rest);
  std::fprintf(stderr, "STATE: -%s\n", keyword != nullptr ? keyword : "(null)");
  while (keyword != nullptr && (keyword = strtok_r(nullptr, ",", &rest)) != nullptr) {
    std::fprintf(stderr, "STATE: -%s\n", keyword);
  }
}

// If Avahi runs, libcups also looks for printers on the network, which takes a quarter of a second
// before each sheet. If the scheduler has named the job's queue, that queue is the default, and we
// keep libcups away from the bus on which it finds Avahi. libcups takes LPDEST before PRINTER, and
// ignores a PRINTER of "lp": then the default may be a printer on the network.
void look_at_the_scheduler_only() {
  const char* queue = std::getenv("PRINTER");
  if (std::getenv("FINAL_CONTENT_TYPE") != nullptr && std::getenv("LPDEST") == nullptr &&
      queue != nullptr && std::strcmp(queue, "lp") != 0) {
    setenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/dev/null", 1);
  }
}

}  // namespace

void clean_printer_state() {
  std::fprintf(stderr, "clean_printer_state() START\n");
  look_at_the_scheduler_only();
  cups_dest_t* destinations = nullptr;
  const int count = cupsGetDests(&destinations);
  // The default destination, not the job's own queue: under the scheduler they are the same.
  const cups_dest_t* destination = cupsGetDest(nullptr, nullptr, count, destinations);
  if (destination == nullptr) {
    std::fprintf(stderr, "DEBUG: Not found default(destination) printer.\n");
  } else {
    const char* reasons =
        cupsGetOption("printer-state-reasons", destination->num_options, destination->options);
    withdraw_each(reasons != nullptr ? reasons : "");
  }
  cupsFreeDests(count, destinations);
  std::fprintf(stderr, "clean_printer_state() END\n");
}
