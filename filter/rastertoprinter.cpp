// SPDX-License-Identifier: Apache-2.0
//
// The filter's main: arguments, checks before the job, the clean-up and the exit status.
#include <cups/ppd.h>
#include <cups/raster.h>
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <new>

#include "filter/descriptors.h"
#include "filter/filter_hooks.h"
#include "filter/job_options.h"
#include "filter/memory_watch.h"
#include "filter/module_path.h"
#include "filter/page_loop.h"
#include "filter/ppd_options.h"
#include "image/band_image.h"
#include "job/job_state.h"
#include "status/connection_check.h"
#include "status/printer_check.h"

namespace {

constexpr int kArgumentOptions = 5;
constexpr int kArgumentFile = 6;
constexpr unsigned int kPauseBeforeFailure = 1;  // seconds
constexpr int kModulePathSize = 1024;

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

// There is no stream if the input is no raster or memory is lacking: the job then has no pages.
void open_raster(JobInput* input) {
  const MemoryWatch watch;
  input->raster = cupsRasterOpen(input->descriptor, CUPS_RASTER_READ);
  if (input->raster == nullptr && watch.refused()) {
    report_no_memory();
  }
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
  return finish_job(input, !print_pages(input.raster, input.ppd, settings, module_path));
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
  unblock_back_channel();
  errno = 0;  // only the job's own calls may set the reason that the log reports
  JobInput input;
  if (!open_raster_file(argc, argv, &input)) {
    return 1;
  }
  open_raster(&input);
  input.ppd = open_marked_ppd(argv[kArgumentOptions]);
  try {
    return run_job(input);
  } catch (const std::bad_alloc&) {
    // Strings and sets throw it. No sheet is half sent at such a moment: what was printed stays
    // printed, and nothing follows it. The process's end releases the memory.
    report_no_memory();
    return 1;
  }
}
