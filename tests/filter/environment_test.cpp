// SPDX-License-Identifier: Apache-2.0
//
// Environment variables and arguments that are missing, huge or wrong.
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>

#include "tests/filter/comparison.h"
#include "tests/filter/descriptors.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

const Settings kSettings{};
constexpr std::size_t kHuge =
    std::size_t{120} * 1024;  // the system takes up to 128 KiB in one argument

TEST(Environment, OfNothingButThePpdPrints) {
  ExpectPrinted(Print({.input = SmallRaster(),
                       .unset = {"HOME", "LC_ALL", "PATH", "TMPDIR", "TZ", "CUPS_SERVERROOT"}}),
                kSettings);
}

TEST(Environment, OfHugeValuesPrints) {
  const std::string huge(kHuge, '/');
  ExpectPrinted(Print({.input = SmallRaster(),
                       .environment = {{"HOME", huge},
                                       {"TMPDIR", huge},
                                       {"PATH", huge},
                                       {"PRINTER", huge},
                                       {"LPDEST", huge},
                                       {"USER", huge},
                                       {"CUPS_ENCRYPTION", huge},
                                       {"CUPS_DATADIR", huge},
                                       {"CONTENT_TYPE", huge},
                                       {"DEVICE_URI", huge}}}),
                kSettings);
}

TEST(Environment, OfAThousandVariablesPrints) {
  std::map<std::string, std::string> variables;
  for (int number = 0; number < 1000; ++number) {
    variables["VARIABLE_" + std::to_string(number)] = std::string(1000, 'v');
  }
  ExpectPrinted(Print({.input = SmallRaster(), .environment = variables}), kSettings);
}

TEST(Scheduler, ThatTakesNoConnectionHasNoDefaultDestination) {
  ExpectPrinted(Print({.input = SmallRaster(), .environment = {{"CUPS_SERVER", "127.0.0.1:1"}}}),
                kSettings);
}

TEST(Scheduler, OfAHugeNameHasNoDefaultDestination) {
  ExpectPrinted(Print({.input = SmallRaster(),
                       .environment = {{"CUPS_SERVER", "/" + std::string(kHuge, 'x')}}}),
                kSettings);
}

/// Listens as a server on a local socket of this name.
int ServerAt(const std::string& path) {
  sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
  path.copy(address.sun_path, sizeof address.sun_path - 1);
  const int server = MoveHigh(socket(AF_UNIX, SOCK_STREAM, 0));
  EXPECT_EQ(bind(server, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
  EXPECT_EQ(listen(server, 20), 0);
  return server;
}

TEST(Scheduler, ThatNeverAnswersIsGivenUpAndHasNoDefaultDestination) {
  const TemporaryFolder folder;
  const Opened scheduler(ServerAt(folder.Path("scheduler")));

  ExpectPrinted(Print({.input = SmallRaster(),
                       .environment = {{"CUPS_SERVER", folder.Path("scheduler")},
                                       {"FILTER_TEST_MOST_WAIT", "200"},
                                       {"FILTER_TEST_WAIT_SCALE", "1"}}}),
                kSettings);
}

TEST(OptionsText, WithAHugeValueIsReadToItsEnd) {
  const std::string text = "junk=" + std::string(kHuge, 'x') + " RQPrintFinish=Matte";
  ExpectPrinted(Print({.input = SmallRaster(), .options = text}), kMattePage);
}

TEST(OptionsText, WithAHugeChoiceLeavesTheDefault) {
  const std::string text = "RQPrintFinish=" + std::string(kHuge, 'M');
  ExpectPrinted(Print({.input = SmallRaster(), .options = text}), kSettings);
}

TEST(OptionsText, OfThousandsOfOptionsIsReadToItsEnd) {
  std::string text;
  for (int number = 0; text.size() < kHuge; ++number) {
    const std::string digits = std::to_string(number);
    text.append("o").append(digits).append("=").append(digits).append(" ");
  }
  ExpectPrinted(Print({.input = SmallRaster(), .options = text + "RQPrintFinish=Matte"}),
                kMattePage);
}

TEST(OptionsText, OfTheSameOptionThousandsOfTimesTakesTheLast) {
  std::string text;
  while (text.size() < kHuge) {
    text += "RQPrintFinish=Gloss ";
  }
  ExpectPrinted(Print({.input = SmallRaster(), .options = text + "RQPrintFinish=Matte"}),
                kMattePage);
}

TEST(OptionsText, OfBracketsAndQuotesWithoutEndPrints) {
  constexpr std::size_t kMany =
      std::size_t{30} * 1024;  // libcups' time for quotes grows with their square
  for (const char character : {'{', '}', '"', '\'', '\\', '=', '[', '\x01', '\xFF'}) {
    SCOPED_TRACE(static_cast<int>(character));
    ExpectPrinted(Print({.input = SmallRaster(),
                         .options = "RQPrintFinish=Matte a=" + std::string(kMany, character)}),
                  kMattePage);
  }
}

TEST(Arguments, ThatAreHugePrint) {
  const std::string huge(kHuge, 'x');
  ExpectPrinted(Print({.input = SmallRaster(), .arguments = {{huge, huge, huge, huge, ""}}}),
                kSettings);
}

TEST(Arguments, ThatAreEmptyPrint) {
  ExpectPrinted(Print({.input = SmallRaster(), .arguments = {{"", "", "", "", ""}}}), kSettings);
}

}  // namespace
}  // namespace filter_test
