// SPDX-License-Identifier: Apache-2.0
//
// The withdrawal of the scheduler's reasons: on which bus libcups may look for printers meanwhile,
// and that no line can be torn.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>

#include "status/state_reasons.h"
#include "tests/unit/capture.h"
#include "tests/unit/scripted_destinations.h"
#include "tests/unit/stderr_calls.h"

using testing::ElementsAre;

namespace {

/// The bus on which printers are looked for in this environment.
std::string BusWith(const std::map<std::string, std::string>& environment) {
  SetNoDefaultDestination();
  setenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/run/bus", 1);
  for (const auto& [name, value] : environment) {
    setenv(name.c_str(), value.c_str(), 1);
  }
  Capture err(stderr);
  clean_printer_state();
  err.Text();
  for (const auto& [name, value] : environment) {
    unsetenv(name.c_str());
  }
  unsetenv("DBUS_SYSTEM_BUS_ADDRESS");
  return DestinationCalls().front();
}

}  // namespace

TEST(StaleReasons, EachLineLeavesInOneWrite) {
  SetDefaultReasons("media-low,paused");
  StderrCalls calls;
  clean_printer_state();
  EXPECT_THAT(calls.Take(), ElementsAre("clean_printer_state() START\n", "STATE: -media-low\n",
                                        "STATE: -paused\n", "clean_printer_state() END\n"));
}

TEST(StaleReasons, NoPrintersAreLookedForOnTheNetworkWhereTheSchedulerNamesTheQueue) {
  EXPECT_EQ(BusWith({{"FINAL_CONTENT_TYPE", "printer/photo"}, {"PRINTER", "photo"}}),
            "cupsGetDests on the bus unix:path=/dev/null");
}

TEST(StaleReasons, TheBusStaysAsItWasWhereTheDefaultMayBeAPrinterOfTheNetwork) {
  const std::string as_it_was = "cupsGetDests on the bus unix:path=/run/bus";
  EXPECT_EQ(BusWith({}), as_it_was);
  EXPECT_EQ(BusWith({{"PRINTER", "photo"}}), as_it_was);
  EXPECT_EQ(BusWith({{"FINAL_CONTENT_TYPE", "printer/photo"}}), as_it_was);
  EXPECT_EQ(BusWith({{"FINAL_CONTENT_TYPE", "printer/photo"}, {"PRINTER", "lp"}}), as_it_was);
  EXPECT_EQ(
      BusWith({{"FINAL_CONTENT_TYPE", "printer/photo"}, {"PRINTER", "photo"}, {"LPDEST", "attic"}}),
      as_it_was);
}
