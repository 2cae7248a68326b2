// SPDX-License-Identifier: Apache-2.0
#include <png.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <cstring>

#include "language/messages.h"
#include "photo/exif.h"
#include "photo/photo_rows.h"

namespace photo {
namespace {

constexpr std::size_t kChunkMost = 16UL * 1024 * 1024;
constexpr std::size_t kChunksKept = 1000;
constexpr std::size_t kWhite = 255;
constexpr std::size_t kColours = 3;

// An interlaced picture is complete only when all of it is read, and is held in memory until then.
constexpr std::size_t kSteppedMost = 50'000'000;

class PngRows : public PhotoRows {
 public:
  explicit PngRows(std::FILE* file) : file_(file) {}
  ~PngRows() override { png_destroy_read_struct(&png_, &info_, nullptr); }
  PngRows(const PngRows&) = delete;
  PngRows& operator=(const PngRows&) = delete;

  std::string Open(PhotoFacts& facts) override;
  std::string Begin(unsigned reduction, std::size_t& width, std::size_t& height) override;
  std::string Row(std::uint8_t* samples) override;

 private:
  // libpng leaves these functions by a jump, so they have no objects with destructors.
  bool ReadHeader();
  bool Prepare();
  bool ReadRow(std::uint8_t* row);
  bool ReadAll();

  void TakeDensity(PhotoFacts& facts) const;
  void TakeColours(PhotoFacts& facts) const;
  void PutOnWhite(std::uint8_t* samples) const;
  std::string Why() const { return message_.data(); }

  [[noreturn]] static void give_up(png_structp png, png_const_charp text);
  static void ignore(png_structp /*png*/, png_const_charp /*text*/) {}

  std::FILE* file_;
  png_structp png_ = nullptr;
  png_infop info_ = nullptr;
  std::size_t width_ = 0;
  std::size_t height_ = 0;
  std::size_t channels_ = 0;  ///< in libpng's rows
  std::size_t next_ = 0;      ///< row
  std::vector<std::uint8_t> row_;
  std::vector<std::uint8_t> all_;  ///< rows of an interlaced picture
  std::array<char, 200> message_{};
};

void PngRows::give_up(png_structp png, png_const_charp text) {
  auto& message = static_cast<PngRows*>(png_get_error_ptr(png))->message_;
  std::snprintf(message.data(), message.size(), "%s", text);
  png_longjmp(png, 1);
}

bool PngRows::ReadHeader() {
  if (setjmp(png_jmpbuf(png_)) != 0) {  // NOLINT(cert-err52-cpp)
    return false;
  }
  png_init_io(png_, file_);
  png_set_user_limits(png_, kSideMost, kSideMost);
  png_set_chunk_malloc_max(png_, kChunkMost);
  png_set_chunk_cache_max(png_, kChunksKept);
  png_read_info(png_, info_);
  return true;
}

void PngRows::TakeDensity(PhotoFacts& facts) const {
  constexpr double kMetresPerInch = 0.0254;
  png_uint_32 across = 0;
  png_uint_32 down = 0;
  int unit = PNG_RESOLUTION_UNKNOWN;
  png_get_pHYs(png_, info_, &across, &down, &unit);
  if (unit == PNG_RESOLUTION_METER) {
    // 11811 to the metre is 299.999 to the inch.
    facts.density = {static_cast<std::uint32_t>(std::lround(across * kMetresPerInch)),
                     static_cast<std::uint32_t>(std::lround(down * kMetresPerInch))};
  }
}

// A profile counts before the chunk that says sRGB, and that before gamma and primaries.
void PngRows::TakeColours(PhotoFacts& facts) const {
  png_charp name = nullptr;
  int method = 0;
  png_bytep profile = nullptr;
  png_uint_32 length = 0;
  if (png_get_iCCP(png_, info_, &name, &method, &profile, &length) != 0) {
    facts.profile.assign(profile, profile + length);
    return;
  }
  int intent = 0;
  if (png_get_sRGB(png_, info_, &intent) != 0) {
    return;
  }
  double gamma = 0;
  if (png_get_gAMA(png_, info_, &gamma) != 0 && gamma > 0) {
    facts.gamma = 1 / gamma;
  }
  Primaries& p = facts.primaries;
  facts.hasPrimaries = png_get_cHRM(png_, info_, &p.white[0], &p.white[1], &p.red[0], &p.red[1],
                                    &p.green[0], &p.green[1], &p.blue[0], &p.blue[1]) != 0;
}

std::string PngRows::Open(PhotoFacts& facts) {
  png_ = png_create_read_struct(PNG_LIBPNG_VER_STRING, this, give_up, ignore);
  info_ = png_ != nullptr ? png_create_info_struct(png_) : nullptr;
  if (info_ == nullptr) {
    return kNoMemory;
  }
  if (!ReadHeader()) {
    return Why();
  }
  width_ = png_get_image_width(png_, info_);
  height_ = png_get_image_height(png_, info_);
  facts.width = width_;
  facts.height = height_;
  if (std::string why = refuse_size(width_, height_); !why.empty()) {
    return why;
  }
  const bool grey = (png_get_color_type(png_, info_) & PNG_COLOR_MASK_COLOR) == 0;
  facts.samples = grey ? Samples::Grey : Samples::Rgb;
  TakeDensity(facts);
  TakeColours(facts);
  png_bytep exif = nullptr;
  png_uint_32 exifLength = 0;
  if (png_get_eXIf_1(png_, info_, &exifLength, &exif) != 0) {
    facts.orientation = exif_orientation({exif, exifLength});
  }
  return {};
}

// Has libpng write eight bits a sample, without a palette.
bool PngRows::Prepare() {
  if (setjmp(png_jmpbuf(png_)) != 0) {  // NOLINT(cert-err52-cpp)
    return false;
  }
  png_set_expand(png_);
  png_set_scale_16(png_);
  png_set_interlace_handling(png_);
  png_read_update_info(png_, info_);
  return true;
}

bool PngRows::ReadRow(std::uint8_t* row) {
  if (setjmp(png_jmpbuf(png_)) != 0) {  // NOLINT(cert-err52-cpp)
    return false;
  }
  png_read_row(png_, row, nullptr);
  return true;
}

bool PngRows::ReadAll() {
  const std::size_t stride = width_ * channels_;
  if (setjmp(png_jmpbuf(png_)) != 0) {  // NOLINT(cert-err52-cpp)
    return false;
  }
  for (int pass = 0; pass < PNG_INTERLACE_ADAM7_PASSES; ++pass) {
    for (std::size_t y = 0; y < height_; ++y) {
      png_read_row(png_, &all_[y * stride], nullptr);
    }
  }
  return true;
}

std::string PngRows::Begin(unsigned /*reduction*/, std::size_t& width, std::size_t& height) {
  if (!Prepare()) {
    return Why();
  }
  width = width_;
  height = height_;
  channels_ = png_get_channels(png_, info_);
  if (png_get_rowbytes(png_, info_) != width_ * channels_) {
    return "its samples are of an unknown kind";
  }
  row_.resize(width_ * channels_);
  if (png_get_interlace_type(png_, info_) == PNG_INTERLACE_NONE) {
    return {};
  }
  if (width_ > kSteppedMost / height_) {
    return language::_("it is interlaced, and too large for that");
  }
  all_.resize(height_ * width_ * channels_);
  return ReadAll() ? std::string() : Why();
}

// Transparent pixels show the white paper.
void PngRows::PutOnWhite(std::uint8_t* samples) const {
  const std::size_t colours = channels_ < kColours ? 1 : kColours;
  if (channels_ == colours) {
    std::memcpy(samples, row_.data(), row_.size());
    return;
  }
  const std::uint8_t* from = row_.data();
  for (std::size_t x = 0; x < width_; ++x, from += channels_, samples += colours) {
    const std::size_t cover = from[colours];
    for (std::size_t i = 0; i < colours; ++i) {
      samples[i] = static_cast<std::uint8_t>(
          (from[i] * cover + kWhite * (kWhite - cover) + kWhite / 2) / kWhite);
    }
  }
}

std::string PngRows::Row(std::uint8_t* samples) {
  if (!all_.empty()) {
    std::memcpy(row_.data(), &all_[next_ * row_.size()], row_.size());
    ++next_;
  } else if (!ReadRow(row_.data())) {
    return Why();
  }
  PutOnWhite(samples);
  return {};
}

}  // namespace

std::unique_ptr<PhotoRows> read_png_rows(std::FILE* file) {
  return std::make_unique<PngRows>(file);
}

}  // namespace photo
