// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <array>
#include <csetjmp>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "language/messages.h"
#include "photo/exif.h"
#include "photo/photo_rows.h"

// jpeglib.h needs what <cstdio> declares.
#include <jerror.h>
#include <jpeglib.h>

namespace photo {
namespace {

constexpr unsigned kMarkerMost = 0xFFFF;  ///< bytes of the longest possible marker
constexpr int kExifMarker = JPEG_APP0 + 1;
constexpr int kProfileMarker = JPEG_APP0 + 2;
constexpr std::size_t kProfileMost = 16UL * 1024 * 1024;

// Progressive files have some ten scans. One with more than this is made to take up time.
constexpr int kScansMost = 500;

// A progressive picture is held in memory until its last scan; others need very little.
constexpr long kMemoryMost = 256L * 1024 * 1024;

class JpegRows : public PhotoRows {
 public:
  explicit JpegRows(std::FILE* file) : file_(file) {
    jpeg_.err = jpeg_std_error(&errors_);
    jpeg_.client_data = this;
    errors_.error_exit = give_up;
    errors_.emit_message = judge_warning;
    progress_.progress_monitor = limit_scans;
  }
  ~JpegRows() override { jpeg_destroy_decompress(&jpeg_); }
  JpegRows(const JpegRows&) = delete;
  JpegRows& operator=(const JpegRows&) = delete;

  std::string Open(PhotoFacts& facts) override;
  std::string Begin(unsigned reduction, std::size_t& width, std::size_t& height) override;
  std::string Row(std::uint8_t* samples) override;

 private:
  // libjpeg leaves these functions by a jump, so they have no objects with destructors.
  bool ReadHeader();
  bool Start();
  bool ReadRow(std::uint8_t* samples);
  bool TakeProfile(JOCTET** bytes, unsigned* length);

  void TakeExif(PhotoFacts& facts) const;
  PixelDensity Density() const;
  Samples Choose();
  void Say(const char* why) { std::snprintf(message_.data(), message_.size(), "%s", why); }
  std::string Why() const { return message_.data(); }

  static JpegRows& self(j_common_ptr jpeg) { return *static_cast<JpegRows*>(jpeg->client_data); }
  [[noreturn]] static void give_up(j_common_ptr jpeg);
  static void judge_warning(j_common_ptr jpeg, int level);
  static void limit_scans(j_common_ptr jpeg);

  std::FILE* file_;
  jpeg_decompress_struct jpeg_{};
  jpeg_error_mgr errors_{};
  jpeg_progress_mgr progress_{};
  std::jmp_buf givenUp_{};
  std::array<char, JMSG_LENGTH_MAX> message_{};
};

void JpegRows::give_up(j_common_ptr jpeg) {
  JpegRows& reader = self(jpeg);
  jpeg->err->format_message(jpeg, reader.message_.data());
  if (jpeg->err->msg_code == JERR_OUT_OF_MEMORY) {
    reader.Say(kNoMemory);
  } else if (jpeg->err->msg_code == JERR_NO_BACKING_STORE) {
    reader.Say(language::_("it is shown in steps, and too large for that"));
  }
  std::longjmp(reader.givenUp_, 1);  // NOLINT(cert-err52-cpp)
}

// Many cameras leave odd bytes between the parts of a file, which does no harm. Where pixels are
// lost, a part of the print would be grey, so the photo is refused.
void JpegRows::judge_warning(j_common_ptr jpeg, int level) {
  const int code = jpeg->err->msg_code;
  if (level < 0 && (code == JWRN_JPEG_EOF || code == JWRN_HIT_MARKER ||
                    code == JWRN_HUFF_BAD_CODE || code == JWRN_MUST_RESYNC)) {
    give_up(jpeg);
  }
}

void JpegRows::limit_scans(j_common_ptr jpeg) {
  JpegRows& reader = self(jpeg);
  if (reader.jpeg_.input_scan_number > kScansMost) {
    reader.Say("too many scans");
    std::longjmp(reader.givenUp_, 1);  // NOLINT(cert-err52-cpp)
  }
}

bool JpegRows::ReadHeader() {
  if (setjmp(givenUp_) != 0) {  // NOLINT(cert-err52-cpp)
    return false;
  }
  jpeg_create_decompress(&jpeg_);
  jpeg_.mem->max_memory_to_use = kMemoryMost;
  jpeg_.progress = &progress_;
  jpeg_stdio_src(&jpeg_, file_);
  jpeg_save_markers(&jpeg_, kExifMarker, kMarkerMost);
  jpeg_save_markers(&jpeg_, kProfileMarker, kMarkerMost);
  jpeg_read_header(&jpeg_, TRUE);
  return true;
}

bool JpegRows::TakeProfile(JOCTET** bytes, unsigned* length) {
  if (setjmp(givenUp_) != 0) {  // NOLINT(cert-err52-cpp)
    return false;
  }
  return jpeg_read_icc_profile(&jpeg_, bytes, length) != 0;
}

void JpegRows::TakeExif(PhotoFacts& facts) const {
  constexpr std::string_view kBegin("Exif\0\0", 6);
  facts.density = Density();
  for (const jpeg_marker_struct* marker = jpeg_.marker_list; marker != nullptr;
       marker = marker->next) {
    if (marker->marker == kExifMarker && marker->data_length > kBegin.size() &&
        std::equal(kBegin.begin(), kBegin.end(), marker->data)) {
      const std::span<const std::uint8_t> tiff(marker->data + kBegin.size(),
                                               marker->data_length - kBegin.size());
      facts.orientation = exif_orientation(tiff);
      facts.adobeRgb = exif_says_adobe_rgb(tiff);
      const PixelDensity density = exif_density(tiff);
      facts.density = density.IsKnown() ? density : facts.density;
      return;
    }
  }
}

PixelDensity JpegRows::Density() const {
  constexpr int kPerInch = 1;
  constexpr int kPerCentimetre = 2;
  constexpr double kCentimetresPerInch = 2.54;
  if (jpeg_.density_unit == kPerInch) {
    return {jpeg_.X_density, jpeg_.Y_density};
  }
  if (jpeg_.density_unit == kPerCentimetre) {
    return {static_cast<std::uint32_t>(jpeg_.X_density * kCentimetresPerInch),
            static_cast<std::uint32_t>(jpeg_.Y_density * kCentimetresPerInch)};
  }
  return {};
}

Samples JpegRows::Choose() {
  switch (jpeg_.jpeg_color_space) {
    case JCS_GRAYSCALE:
      jpeg_.out_color_space = JCS_GRAYSCALE;
      return Samples::Grey;
    case JCS_CMYK:
    case JCS_YCCK:
      jpeg_.out_color_space = JCS_CMYK;
      return jpeg_.saw_Adobe_marker != 0 ? Samples::CmykInverted : Samples::Cmyk;
    default:
      jpeg_.out_color_space = JCS_RGB;
      return Samples::Rgb;
  }
}

std::string JpegRows::Open(PhotoFacts& facts) {
  if (!ReadHeader()) {
    return Why();
  }
  facts.width = jpeg_.image_width;
  facts.height = jpeg_.image_height;
  if (std::string why = refuse_size(facts.width, facts.height); !why.empty()) {
    return why;
  }
  TakeExif(facts);
  facts.samples = Choose();
  JOCTET* bytes = nullptr;
  unsigned length = 0;
  if (TakeProfile(&bytes, &length)) {
    if (length <= kProfileMost) {
      facts.profile.assign(bytes, bytes + length);
    }
    std::free(bytes);
  }
  return {};
}

bool JpegRows::Start() {
  if (setjmp(givenUp_) != 0) {  // NOLINT(cert-err52-cpp)
    return false;
  }
  jpeg_start_decompress(&jpeg_);
  return true;
}

std::string JpegRows::Begin(unsigned reduction, std::size_t& width, std::size_t& height) {
  jpeg_.scale_num = 1;
  jpeg_.scale_denom = reduction;
  if (!Start()) {
    return Why();
  }
  width = jpeg_.output_width;
  height = jpeg_.output_height;
  return {};
}

bool JpegRows::ReadRow(std::uint8_t* samples) {
  if (setjmp(givenUp_) != 0) {  // NOLINT(cert-err52-cpp)
    return false;
  }
  JSAMPROW row = samples;
  jpeg_read_scanlines(&jpeg_, &row, 1);
  return true;
}

std::string JpegRows::Row(std::uint8_t* samples) {
  return ReadRow(samples) ? std::string() : Why();
}

}  // namespace

std::unique_ptr<PhotoRows> read_jpeg_rows(std::FILE* file) {
  return std::make_unique<JpegRows>(file);
}

}  // namespace photo
