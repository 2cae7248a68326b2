// SPDX-License-Identifier: Apache-2.0
#include "tests/unit/scripted_clock.h"

#include "tests/unit/stand_in.h"

namespace {

constexpr std::time_t kMoment = 1'706'745'599;  // any moment; the local time is set apart from it

std::tm local_time = {};
bool local_time_known = false;
bool clock_scripted = false;

const bool clock_restored = AfterEachTest([] { clock_scripted = false; });

}  // namespace

void SetLocalTime(int year, int month, int day, int hour, int minute, int second) {
  local_time = {};
  local_time.tm_year = year - 1900;
  local_time.tm_mon = month - 1;
  local_time.tm_mday = day;
  local_time.tm_hour = hour;
  local_time.tm_min = minute;
  local_time.tm_sec = second;
  local_time_known = true;
  clock_scripted = true;
}

void LoseLocalTime() {
  local_time_known = false;
  clock_scripted = true;
}

extern "C" std::time_t time(std::time_t* result) noexcept {
  if (!clock_scripted) {
    return RealFunction<decltype(time)>("time")(result);
  }
  if (result != nullptr) {
    *result = kMoment;
  }
  return kMoment;
}

extern "C" std::tm* localtime(const std::time_t* moment) noexcept {
  if (!clock_scripted) {
    return RealFunction<decltype(localtime)>("localtime")(moment);
  }
  return local_time_known && *moment == kMoment ? &local_time : nullptr;
}
