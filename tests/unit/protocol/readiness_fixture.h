// SPDX-License-Identifier: Apache-2.0
//
// What the tests of the readiness check begin with: a fresh scripted connection, known rates, and
// one check with all it returns and writes.
#ifndef TQR7_TESTS_UNIT_PROTOCOL_READINESS_FIXTURE_H
#define TQR7_TESTS_UNIT_PROTOCOL_READINESS_FIXTURE_H

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "job/job_state.h"
#include "protocol/readiness_check.h"
#include "tests/unit/capture.h"
#include "tests/unit/scripted_connection.h"
#include "tests/unit/settings.h"

/// What a call gave back and what it wrote.
struct Outcome {
  int code = 0;
  std::string text;
  std::string out;
  std::string err;
};

/// One whole readiness check for a 10x15 sheet.
inline Outcome Examine() {
  const tagPRINTSETTING settings = SettingsOf10x15();
  Outcome outcome;
  Capture out(stdout);
  Capture err(stderr);
  outcome.text = ExaminePage(&settings);
  outcome.out = out.Arrived();
  outcome.err = err.Text();
  return outcome;
}

/// Rates that show in the query's bytes 81 and 82.
class ReadinessFixture : public testing::Test {
 protected:
  void SetUp() override {
    ResetConnection();
    gRgbRate = 0x4D;
    gOpRate = 0x5E;
  }
  void TearDown() override {
    gRgbRate = 0;
    gOpRate = 0;
  }
};

#endif  // TQR7_TESTS_UNIT_PROTOCOL_READINESS_FIXTURE_H
