// SPDX-License-Identifier: Apache-2.0
#include "job/paper_table.h"

#define PAPER(name, record, ...) const tagPAPERINFO PAPER_##name = record;
#include "job/paper_list.def"

namespace {

constexpr NamedPaper kPapers[] = {
#define PAPER(name, record, photo_width, photo_height, inches, words) \
  {&PAPER_##name, "RQ_" #name, photo_width, photo_height, inches, words},
#include "job/paper_list.def"
};

}  // namespace

std::span<const NamedPaper> named_papers() {
  return kPapers;
}
