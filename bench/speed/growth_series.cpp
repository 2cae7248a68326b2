// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/growth_series.h"

#include <functional>
#include <span>
#include <utility>

namespace bench {

namespace {

struct Length {
  int pages;
  int share;  ///< of the rounds, one in so many
};

constexpr Length kLengths[] = {{0, 1}, {1, 1}, {2, 1}, {3, 1}, {10, 1}, {100, 1}, {1000, 3}};
constexpr Length kChains[] = {{1, 1}, {2, 1}, {10, 1}, {100, 3}};

using RunOf = std::function<MeteredRun(const Job&)>;

std::vector<LengthPoint> measured(std::span<const Length> lengths, int rounds, const RunOf& runOf) {
  std::vector<LengthPoint> points;
  for (const Length& length : lengths) {
    points.push_back({length.pages, {}});
  }
  for (int round = 0; round < rounds; ++round) {
    for (std::size_t at = 0; at < points.size(); ++at) {
      for (std::size_t i = 0; round % lengths[at].share == 0 && i < kPrograms.size(); ++i) {
        const Job job{kPrograms[i], &usual_paper(), points[at].pages};
        points[at].of[i].rounds.push_back(measure(runOf(job)));
      }
    }
  }
  return points;
}

void measure_round(SizePoint* point, RasterFolder& rasters) {
  for (std::size_t length = 0; length < kSheets.size(); ++length) {
    const int pages = kSheets[length] * point->paper->pages_of_sheet();
    for (std::size_t i = 0; i < kPrograms.size(); ++i) {
      const Job job{kPrograms[i], point->paper, pages, point->matte};
      point->of[length][i].rounds.push_back(measure(run_on_files(job, rasters, Show::Photo)));
    }
  }
}

}  // namespace

std::vector<LengthPoint> measure_lengths(RasterFolder& rasters, int rounds) {
  return measured(kLengths, rounds,
                  [&](const Job& job) { return run_on_files(job, rasters, Show::White); });
}

std::vector<LengthPoint> measure_chains(RasterFolder& rasters, int rounds) {
  return measured(kChains, rounds, [&](const Job& job) { return run_on_pipes(job, rasters); });
}

std::vector<SizePoint> measure_sizes(RasterFolder& rasters, int rounds) {
  std::vector<SizePoint> points;
  for (const bool matte : {false, true}) {
    for (const Paper& paper : papers()) {
      if (!matte || paper.info == &PAPER_10x15 || paper.info == &PAPER_15x20 ||
          paper.info == &PAPER_5x15x2_2) {
        points.push_back({&paper, matte, {}});
      }
    }
  }
  for (int round = 0; round < rounds; ++round) {
    for (SizePoint& point : points) {
      measure_round(&point, rasters);
      rasters.clear();
    }
  }
  return points;
}

std::vector<QueuesPoint> measure_queues(RasterFolder& rasters, int rounds) {
  std::vector<QueuesPoint> points;
  for (const int queues : {1, 2, 4, 8}) {
    points.push_back({queues, {}, {}});
  }
  for (int round = 0; round < rounds; ++round) {
    for (QueuesPoint& point : points) {
      for (std::size_t i = 0; i < kPrograms.size(); ++i) {
        const Job job{kPrograms[i], &usual_paper(), kPagesOfAQueue};
        MeteredRun run = run_on_files(job, rasters, Show::Photo);
        run.pinned = false;
        point.of[i].push_back(measure_together(run, point.queues));
      }
      point.probe.push_back(probe_machine(
          point.queues, rasters.stream_of(usual_paper(), kPagesOfAQueue, Show::Photo)));
    }
  }
  return points;
}

}  // namespace bench
