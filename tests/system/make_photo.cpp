// SPDX-License-Identifier: Apache-2.0
// Writes the picture of make-test-picture as cameras and other programs leave it:
//
//   make-photo FILE.jpg|.png|.ppm WIDTH HEIGHT KIND
//
// Seen as its file says, it shows the four quarters upright in their colours. KIND: plain; exif-1
// to exif-8, lying so in the file; adobe-rgb, display-p3, wide-gamma, numbers of another colour
// space, its profile beside them; adobe-mark, Adobe RGB by the camera's mark alone; gamma-1, a PNG
// that counts light.
#include <lcms2.h>
#include <png.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include <jpeglib.h>

#include "image/file_handle.h"

namespace {

using Rgb = std::array<unsigned char, 3>;

// The upper left, upper right, lower left and lower right quarter.
using Quarters = std::array<Rgb, 4>;
constexpr Quarters kColours = {{{200, 90, 80}, {80, 150, 90}, {70, 90, 150}, {210, 180, 90}}};

// For each orientation, which quarter of the upright picture the four of the file are.
constexpr std::array<std::array<std::size_t, 4>, 9> kLying = {{{0, 1, 2, 3},
                                                               {0, 1, 2, 3},
                                                               {1, 0, 3, 2},
                                                               {3, 2, 1, 0},
                                                               {2, 3, 0, 1},
                                                               {0, 2, 1, 3},
                                                               {1, 3, 0, 2},
                                                               {3, 1, 2, 0},
                                                               {2, 0, 3, 1}}};

struct Photo {
  int width;
  int height;
  int orientation = 0;  ///< 0: no Exif data
  bool marked = false;  ///< Adobe RGB by the camera's mark
  double gamma = 0;     ///< of a gAMA chunk
  Quarters quarters = kColours;
  std::vector<unsigned char> profile{};
};

// A profile of these primaries, and the colours in its numbers.
void use_profile(Photo& photo, const cmsCIExyYTRIPLE& primaries, cmsToneCurve* curve, bool embed) {
  const cmsCIExyY white = {0.3127, 0.3290, 1};
  cmsToneCurve* const curves[] = {curve, curve, curve};
  cmsHPROFILE profile = cmsCreateRGBProfile(&white, &primaries, curves);
  cmsHPROFILE screen = cmsCreate_sRGBProfile();
  cmsHTRANSFORM way = cmsCreateTransform(screen, TYPE_RGB_8, profile, TYPE_RGB_8,
                                         INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_NOOPTIMIZE);
  cmsDoTransform(way, kColours.data(), photo.quarters.data(), kColours.size());
  cmsUInt32Number length = 0;
  cmsSaveProfileToMem(profile, nullptr, &length);
  photo.profile.resize(embed ? length : 0);
  if (embed) {
    cmsSaveProfileToMem(profile, photo.profile.data(), &length);
  }
  cmsDeleteTransform(way);
  cmsCloseProfile(screen);
  cmsCloseProfile(profile);
  cmsFreeToneCurve(curve);
}

constexpr cmsCIExyYTRIPLE kAdobe = {{0.64, 0.33, 1}, {0.21, 0.71, 1}, {0.15, 0.06, 1}};
constexpr cmsCIExyYTRIPLE kP3 = {{0.680, 0.320, 1}, {0.265, 0.690, 1}, {0.150, 0.060, 1}};
constexpr cmsCIExyYTRIPLE kScreen = {{0.64, 0.33, 1}, {0.30, 0.60, 1}, {0.15, 0.06, 1}};

cmsToneCurve* screen_curve() {
  const double parameters[] = {2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045};
  return cmsBuildParametricToneCurve(nullptr, 4, parameters);
}

bool use_kind(Photo& photo, const std::string& kind) {
  constexpr double kAdobeGamma = 2.19921875;
  if (kind.starts_with("exif-")) {
    photo.orientation = std::atoi(kind.c_str() + 5);
    return photo.orientation >= 1 && photo.orientation <= 8;
  }
  if (kind == "adobe-rgb") {
    use_profile(photo, kAdobe, cmsBuildGamma(nullptr, kAdobeGamma), true);
  } else if (kind == "display-p3") {
    use_profile(photo, kP3, screen_curve(), true);
  } else if (kind == "wide-gamma") {
    use_profile(photo, kScreen, cmsBuildGamma(nullptr, 1.8), true);
  } else if (kind == "adobe-mark") {
    use_profile(photo, kAdobe, cmsBuildGamma(nullptr, kAdobeGamma), false);
    photo.marked = true;
  } else if (kind == "gamma-1") {
    use_profile(photo, kScreen, cmsBuildGamma(nullptr, 1), false);
    photo.gamma = 1;
  } else {
    return kind == "plain";
  }
  return true;
}

std::vector<unsigned char> pixels(const Photo& photo) {
  const auto& lying = kLying.at(static_cast<std::size_t>(photo.orientation));
  std::vector<unsigned char> out;
  for (int y = 0; y < photo.height; ++y) {
    for (int x = 0; x < photo.width; ++x) {
      const std::size_t place =
          (x >= photo.width / 2 ? 1U : 0U) + (y >= photo.height / 2 ? 2U : 0U);
      const Rgb& colour = photo.quarters.at(lying.at(place));
      out.insert(out.end(), colour.begin(), colour.end());
    }
  }
  return out;
}

void put_field(std::string& tiff, int tag, int type, int count, const std::string& value) {
  const auto two = [&tiff](int number) {
    tiff += static_cast<char>(number >> 8);
    tiff += static_cast<char>(number);
  };
  two(tag);
  two(type);
  two(0);
  two(count);
  tiff += value;
}

// A TIFF file: the orientation, and, in two directories behind it, the mark.
std::string exif_of(const Photo& photo) {
  std::string tiff("Exif\0\0MM\0*\0\0\0\x08", 14);
  if (photo.marked) {
    tiff += std::string("\0\1", 2);
    put_field(tiff, 0x8769, 4, 1, std::string("\0\0\0\x1A", 4));
    tiff += std::string("\0\0\0\0\0\1", 6);
    put_field(tiff, 0xA005, 4, 1, std::string("\0\0\0\x2C", 4));
    tiff += std::string("\0\0\0\0\0\1", 6);
    put_field(tiff, 1, 2, 4, std::string("R03\0", 4));
  } else {
    tiff += std::string("\0\1", 2);
    put_field(tiff, 0x112, 3, 1,
              std::string("\0", 1) + static_cast<char>(photo.orientation) + std::string("\0\0", 2));
  }
  return tiff + std::string("\0\0\0\0", 4);
}

bool write_jpeg(std::FILE* file, const Photo& photo) {
  std::vector<unsigned char> rgb = pixels(photo);
  jpeg_error_mgr errors;
  jpeg_compress_struct jpeg;
  jpeg.err = jpeg_std_error(&errors);
  jpeg_create_compress(&jpeg);
  jpeg_stdio_dest(&jpeg, file);
  jpeg.image_width = static_cast<JDIMENSION>(photo.width);
  jpeg.image_height = static_cast<JDIMENSION>(photo.height);
  jpeg.input_components = 3;
  jpeg.in_color_space = JCS_RGB;
  jpeg_set_defaults(&jpeg);
  jpeg_set_quality(&jpeg, 100, TRUE);
  jpeg_start_compress(&jpeg, TRUE);
  if (photo.orientation > 0 || photo.marked) {
    const std::string exif = exif_of(photo);
    jpeg_write_marker(&jpeg, JPEG_APP0 + 1, reinterpret_cast<const JOCTET*>(exif.data()),
                      static_cast<unsigned>(exif.size()));
  }
  if (!photo.profile.empty()) {
    jpeg_write_icc_profile(&jpeg, photo.profile.data(),
                           static_cast<unsigned>(photo.profile.size()));
  }
  for (std::size_t y = 0; y < static_cast<std::size_t>(photo.height); ++y) {
    unsigned char* lines[] = {&rgb[y * static_cast<std::size_t>(photo.width) * 3]};
    jpeg_write_scanlines(&jpeg, lines, 1);
  }
  jpeg_finish_compress(&jpeg);
  jpeg_destroy_compress(&jpeg);
  return true;
}

bool write_png(std::FILE* file, const Photo& photo) {
  std::vector<unsigned char> rgb = pixels(photo);
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  png_init_io(png, file);
  png_set_compression_level(png, 1);
  png_set_IHDR(png, info, static_cast<png_uint_32>(photo.width),
               static_cast<png_uint_32>(photo.height), 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
               PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  if (photo.gamma > 0) {
    png_set_gAMA(png, info, 1 / photo.gamma);
  }
  if (!photo.profile.empty()) {
    png_set_iCCP(png, info, "photo", PNG_COMPRESSION_TYPE_BASE, photo.profile.data(),
                 static_cast<png_uint_32>(photo.profile.size()));
  }
  png_write_info(png, info);
  for (std::size_t y = 0; y < static_cast<std::size_t>(photo.height); ++y) {
    png_write_row(png, &rgb[y * static_cast<std::size_t>(photo.width) * 3]);
  }
  png_write_end(png, info);
  png_destroy_write_struct(&png, &info);
  return true;
}

bool write_ppm(std::FILE* file, const Photo& photo) {
  const std::vector<unsigned char> rgb = pixels(photo);
  std::fprintf(file, "P6\n%d %d\n255\n", photo.width, photo.height);
  return std::fwrite(rgb.data(), 1, rgb.size(), file) == rgb.size();
}

}  // namespace

int main(int argc, char** argv) {
  Photo photo{argc == 5 ? std::atoi(argv[2]) : 0, argc == 5 ? std::atoi(argv[3]) : 0};
  if (photo.width <= 0 || photo.height <= 0 || !use_kind(photo, argv[4])) {
    std::fprintf(stderr, "usage: make-photo FILE.jpg|.png|.ppm WIDTH HEIGHT KIND\n");
    return 2;
  }
  if (photo.orientation >= 5) {
    std::swap(photo.width, photo.height);
  }
  const std::string name = argv[1];
  const FileHandle file(std::fopen(argv[1], "wb"));
  if (!file) {
    std::perror(argv[1]);
    return 1;
  }
  if (name.ends_with(".jpg")) {
    return write_jpeg(file.get(), photo) ? 0 : 1;
  }
  return (name.ends_with(".png") ? write_png(file.get(), photo) : write_ppm(file.get(), photo)) ? 0
                                                                                                : 1;
}
