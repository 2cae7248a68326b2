// SPDX-License-Identifier: Apache-2.0
#include <array>
#include <csetjmp>
#include <cstdlib>

#include "tools/picture_formats.h"

// jpeglib.h needs what <cstdio> declares.
#include <jpeglib.h>

namespace tools {
namespace {

constexpr std::size_t kChannels = 3;
constexpr std::size_t kInks = 4;
constexpr unsigned kMarkerMost = 0xFFFF;  ///< bytes of a marker, all there can be
constexpr int kProfileMarker = JPEG_APP0 + 2;

// A file that shows a picture in more steps than this only means to take time.
constexpr int kScansMost = 500;

// All that outlives a jump out of libjpeg, which is how it says that it cannot go on.
struct Reading {
  jpeg_decompress_struct jpeg{};
  jpeg_error_mgr errors{};
  jpeg_progress_mgr progress{};
  std::jmp_buf givenUp{};
  std::array<char, JMSG_LENGTH_MAX> message{};
  PictureFile* result = nullptr;
  std::vector<unsigned char> inks;  ///< a row of a picture for the press
};

Reading& reading_of(j_common_ptr jpeg) {
  return *static_cast<Reading*>(jpeg->client_data);
}

[[noreturn]] void give_up(j_common_ptr jpeg) {
  Reading& reading = reading_of(jpeg);
  jpeg->err->format_message(jpeg, reading.message.data());
  std::longjmp(reading.givenUp, 1);  // NOLINT(cert-err52-cpp)
}

// A warning means a damaged file whose picture can be shown somehow. The first one is kept.
void note_damage(j_common_ptr jpeg, int level) {
  Reading& reading = reading_of(jpeg);
  if (level < 0 && jpeg->err->num_warnings++ == 0) {
    jpeg->err->format_message(jpeg, reading.message.data());
  }
}

void limit_scans(j_common_ptr jpeg) {
  Reading& reading = reading_of(jpeg);
  if (reading.jpeg.input_scan_number > kScansMost) {
    std::snprintf(reading.message.data(), reading.message.size(), "too many scans");
    std::longjmp(reading.givenUp, 1);  // NOLINT(cert-err52-cpp)
  }
}

// A broken profile is damage, too; libjpeg warns of it when it is put together.
void look_at_profile(jpeg_decompress_struct& jpeg) {
  JOCTET* bytes = nullptr;
  unsigned length = 0;
  if (jpeg_read_icc_profile(&jpeg, &bytes, &length) != 0) {
    std::free(bytes);
  }
}

// Presses count ink, and the files of their programs the other way round: 255 is no ink.
void inks_to_rgb(const std::vector<unsigned char>& inks, unsigned char* rgb) {
  constexpr unsigned kFull = 255;
  for (std::size_t dot = 0; dot < inks.size() / kInks; ++dot) {
    const unsigned black = inks[kInks * dot + kChannels];
    for (std::size_t channel = 0; channel < kChannels; ++channel) {
      rgb[kChannels * dot + channel] =
          static_cast<unsigned char>(inks[kInks * dot + channel] * black / kFull);
    }
  }
}

void read_rows(Reading& reading) {
  jpeg_decompress_struct& jpeg = reading.jpeg;
  Picture& picture = reading.result->picture;
  const bool forPress = jpeg.out_color_space == JCS_CMYK;
  reading.inks.resize(forPress ? kInks * picture.width : 0);
  while (jpeg.output_scanline < jpeg.output_height) {
    unsigned char* const rgb = picture.At(0, jpeg.output_scanline);
    JSAMPROW row = forPress ? reading.inks.data() : rgb;
    jpeg_read_scanlines(&jpeg, &row, 1);
    if (forPress) {
      inks_to_rgb(reading.inks, rgb);
    }
  }
}

// Nothing with a destructor lives in this frame: libjpeg may leave it at any call.
const char* read_all(Reading& reading, std::FILE* file, std::string& refusal) {
  if (setjmp(reading.givenUp) != 0) {  // NOLINT(cert-err52-cpp)
    return reading.message.data();
  }
  jpeg_decompress_struct& jpeg = reading.jpeg;
  jpeg_create_decompress(&jpeg);
  jpeg.progress = &reading.progress;
  jpeg_stdio_src(&jpeg, file);
  jpeg_save_markers(&jpeg, kProfileMarker, kMarkerMost);
  jpeg_read_header(&jpeg, TRUE);
  refusal = refuse_size(jpeg.image_width, jpeg.image_height);
  if (!refusal.empty()) {
    return refusal.c_str();
  }
  look_at_profile(jpeg);
  const bool forPress = jpeg.jpeg_color_space == JCS_CMYK || jpeg.jpeg_color_space == JCS_YCCK;
  jpeg.out_color_space = forPress ? JCS_CMYK : JCS_RGB;
  jpeg_start_decompress(&jpeg);
  reading.result->picture = Picture(jpeg.output_width, jpeg.output_height);
  read_rows(reading);
  jpeg_finish_decompress(&jpeg);
  return nullptr;
}

}  // namespace

std::string read_jpeg(std::FILE* file, PictureFile& result) {
  Reading reading;
  reading.result = &result;
  reading.jpeg.err = jpeg_std_error(&reading.errors);
  reading.jpeg.client_data = &reading;
  reading.errors.error_exit = give_up;
  reading.errors.emit_message = note_damage;
  reading.progress.progress_monitor = limit_scans;
  std::string refusal;
  const char* const why = read_all(reading, file, refusal);
  std::string text = why != nullptr ? why : "";
  if (text.empty() && reading.errors.num_warnings > 0) {
    result.damage = reading.message.data();
  }
  jpeg_destroy_decompress(&reading.jpeg);
  return text;
}

}  // namespace tools
