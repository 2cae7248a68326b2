// SPDX-License-Identifier: Apache-2.0
//
// Whole exchanges with the printer: each rule is broken once, and beside it stands the nearest
// exchange that a client may have. played_exchange.h explains the words.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>

#include "tests/unit/decoder/played_exchange.h"

namespace {

struct Row {
  const char* name;
  std::string exchange;
  std::vector<std::string> errors;
};

void PrintTo(const Row& row, std::ostream* out) {
  *out << row.name << ": " << row.exchange;
}

class Exchange : public testing::TestWithParam<Row> {};

TEST_P(Exchange, HasTheseErrorsAndNoOthers) {
  EXPECT_THAT(errors_of_exchange(GetParam().exchange), testing::ElementsAreArray(GetParam().errors))
      << GetParam().name;
}

#define FIRST_STATUS "after the first status request of a file, allowed "
#define AT_STATUS "answer to the status request: came a "
#define AT_READINESS "answer to the readiness query: came a "
#define ON_FILE " as on the file's sheet before"

const std::string kSheet = "S+ S+ Q+ sheet ";
const std::string kTwoPageSheet = "=two S+ S+ Q+ sheet ";
const std::string kBusy91Times = "S+ S+ Q~ " + times(90, "@2 Q~");
const std::string kBusy92Times = kBusy91Times + "@2 Q~ ";

const Row kStatusRequests[] = {
    {"two status requests before the first query", "S S Q", {}},
    {"one status request before the first query",
     "S Q",
     {"offset 8: readiness query, order of commands: came readiness query " FIRST_STATUS
      "status request or print-out"}},
    {"one well answered status request before the first query",
     "S+ Q+",
     {"offset 8: readiness query, order of commands: came readiness query " FIRST_STATUS
      "status request or print-out"}},
    {"three where nobody knows the answers: a file may have been given up", "S S S Q", {}},
    {"three well answered ones",
     "S+ S+ S+ Q+",
     {"offset 16: status request, " AT_STATUS
      "status request after 0x0000, allowed a query after 0x0000"}},
    {"three, as the first file was given up at its beginning", "S- S+ S+ Q+", {}},
    {"three, the second with an answer that nobody knows: its file may have been given up",
     "S+ S S+ S+ Q+",
     {}},
    {"four, as the first file was given up at its sheet", "S+ S- S+ S+ Q+", {}},
    {"one status request in the file after one that was given up",
     "S- S+ Q+",
     {"offset 16: readiness query, order of commands: came readiness query " FIRST_STATUS
      "status request or print-out"}},
    {"one status request before a further sheet", kSheet + "S+ Q+ sheet P", {}},
    {"two after a sheet: its file was given up, and the next one begins",
     kSheet + "S+ S+ Q+ sheet P",
     {}},
    {"three well answered ones after a sheet",
     kSheet + "S+ S+ S+ Q+",
     {"offset 7013240: status request, " AT_STATUS
      "status request after 0x0000, allowed a query after 0x0000"}},
    {"no status request before a further sheet",
     kSheet + "Q+",
     {"offset 7013224: readiness query, order of commands: came readiness query after image "
      "header, allowed status request or print-out"}},
    {"a sheet's status answered badly, and no next file but a query",
     kSheet + "S- S+ Q+",
     {"offset 7013240: readiness query, order of commands: came readiness query " FIRST_STATUS
      "status request or print-out"}},
};
INSTANTIATE_TEST_SUITE_P(StatusRequests, Exchange, testing::ValuesIn(kStatusRequests));

const Row kAnswers[] = {
    {"a query after a bad status",
     "S+ S- Q+",
     {"offset 16: readiness query, " AT_STATUS "query after 0x2665, allowed a query after 0x0000"}},
    {"ready, and the sheet", kSheet, {}},
    {"ready, and the end: the job was cancelled", "S+ S+ Q+", {}},
    {"ready, and a status request",
     "S+ S+ Q+ S+",
     {"offset 528: status request, " AT_READINESS
      "status request after 0x0000, allowed a job header after 0x0000"}},
    {"ready, and the query again",
     "S+ S+ Q+ Q+",
     {"offset 528: readiness query, " AT_READINESS
      "repeated query after 0x0000, allowed a repeated query after 0x0100"}},
    {"ready, and a print-out on the paper for two pages",
     "=two S+ S+ Q+ P",
     {"offset 528: print-out, " AT_READINESS
      "print-out after 0x0000, allowed a job header after 0x0000"}},
    {"refused, and the sheet all the same",
     "S+ S+ Q- sheet",
     {"offset 528: job header, " AT_READINESS
      "job header after 0x0200, allowed a job header after 0x0000"}},
    {"refused, and the query again",
     "S+ S+ Q- Q+",
     {"offset 528: readiness query, " AT_READINESS
      "repeated query after 0x0200, allowed a repeated query after 0x0100"}},
    {"busy, and the sheet all the same",
     "S+ S+ Q~ sheet",
     {"offset 528: job header, " AT_READINESS
      "job header after 0x0100, allowed a job header after 0x0000"}},
    {"nothing, and a query all the same",
     "S+ S? Q+",
     {"offset 16: readiness query, " AT_STATUS
      "query after no answer, allowed a query after 0x0000"}},
    {"nothing, and the client tries another file", "S+ S+ Q? S+ S+ Q+", {}},
    {"ready behind stray bytes: the client may have read busy", "S+ S+ Q! Q+ sheet P", {}},
    {"an error behind stray bytes: the client may have read that all is well",
     "S+ S! Q+ sheet P",
     {}},
    {"after an answer that was lost the client may read others than the printer sends",
     "S+ S? S+ S+ S+ Q+ sheet P",
     {}},
};
INSTANTIATE_TEST_SUITE_P(Answers, Exchange, testing::ValuesIn(kAnswers));

const Row kPrintOuts[] = {
    {"a print-out after a refused 10x15 sheet",
     "=10x15 S+ S+ Q- P",
     {"offset 528: print-out, order of commands: came print-out after readiness query, allowed "
      "status request"}},
    {"a print-out after the refused half of a sheet for two pages", "=two S+ S+ Q- P", {}},
    {"the next file after a refused 10x15 sheet", "=10x15 S+ S+ Q- S+ S+ Q+ sheet P", {}},
    {"a print-out after a 10x15 query without a known answer",
     "=10x15 S S Q P",
     {"offset 528: print-out, order of commands: came print-out after readiness query, allowed "
      "status request, readiness query or job header"}},
    {"a print-out after a query for two prints without a known answer", "=two S S Q P", {}},
    {"a print-out after a bad status at the beginning",
     "S- P",
     {"offset 8: print-out, " AT_STATUS
      "print-out after 0x2665, allowed a status request after 0x2665"}},
    {"a file without pages", "S+ P", {}},
    {"a file without pages after one that was given up", "S- S+ P", {}},
    {"a first sheet that may be a half, with a bad status", "S+ S- P", {}},
    {"a sheet whose status is good, and no query",
     "S+ S+ P",
     {"offset 16: print-out, " AT_STATUS "print-out after 0x0000, allowed a query after 0x0000"}},
    {"a print-out after a 5x15 sheet and a bad status",
     kSheet + "S- P",
     {"offset 7013232: print-out, " AT_STATUS
      "print-out after 0x2665, allowed a status request after 0x2665"}},
    {"a print-out after a two-page sheet and a bad status for a half", kTwoPageSheet + "S- P", {}},
    {"a print-out after a two-page sheet and a refused half", kTwoPageSheet + "S+ Q- P", {}},
    {"a file without pages after a 5x15 sheet and a bad status", kSheet + "S- S+ P", {}},
    {"a file without pages after a 5x15 sheet, where nobody knows the answer", kSheet + "S P", {}},
    {"two print-outs",
     kSheet + "P P",
     {"offset 7013230: print-out, order of commands: came print-out after print-out, allowed "
      "status request"}},
    {"two files, each with its print-out", kSheet + "P " + kSheet + "P", {}},
};
INSTANTIATE_TEST_SUITE_P(PrintOuts, Exchange, testing::ValuesIn(kPrintOuts));

const Row kSettings[] = {
    {"a wider sheet in the same file",
     "=9x13 S+ S+ Q+ sheet =5x15 S+ Q+",
     {"offset 10064166: readiness query, sheet width: came 1852, allowed 1550" ON_FILE}},
    {"a higher sheet in the same file",
     kSheet + "=10x15 S+ Q+",
     {"offset 7013240: readiness query, sheet height: came 1232, allowed 631" ON_FILE}},
    {"two prints after one in the same file",
     "=10x15 S+ S+ Q+ sheet =two S+ Q+",
     {"offset 13691559: readiness query, two-up mode: came 1, allowed 0" ON_FILE}},
    {"a white border after none in the same file",
     "=10x15 S+ S+ Q+ sheet =10x15wb S+ Q+ sheet",
     {"offset 13692574: image header, image left: came 84, allowed 0" ON_FILE}},
    {"a white border on both sheets of a file", "=10x15wb S+ S+ Q+ sheet S+ Q~ Q+ sheet P", {}},
    {"a white border in the next file, after one that was given up",
     "=10x15 S S Q sheet =10x15wb S S Q Q sheet P",
     {}},
    {"another finish in the same file",
     kSheet + "=matte S+ Q+ sheet P",
     {"offset 7013280: readiness query, finish: came 3, allowed 0" ON_FILE}},
    {"another print mode in the same file",
     kSheet + "=fast S+ Q+",
     {"offset 7013281: readiness query, print mode: came 5, allowed 0" ON_FILE}},
    {"another margin cut-off in the same file",
     kSheet + "=cut S+ Q+",
     {"offset 7013246: readiness query, margin cut-off: came 1, allowed 0" ON_FILE}},
    {"another wait byte in the same file",
     kSheet + "=wait6 S+ Q+",
     {"offset 7013242: readiness query, wait byte: came 6, allowed 5" ON_FILE}},
    {"other rates in the same file", kSheet + "=rates S+ Q+ sheet P", {}},
    {"another finish where nobody knows the answers",
     "S S Q sheet =matte S Q",
     {"offset 7013280: readiness query, finish: came 3, allowed 0" ON_FILE}},
    {"all of it in the next file",
     kSheet + "P =10x15 =matte =fast =cut =wait6 S+ S+ Q+ sheet P",
     {}},
    {"all of it in the next file, after one that was given up",
     "S S Q sheet =10x15 =matte =fast =cut =wait6 S S Q sheet P",
     {}},
    {"another wait byte in the print-out",
     kSheet + "=wait6 P",
     {"offset 7013229: print-out, wait byte: came 6, allowed 5 as in the last settings block"}},
    {"another wait byte in the print-out after a refused half",
     "=two S+ S+ Q- =wait6 P",
     {"offset 533: print-out, wait byte: came 6, allowed 5 as in the last settings block"}},
    {"any wait byte in a file without sheets", "=wait6 S+ P", {}},
    {"all of it in the next file, after a sheet that was refused",
     "S+ S+ Q- =10x15 =matte =fast =cut =wait6 S+ S+ Q+ sheet P",
     {}},
    {"another wait byte in the next file, which has no sheets", kSheet + "P S+ =wait6 P", {}},
    {"another wait byte in a file without sheets after one that was given up",
     kSheet + "S+ =wait6 P",
     {}},
};
INSTANTIATE_TEST_SUITE_P(Settings, Exchange, testing::ValuesIn(kSettings));

const Row kBusyPrinter[] = {
    {"asked again after 2 s", "S+ S+ Q~ @2.0 Q+ sheet P", {}},
    {"asked again after 1.9 s",
     "S+ S+ Q~ @1.9 Q+ sheet P",
     {"offset 528: readiness query, pace: came 1.9 s after busy, allowed 2 s or more"}},
    {"asked again a hair too soon",
     "S+ S+ Q~ @1.999999 Q+",
     {"offset 528: readiness query, pace: came 1.9 s after busy, allowed 2 s or more"}},
    {"the second time asked again too soon",
     "S+ S+ Q~ @2 Q~ @0.5 Q+",
     {"offset 1040: readiness query, pace: came 0.5 s after busy, allowed 2 s or more"}},
    {"asked again at once where nobody measures", "S+ S+ Q~ Q+ sheet P", {}},
    {"asked again with another rate",
     "S+ S+ Q~ @2 =rates Q+",
     {"offset 609: readiness query, RGB rate: came 0x4D, allowed 0x2A as in the last readiness "
      "query"}},
    {"ready in the end, by the 92nd query", kBusy91Times + "@2 Q+ sheet P", {}},
    {"given up after the 92nd busy answer, and the next file", kBusy92Times + "S+ S+ Q+", {}},
    {"asked a 93rd time",
     kBusy92Times + "@2 Q+",
     {"offset 47120: readiness query, number of queries: came 93 for one sheet, allowed 92 at "
      "most"}},
    {"asked a 93rd time where nobody knows the answers",
     "S S " + times(93, "Q"),
     {"offset 47120: readiness query, number of queries: came 93 for one sheet, allowed 92 at "
      "most"}},
    {"given up too early",
     kBusy91Times + "S+",
     {"offset 46608: status request, " AT_READINESS
      "status request after 0x0100, allowed a repeated query after 0x0100"}},
    {"a print-out after the half that waited for too long", "=two " + kBusy92Times + "P", {}},
    {"a print-out after the half that did not wait for long",
     "=two " + kBusy91Times + "P",
     {"offset 46608: print-out, " AT_READINESS
      "print-out after 0x0100, allowed a repeated query after 0x0100"}},
    {"a print-out after another sheet that waited for too long",
     kBusy92Times + "P",
     {"offset 47120: print-out, order of commands: came print-out after readiness query, allowed "
      "status request"}},
};
INSTANTIATE_TEST_SUITE_P(BusyPrinter, Exchange, testing::ValuesIn(kBusyPrinter));

}  // namespace
