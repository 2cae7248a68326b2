// SPDX-License-Identifier: Apache-2.0
//
// Disks and folders that fail under the printer.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>

#include "tests/unit/simulator/print_client.h"
#include "tests/unit/simulator/printer_process.h"
#include "tests/unit/stream_bytes.h"
#include "tests/unit/temp_file.h"

namespace {

using testing::IsEmpty;

TEST(Failures, OfAFullDiskAreALineAndStatus1) {
  const TempFolder folder;
  constexpr std::uint64_t kBytesMost = 1000;
  PrinterProcess printer({"--output", folder.path().string()}, kBytesMost);
  ASSERT_TRUE(print(printer.Port(), stream::small_job()));
  EXPECT_EQ(printer.WaitForLine("failure"),
            "connection 1: failure: sheet 1 could not be written to " +
                (folder.path() / "sheet-0001.png").string() + ": File too large");
  EXPECT_EQ(printer.WaitForLine("closed"),
            "connection 1: closed, 7013230 bytes, 0 sheets, 0 errors");
  EXPECT_EQ(printer.Stop(), 1);
  EXPECT_THAT(folder.Names(), IsEmpty());
}

TEST(Failures, OfAFolderThatWentAwayAreALineAndThePrinterGoesOn) {
  const TempFolder folder;
  const std::filesystem::path output = folder.path() / "sheets";
  PrinterProcess printer({"--output", output.string()});
  ASSERT_NE(printer.Port(), 0);
  std::filesystem::remove_all(output);
  ASSERT_TRUE(print(printer.Port(), stream::small_job()));
  EXPECT_EQ(printer.WaitForLine("failure"),
            "connection 1: failure: sheet 1 could not be written to " +
                (output / "sheet-0001.png").string() + ": No such file or directory");
  std::filesystem::create_directory(output);
  ASSERT_TRUE(print(printer.Port(), stream::small_job()));
  EXPECT_EQ(printer.Stop(), 1);
  EXPECT_TRUE(std::filesystem::exists(output / "sheet-0002.png"));
}

TEST(Failures, OfTheListOfSheetsAreNamed) {
  const TempFolder folder;
  std::filesystem::create_directory(folder.path() / "sheets.txt");
  PrinterProcess printer({"--output", folder.path().string()});
  ASSERT_TRUE(print(printer.Port(), stream::small_job()));
  EXPECT_EQ(printer.WaitForLine("failure"), "connection 1: failure: sheets.txt: Is a directory");
  EXPECT_EQ(printer.Stop(), 1);
}

TEST(Failures, OfAListOfSheetsOnAFullDiskAreNamedForEachSheet) {
  const TempFolder folder;
  std::filesystem::create_symlink("/dev/full", folder.path() / "sheets.txt");
  PrinterProcess printer({"--output", folder.path().string()});
  ASSERT_TRUE(print(printer.Port(), stream::small_job()));
  EXPECT_EQ(printer.WaitForLine("failure"),
            "connection 1: failure: sheets.txt: No space left on device");
  ASSERT_TRUE(print(printer.Port(), stream::small_job()));
  EXPECT_EQ(printer.WaitForLine("failure"),
            "connection 2: failure: sheets.txt: No space left on device");
  EXPECT_EQ(printer.Stop(), 1);
  EXPECT_TRUE(std::filesystem::exists(folder.path() / "sheet-0002.png"));
}

TEST(Failures, OfAFolderThatCannotBeMadeKeepThePrinterFromStarting) {
  const FinishedRun run = run_to_its_end({"--output", "/proc/sheets"});
  EXPECT_EQ(run.status, 2);
  EXPECT_THAT(run.errors, testing::HasSubstr("/proc/sheets: No such file or directory"));
}

TEST(Failures, OfTheRecordEndTheRecording) {
  const TempFolder folder;
  PrinterProcess printer({"--output", folder.path().string(), "--record", "/dev/full"});
  ASSERT_TRUE(print(printer.Port(), stream::small_job()));
  EXPECT_EQ(printer.WaitForLine("failure"),
            "connection 1: failure: recording ends: No space left on device");
  EXPECT_EQ(printer.Stop(), 1);
  EXPECT_TRUE(std::filesystem::exists(folder.path() / "sheet-0001.png"));
}

TEST(Failures, OfAReaderThatReadsNothingEndWithASecondSignal) {
  const TempFolder folder;
  PrinterProcess printer({"--output", folder.path().string()});
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(stream::repeated(stream::status_request(), 8000)));
  ASSERT_TRUE(printer.OutputIsFull());
  EXPECT_TRUE(printer.DiesBy(SIGTERM));
}

TEST(Failures, OfStandardOutputDoNotStopThePrinter) {
  const TempFolder folder;
  PrinterProcess printer({"--output", folder.path().string()});
  const std::uint16_t port = printer.Port();
  printer.CloseOutput();
  ASSERT_TRUE(print(port, stream::small_job()));
  EXPECT_EQ(printer.Stop(), 0);
  EXPECT_TRUE(std::filesystem::exists(folder.path() / "sheet-0001.png"));
}

}  // namespace
