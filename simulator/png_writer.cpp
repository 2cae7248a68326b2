// SPDX-License-Identifier: Apache-2.0
#include "simulator/png_writer.h"

#include <fcntl.h>
#include <png.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csetjmp>
#include <cstring>

#include "simulator/wording.h"

namespace simulator {
namespace {

constexpr png_uint_32 kDotsPerMetre = 11811;  // 300 dpi
// Takes little time, for files that are about a tenth larger than with the slow levels.
constexpr int kCompressionLevel = 2;

// Why libpng stopped.
struct Failure {
  int errorNumber;
  std::array<char, 128> message;
};

// libpng expects that this call does not return. It jumps into the functions below, whose variables
// need no destruction.
[[noreturn]] void on_error(png_structp png, png_const_charp message) {
  auto* const failure = static_cast<Failure*>(png_get_error_ptr(png));
  std::snprintf(failure->message.data(), failure->message.size(), "%s", message);
  png_longjmp(png, 1);
}

void on_warning(png_structp /*png*/, png_const_charp /*message*/) {}

void write_bytes(png_structp png, png_bytep bytes, std::size_t count) {
  auto* const file = static_cast<std::FILE*>(png_get_io_ptr(png));
  if (std::fwrite(bytes, 1, count, file) != count) {
    static_cast<Failure*>(png_get_error_ptr(png))->errorNumber = errno;
    png_error(png, "write failed");
  }
}

void flush_bytes(png_structp /*png*/) {}

// setjmp is libpng's way to report errors.
// NOLINTBEGIN(cert-err52-cpp)
bool begin_png(png_structp png, png_infop info, std::FILE* file, png_uint_32 width,
               png_uint_32 height, Meaning meaning) {
  if (setjmp(png_jmpbuf(png)) != 0) {
    return false;
  }
  png_set_write_fn(png, file, write_bytes, flush_bytes);
  png_set_compression_level(png, kCompressionLevel);
  png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_SUB);
  png_set_IHDR(png, info, width, height, 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
               PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  png_set_pHYs(png, info, kDotsPerMetre, kDotsPerMetre, PNG_RESOLUTION_METER);
  if (meaning == Meaning::ScreenColours) {
    png_set_sRGB(png, info, PNG_sRGB_INTENT_RELATIVE);
  }
  png_write_info(png, info);
  return true;
}

bool write_png_row(png_structp png, const std::uint8_t* row) {
  if (setjmp(png_jmpbuf(png)) != 0) {
    return false;
  }
  png_write_row(png, row);
  return true;
}

bool end_png(png_structp png, png_infop info) {
  if (setjmp(png_jmpbuf(png)) != 0) {
    return false;
  }
  png_write_end(png, info);
  return true;
}
// NOLINTEND(cert-err52-cpp)

}  // namespace

struct PngWriter::Encoder {
  Encoder() : png(png_create_write_struct(PNG_LIBPNG_VER_STRING, &failure, on_error, on_warning)) {
    info = png != nullptr ? png_create_info_struct(png) : nullptr;
  }
  Encoder(const Encoder&) = delete;
  Encoder& operator=(const Encoder&) = delete;
  ~Encoder() { png_destroy_write_struct(&png, &info); }

  std::string Reason() const {
    return failure.errorNumber != 0 ? error_words(failure.errorNumber) : failure.message.data();
  }

  Failure failure{};
  png_structp png;
  png_infop info;
};

PngWriter::PngWriter(const std::filesystem::path& folder, std::uint32_t width, std::uint32_t height,
                     Meaning meaning)
    : temporaryPath_(folder / (".sheet-" + std::to_string(::getpid()) + ".part")),
      encoder_(std::make_unique<Encoder>()) {
  // Does not follow a link that someone put under the hidden name.
  const int descriptor =
      ::open(temporaryPath_.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, 0666);
  file_.reset(descriptor >= 0 ? ::fdopen(descriptor, "wb") : nullptr);
  if (file_ == nullptr) {
    Fail(error_words(errno));
  } else if (encoder_->info == nullptr) {
    Fail("no memory for the PNG");
  } else if (!begin_png(encoder_->png, encoder_->info, file_.get(), width, height, meaning)) {
    Fail(encoder_->Reason());
  }
}

PngWriter::~PngWriter() {
  Remove();
}

void PngWriter::WriteRow(std::span<const std::uint8_t> row) {
  if (error_.empty() && !write_png_row(encoder_->png, row.data())) {
    Fail(encoder_->Reason());
  }
}

bool PngWriter::Finish(const std::filesystem::path& finalPath) {
  if (!error_.empty()) {
    return false;
  }
  if (!end_png(encoder_->png, encoder_->info)) {
    Fail(encoder_->Reason());
    return false;
  }
  if (std::fclose(file_.release()) != 0 ||
      std::rename(temporaryPath_.c_str(), finalPath.c_str()) != 0) {
    const int errorNumber = errno;
    ::unlink(temporaryPath_.c_str());
    Fail(error_words(errorNumber));
    return false;
  }
  return true;
}

void PngWriter::Fail(const std::string& reason) {
  error_ = reason;
  Remove();
}

void PngWriter::Remove() {
  if (file_ != nullptr) {
    file_.reset();
    ::unlink(temporaryPath_.c_str());
  }
}

}  // namespace simulator
