// SPDX-License-Identifier: Apache-2.0
//
// A job in the middle of which a test stands: scripted printer, scheduler and conversion, and the
// job's state put back afterwards.
#ifndef TQR7_TESTS_UNIT_FILTER_JOB_FIXTURE_H
#define TQR7_TESTS_UNIT_FILTER_JOB_FIXTURE_H

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <string>

#include "filter/filter_hooks.h"
#include "job/job_state.h"
#include "tests/unit/bytes.h"
#include "tests/unit/capture.h"
#include "tests/unit/scripted_connection.h"
#include "tests/unit/scripted_conversion.h"
#include "tests/unit/scripted_destinations.h"

class JobTest : public testing::Test {
 protected:
  struct Outcome {
    bool result = false;
    std::string out;
    std::string err;
  };

  void SetUp() override {
    ResetConnection();
    ResetConversions();
    SetDefaultReasons("none");
    page = 1;
  }

  void TearDown() override {
    EXPECT_EQ(gOutputCalls, 0) << "a call on the printer's stream was left open";
    delete[] Planes[0];
    delete[] Planes[1];
    Planes[0] = nullptr;
    Planes[1] = nullptr;
    CImageUtility::DeleteBandImage(&gImageCache);
    CImageUtility::DeleteBandImage(&gMatteImage);
    gImageCache = {};
    gMatteImage = {};
    gImageCount = 0;
    gRgbRate = 0;
    gOpRate = 0;
    page = 0;
    std::signal(SIGTERM, SIG_DFL);
  }

  /// A raster page header of that many bytes a line.
  static cups_page_header_t Header(unsigned bytes_per_line) {
    cups_page_header_t header = {};
    header.cupsBytesPerLine = bytes_per_line;
    return header;
  }

  /// The printer is good and takes the next sheet.
  static void PrinterTakesASheet() {
    Connection().Answer(Zeros(15));
    Connection().Answer(Zeros(6));
  }

  /// One page from start to end, as white as StartPage leaves it.
  static Outcome RunPage(const tagPRINTSETTING& settings) {
    const cups_page_header_t header = Header(12);
    Outcome outcome;
    Capture out(stdout);
    Capture err(stderr);
    StartPage(nullptr, &header, &settings);
    outcome.result = EndPage(&header, &settings, "/opt/printer/filter/");
    outcome.out = out.Arrived();
    outcome.err = err.Text();
    return outcome;
  }

  /// What SIGTERM does now.
  static struct sigaction TermAction() {
    struct sigaction action {};
    sigaction(SIGTERM, nullptr, &action);
    return action;
  }
};

#endif  // TQR7_TESTS_UNIT_FILTER_JOB_FIXTURE_H
