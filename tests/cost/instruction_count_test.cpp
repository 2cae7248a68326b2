// SPDX-License-Identifier: Apache-2.0
//
// Reading what callgrind has counted.
#include "bench/speed/instruction_count.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

// Two functions of a program, the second of which calls one of a library and goes on.
constexpr const char* kOutput = R"(# callgrind format
version: 1
cmd:  ./program 1 2
positions: line
events: Ir
summary: 1117

ob=(1) /usr/bin/program
fl=(1) program.cpp
fn=(1) first
16 100
+3 7

fn=(2) main
20 1
cob=(2) /usr/lib/x86_64-linux-gnu/libc.so.6
cfi=(2) memcpy.S
cfn=(3) memcpy
calls=3 +5
* 900
* 9

ob=(2)
fl=(2)
fn=(3)
5 1000

totals: 1117
)";

TEST(InstructionCount, IsThatOfAllFunctionsEachCountedOnce) {
  EXPECT_EQ(bench::read_callgrind(kOutput).total, 1117U);
}

TEST(InstructionCount, TellsProgramAndLibrariesApart) {
  const bench::InstructionCount count = bench::read_callgrind(kOutput);
  EXPECT_EQ(count.by_file.at("program"), 117U);
  EXPECT_EQ(count.by_file.at("libc.so.6"), 1000U);
}

TEST(InstructionCount, OfATextThatDoesNotAddUpIsAnError) {
  std::string wrong = kOutput;
  wrong.replace(wrong.find("5 1000"), 6, "5 1001");
  EXPECT_THROW(bench::read_callgrind(wrong), std::runtime_error);
}

TEST(InstructionCount, OfAnEmptyTextIsAnError) {
  EXPECT_THROW(bench::read_callgrind(""), std::runtime_error);
}

}  // namespace
