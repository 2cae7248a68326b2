// SPDX-License-Identifier: Apache-2.0
#include "tests/unit/photo_files.h"

#include <zlib.h>

#include <cstdio>
#include <cstdlib>
#include <string_view>

// jpeglib.h needs what <cstdio> declares.
#include <jpeglib.h>

namespace {

std::string big_endian(std::uint32_t number) {
  std::string bytes;
  for (int shift = 24; shift >= 0; shift -= 8) {
    bytes += static_cast<char>(number >> static_cast<unsigned>(shift) & 0xFFU);
  }
  return bytes;
}

std::string chunk(const std::string& typeAndData) {
  const auto* const bytes = reinterpret_cast<const unsigned char*>(typeAndData.data());
  const auto check = crc32(0, bytes, static_cast<unsigned>(typeAndData.size()));
  return big_endian(static_cast<std::uint32_t>(typeAndData.size() - 4)) + typeAndData +
         big_endian(static_cast<std::uint32_t>(check));
}

constexpr int kColours = 3;
const std::vector<std::uint8_t> kGrey(kColours, 0x80);

// A picture of one colour, RGB or CMYK; `addMarkers` may write what goes before the pixels.
template <typename AddMarkers>
std::string compressed(unsigned width, unsigned height, const std::vector<std::uint8_t>& colour,
                       bool byAdobe, const std::vector<jpeg_scan_info>& steps,
                       const AddMarkers& addMarkers) {
  jpeg_compress_struct jpeg;
  jpeg_error_mgr errors;
  jpeg.err = jpeg_std_error(&errors);
  jpeg_create_compress(&jpeg);
  unsigned char* memory = nullptr;
  unsigned long length = 0;
  jpeg_mem_dest(&jpeg, &memory, &length);
  jpeg.image_width = width;
  jpeg.image_height = height;
  jpeg.input_components = static_cast<int>(colour.size());
  jpeg.in_color_space = colour.size() == kColours ? JCS_RGB : JCS_CMYK;
  jpeg_set_defaults(&jpeg);
  jpeg.write_Adobe_marker = byAdobe ? TRUE : FALSE;
  jpeg.scan_info = steps.empty() ? nullptr : steps.data();
  jpeg.num_scans = static_cast<int>(steps.size());
  jpeg_start_compress(&jpeg, TRUE);
  addMarkers(jpeg);
  std::vector<std::uint8_t> row;
  for (unsigned x = 0; x < width; ++x) {
    row.insert(row.end(), colour.begin(), colour.end());
  }
  while (jpeg.next_scanline < height) {
    JSAMPROW rows = row.data();
    jpeg_write_scanlines(&jpeg, &rows, 1);
  }
  jpeg_finish_compress(&jpeg);
  jpeg_destroy_compress(&jpeg);
  std::string file(memory, memory + length);
  std::free(memory);
  return file;
}

}  // namespace

std::string jpeg_file(unsigned width, unsigned height, const std::vector<std::uint8_t>& exif,
                      const std::vector<std::uint8_t>& profile) {
  return compressed(width, height, kGrey, false, {}, [&](jpeg_compress_struct& jpeg) {
    if (!exif.empty()) {
      constexpr std::string_view kBegin("Exif\0\0", 6);
      jpeg_write_m_header(&jpeg, JPEG_APP0 + 1, static_cast<unsigned>(kBegin.size() + exif.size()));
      for (const char byte : kBegin) {
        jpeg_write_m_byte(&jpeg, byte);
      }
      for (const std::uint8_t byte : exif) {
        jpeg_write_m_byte(&jpeg, byte);
      }
    }
    if (!profile.empty()) {
      jpeg_write_icc_profile(&jpeg, profile.data(), static_cast<unsigned>(profile.size()));
    }
  });
}

std::string cmyk_jpeg(const std::array<std::uint8_t, 4>& samples, bool byAdobe,
                      const std::vector<std::uint8_t>& profile) {
  const std::vector<std::uint8_t> colour(samples.begin(), samples.end());
  return compressed(1852, 1232, colour, byAdobe, {}, [&](jpeg_compress_struct& jpeg) {
    if (!profile.empty()) {
      jpeg_write_icc_profile(&jpeg, profile.data(), static_cast<unsigned>(profile.size()));
    }
  });
}

std::string jpeg_in_steps(unsigned width, unsigned height) {
  constexpr int kCoefficients = 64;
  std::vector<jpeg_scan_info> steps = {{kColours, {0, 1, 2}, 0, 0, 0, 0}};
  for (int colour = 0; colour < kColours; ++colour) {
    for (int coefficient = 1; coefficient < kCoefficients; ++coefficient) {
      steps.push_back({1, {colour}, coefficient, coefficient, 0, 3});
      steps.push_back({1, {colour}, coefficient, coefficient, 3, 2});
      steps.push_back({1, {colour}, coefficient, coefficient, 2, 1});
      steps.push_back({1, {colour}, coefficient, coefficient, 1, 0});
    }
  }
  return compressed(width, height, kGrey, false, steps, [](jpeg_compress_struct&) {});
}

std::string jpeg_claim(std::uint16_t width, std::uint16_t height, bool inSteps) {
  std::string file = inSteps ? jpeg_in_steps(16, 16) : jpeg_file(16, 16);
  const std::size_t frame = file.find(inSteps ? "\xFF\xC2" : "\xFF\xC0");
  file.replace(frame + 5, 4, big_endian(std::uint32_t{height} << 16U | width));
  return file;
}

std::string with_density(std::string jpeg, unsigned char unit, unsigned char across,
                         unsigned char down) {
  jpeg[13] = static_cast<char>(unit);
  jpeg[15] = static_cast<char>(across);
  jpeg[17] = static_cast<char>(down);
  return jpeg;
}

std::vector<std::uint8_t> exif_density_data(std::uint8_t across, std::uint8_t down) {
  return {'M',  'M',  0, 42,     0, 0, 0, 8, 0, 2,                       // two entries
          0x01, 0x1A, 0, 5,      0, 0, 0, 1, 0, 0, 0, 38,                // across
          0x01, 0x1B, 0, 5,      0, 0, 0, 1, 0, 0, 0, 46,   0, 0, 0, 0,  // down
          0,    0,    0, across, 0, 0, 0, 2, 0, 0, 0, down, 0, 0, 0, 2};
}

std::vector<std::uint8_t> exif_data(std::uint8_t orientation) {
  return {'M', 'M', 0, 42, 0, 0, 0,           8, 0, 1, 0x01, 0x12, 0,
          3,   0,   0, 0,  1, 0, orientation, 0, 0, 0, 0,    0,    0};
}

namespace {

std::string png_header(std::uint32_t width, std::uint32_t height, bool inSteps) {
  const std::string rest(std::string("\x08\x02\x00\x00", 4) +
                         (inSteps ? '\1' : '\0'));  // 8-bit RGB
  return "\x89PNG\r\n\x1A\n" + chunk("IHDR" + big_endian(width) + big_endian(height) + rest);
}

}  // namespace

std::string png_claim(std::uint32_t width, std::uint32_t height, bool inSteps) {
  return png_header(width, height, inSteps) + chunk("IDAT") + chunk("IEND");
}

std::string png_dot(const std::string& rgb, const std::string& marks) {
  const std::string row = std::string(1, '\0') + rgb;  // as it is, without a filter
  std::string packed(64, '\0');
  uLongf length = packed.size();
  compress(reinterpret_cast<Bytef*>(packed.data()), &length,
           reinterpret_cast<const Bytef*>(row.data()), row.size());
  return png_header(1, 1, true) + chunk(marks) + chunk("IDAT" + packed.substr(0, length)) +
         chunk("IEND");
}
