// SPDX-License-Identifier: Apache-2.0
//
// Fuzzes a job from its raster stream to the printer's: any raster, any answers, a printer's stream
// that fails anywhere, a conversion that fails on some page. The printer must get whole commands
// and whole sheets, or a beginning of them where its stream failed.
//
// Input: paper, flags, sharpness, wait time, the page that cannot be converted (1 …, 0: none), five
// bytes for the stream's limit (0: none), the length of the answers' script, the script, the
// raster.
#include <cups/raster.h>

#include <cstdint>
#include <cstring>
#include <limits>
#include <new>

#include "decoder/stream_parser.h"
#include "filter/page_loop.h"
#include "image/mv_change_image.h"
#include "job/job_state.h"
#include "status/printer_check.h"
#include "tests/fuzz/fake_printer.h"
#include "tests/fuzz/small_papers.h"
#include "tests/fuzz/streams.h"

namespace {

using fuzz::require;

constexpr unsigned char kFlagMatte = 0x01;
constexpr unsigned char kFlagMarginCutOff = 0x02;
constexpr unsigned char kFlagDoNotWait = 0x04;
constexpr unsigned char kFlagPrinterFails = 0x08;  // behind the script's end
constexpr unsigned char kFlagReasons = 0x10;

int g_page_that_fails = 0;
bool g_page_failed = false;

// What the printer makes of its stream: no error until the stream is cut.
class Printer : public decoder::CommandListener {
 public:
  void OnSheetEnd(const decoder::SheetEnd&) override { ++sheets_; }
  void OnPrintOut(std::uint64_t, std::uint8_t) override { printed_out_ = true; }
  void OnError(const decoder::StreamError&) override { require(stream_failed_); }

  /// From here on a cut is no surprise.
  void StreamFailed() { stream_failed_ = true; }
  int Sheets() const { return sheets_; }
  bool PrintedOut() const { return printed_out_; }

 private:
  int sheets_ = 0;
  bool printed_out_ = false;
  bool stream_failed_ = false;
};

tagPRINTSETTING take_settings(fuzz::Input& input, unsigned char& flags) {
  const auto& paper = fuzz::kSmallPapers.at(input.Take<std::uint8_t>() % fuzz::kSmallPapers.size());
  tagPRINTSETTING settings = settings_of(paper);
  flags = input.Take<std::uint8_t>();
  settings.byPrintFinish = (flags & kFlagMatte) != 0 ? kFinishMatte : 0;
  settings.byMarginCutOff = (flags & kFlagMarginCutOff) != 0 ? 1 : 0;
  settings.byWaitNextImage = (flags & kFlagDoNotWait) != 0 ? 0 : 1;
  settings.bySharpness = input.Take<std::uint8_t>();
  settings.byWaitTime = input.Take<std::uint8_t>();
  return settings;
}

std::uint64_t take_limit(fuzz::Input& input) {
  const auto limit =
      input.Take<std::uint32_t>() + (std::uint64_t{input.Take<std::uint8_t>()} << 32U);
  return limit == 0 ? std::numeric_limits<std::uint64_t>::max() : limit;
}

void prepare_printer(fuzz::Input& input, unsigned char flags) {
  fuzz::FakePrinter fresh;
  const std::span<const std::uint8_t> script = input.TakeBytes(input.Take<std::uint8_t>());
  fresh.script = {script.data(), script.size()};
  fresh.good_in_the_end = (flags & kFlagPrinterFails) == 0;
  fresh.reasons = (flags & kFlagReasons) != 0 ? "com.corvantiel-error0004,paused,,none" : "";
  fuzz::printer() = fresh;
}

ssize_t read_raster(void* context, unsigned char* buffer, std::size_t bytes) {
  const auto piece = static_cast<fuzz::Input*>(context)->TakeBytes(bytes);
  if (!piece.empty()) {
    std::memcpy(buffer, piece.data(), piece.size());
  }
  return static_cast<ssize_t>(piece.size());
}

// What the end of the process gives back when memory runs out.
void release_planes() {
  for (unsigned char*& plane : Planes) {
    delete[] plane;
    plane = nullptr;
  }
}

// As the filter's main does.
bool run_job(fuzz::Input& raster_bytes, const tagPRINTSETTING& settings) {
  cups_raster_t* raster = cupsRasterOpenIO(read_raster, &raster_bytes, CUPS_RASTER_READ);
  page = 0;
  bool good = false;
  try {
    good = printer_is_good() && print_pages(raster, nullptr, settings, "/");
    require(Planes[0] == nullptr && Planes[1] == nullptr);
  } catch (const std::bad_alloc&) {
    release_planes();
  }
  CImageUtility::DeleteBandImage(&gImageCache);
  gImageCount = 0;
  CImageUtility::DeleteBandImage(&gMatteImage);
  cupsRasterClose(raster);
  return good;
}

void check_stream(const Printer& printer, const tagPRINTSETTING& settings, bool good) {
  const int pages_a_sheet = settings.nJoinPages == 1 ? 2 : 1;
  // A job whose pages end for want of memory has a print-out, too.
  require(printer.PrintedOut() || !good);
  require(!(printer.PrintedOut() && g_page_failed));
  require(printer.Sheets() <= (page + pages_a_sheet - 1) / pages_a_sheet);
  // Every page of a good job is on a sheet; half a sheet that waits to the end may be refused.
  require(!good || printer.Sheets() >= page / pages_a_sheet);
}

void check_band(const tagMVBandImageParams& band, std::int64_t width, std::int64_t height,
                std::int64_t depth) {
  require(band.pBits != nullptr && band.lStride == -width * depth);
  require(rect_width(band.rcBand) == width && rect_height(band.rcBand) == height);
}

}  // namespace

// A conversion that widens, and leaves a pattern in the matte plane.
extern "C" long MVChangeImage(const tagMVBandImageParams* source, const tagMVChangeParams* params,
                              tagMVBandImageParams* destination, tagMVBandImageParams* matte,
                              unsigned char* rgbRate, unsigned char* opRate) {
  const std::int64_t width = rect_width(source->rcBand);
  const std::int64_t height = rect_height(source->rcBand);
  check_band(*source, width, height, 3);
  check_band(*destination, width, height, 6);
  require(params->pszModulePath != nullptr && params->nSharpness <= 6);
  if (page == g_page_that_fails) {
    g_page_failed = true;
    return -5;
  }
  const auto samples = static_cast<std::size_t>(width * height * 3);
  for (std::size_t i = 0; i < samples; ++i) {
    const auto wide = static_cast<std::uint16_t>(source->pBits[i] * 0x40U);
    std::memcpy(destination->pBits + 2 * i, &wide, sizeof wide);
  }
  if (matte != nullptr) {
    const auto matte_bytes = rect_width(matte->rcBand) * rect_height(matte->rcBand);
    std::memset(matte->pBits, source->pBits[0], static_cast<std::size_t>(matte_bytes));
  }
  *rgbRate = source->pBits[0];
  *opRate = source->pBits[samples - 1];
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  unsigned char flags = 0;
  const tagPRINTSETTING settings = take_settings(input, flags);
  g_page_that_fails = input.Take<std::uint8_t>();
  g_page_failed = false;
  const std::uint64_t limit = take_limit(input);
  prepare_printer(input, flags);

  Printer printer;
  decoder::StreamParser parser(printer);
  fuzz::PrinterStream stream([&](std::span<const std::uint8_t> bytes) { parser.Feed(bytes); },
                             limit);
  const bool good = run_job(input, settings);
  if (stream.Flush()) {
    parser.EndOfStream();
    check_stream(printer, settings, good);
  } else {
    printer.StreamFailed();
    parser.EndOfStream();
  }
  return 0;
}
