// SPDX-License-Identifier: Apache-2.0
//
// The withdrawal of whatever reasons the scheduler still lists for the default destination.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <vector>

#include "status/state_reasons.h"
#include "tests/unit/capture.h"
#include "tests/unit/scripted_destinations.h"
#include "tests/unit/stderr_calls.h"

using testing::ElementsAre;

namespace {

std::string Cleaned() {
  Capture err(stderr);
  clean_printer_state();
  return err.Text();
}

}  // namespace

TEST(StaleReasons, AreWithdrawnAsTheSchedulerListsThem) {
  struct List {
    const char* reasons;
    const char* withdrawn;
  };
  for (const List& list : {
           List{"none", "STATE: -none\n"},
           List{"com.corvantiel-error0004,cups-insecure-filter-warning",
                "STATE: -com.corvantiel-error0004\n"
                "STATE: -cups-insecure-filter-warning\n"},
           // Between two commas there is none, blanks are kept, and there is always one line.
           List{",media-low,,paused,", "STATE: -media-low\nSTATE: -paused\n"},
           List{"media-low, paused ", "STATE: -media-low\nSTATE: - paused \n"},
           List{"", "STATE: -(null)\n"},
           List{",,,", "STATE: -(null)\n"},
       }) {
    SetDefaultReasons(list.reasons);
    EXPECT_EQ(Cleaned(), std::string("clean_printer_state() START\n") + list.withdrawn +
                             "clean_printer_state() END\n");
  }
}

TEST(StaleReasons, ADestinationWithoutAListWithdrawsOnce) {
  SetDefaultWithoutReasons();
  EXPECT_EQ(Cleaned(),
            "clean_printer_state() START\n"
            "STATE: -(null)\n"
            "clean_printer_state() END\n");
}

TEST(StaleReasons, WithoutADefaultDestinationNothingIsWithdrawn) {
  SetNoDefaultDestination();
  EXPECT_EQ(Cleaned(),
            "clean_printer_state() START\n"
            "DEBUG: Not found default(destination) printer.\n"
            "clean_printer_state() END\n");
}

TEST(StaleReasons, TheDefaultIsLookedUpAndTheListGivenBack) {
  SetDefaultReasons("none");
  Cleaned();
  EXPECT_THAT(DestinationCalls(), ElementsAre("cupsGetDests", "cupsGetDest null null 1",
                                              "cupsFreeDests 1 of the list"));
}

TEST(StaleReasons, WithoutADefaultTheListIsGivenBackToo) {
  SetNoDefaultDestination();
  Cleaned();
  EXPECT_THAT(DestinationCalls(), ElementsAre("cupsGetDests", "cupsGetDest null null 0",
                                              "cupsFreeDests 0 of the list"));
}

TEST(StaleReasons, TheSchedulersTextIsLeftAsItWas) {
  SetDefaultReasons("media-low,paused");
  const std::string first = Cleaned();
  const std::string second = Cleaned();
  EXPECT_EQ(first, second);
}

TEST(StaleReasons, AVeryLongListIsWithdrawnWhole) {
  const std::string keyword(5000, 'k');
  SetDefaultReasons(keyword + "," + keyword);
  EXPECT_EQ(Cleaned(), "clean_printer_state() START\nSTATE: -" + keyword + "\nSTATE: -" + keyword +
                           "\nclean_printer_state() END\n");
}

TEST(StaleReasons, EachLineLeavesInOneWrite) {
  SetDefaultReasons("media-low,paused");
  StderrCalls calls;
  clean_printer_state();
  EXPECT_THAT(calls.Take(), ElementsAre("clean_printer_state() START\n", "STATE: -media-low\n",
                                        "STATE: -paused\n", "clean_printer_state() END\n"));
}

/// The bus on which printers are looked for in this environment.
std::string BusWith(const std::map<std::string, std::string>& environment) {
  SetNoDefaultDestination();
  setenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/run/bus", 1);
  for (const auto& [name, value] : environment) {
    setenv(name.c_str(), value.c_str(), 1);
  }
  Cleaned();
  for (const auto& [name, value] : environment) {
    unsetenv(name.c_str());
  }
  unsetenv("DBUS_SYSTEM_BUS_ADDRESS");
  return DestinationCalls().front();
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
