// SPDX-License-Identifier: Apache-2.0
#include "tests/unit/stream_bytes.h"

#include <algorithm>
#include <ostream>

namespace stream {
namespace {

void put(Bytes& block, std::size_t offset, const Bytes& bytes) {
  std::copy(bytes.begin(), bytes.end(), block.begin() + static_cast<std::ptrdiff_t>(offset));
}

template <std::size_t N>
void put(Bytes& block, std::size_t offset, const std::array<std::uint8_t, N>& bytes) {
  std::copy(bytes.begin(), bytes.end(), block.begin() + static_cast<std::ptrdiff_t>(offset));
}

Bytes settings_block(const Paper& paper, Finish finish) {
  Bytes block(512, 0x00);
  put(block, 5, {0x33});
  put(block, 6, paper.sheet);
  put(block, 10, {0x05});
  put(block, 15, paper.twoUp);
  put(block, 48, {finish == Finish::Matte ? std::uint8_t{0x03} : std::uint8_t{0x00}});
  put(block, 50, {0x01});
  put(block, 58, {0x02});
  put(block, 80, {0x01, 0x2A, 0x64});
  return block;
}

}  // namespace

const std::array<Paper, kPapers> papers{{
    {"9x13",
     {0x06, 0x0E, 0x04, 0x3A},
     {0, 0, 0, 0},
     {0, 0, 0, 0, 0x06, 0x0E, 0x04, 0x3A},
     {0x06, 0x0E, 0x04, 0x46},
     10062600,
     1695700},
    {"10x15",
     {0x07, 0x3C, 0x04, 0xD0},
     {0, 0, 0, 0},
     {0, 0, 0, 0, 0x07, 0x3C, 0x04, 0xD0},
     {0x07, 0x3C, 0x04, 0xDC},
     13689984,
     2303888},
    {"13x18",
     {0x06, 0x0E, 0x08, 0x56},
     {0, 0, 0, 0},
     {0, 0, 0, 0, 0x06, 0x0E, 0x08, 0x56},
     {0x06, 0x0E, 0x08, 0x62},
     19846200,
     3326300},
    {"15x20",
     {0x07, 0x3C, 0x09, 0x82},
     {0, 0, 0, 0},
     {0, 0, 0, 0, 0x07, 0x3C, 0x09, 0x82},
     {0x07, 0x3C, 0x09, 0x8E},
     27046608,
     4529992},
    {"5x15x2_1",
     {0x07, 0x3C, 0x04, 0xD0},
     {1, 0x02, 0x68, 1},
     {0, 0, 0, 0, 0x07, 0x3C, 0x04, 0xD0},
     {0x07, 0x3C, 0x04, 0xDC},
     13689984,
     2303888},
    {"5x15x2_2",
     {0x07, 0x3C, 0x04, 0xD0},
     {1, 0x02, 0x68, 1},
     {0, 0, 0, 0, 0x07, 0x3C, 0x04, 0xD0},
     {0x07, 0x3C, 0x04, 0xDC},
     13689984,
     2303888},
    {"5x15",
     {0x07, 0x3C, 0x02, 0x77},
     {0, 0, 0, 0},
     {0, 0, 0, 0, 0x07, 0x3C, 0x02, 0x77},
     {0x07, 0x3C, 0x02, 0x83},
     7011672,
     1190836},
    {"15x15",
     {0x07, 0x3C, 0x07, 0x29},
     {0, 0, 0, 0},
     {0, 0, 0, 0, 0x07, 0x3C, 0x07, 0x29},
     {0x07, 0x3C, 0x07, 0x35},
     20368296,
     3416940},
    {"13x13",
     {0x06, 0x0E, 0x05, 0xFD},
     {0, 0, 0, 0},
     {0, 0, 0, 0, 0x06, 0x0E, 0x05, 0xFD},
     {0x06, 0x0E, 0x06, 0x09},
     14256900,
     2394750},
    {"9x13_WB",
     {0x06, 0x0E, 0x04, 0x3A},
     {0, 0, 0, 0},
     {0, 0x54, 0, 0x4A, 0x05, 0x66, 0x03, 0xA6},
     {0x06, 0x0E, 0x04, 0x46},
     7744728,
     1695700},
    {"10x15_WB",
     {0x07, 0x3C, 0x04, 0xD0},
     {0, 0, 0, 0},
     {0, 0x54, 0, 0x4A, 0x06, 0x94, 0x04, 0x3C},
     {0x07, 0x3C, 0x04, 0xDC},
     10952736,
     2303888},
    {"13x18_WB",
     {0x06, 0x0E, 0x08, 0x56},
     {0, 0, 0, 0},
     {0, 0x54, 0, 0x4A, 0x05, 0x66, 0x07, 0xC2},
     {0x06, 0x0E, 0x08, 0x62},
     16467912,
     3326300},
    {"15x20_WB",
     {0x07, 0x3C, 0x09, 0x82},
     {0, 0, 0, 0},
     {0, 0x54, 0, 0x4A, 0x06, 0x94, 0x08, 0xEE},
     {0x07, 0x3C, 0x09, 0x8E},
     23097744,
     4529992},
}};

void PrintTo(const Paper& paper, std::ostream* out) {
  *out << paper.name;
}

const Paper& paper_5x15() {
  return papers[6];
}
const Paper& paper_9x13_wb() {
  return papers[9];
}
const Paper& paper_10x15() {
  return papers[1];
}
const Paper& paper_10x15_wb() {
  return papers[10];
}
const Paper& paper_5x15x2() {
  return papers[4];
}

Bytes status_request() {
  return {0x1B, 0x47, 0x44, 0x30, 0x00, 0x00, 0x01, 0x16};
}

Bytes readiness_query(const Paper& paper, Finish finish) {
  Bytes block = settings_block(paper, finish);
  put(block, 0, {0x1B, 0x47, 0x44, 0x33});
  return block;
}

Bytes job_header(const Paper& paper, Finish finish) {
  Bytes block = settings_block(paper, finish);
  put(block, 0, {0x1B, 0x53, 0x50, 0x30});
  return block;
}

// The time is 2026-03-15 10:20:30.
Bytes image_header(const Paper& paper, Finish finish) {
  Bytes block(512, 0x00);
  put(block, 0, {0x1B, 0x5A, 0x54, 0x01, 0x00, 0x09});
  put(block, 6, paper.place);
  if (finish == Finish::Matte) {
    put(block, 20, paper.matte);
  }
  put(block, 32, {0x07, 0xEA, 3, 15, 10, 20, 30});
  return block;
}

Bytes print_out() {
  return {0x1B, 0x42, 0x51, 0x31, 0x00, 0x05};
}

Bytes pixels(std::size_t bytes, const std::array<std::uint8_t, 6>& pixel) {
  Bytes data(bytes);
  for (std::size_t i = 0; i < bytes; i += 6) {
    std::copy(pixel.begin(), pixel.end(), data.begin() + static_cast<std::ptrdiff_t>(i));
  }
  return data;
}

Bytes matte(std::size_t bytes, std::uint8_t value) {
  return Bytes(bytes, value);
}

std::string text_of(const Bytes& bytes) {
  return {bytes.begin(), bytes.end()};
}

Bytes join(std::initializer_list<Bytes> pieces) {
  Bytes all;
  for (const Bytes& piece : pieces) {
    all.insert(all.end(), piece.begin(), piece.end());
  }
  return all;
}

Bytes repeated(const Bytes& bytes, std::size_t times) {
  Bytes all;
  all.reserve(bytes.size() * times);
  for (std::size_t i = 0; i < times; ++i) {
    all.insert(all.end(), bytes.begin(), bytes.end());
  }
  return all;
}

Bytes headers(const Paper& paper, Finish finish) {
  return join({status_request(), readiness_query(paper, finish), job_header(paper, finish),
               image_header(paper, finish)});
}

Bytes sheet(const Paper& paper, Finish finish, const std::array<std::uint8_t, 6>& pixel,
            std::uint8_t matteValue) {
  return join({headers(paper, finish), pixels(paper.imageBytes, pixel),
               finish == Finish::Matte ? matte(paper.matteBytes, matteValue) : Bytes{}});
}

Bytes first_headers(const Paper& paper, Finish finish) {
  return join({status_request(), headers(paper, finish)});
}

Bytes first_sheet(const Paper& paper, Finish finish, const std::array<std::uint8_t, 6>& pixel,
                  std::uint8_t matteValue) {
  return join({status_request(), sheet(paper, finish, pixel, matteValue)});
}

Bytes small_job() {
  return join({first_sheet(paper_5x15(), Finish::Gloss, {0x00, 0x20, 0x00, 0x20, 0x00, 0x20}),
               print_out()});
}

}  // namespace stream
