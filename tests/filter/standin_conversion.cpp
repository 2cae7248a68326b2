// SPDX-License-Identifier: Apache-2.0
//
// A conversion library whose pixels a test can work out by hand. It takes the place of the real one
// beside the filter under test.
//
//   sample of channel c    64 × byte + c
//   matte byte at (x, y)   (5 x + 3 y + 16 × call) mod 256, call counted from 1
//
// Settings come from the environment:
//   FILTER_TEST_CALLS      file that every call is noted in
//   FILTER_TEST_RATES      "rgb op" of each call in turn; 33 and 44 when there are none (left)
//   FILTER_TEST_RETURNS    return value of each call in turn; 0 when there are none (left)
//   FILTER_TEST_TERM_CALL  the call during which SIGTERM arrives, counted from 1
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <string>

#include "image/mv_change_image.h"

namespace {

std::istringstream Setting(const char* name) {
  const char* text = std::getenv(name);
  return std::istringstream(text == nullptr ? "" : text);
}

long Numbered(const char* name, int position, long otherwise) {
  std::istringstream text = Setting(name);
  long value = otherwise;
  for (int i = 0; i <= position; ++i) {
    if (!(text >> value)) {
      return otherwise;
    }
  }
  return value;
}

bool AllOnes(const tagMVBandImageParams& band, std::int64_t bytes) {
  for (std::int64_t i = 0; i < bytes; ++i) {
    if (band.pBits[i] != 0xFF) {
      return false;
    }
  }
  return true;
}

std::string Describe(const char* name, const tagMVBandImageParams* band, std::int64_t bytesPerPixel,
                     bool tell_blank) {
  if (band == nullptr) {
    return std::string(name) + " none\n";
  }
  const MV_TYPEDEF::tagRECT& rect = band->rcBand;
  const std::int64_t bytes = (rect.right - rect.left) * (rect.bottom - rect.top) * bytesPerPixel;
  std::ostringstream out;
  out << name << " stride " << band->lStride << " rect " << rect.left << ' ' << rect.top << ' '
      << rect.right << ' ' << rect.bottom;
  if (tell_blank) {
    out << (AllOnes(*band, bytes) ? " blank" : " not blank");
  }
  out << '\n';
  return out.str();
}

std::string Describe(const tagMVChangeParams& params) {
  std::ostringstream out;
  out << "params " << params.lParam0 << ' ' << params.nParam8 << ' ' << params.dwFlags << ' '
      << params.pszModulePath << ' ' << params.wParam32 << " tone";
  for (const std::int16_t value : params.nTone) {
    out << ' ' << value;
  }
  out << " options";
  for (const std::uint8_t value : params.byOption) {
    out << ' ' << static_cast<int>(value);
  }
  out << " sharpness " << params.nSharpness << '\n';
  return out.str();
}

void Note(const std::string& text) {
  const char* path = std::getenv("FILTER_TEST_CALLS");
  std::FILE* file = path == nullptr ? nullptr : std::fopen(path, "a");
  if (file != nullptr) {
    std::fputs(text.c_str(), file);
    std::fclose(file);
  }
}

// Both bands are made with the top row first, so their buffers are walked from the start.
void ConvertPixels(const tagMVBandImageParams& source, const tagMVBandImageParams& destination) {
  const std::int64_t samples =
      source.rcBand.right * source.rcBand.bottom * 3;  // the page's rectangle starts at 0, 0
  for (std::int64_t i = 0; i < samples; ++i) {
    const unsigned sample = source.pBits[i] * 64U + static_cast<unsigned>(i % 3);
    destination.pBits[2 * i] = static_cast<unsigned char>(sample & 0xFF);
    destination.pBits[2 * i + 1] = static_cast<unsigned char>(sample >> 8);
  }
}

void FillMatte(const tagMVBandImageParams& matte, int call) {
  unsigned char* out = matte.pBits;
  for (std::int64_t y = 0; y < matte.rcBand.bottom; ++y) {
    for (std::int64_t x = 0; x < matte.rcBand.right; ++x) {
      *out++ = static_cast<unsigned char>((5 * x + 3 * y + std::int64_t{16} * call) & 0xFF);
    }
  }
}

}  // namespace

long MVChangeImage(const tagMVBandImageParams* source, const tagMVChangeParams* params,
                   tagMVBandImageParams* destination, tagMVBandImageParams* matte,
                   unsigned char* rgbRate, unsigned char* opRate) {
  static int calls = 0;
  ++calls;
  Note("call " + std::to_string(calls) + "\n" + Describe("source", source, 3, false) +
       Describe(*params) + Describe("destination", destination, 6, true) +
       Describe("matte", matte, 1, true) + "rates " + std::to_string(*rgbRate) + " " +
       std::to_string(*opRate) + "\n");
  if (Numbered("FILTER_TEST_TERM_CALL", 0, 0) == calls) {
    static_cast<void>(std::raise(SIGTERM));
  }
  ConvertPixels(*source, *destination);
  if (matte != nullptr) {
    FillMatte(*matte, calls);
  }
  *rgbRate = static_cast<unsigned char>(Numbered("FILTER_TEST_RATES", 2 * (calls - 1), 33));
  *opRate = static_cast<unsigned char>(Numbered("FILTER_TEST_RATES", 2 * (calls - 1) + 1, 44));
  return Numbered("FILTER_TEST_RETURNS", calls - 1, 0);
}
