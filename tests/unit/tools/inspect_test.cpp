// SPDX-License-Identifier: Apache-2.0
//
// tqr7 inspect as a person runs it.
#include <gmock/gmock.h>

#include <nlohmann/json.hpp>
#include <random>
#include <string>

#include "tests/unit/stream_bytes.h"
#include "tests/unit/temp_file.h"
#include "tests/unit/tool_process.h"

namespace {

using stream::Finish;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

std::string job() {
  return stream::text_of(stream::small_job());
}

// A half that the printer did not take: no pixels, no error.
std::string questions() {
  return stream::text_of(stream::join(
      {stream::status_request(), stream::status_request(),
       stream::readiness_query(stream::paper_5x15x2(), Finish::Matte), stream::print_out()}));
}

TEST(Inspect, ListsTheCommandsWithTheirFieldsByName) {
  const ToolRun run = run_tool({"inspect", "-"}, questions());
  EXPECT_EQ(run.out,
            "offset 0: status request\n"
            "offset 8: status request\n"
            "offset 16: readiness query\n"
            "  sheet width: 1852\n"
            "  sheet height: 1232\n"
            "  wait byte: 5\n"
            "  margin cut-off: 0\n"
            "  two-up mode: 1\n"
            "  two-up split: 616\n"
            "  two-up option: 1\n"
            "  finish: 3 (matte)\n"
            "  print mode: 0 (auto)\n"
            "  RGB rate: 42\n"
            "  OP rate: 100\n"
            "offset 528: print-out\n"
            "  wait byte: 5\n"
            "534 bytes, 4 commands, 0 sheets, 1 print-out, 0 errors\n");
  EXPECT_EQ(run.errors, "");
  EXPECT_EQ(run.status, 0);
}

TEST(Inspect, ListsAWholeSheetWithTheSizesOfItsPlanes) {
  const std::string bytes = stream::text_of(
      stream::join({stream::status_request(),
                    stream::sheet(stream::paper_5x15(), Finish::Matte, {}), stream::print_out()}));
  EXPECT_EQ(run_tool({"inspect", "--brief", "-"}, bytes).out,
            "offset 0: status request\n"
            "offset 8: status request\n"
            "offset 16: readiness query\n"
            "offset 528: job header\n"
            "offset 1040: image header\n"
            "offset 1552: image data, 1852 x 631 dots, 7011672 bytes\n"
            "offset 7013224: matte data, 1852 x 643 dots, 1190836 bytes\n"
            "offset 8204060: print-out\n"
            "8204066 bytes, 6 commands, 1 sheet, 1 print-out, 0 errors\n");
}

TEST(Inspect, ReadsAFileByItsName) {
  const TempFolder folder;
  std::ofstream(folder / "capture", std::ios::binary) << questions();
  const ToolRun run = run_tool({"inspect", "--brief", folder / "capture"});
  EXPECT_THAT(run.out, EndsWith("534 bytes, 4 commands, 0 sheets, 1 print-out, 0 errors\n"));
  EXPECT_EQ(run.status, 0);
}

TEST(Inspect, TakesTheStreamsOfSeveralConnectionsOneBehindTheOther) {
  const ToolRun run = run_tool({"inspect", "--brief", "-"}, job() + job());
  EXPECT_THAT(run.out, HasSubstr("offset 7013230: status request\n"));
  EXPECT_THAT(run.out, EndsWith("14026460 bytes, 12 commands, 2 sheets, 2 print-outs, 0 errors\n"));
  EXPECT_EQ(run.status, 0);
}

TEST(Inspect, ShowsWhereAStreamIsCutOff) {
  const ToolRun run = run_tool({"inspect", "--brief", "-"}, job().substr(0, 2000));
  EXPECT_THAT(run.out,
              EndsWith("offset 1552: image data, 1852 x 631 dots, 7011672 bytes\n"
                       "error: offset 2000: image data, length: came the end after 448 of 7011672 "
                       "bytes, allowed 7011672 bytes, 7011224 more\n"
                       "2000 bytes, 5 commands, 0 sheets, 0 print-outs, 1 error\n"));
  EXPECT_EQ(run.status, 1);
}

TEST(Inspect, SaysWhatItPassedOver) {
  const ToolRun run = run_tool({"inspect", "--brief", "-"}, "hello" + questions());
  EXPECT_THAT(run.out,
              StartsWith("error: offset 0: stream, command code: came 68, allowed 1B 47 44 30, "
                         "1B 47 44 33, 1B 53 50 30, 1B 5A 54 01, 1B 42 51 31\n"
                         "offset 0: 5 bytes passed over\n"
                         "offset 5: status request\n"));
  EXPECT_EQ(run.status, 1);
}

TEST(Inspect, NotesSamplesAbove14BitsWhichAreNoError) {
  const std::string bytes = stream::text_of(
      stream::join({stream::status_request(),
                    stream::sheet(stream::paper_5x15(), Finish::Gloss, {0xFF, 0x7F, 0, 0, 0, 0})}));
  const ToolRun run = run_tool({"inspect", "--brief", "-"}, bytes);
  EXPECT_THAT(run.out, EndsWith("note: 1168612 samples above 0x3FFF\n"
                                "7013224 bytes, 5 commands, 1 sheet, 0 print-outs, 0 errors\n"));
  EXPECT_EQ(run.status, 0);
}

TEST(Inspect, OfAnEmptyStreamSaysThatItIsEmptyAndIsNotContent) {
  const ToolRun run = run_tool({"inspect", "-"});
  EXPECT_EQ(run.out, "empty: no bytes, no commands\n");
  EXPECT_EQ(run.status, 1);
}

TEST(Inspect, CountsTheErrorsBeyond200) {
  std::string garbage;
  for (int i = 0; i < 1000; ++i) {
    garbage += "\x1BGD0" + std::string("\x01\x00\x01\x16", 4);
  }
  const ToolRun run = run_tool({"inspect", "--brief", "-"}, garbage);
  EXPECT_THAT(run.out, HasSubstr("error: offset 1596: status request, fixed byte 4: came 0x01, "
                                 "allowed 0x00\n"
                                 "offset 1600: status request\n"
                                 "not listed: 799 commands, 800 errors\n"));
  EXPECT_THAT(run.out,
              EndsWith("8000 bytes, 1000 commands, 0 sheets, 0 print-outs, 1000 errors\n"));
  EXPECT_EQ(run.status, 1);
}

TEST(Inspect, WritesOneJsonDocument) {
  const nlohmann::json expected = nlohmann::json::parse(R"({
    "file": "-", "clean": false, "bytes": 14, "command_count": 2, "sheet_count": 0,
    "print_out_count": 1, "error_count": 1, "bad_sample_count": 0, "commands_not_listed": 0,
    "errors_not_listed": 0,
    "commands": [
      {"offset": 0, "command": "status request", "fields":
        {"fixed_byte_4": 0, "fixed_byte_5": 2, "fixed_byte_6": 1, "fixed_byte_7": 22}},
      {"offset": 8, "command": "print-out", "fields": {"fixed_byte_4": 0, "wait_byte": 5}}],
    "errors": [
      {"offset": 5, "command": "status request", "field": "fixed byte 5", "came": "0x02",
       "allowed": "0x00"}],
    "skipped": []})");
  const std::string bytes("\x1BGD0\x00\x02\x01\x16\x1B\x42Q1\x00\x05", 14);
  const ToolRun run = run_tool({"inspect", "--json", "-"}, bytes);
  EXPECT_EQ(nlohmann::json::parse(run.out), expected);
  EXPECT_EQ(run.status, 1);
}

TEST(Inspect, NamesThePlanesInJson) {
  const std::string bytes = stream::text_of(stream::join(
      {stream::status_request(), stream::sheet(stream::paper_5x15(), Finish::Gloss, {})}));
  const ToolRun run = run_tool({"inspect", "--json", "-"}, bytes);
  EXPECT_EQ(nlohmann::json::parse(run.out)["commands"][5], nlohmann::json::parse(R"(
    {"offset": 1552, "command": "image data", "width": 1852, "height": 631, "bytes": 7011672})"));
  EXPECT_EQ(run.status, 0);
}

TEST(Inspect, OfAFileThatCannotBeReadSaysWhy) {
  const TempFolder folder;
  const ToolRun missing = run_tool({"inspect", folder / "missing"});
  EXPECT_EQ(missing.errors,
            "tqr7 inspect: " + (folder / "missing") + ": No such file or directory\n");
  EXPECT_EQ(missing.out, "");
  EXPECT_EQ(missing.status, 2);
  const ToolRun directory = run_tool({"inspect", folder.path().string()});
  EXPECT_EQ(directory.errors, "tqr7 inspect: " + folder.path().string() + ": Is a directory\n");
  EXPECT_EQ(directory.status, 2);
}

TEST(Inspect, NeedsAFile) {
  const ToolRun run = run_tool({"inspect"});
  EXPECT_EQ(run.errors, "tqr7: FILE is required (see --help)\n");
  EXPECT_EQ(run.status, 2);
}

}  // namespace
