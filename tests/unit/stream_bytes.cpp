// SPDX-License-Identifier: Apache-2.0
#include "tests/unit/stream_bytes.h"

#include <algorithm>
#include <iterator>
#include <ostream>

#include "tests/papers.h"

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

constexpr Paper paper_of(const filter_test::Paper& from) {
  constexpr std::size_t kPrefix = 3;  // "RQ_"
  Paper paper{from.choice + kPrefix, from.sheet, from.two_up, {}, from.matte, 0, 0};
  std::copy(from.place.begin(), from.place.end(), paper.place.begin());
  std::copy(from.image.begin(), from.image.end(), paper.place.begin() + 4);
  const std::size_t width = from.image[0] * 256U + from.image[1];
  const std::size_t height = from.image[2] * 256U + from.image[3];
  paper.imageBytes = width * height * 6;
  paper.matteBytes =
      static_cast<std::size_t>(from.matte_width) * static_cast<std::size_t>(from.matte_height);
  return paper;
}

}  // namespace

// Other files use it before main begins.
constinit const std::array<Paper, kPapers> papers = [] {
  std::array<Paper, kPapers> all{};
  std::transform(std::begin(filter_test::kPapers), std::end(filter_test::kPapers), all.begin(),
                 paper_of);
  return all;
}();

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
