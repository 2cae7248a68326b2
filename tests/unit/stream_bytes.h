// SPDX-License-Identifier: Apache-2.0
//
// The commands of a print stream for the tests, written out byte by byte.
#ifndef TQR7_TESTS_UNIT_STREAM_BYTES_H
#define TQR7_TESTS_UNIT_STREAM_BYTES_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <iosfwd>
#include <string>
#include <vector>

namespace stream {

using Bytes = std::vector<std::uint8_t>;

/// What differs between the papers, as the bytes stand in the headers.
struct Paper {
  const char* name;
  std::array<std::uint8_t, 4> sheet;  ///< job header 6 … 9: width, height
  std::array<std::uint8_t, 4> twoUp;  ///< job header 15 … 18: mode, split, option
  std::array<std::uint8_t, 8> place;  ///< image header 6 … 13: left, top, width, height
  std::array<std::uint8_t, 4> matte;  ///< image header 20 … 23, matte finish only
  std::size_t imageBytes;
  std::size_t matteBytes;
};

/// The paper's name, for the test's own.
void PrintTo(const Paper& paper, std::ostream* out);

inline constexpr std::size_t kPapers = 13;
extern const std::array<Paper, kPapers> papers;

/// The smallest sheet, 1852 x 631, and others that the tests name.
const Paper& paper_5x15();
const Paper& paper_9x13_wb();
const Paper& paper_10x15();
const Paper& paper_10x15_wb();
const Paper& paper_5x15x2();

enum class Finish : std::uint8_t { Gloss, Matte };

Bytes status_request();
Bytes readiness_query(const Paper& paper, Finish finish);
Bytes job_header(const Paper& paper, Finish finish);
Bytes image_header(const Paper& paper, Finish finish);
Bytes print_out();

/// `bytes` bytes that repeat one pixel of six bytes, or one matte byte.
Bytes pixels(std::size_t bytes, const std::array<std::uint8_t, 6>& pixel);
Bytes matte(std::size_t bytes, std::uint8_t value);

/// The same bytes as characters.
std::string text_of(const Bytes& bytes);

/// One thing behind the other.
Bytes join(std::initializer_list<Bytes> pieces);

/// The same bytes several times.
Bytes repeated(const Bytes& bytes, std::size_t times);

/// Status request, readiness query, job header and image header: at 0, 8, 520 and 1032; the pixels
/// would begin at 1544.
Bytes headers(const Paper& paper, Finish finish);

/// A whole sheet, of one pixel value and, for matte, one matte value.
Bytes sheet(const Paper& paper, Finish finish, const std::array<std::uint8_t, 6>& pixel,
            std::uint8_t matteValue = 0xFF);

/// The same as the first of a file, with the file's own status request before them: the headers are
/// at 16, 528 and 1040, and the pixels would begin at 1552.
Bytes first_headers(const Paper& paper, Finish finish);
Bytes first_sheet(const Paper& paper, Finish finish, const std::array<std::uint8_t, 6>& pixel,
                  std::uint8_t matteValue = 0xFF);

/// A job of one 5x15 gloss sheet in mid grey: 7,013,230 bytes.
Bytes small_job();

}  // namespace stream

#endif  // TQR7_TESTS_UNIT_STREAM_BYTES_H
