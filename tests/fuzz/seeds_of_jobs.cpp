// SPDX-License-Identifier: Apache-2.0
//
// Seeds of what a job is made of: rasters, a printer's answers, print streams.
#include <cstdint>
#include <vector>

#include "job/job_state.h"
#include "protocol/image_header.h"
#include "protocol/job_header.h"
#include "protocol/plane_transfer.h"
#include "protocol/readiness_check.h"
#include "status/status_query.h"
#include "tests/filter/raster_maker.h"
#include "tests/fuzz/fake_printer.h"
#include "tests/fuzz/seeds.h"
#include "tests/fuzz/small_papers.h"
#include "tests/fuzz/streams.h"

namespace fuzz {
namespace {

using filter_test::Pixels;
using filter_test::RasterPage;
using filter_test::RasterStream;

// The answers' script of one read each.
const std::string kGood(1, 0);
const std::string kBusy(1, 1);
const std::string kOutOfPaper{2, 0x26, 0x65};
const std::string kMismatch{2, 0x02, 0x00};
const std::string kSilence(1, 3);
const std::string kFailure(1, 4);
const std::string kTwoPieces =
    std::string{5, 7} + std::string(7, 0) + std::string{5, 8} + std::string(8, 0);

struct Options {
  unsigned char paper = 0;
  unsigned char flags = 0;
  unsigned char page_that_fails = 0;
  std::uint32_t limit = 0;
  std::string script;
};

std::string job(const Options& options, const std::string& raster) {
  std::string bytes;
  for (const unsigned char byte : {options.paper, options.flags, static_cast<unsigned char>(4),
                                   static_cast<unsigned char>(5), options.page_that_fails}) {
    bytes += static_cast<char>(byte);
  }
  bytes += bytes_of(options.limit) + '\0';
  bytes += static_cast<char>(options.script.size());
  return bytes + options.script + raster;
}

std::string pages(int width, int height, int count, cups_mode_t mode = CUPS_RASTER_WRITE) {
  std::vector<RasterPage> all;
  for (int number = 1; number <= count; ++number) {
    all.emplace_back(Pixels::Pattern(width, height, number));
  }
  return RasterStream(all, mode);
}

std::string hostile(unsigned width, unsigned height, unsigned bytes_per_line) {
  return filter_test::UncheckedStream(
      RasterPage(width, height, 24, bytes_per_line, std::string(100, '\x42')));
}

// A job's stream as the filter writes it, one sheet.
std::string stream_of(const SmallPaper& paper, std::uint8_t finish) {
  tagPRINTSETTING settings = settings_of(paper);
  settings.byPrintFinish = finish;
  settings.nImageHeight = paper.border ? settings.nImageHeight : settings.nPaperHeight;
  std::string bytes;
  PrinterStream stream(
      [&](std::span<const std::uint8_t> piece) { bytes.append(piece.begin(), piece.end()); });
  printer() = {};
  get_printer_state();
  wr_esc_enable(fpOut, &settings);
  wr_esc_SP(fpOut, &settings);
  tagMVBandImageParams image{};
  CImageUtility::CreateBandImage(&image, {0, 0, settings.nImageWidth, settings.nImageHeight}, 48,
                                 -1);
  std::uint8_t white[] = {0xFF, 0x3F, 0xFF, 0x3F, 0xFF, 0x3F};
  CImageUtility::FillBandImage(&image, 48, white);
  CImageUtility::CreateBandImage(&gMatteImage,
                                 {0, 0, settings.nPaperWidth, settings.nPaperHeight + 12}, 8, -1);
  wr_esc_ZT(fpOut, &settings, &image, 1);
  send_image_data(fpOut, &image);
  if (finish == kFinishMatte) {
    send_matte_data(fpOut, &gMatteImage);
  }
  wr_esc_printout(fpOut, &settings);
  stream.Flush();
  CImageUtility::DeleteBandImage(&image);
  CImageUtility::DeleteBandImage(&gMatteImage);
  return bytes;
}

}  // namespace

Seeds page_loop_seeds() {
  const std::string one = pages(6, 4, 1);
  const std::string three = pages(8, 3, 3);
  return {
      {"one-page", job({}, one)},
      {"matte", job({.flags = 1}, one)},
      {"border", job({.paper = 1}, pages(6, 4, 2, CUPS_RASTER_WRITE_COMPRESSED))},
      {"joined", job({.paper = 2}, three)},
      {"joined-matte", job({.paper = 2, .flags = 0x17}, three)},
      {"two-prints", job({.paper = 3}, pages(33, 9, 1, CUPS_RASTER_WRITE_COMPRESSED))},
      {"large", job({.paper = 4, .flags = 1}, hostile(201, 180, 603))},
      {"other-size", job({.paper = 1}, pages(9, 30, 1))},
      {"first-version", job({}, filter_test::FirstVersionStream(Pixels::Pattern(6, 4)))},
      {"wide", job({}, hostile(0x80000000U, 4, 18))},
      {"two-gigabytes-a-line", job({}, hostile(6, 4, 0x7FFFFFFF))},
      {"three-bytes-a-line", job({}, hostile(500000000, 4, 3))},
      {"less-than-a-line", job({.paper = 1}, hostile(6, 4, 15))},
      {"no-line", job({}, hostile(6, 4, 0))},
      {"endless", job({}, hostile(6, 0xFFFFFFFFU, 18))},
      {"second-page-not-converted", job({.page_that_fails = 2}, pages(6, 4, 3))},
      {"stream-fails", job({.limit = 1600}, pages(6, 4, 2))},
      {"busy", job({.script = kGood + kGood + kBusy + kBusy + kGood}, one)},
      {"mismatch", job({.script = kGood + kGood + kMismatch}, one)},
      {"out-of-paper", job({.script = kGood + kOutOfPaper}, one)},
      {"pieces", job({.flags = 8, .script = kGood + kTwoPieces + kSilence + kTwoPieces}, one)},
      {"no-page", job({}, "")},
  };
}

Seeds command_stream_seeds() {
  Seeds seeds;
  for (std::size_t i = 0; i + 1 < kSmallPapers.size(); ++i) {
    SmallPaper paper = kSmallPapers.at(i);
    seeds.push_back({"gloss" + std::to_string(i), stream_of(paper, 0)});
    seeds.push_back({"matte" + std::to_string(i), stream_of(paper, kFinishMatte)});
  }
  const std::string job = seeds.front().bytes;
  seeds.push_back({"two-jobs", job + seeds[1].bytes});
  seeds.push_back({"cut", job.substr(0, job.size() - 20)});
  seeds.push_back({"stray", "\x1B\x1BGD7" + job});
  return seeds;
}

Seeds replies_seeds() {
  const auto input = [](char question, const std::string& reasons, const std::string& script) {
    return std::string{question, 2, 0, static_cast<char>(reasons.size())} + reasons + script;
  };
  std::string busy;
  for (int i = 0; i < 95; ++i) {
    busy += kBusy;
  }
  return {
      {"good", input(0, "", kGood)},
      {"out-of-paper", input(1, "paused", kOutOfPaper)},
      {"good-with-reasons", input(1, "paused,com.corvantiel-error0004", kGood)},
      {"silent", input(0, "", kSilence)},
      {"state-in-pieces", input(0, "", kTwoPieces)},
      {"ready", input(2, "", kSilence + kTwoPieces)},
      {"mismatch", input(3, "", kBusy + kMismatch)},
      {"fails-after-busy", input(3, "", kBusy + kFailure)},
      {"busy-for-ever", input(3, "", busy)},
      {"two-ways", input(4, "", std::string{1, 1})},
  };
}

}  // namespace fuzz
