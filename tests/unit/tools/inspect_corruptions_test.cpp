// SPDX-License-Identifier: Apache-2.0
//
// Single bytes of a good stream spoilt: tqr7 inspect shows each error that the decoder finds, and
// goes on.
#include <gmock/gmock.h>

#include <ostream>
#include <string>

#include "tests/unit/stream_bytes.h"
#include "tests/unit/tool_process.h"

// The five codes that a command may begin with.
#define CODES "1B 47 44 30, 1B 47 44 33, 1B 53 50 30, 1B 5A 54 01, 1B 42 51 31"

namespace {

using stream::Finish;

struct Corruption {  // NOLINT(clang-analyzer-optin.performance.Padding): in the order of a sentence
  Finish finish;
  std::size_t offset;
  std::uint8_t byte;
  const char* errors;  ///< each line without the "error: " before it
};

void PrintTo(const Corruption& corruption, std::ostream* out) {
  *out << "byte " << corruption.offset;
}

// What is left when one of the first two status requests is lost.
#define ONE_STATUS                                                                              \
  "offset 16: readiness query, order of commands: came readiness query after the first status " \
  "request of a file, allowed status request or print-out\n"

// A job of one 5x15 sheet: status requests at 0 and 8, readiness query at 16, job header at 528,
// image header at 1040, image at 1552, print-out at 7013224 (8204060 with the matte plane).
constexpr Corruption kCorruptions[] = {
    {Finish::Gloss, 0, 0x00,
     "offset 0: stream, command code: came 00, allowed " CODES "\n" ONE_STATUS},
    {Finish::Gloss, 3, 0x31,
     "offset 0: stream, command code: came 1B 47 44 31, allowed " CODES "\n" ONE_STATUS},
    {Finish::Gloss, 4, 0x01, "offset 4: status request, fixed byte 4: came 0x01, allowed 0x00\n"},
    {Finish::Gloss, 19, 0x34,
     "offset 16: stream, command code: came 1B 47 44 34, allowed " CODES "\n"
     "offset 528: job header, order of commands: came job header after status request, allowed "
     "status request, readiness query or print-out\n"},
    {Finish::Gloss, 23, 0x3D,
     "offset 22: readiness query, sheet width: came 1853, allowed 1550 or 1852\n"},
    {Finish::Gloss, 25, 0x78,
     "offset 24: readiness query, sheet height: came 632, allowed 631, 1232, 1833 or 2434 for a "
     "width of 1852\n"},
    {Finish::Gloss, 31, 0x01,
     "offset 31: readiness query, two-up mode: came 1, allowed 0 on a sheet of 1852 x 631\n"},
    {Finish::Gloss, 99, 0xFF,
     "offset 99: readiness query, zero fill byte 83: came 0xFF, allowed 0x00\n"},
    {Finish::Gloss, 529, 0x54,
     "offset 528: stream, command code: came 1B 54, allowed " CODES "\n"
     "offset 1040: image header, order of commands: came image header after readiness query, "
     "allowed status request, readiness query or job header\n"},
    {Finish::Gloss, 538, 0x06,
     "offset 538: job header, wait byte: came 0x06, allowed 0x05 as in the last readiness query\n"
     "offset 7013229: print-out, wait byte: came 5, allowed 6 as in the last settings block\n"},
    {Finish::Gloss, 1040, 0x1A,
     "offset 1040: stream, command code: came 1A, allowed " CODES "\n"
     "offset 7013224: print-out, order of commands: came print-out after job header, allowed image "
     "header\n"},
    {Finish::Gloss, 1046, 0x01,
     "offset 1046: image header, image left: came 256, allowed 0 on a sheet of 1852 x 631\n"},
    {Finish::Gloss, 1074, 0x0D, "offset 1074: image header, month: came 13, allowed 1 to 12\n"},
    {Finish::Gloss, 7013227, 0x32,
     "offset 7013224: stream, command code: came 1B 42 51 32, allowed " CODES "\n"},
    {Finish::Gloss, 7013228, 0x01,
     "offset 7013228: print-out, fixed byte 4: came 0x01, allowed 0x00\n"},
    {Finish::Matte, 576, 0x04,
     "offset 576: job header, finish: came 4, allowed 0 or 3\n"
     "offset 1060: image header, matte width: came 1852, allowed 0 without the matte finish\n"
     "offset 1062: image header, matte height: came 643, allowed 0 without the matte finish\n"},
    {Finish::Matte, 1063, 0x84,
     "offset 1062: image header, matte height: came 644, allowed 643 for matte on a sheet of 1852 "
     "x 631\n"},
};

std::string job(Finish finish) {
  const stream::Bytes bytes = stream::join(
      {stream::status_request(),
       stream::sheet(stream::paper_5x15(), finish, {0x00, 0x20, 0x00, 0x20, 0x00, 0x20}),
       stream::print_out()});
  return {bytes.begin(), bytes.end()};
}

// The lines that begin with "error: ", without that.
std::string error_lines(const std::string& listing) {
  const std::string begin = "error: ";
  std::string lines;
  for (std::size_t at = 0; at < listing.size();) {
    const std::size_t end = listing.find('\n', at) + 1;
    const std::string line = listing.substr(at, end - at);
    lines += line.starts_with(begin) ? line.substr(begin.size()) : "";
    at = end;
  }
  return lines;
}

class InspectACorruption : public testing::TestWithParam<Corruption> {};

TEST_P(InspectACorruption, NamesItsOffsetAndItsField) {
  std::string bytes = job(GetParam().finish);
  ASSERT_NE(static_cast<std::uint8_t>(bytes.at(GetParam().offset)), GetParam().byte);
  bytes.at(GetParam().offset) = static_cast<char>(GetParam().byte);

  const ToolRun run = run_tool({"inspect", "--brief", "-"}, bytes);

  EXPECT_EQ(error_lines(run.out), GetParam().errors);
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.errors, "");
}

INSTANTIATE_TEST_SUITE_P(OfOneByte, InspectACorruption, testing::ValuesIn(kCorruptions));

TEST(InspectAGoodJob, FindsNoError) {
  EXPECT_EQ(run_tool({"inspect", "--brief", "-"}, job(Finish::Gloss)).status, 0);
  EXPECT_EQ(run_tool({"inspect", "--brief", "-"}, job(Finish::Matte)).status, 0);
}

}  // namespace
