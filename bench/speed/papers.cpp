// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/papers.h"

#include <algorithm>

namespace bench {

int Paper::pages_of_sheet() const {
  return info->nJoinPages == 1 ? 2 : 1;
}

std::uint64_t Paper::image_pixels() const {
  return static_cast<std::uint64_t>(info->nImageWidth) *
         static_cast<std::uint64_t>(info->nImageHeight);
}

double Paper::image_megapixels() const {
  return static_cast<double>(image_pixels()) / 1e6;
}

std::uint64_t Paper::sheet_dots(std::uint64_t moreRows) const {
  return static_cast<std::uint64_t>(info->nPaperWidth) *
         (static_cast<std::uint64_t>(info->nPaperHeight) + moreRows);
}

const std::vector<Paper>& papers() {
  static const std::vector<Paper> sorted = [] {
    std::vector<Paper> all = {{"RQ_9x13", &PAPER_9x13},         {"RQ_10x15", &PAPER_10x15},
                              {"RQ_13x18", &PAPER_13x18},       {"RQ_15x20", &PAPER_15x20},
                              {"RQ_5x15x2_1", &PAPER_5x15x2_1}, {"RQ_5x15x2_2", &PAPER_5x15x2_2},
                              {"RQ_5x15", &PAPER_5x15},         {"RQ_15x15", &PAPER_15x15},
                              {"RQ_13x13", &PAPER_13x13},       {"RQ_9x13_WB", &PAPER_9x13_WB},
                              {"RQ_10x15_WB", &PAPER_10x15_WB}, {"RQ_13x18_WB", &PAPER_13x18_WB},
                              {"RQ_15x20_WB", &PAPER_15x20_WB}};
    std::stable_sort(all.begin(), all.end(), [](const Paper& a, const Paper& b) {
      return a.image_pixels() < b.image_pixels();
    });
    return all;
  }();
  return sorted;
}

const Paper& usual_paper() {
  return *std::find_if(papers().begin(), papers().end(),
                       [](const Paper& paper) { return paper.info == &PAPER_10x15; });
}

}  // namespace bench
