// SPDX-License-Identifier: Apache-2.0
//
// The filter's main: checks before the job, the page loop, the clean-up and the exit status.
#include <cups/ppd.h>
#include <cups/raster.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "filter/descriptors.h"
#include "filter/filter_hooks.h"
#include "filter/job_options.h"
#include "filter/job_state.h"
#include "filter/module_path.h"
#include "filter/ppd_options.h"
#include "filter/progress.h"
#include "filter/sheet_assembly.h"
#include "image/band_image.h"
#include "protocol/job_header.h"
#include "status/connection_check.h"
#include "status/printer_check.h"

namespace {

constexpr int kArgumentOptions = 5;
constexpr int kArgumentFile = 6;
constexpr unsigned int kPauseBeforeFailure = 1;  // seconds
constexpr int kModulePathSize = 1024;
constexpr int kBytesPerPixel = 3;
constexpr unsigned int kLinesPerReport = 128;
constexpr int kPercentRead = 50;  // printing the page takes the other half

// What the job reads from.
struct JobInput {
  int descriptor = 0;
  cups_raster_t* raster = nullptr;
  ppd_file_t* ppd = nullptr;
};

void close_streams(const JobInput& input) {
  cupsRasterClose(input.raster);
  ppdClose(input.ppd);
}

bool open_raster_file(int argc, char* argv[], JobInput* input) {
  if (argc <= kArgumentFile) {
    return true;
  }
  input->descriptor = open(argv[kArgumentFile], O_RDONLY);
  if (input->descriptor >= 0) {
    return true;
  }
  perror("ERROR: Unable to open raster file - ");
  sleep(kPauseBeforeFailure);
  return false;
}

// Reads the page's lines into the page buffer. The header is hostile: a line holds as many bytes as
// it says, never more, and what it does not hold stays white.
void read_page(cups_raster_t* raster, const cups_page_header_t& header,
               const tagPRINTSETTING& settings) {
  const auto raster_width = static_cast<std::int32_t>(header.cupsWidth);
  const auto raster_height = static_cast<std::int32_t>(header.cupsHeight);
  const std::int64_t wanted =
      std::int64_t{kBytesPerPixel} *
      std::max<std::int32_t>(std::min(settings.nImageWidth, raster_width), 0);
  const auto copied =
      static_cast<std::size_t>(std::min<std::int64_t>(wanted, header.cupsBytesPerLine));
  const std::size_t step = kBytesPerPixel * static_cast<std::size_t>(settings.nImageWidth);

  unsigned char* destination = Planes[1];
  for (std::int32_t y = 0; y < raster_height; ++y) {
    const auto line = static_cast<std::uint32_t>(y);
    if (line % kLinesPerReport == 0) {
      report_progress(static_cast<int>(line * kPercentRead / header.cupsHeight));
    }
    if (cupsRasterReadPixels(raster, Planes[0], header.cupsBytesPerLine) == 0) {
      break;
    }
    if (y < settings.nImageHeight) {
      std::memcpy(destination, Planes[0], copied);
      destination += step;
    }
  }
  report_progress(kPercentRead);
}

// False when a page fails, which ends the job.
bool print_pages(const JobInput& input, const tagPRINTSETTING& settings, const char* module_path) {
  cups_page_header_t header;
  while (cupsRasterReadHeader(input.raster, &header) != 0) {
    ++page;
    std::fprintf(stderr, "PAGE: %d %d\n", page, static_cast<int>(header.NumCopies));
    StartPage(input.ppd, &header, &settings);
    if (Planes[0] == nullptr || Planes[1] == nullptr) {
      EndPage(nullptr, nullptr, nullptr);
      return false;
    }
    read_page(input.raster, header, settings);
    if (!EndPage(&header, &settings, module_path)) {
      return false;
    }
  }
  print_last_page(&settings);
  wr_esc_printout(fpOut, &settings);
  return true;
}

// The clean-up and the exit status of a job that came as far as its pages.
int finish_job(const JobInput& input, bool failed) {
  CImageUtility::DeleteBandImage(&gImageCache);
  gImageCount = 0;
  CImageUtility::DeleteBandImage(&gMatteImage);
  ppdClose(input.ppd);
  cupsRasterClose(input.raster);
  if (input.descriptor != 0) {
    close(input.descriptor);
  }
  if (page == 0) {
    std::fprintf(stderr, "ERROR: No pages found!\n");
    return 1;
  }
  return failed ? 1 : 0;
}

// The job itself, once its arguments and its input are known.
int run_job(const JobInput& input) {
  tagPRINTSETTING settings{};
  get_print_setting(input.ppd, &settings);
  char module_path[kModulePathSize] = {};
  if (!get_filter_path(input.ppd, module_path, kModulePathSize)) {
    perror("ERROR: Unable to find module path\n");
    sleep(kPauseBeforeFailure);
    return finish_job(input, true);
  }
  Setup();
  page = 0;
  if (!connection_is_bidirectional() || !printer_is_good()) {
    close_streams(input);
    exit(1);
  }
  return finish_job(input, !print_pages(input, settings, module_path));
}

}  // namespace

int main(int argc, char* argv[]) {
  reserve_scheduler_descriptors();
  std::fprintf(stderr, "DEBUG: ---------- TQR7Filter main() ---------- \n");
  gImageCount = 0;
  gImageCache = {};
  gMatteImage = {};
  setbuf(stderr, nullptr);
  if (argc < 6 || argc > 7) {
    std::fprintf(stderr, "ERROR: TQR7Filter job-id user title copies options [file]\n");
    return 1;
  }
  JobInput input;
  if (!open_raster_file(argc, argv, &input)) {
    return 1;
  }
  input.raster = cupsRasterOpen(input.descriptor, CUPS_RASTER_READ);
  input.ppd = open_marked_ppd(argv[kArgumentOptions]);
  return run_job(input);
}
