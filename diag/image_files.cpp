// SPDX-License-Identifier: Apache-2.0
#include "diag/image_files.h"

#include <sys/stat.h>

#include <cstdint>
#include <cstdio>
#include <ctime>
#include <limits>

namespace {

long width_of(const tagMVBandImageParams* image) {
  return image == nullptr ? 0 : static_cast<long>(rect_width(image->rcBand));
}

long height_of(const tagMVBandImageParams* image) {
  return image == nullptr ? 0 : static_cast<long>(rect_height(image->rcBand));
}

std::uint64_t line_bytes(const tagMVBandImageParams* image) {
  const auto stride = static_cast<std::uint64_t>(image->lStride);
  return image->lStride < 0 ? 0 - stride : stride;
}

// A band without width has no depth either: 0.
long bits_per_pixel_of(const tagMVBandImageParams* image) {
  const long width = width_of(image);
  if (image == nullptr || width == 0) {
    return 0;
  }
  const auto stride = static_cast<std::int64_t>(line_bytes(image));
  return static_cast<long>(static_cast<std::uint64_t>(stride / width) * 8);
}

// The next number of this process, from 0; wraps rather than overflow.
int next_count() {
  static int s_count = 0;
  const int count = s_count;
  s_count = count == std::numeric_limits<int>::max() ? 0 : count + 1;
  return count;
}

// The length of the expansion, of which at most room − 1 bytes and a zero are written; negative
// when it could not be made.
int expand_time(char* out, std::size_t room) {
  char text[64] = "(no_time)";
  const std::time_t now = std::time(nullptr);
  if (const std::tm* local = std::localtime(&now); local != nullptr) {
    text[0] = '\0';
    if (std::strftime(text, sizeof text, "%Y%m%d_%H%M%S", local) == 0) {
      text[0] = '\0';  // GCOVR_EXCL_LINE: no time needs the 64 bytes
    }
  }
  return std::snprintf(out, room, "%s", text);
}

int expand(char letter, char* out, std::size_t room, const tagMVBandImageParams* image) {
  switch (letter) {
    case 'B':
      return std::snprintf(out, room, "%ld", bits_per_pixel_of(image));
    case 'C':
      return std::snprintf(out, room, "%04d", next_count());
    case 'H':
      return std::snprintf(out, room, "%ld", height_of(image));
    case 'T':
      return expand_time(out, room);
    case 'W':
      return std::snprintf(out, room, "%ld", width_of(image));
    default:
      return 0;
  }
}

}  // namespace

bool save_memory(const char* path, const void* data, unsigned long size) {
  if (path == nullptr || data == nullptr || size == 0) {
    return false;
  }
  std::FILE* file = std::fopen(path, "wb");
  if (file == nullptr) {
    return false;
  }
  const std::size_t written = std::fwrite(data, 1, size, file);
  std::printf("written: %ld bytes.\n", static_cast<long>(written));
  // What the stream still holds may fail to reach the file: closing tells.
  const bool closed = std::fclose(file) == 0;
  if (written < size || !closed) {
    return false;
  }
  chmod(path, 0666);
  return true;
}

bool save_image_as_raw(const char* name_template, const tagMVBandImageParams* image) {
  char name[1024];
  if (image == nullptr || !format_string_util(name, sizeof name, name_template, image)) {
    return false;
  }
  const std::int64_t height = rect_height(image->rcBand);
  std::uint64_t size = 0;
  if (height < 0 ||
      __builtin_mul_overflow(line_bytes(image), static_cast<std::uint64_t>(height), &size)) {
    return false;
  }
  return save_memory(name, image->pBits, size);
}

bool format_string_util(char* out, unsigned long size, const char* name_template,
                        const tagMVBandImageParams* image) {
  if (out == nullptr || size == 0) {
    return false;
  }
  const std::size_t limit = size - 1;  // keeps the terminating zero's place
  std::size_t position = 0;
  bool letter_follows = false;
  bool fits = name_template != nullptr;
  for (const char* c = name_template; fits && *c != '\0'; ++c) {
    if (letter_follows) {
      letter_follows = false;
      const std::size_t room = limit - position;
      const int length = expand(*c, out + position, room, image);
      // An expansion that fills the room to its end has lost its last character to the zero.
      if (length < 0 || (length > 0 && static_cast<std::size_t>(length) >= room)) {
        fits = false;
      } else {
        position += static_cast<std::size_t>(length);
      }
    } else if (*c == '%') {
      letter_follows = true;
    } else if (position < limit) {
      out[position++] = *c;
    } else {
      fits = false;
    }
  }
  out[position] = '\0';
  return fits;
}
