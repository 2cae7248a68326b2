// SPDX-License-Identifier: Apache-2.0
//
// How rules of faults are written, and what is said of those that are wrong.
#include "simulator/fault_script.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>

namespace {

using simulator::Extent;
using simulator::Fault;
using simulator::FaultRule;
using simulator::Moment;
using simulator::Question;
using simulator::Script;
using std::chrono::milliseconds;
using testing::IsEmpty;
using testing::SizeIs;

FaultRule rule_of(const char* text) {
  const Script script = simulator::read_rule(text, 1);
  EXPECT_THAT(script.errors, IsEmpty()) << text;
  return script.rules.empty() ? FaultRule{} : script.rules.front();
}

struct Read {
  const char* text;
  FaultRule rule;
};

void PrintTo(const Read& read, std::ostream* out) {
  *out << read.text;
}

class Rule : public testing::TestWithParam<Read> {};

TEST_P(Rule, IsReadAs) {
  EXPECT_EQ(rule_of(GetParam().text), GetParam().rule);
}

constexpr Extent kOnce{.kind = Extent::Kind::Times, .times = 1};

const Read kRules[] = {
    {"status 0x2665", {.fault = {.kind = Fault::Kind::Status, .number = 0x2665}}},
    {"status 9829", {.fault = {.kind = Fault::Kind::Status, .number = 0x2665}}},
    {"job 3: enable 0x0201",
     {.moment = {Moment::Kind::Job, 3}, .fault = {.kind = Fault::Kind::Enable, .number = 0x0201}}},
    {"sheet 12: busy 4",
     {.moment = {Moment::Kind::Sheet, 12}, .fault = {.kind = Fault::Kind::Busy, .count = 4}}},
    {"cover 0x1300 for 2.5 s",
     {.fault = {.kind = Fault::Kind::Cover, .number = 0x1300},
      .extent = {.kind = Extent::Kind::Time, .time = milliseconds(2500)}}},
    {"status 1 3 times",
     {.fault = {.number = 1}, .extent = {.kind = Extent::Kind::Times, .times = 3}}},
    {"status 1 once", {.fault = {.number = 1}, .extent = kOnce}},
    {"status late 0.125 s", {.fault = {.kind = Fault::Kind::Late, .delay = milliseconds(125)}}},
    {"enable late 12 s",
     {.fault = {.kind = Fault::Kind::Late,
                .question = Question::Readiness,
                .delay = milliseconds(12000)}}},
    {"status pieces 4 1 9", {.fault = {.kind = Fault::Kind::Pieces, .pieces = {4, 1, 9}}}},
    {"enable pieces 4 1 2 times",
     {.fault = {.kind = Fault::Kind::Pieces, .question = Question::Readiness, .pieces = {4, 1}},
      .extent = {.kind = Extent::Kind::Times, .times = 2}}},
    {"enable short 5",
     {.fault = {.kind = Fault::Kind::Short, .question = Question::Readiness, .count = 5}}},
    {"status stray 0a FF 10", {.fault = {.kind = Fault::Kind::Stray, .stray = {0x0A, 0xFF, 0x10}}}},
    {"status stray 0a 10 times",
     {.fault = {.kind = Fault::Kind::Stray, .stray = {0x0A}},
      .extent = {.kind = Extent::Kind::Times, .times = 10}}},
    {"enable silent for 1 s",
     {.fault = {.kind = Fault::Kind::Silent, .question = Question::Readiness},
      .extent = {.kind = Extent::Kind::Time, .time = milliseconds(1000)}}},
    {"drop at byte 0x1000", {.fault = {.kind = Fault::Kind::Drop, .count = 4096}}},
    {"read 20000 bytes/s", {.fault = {.kind = Fault::Kind::Read, .count = 20000}}},
    {"paper 2 then 0x1100", {.fault = {.kind = Fault::Kind::Paper, .number = 0x1100, .count = 2}}},
    {"ribbon 0 then 0x1200",
     {.fault = {.kind = Fault::Kind::Ribbon, .number = 0x1200, .count = 0}}},
};

INSTANTIATE_TEST_SUITE_P(Forms, Rule, testing::ValuesIn(kRules));

struct Written {
  const char* rule;
  const char* again;
};

void PrintTo(const Written& written, std::ostream* out) {
  *out << written.rule;
}

class RuleInWords : public testing::TestWithParam<Written> {};

TEST_P(RuleInWords, CanBeReadAgain) {
  EXPECT_EQ(to_string(rule_of(GetParam().rule)), GetParam().again);
  EXPECT_TRUE(rule_of(GetParam().again) == rule_of(GetParam().rule));
}

INSTANTIATE_TEST_SUITE_P(
    Forms, RuleInWords,
    testing::Values(Written{"  status   9829 ", "status 0x2665"},
                    Written{"job 2 : enable 1 1 times", "job 2: enable 0x0001 once"},
                    Written{"sheet 0x10:busy 7", "sheet 16: busy 7"},
                    Written{"status late 1.50 s", "status late 1.5 s"},
                    Written{"enable late 0.001 s 4 times", "enable late 0.001 s 4 times"},
                    Written{"status pieces 4 1", "status pieces 4 1"},
                    Written{"enable short 3 once", "enable short 3 once"},
                    Written{"status stray aB 00", "status stray AB 00"},
                    Written{"enable silent\r", "enable silent"},
                    Written{"drop at byte 16 for 3 s", "drop at byte 16 for 3 s"},
                    Written{"read 100 bytes/s", "read 100 bytes/s"},
                    Written{"paper 3 then 4352", "paper 3 then 0x1100"},
                    Written{"ribbon 3 then 0x1200", "ribbon 3 then 0x1200"},
                    Written{"cover 0x1300 for 86400 s", "cover 0x1300 for 86400 s"}));

struct Wrong {
  const char* rule;
  std::size_t column;
  const char* message;
};

void PrintTo(const Wrong& wrong, std::ostream* out) {
  *out << wrong.rule;
}

class WrongRule : public testing::TestWithParam<Wrong> {};

TEST_P(WrongRule, IsNamedWithItsPlaceAndWhatWasExpected) {
  const Script script = simulator::read_rule(GetParam().rule, 7);
  EXPECT_THAT(script.rules, IsEmpty());
  ASSERT_THAT(script.errors, SizeIs(1));
  EXPECT_EQ(script.errors[0].line, 7U);
  EXPECT_EQ(script.errors[0].column, GetParam().column);
  EXPECT_EQ(to_string(script.errors[0]), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    Moments, WrongRule,
    testing::Values(
        Wrong{"", 1,
              "came the end of the rule, expected \"job\", \"sheet\", \"status\", \"enable\", "
              "\"busy\", \"drop\", \"read\", \"paper\", \"ribbon\" or \"cover\""},
        Wrong{"jobs 1: busy 1", 1,
              "came \"jobs\", expected \"job\", \"sheet\", \"status\", \"enable\", \"busy\", "
              "\"drop\", \"read\", \"paper\", \"ribbon\" or \"cover\""},
        Wrong{"job 0: busy 1", 5, "came \"0\", expected a number from 1 to 1000000000"},
        Wrong{"sheet 1000000001: busy 1", 7,
              "came \"1000000001\", expected a number from 1 to 1000000000"},
        Wrong{"sheet 2 busy 1", 9, "came \"busy\", expected \":\""},
        Wrong{"job 1:", 7,
              "came the end of the rule, expected \"status\", \"enable\", \"busy\", \"drop\", "
              "\"read\", \"paper\", \"ribbon\" or \"cover\""}));

INSTANTIATE_TEST_SUITE_P(
    Faults, WrongRule,
    testing::Values(
        Wrong{"status", 7,
              "came the end of the rule, expected a number from 0 to 65535, \"late\", \"pieces\", "
              "\"short\", \"stray\" or \"silent\""},
        Wrong{"enable 0x10000", 8,
              "came \"0x10000\", expected a number from 0 to 65535, \"late\", \"pieces\", "
              "\"short\", \"stray\" or \"silent\""},
        Wrong{"busy -1", 6, "came \"-1\", expected a number from 1 to 1000000000"},
        Wrong{"status late 2s", 13,
              "came \"2s\", expected a number of seconds from 0.001 to 86400 and then \"s\""},
        Wrong{"status late 0.000 s", 13,
              "came \"0.000\", expected a number of seconds from 0.001 to 86400 and then \"s\""},
        Wrong{"status late 0.0001 s", 13,
              "came \"0.0001\", expected a number of seconds from 0.001 to 86400 and then \"s\""},
        Wrong{"status late 86400.001 s", 13,
              "came \"86400.001\", expected a number of seconds from 0.001 to 86400 and then "
              "\"s\""},
        Wrong{"status late 1. s", 13,
              "came \"1.\", expected a number of seconds from 0.001 to 86400 and then \"s\""},
        Wrong{"enable late 2 m", 15, "came \"m\", expected \"s\""},
        Wrong{"status pieces 15", 15, "came \"15\", expected a number from 1 to 14"},
        Wrong{"enable pieces 6", 15, "came \"6\", expected a number from 1 to 5"},
        Wrong{"enable pieces", 14, "came the end of the rule, expected a number from 1 to 5"},
        Wrong{"status short 0", 14, "came \"0\", expected a number from 1 to 14"},
        Wrong{"status short 15", 14, "came \"15\", expected a number from 1 to 14"},
        Wrong{"status stray", 13,
              "came the end of the rule, expected a byte as two hexadecimal digits"},
        Wrong{"status stray 1", 14, "came \"1\", expected a byte as two hexadecimal digits"},
        Wrong{"status stray 01 xy", 17, "came \"xy\", expected a byte as two hexadecimal digits"},
        Wrong{"drop 5", 6, "came \"5\", expected \"at\""},
        Wrong{"drop at 5", 9, "came \"5\", expected \"byte\""},
        Wrong{"drop at byte five", 14, "came \"five\", expected a number from 0 to 1000000000"},
        Wrong{"read 0 bytes/s", 6, "came \"0\", expected a number from 1 to 1000000000"},
        Wrong{"read 5 bytes", 8, "came \"bytes\", expected \"bytes/s\""},
        Wrong{"paper 2 0x1100", 9, "came \"0x1100\", expected \"then\""},
        Wrong{"ribbon 2 then 0", 15, "came \"0\", expected a number from 1 to 65535"},
        Wrong{"cover", 6, "came the end of the rule, expected a number from 1 to 65535"}));

INSTANTIATE_TEST_SUITE_P(
    Extents, WrongRule,
    testing::Values(
        Wrong{"status 1 twice", 10,
              "came \"twice\", expected \"for\", a number of times, \"once\" or the end of the "
              "rule"},
        Wrong{"status 1 0 times", 10, "came \"0\", expected a number from 1 to 1000000000"},
        Wrong{"status 1 2", 11, "came the end of the rule, expected \"times\""},
        Wrong{"status 1 for", 13,
              "came the end of the rule, expected a number of seconds from 0.001 to 86400 and then "
              "\"s\""},
        Wrong{"status 1 for 2", 15, "came the end of the rule, expected \"s\""},
        Wrong{"busy 2 once", 8, "came \"once\", expected \"for\" or the end of the rule"},
        Wrong{"status 1 once more", 15, "came \"more\", expected the end of the rule"}));

INSTANTIATE_TEST_SUITE_P(
    Bytes, WrongRule,
    testing::Values(
        Wrong{"cover \x1B[2J\"\\\x9B", 7,
              "came \"\\x1B[2J\\x22\\x5C\\x9B\", expected a number from 1 to 65535"},
        Wrong{"cover 0123456789012345678901234567890123456789x", 7,
              "came \"0123456789012345678901234567890123456789...\", expected a number from 1 to "
              "65535"}));

TEST(Script, HasOneRuleALineAndComments) {
  const Script script = simulator::read_script(
      "# the printer of the evening\n"
      "\n"
      "sheet 2: cover 0x1300 for 3 s  # opened\n"
      "   \t\r\n"
      "busy 1");
  EXPECT_THAT(script.errors, IsEmpty());
  ASSERT_THAT(script.rules, SizeIs(2));
  EXPECT_EQ(to_string(script.rules[0]), "sheet 2: cover 0x1300 for 3 s");
  EXPECT_EQ(to_string(script.rules[1]), "busy 1");
}

TEST(Script, IsEmptyWithoutRules) {
  const Script script = simulator::read_script("# nothing yet\n");
  EXPECT_THAT(script.rules, IsEmpty());
  EXPECT_THAT(script.errors, IsEmpty());
}

TEST(Script, NamesTheFirstWrongLine) {
  const Script script = simulator::read_script("busy 1\n# fine\n  busy no\nbusy never\n");
  EXPECT_THAT(script.rules, IsEmpty());
  ASSERT_THAT(script.errors, SizeIs(1));
  EXPECT_EQ(script.errors[0].line, 3U);
  EXPECT_EQ(script.errors[0].column, 8U);
}

TEST(Script, WithAZeroByteIsWrongThere) {
  const Script script = simulator::read_script(std::string_view("busy 1\0", 7));
  ASSERT_THAT(script.errors, SizeIs(1));
  EXPECT_EQ(to_string(script.errors[0]), "came \"1\\x00\", expected a number from 1 to 1000000000");
}

}  // namespace
