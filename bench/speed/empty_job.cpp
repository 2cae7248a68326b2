// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/empty_job.h"

#include <cstring>
#include <stdexcept>

#include "bench/speed/contestants.h"

namespace bench {

namespace {

constexpr const char* kOptions = "PageSize=RQ_10x15 RQPrintFinish=Gloss";
constexpr int kNoPages = 1;  // the filter's exit status

}  // namespace

MeteredRun EmptyJob::floor() const {
  MeteredRun run = floor_run("floor-load");
  run.argv.insert(run.argv.end(), {"7", "anna", "Beach", "1", kOptions});
  run.environment["PPD"] = TQR7_PPD;
  run.input = input_;
  return run;
}

MeteredRun EmptyJob::filter() const {
  MeteredRun run = filter_run(Library::Ours, kOptions);
  run.input = input_;
  run.status = kNoPages;
  return run;
}

Usage EmptyJob::measure(MeteredRun run, double* flushed) const {
  run.environment["LD_PRELOAD"] = TQR7_FIRST_BYTE_LIBRARY;
  run.environment["TQR7_FIRST_BYTE"] = folder_.Path("first-byte");
  Usage usage = bench::measure(run);
  const std::string left = folder_.Read("first-byte");
  if (left.size() != sizeof *flushed) {
    throw std::runtime_error(run.argv[0] + " flushed nothing");
  }
  std::memcpy(flushed, left.data(), left.size());
  folder_.Write("first-byte", "");
  return usage;
}

}  // namespace bench
