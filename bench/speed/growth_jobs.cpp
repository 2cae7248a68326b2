// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/growth_jobs.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include "bench/speed/contestants.h"
#include "bench/speed/raster_pages.h"

namespace bench {

namespace {

constexpr std::uint64_t kBytesPerDot = 6;  // three samples of 16 bits

/// What the job writes at least: the dots of its sheets, without headers.
std::uint64_t least_output(const Job& job) {
  const auto pages = static_cast<std::uint64_t>(job.pages);
  if (job.program == Program::FloorCopy) {
    return pages * job.paper->image_pixels() * kBytesPerDot;
  }
  const auto pagesOfSheet = static_cast<std::uint64_t>(job.paper->pages_of_sheet());
  const std::uint64_t sheets = (pages + pagesOfSheet - 1) / pagesOfSheet;
  const std::uint64_t dots = pagesOfSheet > 1 ? job.paper->sheet_dots() : job.paper->image_pixels();
  const std::uint64_t matte = job.matte ? job.paper->sheet_dots(kMatteExtraRows) : 0;
  return sheets * (dots * kBytesPerDot + matte);
}

Picture page_of(const Paper& paper, Content content) {
  return page_picture(content, static_cast<std::size_t>(paper.info->nImageWidth),
                      static_cast<std::size_t>(paper.info->nImageHeight), 1);
}

MeteredRun plain_run_of(const Job& job) {
  if (job.program == Program::FloorCopy) {
    return floor_run("floor-copy");
  }
  return filter_run(
      job.program == Program::Widening ? Library::Widening : Library::Ours,
      std::string("PageSize=") + job.paper->name + (job.matte ? " RQPrintFinish=Matte" : ""));
}

MeteredRun run_of(const Job& job) {
  MeteredRun run = plain_run_of(job);
  run.bytes = least_output(job);
  run.status = job.pages == 0 && job.program != Program::FloorCopy ? 1 : 0;  // "No pages found!"
  return run;
}

}  // namespace

RasterFolder::RasterFolder() {
  const std::filesystem::path memory = "/dev/shm";
  const std::filesystem::path top =
      std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path();
  folder_ = (top / "tqr7-growth-XXXXXX").string();
  if (mkdtemp(folder_.data()) == nullptr) {
    throw std::runtime_error("no folder for raster streams");
  }
}

RasterFolder::~RasterFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

const Picture& RasterFolder::photo_of(const Paper& paper) {
  const auto found = photos_.find(paper.name);
  return found != photos_.end() ? found->second
                                : photos_[paper.name] = page_of(paper, Content::Photo);
}

std::string RasterFolder::stream_of(const Paper& paper, int pages, Show show) {
  std::string path =
      folder_ + "/" + paper.name + (show == Show::White ? "-white-" : "-") + std::to_string(pages);
  const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL, 0600);
  if (file < 0) {
    return path;  // written before
  }
  RasterStyle style;
  style.form = show == Show::White ? RasterForm::Compressed : RasterForm::Raw;
  const bool written = show == Show::White
                           ? write_raster(file, page_of(paper, Content::White), pages, style)
                           : write_raster(file, photo_of(paper), pages, style);
  if (close(file) != 0 || !written) {
    throw std::runtime_error(path + " cannot be written");
  }
  return path;
}

void RasterFolder::clear() {
  for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
    std::filesystem::remove(entry.path());
  }
}

MeteredRun run_on_files(const Job& job, RasterFolder& rasters, Show show) {
  MeteredRun run = run_of(job);
  run.input = rasters.stream_of(*job.paper, job.pages, show);
  return run;
}

MeteredRun run_on_pipes(const Job& job, RasterFolder& rasters) {
  MeteredRun run = run_of(job);
  run.input = rasters.stream_of(*job.paper, 1, Show::Photo);
  run.input_times = job.pages;
  run.streams = Streams::Pipes;
  return run;
}

}  // namespace bench
