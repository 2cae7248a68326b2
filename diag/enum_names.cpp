// SPDX-License-Identifier: Apache-2.0
#include "diag/enum_names.h"

#include <array>
#include <cstddef>
#include <cstdio>

namespace {

// The enumerations count from 0, so an enumerator's place in its list is its value.
template <std::size_t N>
const char* name_at(const std::array<const char*, N>& names, unsigned int value) {
  return value < N ? names[value] : nullptr;
}

using Fallback = char[32];

const char* name_or_number(const char* name, Fallback& buffer, const char* format, int value) {
  if (name != nullptr) {
    return name;
  }
// The format is always one of the literals below.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
  std::snprintf(buffer, sizeof buffer, format, value);
#pragma GCC diagnostic pop
  return &buffer[0];
}

// A value from outside may be none of the enumerators: it is read as a plain number.
template <typename Enum>
unsigned int number_of(Enum value) {
  return static_cast<unsigned int>(value);
}

}  // namespace

const char* to_string(cups_sc_status_e value) {
  static constexpr std::array kNames{
      "CUPS_SC_STATUS_NONE",        "CUPS_SC_STATUS_OK",
      "CUPS_SC_STATUS_IO_ERROR",    "CUPS_SC_STATUS_TIMEOUT",
      "CUPS_SC_STATUS_NO_RESPONSE", "CUPS_SC_STATUS_BAD_MESSAGE",
      "CUPS_SC_STATUS_TOO_BIG",     "CUPS_SC_STATUS_NOT_IMPLEMENTED"};
  const char* name = name_at(kNames, number_of(value));
  return name != nullptr ? name : "UNKNOWN";
}

const char* to_string(cups_adv_e value) {
  static constexpr std::array kNames{"CUPS_ADVANCE_NONE", "CUPS_ADVANCE_FILE", "CUPS_ADVANCE_JOB",
                                     "CUPS_ADVANCE_SET", "CUPS_ADVANCE_PAGE"};
  static Fallback buffer;
  return name_or_number(name_at(kNames, number_of(value)), buffer, "cups_adv_e(%d)",
                        static_cast<int>(value));
}

const char* to_string(cups_bool_e value) {
  static constexpr std::array kNames{"CUPS_FALSE", "CUPS_TRUE"};
  static Fallback buffer;
  return name_or_number(name_at(kNames, number_of(value)), buffer, "cups_bool_e(%d)",
                        static_cast<int>(value));
}

const char* to_string(cups_cut_e value) {
  static constexpr std::array kNames{"CUPS_CUT_NONE", "CUPS_CUT_FILE", "CUPS_CUT_JOB",
                                     "CUPS_CUT_SET", "CUPS_CUT_PAGE"};
  static Fallback buffer;
  return name_or_number(name_at(kNames, number_of(value)), buffer, "cups_cut_e(%d)",
                        static_cast<int>(value));
}

const char* to_string(cups_edge_e value) {
  static constexpr std::array kNames{"CUPS_EDGE_TOP", "CUPS_EDGE_RIGHT", "CUPS_EDGE_BOTTOM",
                                     "CUPS_EDGE_LEFT"};
  static Fallback buffer;
  return name_or_number(name_at(kNames, number_of(value)), buffer, "cups_edge_e(%d)",
                        static_cast<int>(value));
}

const char* to_string(cups_jog_e value) {
  static constexpr std::array kNames{"CUPS_JOG_NONE", "CUPS_JOG_FILE", "CUPS_JOG_JOB",
                                     "CUPS_JOG_SET"};
  static Fallback buffer;
  return name_or_number(name_at(kNames, number_of(value)), buffer, "cups_jog_e(%d)",
                        static_cast<int>(value));
}

const char* to_string(cups_order_e value) {
  static constexpr std::array kNames{"CUPS_ORDER_CHUNKED", "CUPS_ORDER_BANDED",
                                     "CUPS_ORDER_PLANAR"};
  static Fallback buffer;
  return name_or_number(name_at(kNames, number_of(value)), buffer, "cups_order_e(%d)",
                        static_cast<int>(value));
}

const char* to_string(cups_orient_e value) {
  static constexpr std::array kNames{"CUPS_ORIENT_0", "CUPS_ORIENT_90", "CUPS_ORIENT_180",
                                     "CUPS_ORIENT_270"};
  static Fallback buffer;
  return name_or_number(name_at(kNames, number_of(value)), buffer, "cups_orient_e(%d)",
                        static_cast<int>(value));
}

namespace {

const char* color_space_name(unsigned int value) {
  static constexpr std::array kDevice{
      "CUPS_CSPACE_W",       "CUPS_CSPACE_RGB",    "CUPS_CSPACE_RGBA",   "CUPS_CSPACE_K",
      "CUPS_CSPACE_CMY",     "CUPS_CSPACE_YMC",    "CUPS_CSPACE_CMYK",   "CUPS_CSPACE_YMCK",
      "CUPS_CSPACE_KCMY",    "CUPS_CSPACE_KCMYcm", "CUPS_CSPACE_GMCK",   "CUPS_CSPACE_GMCS",
      "CUPS_CSPACE_WHITE",   "CUPS_CSPACE_GOLD",   "CUPS_CSPACE_SILVER", "CUPS_CSPACE_CIEXYZ",
      "CUPS_CSPACE_CIELab",  "CUPS_CSPACE_RGBW",   "CUPS_CSPACE_SW",     "CUPS_CSPACE_SRGB",
      "CUPS_CSPACE_ADOBERGB"};
  static constexpr std::array kIcc{"CUPS_CSPACE_ICC1", "CUPS_CSPACE_ICC2", "CUPS_CSPACE_ICC3",
                                   "CUPS_CSPACE_ICC4", "CUPS_CSPACE_ICC5", "CUPS_CSPACE_ICC6",
                                   "CUPS_CSPACE_ICC7", "CUPS_CSPACE_ICC8", "CUPS_CSPACE_ICC9",
                                   "CUPS_CSPACE_ICCA", "CUPS_CSPACE_ICCB", "CUPS_CSPACE_ICCC",
                                   "CUPS_CSPACE_ICCD", "CUPS_CSPACE_ICCE", "CUPS_CSPACE_ICCF"};
  static constexpr std::array kInk{
      "CUPS_CSPACE_DEVICE1", "CUPS_CSPACE_DEVICE2", "CUPS_CSPACE_DEVICE3", "CUPS_CSPACE_DEVICE4",
      "CUPS_CSPACE_DEVICE5", "CUPS_CSPACE_DEVICE6", "CUPS_CSPACE_DEVICE7", "CUPS_CSPACE_DEVICE8",
      "CUPS_CSPACE_DEVICE9", "CUPS_CSPACE_DEVICEA", "CUPS_CSPACE_DEVICEB", "CUPS_CSPACE_DEVICEC",
      "CUPS_CSPACE_DEVICED", "CUPS_CSPACE_DEVICEE", "CUPS_CSPACE_DEVICEF"};
  constexpr unsigned int kFirstIcc = 32;
  constexpr unsigned int kFirstInk = 48;
  if (value >= kFirstInk) {
    return name_at(kInk, value - kFirstInk);
  }
  return value >= kFirstIcc ? name_at(kIcc, value - kFirstIcc) : name_at(kDevice, value);
}

}  // namespace

const char* to_string(cups_cspace_e value) {
  static Fallback buffer;
  return name_or_number(color_space_name(number_of(value)), buffer, "cups_cspace_e(%d)",
                        static_cast<int>(value));
}
