// SPDX-License-Identifier: Apache-2.0
//
// What a person sees of a run: times, fields, progress, marks and the contact sheet.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <iterator>
#include <regex>
#include <sstream>

#include "tests/unit/png_file.h"
#include "tests/unit/simulator/print_client.h"
#include "tests/unit/simulator/printer_process.h"
#include "tests/unit/stream_bytes.h"
#include "tests/unit/temp_file.h"

namespace {

using stream::Bytes;
using stream::Finish;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class Views : public testing::Test {
 protected:
  std::vector<std::string> With(std::vector<std::string> options) const {
    options.insert(options.end(), {"--output", folder_.path().string()});
    return options;
  }

  PngFile Sheet() const { return read_png((folder_.path() / "sheet-0001.png").string()); }

  std::string Index() const {
    std::ifstream file(folder_.path() / "index.html");
    return {std::istreambuf_iterator<char>(file), {}};
  }

  TempFolder folder_;
};

std::string hour_and_minute() {
  const std::time_t now = std::time(nullptr);
  std::array<char, 8> text{};
  std::strftime(text.data(), text.size(), "%H:%M", std::localtime(&now));
  return text.data();
}

// White paper: the low byte of a sample comes first.
Bytes white_sheet(const stream::Paper& paper) {
  return stream::first_sheet(paper, Finish::Gloss, {0xFF, 0x3F, 0xFF, 0x3F, 0xFF, 0x3F});
}

TEST_F(Views, GiveEveryLineButTheFirstItsTime) {
  PrinterProcess printer(With({"--fault", "status 1 once"}));
  ASSERT_TRUE(print(printer.Port(), stream::status_request()));
  ASSERT_EQ(printer.Stop(), 0);
  std::istringstream lines(printer.Output());
  std::string line;
  std::getline(lines, line);
  EXPECT_THAT(line, testing::StartsWith("listening on 127.0.0.1 port "));
  int count = 0;
  for (; std::getline(lines, line); ++count) {
    EXPECT_TRUE(std::regex_match(
        line, std::regex("[0-2][0-9]:[0-5][0-9]:[0-6][0-9]\\.[0-9]{3} (connection 1: |fault |"
                         "stopped after ).*")))
        << line;
  }
  EXPECT_EQ(count, 6);
}

TEST_F(Views, GiveTheTimeOfTheLocalZone) {
  ::setenv("TZ", "TEST-12:34", 1);
  ::tzset();
  PrinterProcess printer(With({}));
  ASSERT_NE(printer.Port(), 0);
  const std::string before = hour_and_minute();
  ASSERT_EQ(printer.Stop(), 0);
  const std::string after = hour_and_minute();
  ::unsetenv("TZ");
  ::tzset();
  EXPECT_THAT(printer.Output(),
              testing::AnyOf(HasSubstr("\n" + before + ":"), HasSubstr("\n" + after + ":")));
}

TEST_F(Views, NameEveryFieldWhenVerbose) {
  PrinterProcess printer(With({"--verbose"}));
  ASSERT_TRUE(print(printer.Port(), stream::small_job()));
  ASSERT_EQ(printer.Stop(), 0);
  const std::string lines = printer.Lines();
  EXPECT_THAT(lines, HasSubstr("connection 1: status request, answered 0x0000\n"
                               "connection 1: status request, fixed byte 4: 0x00\n"
                               "connection 1: status request, fixed byte 5: 0x00\n"
                               "connection 1: status request, fixed byte 6: 0x01\n"
                               "connection 1: status request, fixed byte 7: 0x16\n"));
  EXPECT_THAT(lines, HasSubstr("connection 1: readiness query, sheet width: 1852\n"));
  EXPECT_THAT(lines, HasSubstr("connection 1: job header, fixed byte 4: 0x00\n"
                               "connection 1: job header, fixed byte 5: 0x33\n"
                               "connection 1: job header, sheet width: 1852\n"
                               "connection 1: job header, sheet height: 631\n"
                               "connection 1: job header, wait byte: 5\n"
                               "connection 1: job header, margin cut-off: 0\n"
                               "connection 1: job header, two-up mode: 0\n"
                               "connection 1: job header, two-up split: 0\n"
                               "connection 1: job header, two-up option: 0\n"
                               "connection 1: job header, finish: 0\n"
                               "connection 1: job header, print mode: 0\n"
                               "connection 1: job header, fixed byte 50: 0x01\n"
                               "connection 1: job header, fixed byte 58: 0x02\n"
                               "connection 1: job header, fixed byte 80: 0x01\n"
                               "connection 1: job header, RGB rate: 42\n"
                               "connection 1: job header, OP rate: 100\n"));
  EXPECT_THAT(lines, HasSubstr("connection 1: image header, year: 2026\n"
                               "connection 1: image header, month: 3\n"
                               "connection 1: image header, day: 15\n"));
  EXPECT_THAT(lines, HasSubstr("connection 1: print-out, wait byte: 5\n"));
}

TEST_F(Views, DoNotNameTheFieldsOtherwise) {
  PrinterProcess printer(With({}));
  ASSERT_TRUE(print(printer.Port(), stream::small_job()));
  ASSERT_EQ(printer.Stop(), 0);
  EXPECT_THAT(printer.Lines(), Not(HasSubstr("sheet width")));
}

TEST_F(Views, ShowASheetsProgressOnATerminal) {
  PrinterProcess printer(With({}), 0, PrinterProcess::Sink::Terminal);
  ASSERT_TRUE(print(printer.Port(), stream::small_job()));
  ASSERT_NE(printer.WaitForLine("sheet 1 printed"), "");
  EXPECT_THAT(printer.Output(), HasSubstr("\r\033[Ksheet: 50 %, 316 of 631 rows\r\033[K"));
  EXPECT_THAT(printer.Output(), HasSubstr("\r\033[Ksheet: 100 %, 631 of 631 rows\r\033[K"));
}

TEST_F(Views, TakeTheProgressAwayOnce) {
  PrinterProcess printer(With({}), 0, PrinterProcess::Sink::Terminal);
  ASSERT_TRUE(print(printer.Port(), stream::small_job()));
  EXPECT_THAT(printer.WaitForLine("sheet 1 printed"), HasSubstr("rows\r\033[K"));
  EXPECT_THAT(printer.WaitForLine("print-out"), testing::StartsWith("connection 1: print-out"));
}

TEST_F(Views, ShowNoProgressInAFile) {
  PrinterProcess printer(With({}));
  ASSERT_TRUE(print(printer.Port(), stream::small_job()));
  ASSERT_EQ(printer.Stop(), 0);
  EXPECT_THAT(printer.Output(), Not(HasSubstr("%")));
  EXPECT_THAT(printer.Output(), Not(HasSubstr("\r")));
}

TEST_F(Views, MarkTheCutOfTwoPrints) {
  PrinterProcess printer(With({"--marks", "--device-values"}));
  ASSERT_TRUE(print(printer.Port(), white_sheet(stream::paper_5x15x2())));
  ASSERT_EQ(printer.Stop(), 0);
  const PngFile sheet = Sheet();
  EXPECT_THAT(sheet.At(0, 614), ElementsAre(255, 255, 255));
  EXPECT_THAT(sheet.At(0, 615), ElementsAre(255, 0, 255));
  EXPECT_THAT(sheet.At(11, 616), ElementsAre(255, 0, 255));
  EXPECT_THAT(sheet.At(12, 616), ElementsAre(0, 0, 0));
  EXPECT_THAT(sheet.At(24, 616), ElementsAre(255, 0, 255));
  EXPECT_THAT(sheet.At(1851, 615), ElementsAre(255, 0, 255));
  EXPECT_THAT(sheet.At(0, 617), ElementsAre(255, 255, 255));
}

TEST_F(Views, MarkTheEdgeOfTheWhiteBorderOutsideThePicture) {
  PrinterProcess printer(With({"--marks", "--device-values"}));
  ASSERT_TRUE(print(printer.Port(), white_sheet(stream::paper_10x15_wb())));
  ASSERT_EQ(printer.Stop(), 0);
  const PngFile sheet = Sheet();
  EXPECT_THAT(sheet.At(82, 71), ElementsAre(255, 255, 255));
  EXPECT_THAT(sheet.At(82, 72), ElementsAre(255, 0, 255));
  EXPECT_THAT(sheet.At(81, 73), ElementsAre(255, 255, 255));
  EXPECT_THAT(sheet.At(83, 73), ElementsAre(255, 0, 255));
  EXPECT_THAT(sheet.At(84, 74), ElementsAre(255, 255, 255));
  EXPECT_THAT(sheet.At(83, 84), ElementsAre(0, 0, 0));
  EXPECT_THAT(sheet.At(1767, 600), ElementsAre(255, 255, 255));
  EXPECT_THAT(sheet.At(1768, 84), ElementsAre(0, 0, 0));
  EXPECT_THAT(sheet.At(1769, 72), ElementsAre(255, 0, 255));
  EXPECT_THAT(sheet.At(1770, 600), ElementsAre(255, 255, 255));
  EXPECT_THAT(sheet.At(84, 1157), ElementsAre(255, 255, 255));
  EXPECT_THAT(sheet.At(84, 1158), ElementsAre(255, 0, 255));
  EXPECT_THAT(sheet.At(84, 1159), ElementsAre(255, 0, 255));
  EXPECT_THAT(sheet.At(84, 1160), ElementsAre(255, 255, 255));
}

TEST_F(Views, MarkNothingOnASheetWithoutCutAndBorder) {
  PrinterProcess printer(With({"--marks", "--device-values"}));
  ASSERT_TRUE(print(printer.Port(), white_sheet(stream::paper_10x15())));
  ASSERT_EQ(printer.Stop(), 0);
  const PngFile sheet = Sheet();
  EXPECT_THAT(sheet.At(0, 616), ElementsAre(255, 255, 255));
  EXPECT_THAT(sheet.At(82, 72), ElementsAre(255, 255, 255));
}

TEST_F(Views, MarkNothingUnasked) {
  PrinterProcess printer(With({"--device-values"}));
  ASSERT_TRUE(print(printer.Port(), white_sheet(stream::paper_5x15x2())));
  ASSERT_EQ(printer.Stop(), 0);
  EXPECT_THAT(Sheet().At(0, 616), ElementsAre(255, 255, 255));
}

TEST_F(Views, KeepAContactSheetWithThumbnailsAndFields) {
  PrinterProcess printer(With({"--contact-sheet", "--device-values"}));
  ASSERT_TRUE(print(printer.Port(), stream::small_job()));
  ASSERT_EQ(printer.Stop(), 0);
  EXPECT_THAT(folder_.Names(),
              ElementsAre("index.html", "sheet-0001.png", "sheets.txt", "thumbnails"));
  const PngFile thumbnail = read_png((folder_.path() / "thumbnails/sheet-0001.png").string());
  EXPECT_EQ(thumbnail.width, 309U);
  EXPECT_EQ(thumbnail.height, 106U);
  EXPECT_THAT(thumbnail.At(308, 105), ElementsAre(128, 128, 128));
  const std::string page = Index();
  EXPECT_THAT(page, HasSubstr("<h1>1 sheet, 0 errors</h1>"));
  EXPECT_THAT(page, HasSubstr("<h2>Sheet 1 of connection 1</h2>"));
  EXPECT_THAT(page,
              HasSubstr("<a href=\"sheet-0001.png\">"
                        "<img src=\"thumbnails/sheet-0001.png\" alt=\"sheet-0001.png\"></a>"));
  EXPECT_THAT(page, HasSubstr("<tr><th>sheet height</th><td>631</td></tr>"));
  EXPECT_THAT(page, HasSubstr("<tr><th>image width</th><td>1852</td></tr>"));
  EXPECT_THAT(page, Not(HasSubstr("<script")));
}

TEST_F(Views, ShowTheRunsErrorsInTheContactSheet) {
  PrinterProcess printer(With({"--contact-sheet"}));
  ASSERT_TRUE(print(printer.Port(), {'<'}));
  ASSERT_EQ(printer.Stop(), 1);
  EXPECT_THAT(Index(), HasSubstr("<h1>0 sheets, 1 error</h1>"));
  EXPECT_THAT(Index(),
              HasSubstr("<li>connection 1: offset 0: stream, command code: came 3C, allowed"));
}

TEST_F(Views, RewriteTheContactSheetAfterEachSheet) {
  PrinterProcess printer(With({"--contact-sheet"}));
  ASSERT_NE(printer.Port(), 0);
  EXPECT_THAT(Index(), HasSubstr("<h1>0 sheets, 0 errors</h1>"));
  const PrintClient client(printer.Port());
  ASSERT_TRUE(client.Send(stream::first_sheet(stream::paper_5x15(), Finish::Gloss, {})));
  // The page is written right behind the event; the answer to the next question comes behind both.
  ASSERT_TRUE(client.Send(stream::status_request()));
  ASSERT_EQ(client.Read(51).size(), 51U);
  EXPECT_THAT(Index(), HasSubstr("<h1>1 sheet, 0 errors</h1>"));
}

TEST_F(Views, TellOfAThumbnailThatCannotBeWritten) {
  PrinterProcess printer(With({"--contact-sheet"}));
  ASSERT_NE(printer.Port(), 0);
  std::filesystem::remove(folder_.path() / "thumbnails");
  ASSERT_TRUE(print(printer.Port(), stream::small_job()));
  EXPECT_EQ(printer.WaitForLine("failure"),
            "connection 1: failure: sheet 1 has no thumbnail: No such file or directory");
  EXPECT_EQ(printer.Stop(), 1);
  EXPECT_THAT(Index(), HasSubstr("<li>connection 1: failure: sheet 1 has no thumbnail: "));
}

TEST_F(Views, TellOfAContactSheetThatCannotBeWritten) {
  PrinterProcess printer(With({"--contact-sheet"}));
  ASSERT_NE(printer.Port(), 0);
  std::filesystem::remove(folder_.path() / "index.html");
  std::filesystem::create_directory(folder_.path() / "index.html");
  ASSERT_TRUE(print(printer.Port(), stream::small_job()));
  EXPECT_EQ(printer.WaitForLine("failure"), "connection 1: failure: index.html: Is a directory");
  EXPECT_EQ(printer.Stop(), 1);
}

}  // namespace
