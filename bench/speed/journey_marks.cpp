// SPDX-License-Identifier: Apache-2.0
//
// Preloaded into the filter: when it makes the calls that take time, and how long each takes. What
// was noted stays in memory until the process ends, and is then written to its standard error, a
// line each:
//
//   DEBUG: mark BEGIN END WAITED CALLS NAME
//
// BEGIN and END are microseconds since 1970, WAITED those of them that the process spent in reading
// the raster (waiting for it included). Calls of one name that follow each other are one line, from
// the first one's beginning to the last one's end.
#include <cups/backend.h>
#include <cups/cups.h>
#include <cups/ppd.h>
#include <cups/raster.h>
#include <cups/sidechannel.h>
#include <dlfcn.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <ctime>

#include "image/mv_change_image.h"

namespace {

struct Mark {
  const char* name;
  std::int64_t begin;
  std::int64_t end;
  std::int64_t waited;
  std::int64_t calls;
};

// A sheet makes 18 marks: more than any job that is measured.
std::array<Mark, 512> g_marks;
std::size_t g_count = 0;
std::int64_t g_waited = 0;  // since the last mark

// Microseconds since 1970, by the clock that the scheduler's log goes by.
std::int64_t now() {
  constexpr std::int64_t kPerSecond = 1'000'000;
  constexpr std::int64_t kNanoseconds = 1'000;
  std::timespec time{};
  clock_gettime(CLOCK_REALTIME, &time);
  return time.tv_sec * kPerSecond + time.tv_nsec / kNanoseconds;
}

// Names are literals of this file, and each stands in one place: the same name has one address.
void note(const char* name, std::int64_t begin, std::int64_t end) {
  const std::int64_t waited = g_waited;
  g_waited = 0;
  if (g_count > 0 && g_marks[g_count - 1].name == name) {
    Mark& last = g_marks[g_count - 1];
    last.end = end;
    last.waited += waited;
    ++last.calls;
  } else if (g_count < g_marks.size()) {
    g_marks[g_count++] = {name, begin, end, waited, 1};
  }
}

// Calls the function that this library stands before, and notes the call.
template <typename Function, typename... Arguments>
auto noted(const char* name, Function real, Arguments... arguments) {
  const std::int64_t begin = now();
  const auto result = real(arguments...);
  note(name, begin, now());
  return result;
}

template <typename Function>
Function next(Function /*like*/, const char* symbol) {
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, symbol));
}

__attribute__((constructor)) void note_start() {
  const std::int64_t time = now();
  note("loaded", time, time);
}

__attribute__((destructor)) void write_marks() {
  const std::int64_t time = now();
  note("end", time, time);
  static std::array<char, 65536> text;
  std::size_t length = 0;
  // In one piece, which delays the end of the process the least.
  for (std::size_t i = 0; i < g_count && length < text.size(); ++i) {
    const Mark& mark = g_marks[i];
    length += static_cast<std::size_t>(std::snprintf(
        text.data() + length, text.size() - length, "DEBUG: mark %lld %lld %lld %lld %s\n",
        static_cast<long long>(mark.begin), static_cast<long long>(mark.end),
        static_cast<long long>(mark.waited), static_cast<long long>(mark.calls), mark.name));
  }
  if (write(STDERR_FILENO, text.data(), std::min(length, text.size())) < 0) {
    _exit(1);
  }
}

}  // namespace

extern "C" {

ssize_t read(int file, void* buffer, size_t size) {
  static const auto real = next(&read, "read");
  if (file != STDIN_FILENO) {
    return real(file, buffer, size);
  }
  const std::int64_t begin = now();
  const ssize_t result = real(file, buffer, size);
  g_waited += now() - begin;
  return result;
}

cups_raster_t* cupsRasterOpen(int file, cups_mode_t mode) {
  static const auto real = next(&cupsRasterOpen, "cupsRasterOpen");
  return noted("open raster", real, file, mode);
}

ppd_file_t* ppdOpenFile(const char* path) {
  static const auto real = next(&ppdOpenFile, "ppdOpenFile");
  return noted("open PPD", real, path);
}

cups_sc_status_t cupsSideChannelDoRequest(cups_sc_command_t command, char* data, int* length,
                                          double timeout) {
  static const auto real = next(&cupsSideChannelDoRequest, "cupsSideChannelDoRequest");
  return noted(command == CUPS_SC_CMD_GET_BIDI ? "ask for bidi" : "drain", real, command, data,
               length, timeout);
}

ssize_t cupsBackChannelRead(char* buffer, size_t size, double timeout) {
  static const auto real = next(&cupsBackChannelRead, "cupsBackChannelRead");
  return noted("read answer", real, buffer, size, timeout);
}

int cupsGetDests(cups_dest_t** destinations) {
  static const auto real = next(&cupsGetDests, "cupsGetDests");
  return noted("ask for reasons", real, destinations);
}

unsigned cupsRasterReadHeader(cups_raster_t* raster, cups_page_header_t* header) {
  static const auto real = next(&cupsRasterReadHeader, "cupsRasterReadHeader");
  return noted("read page header", real, raster, header);
}

unsigned cupsRasterReadPixels(cups_raster_t* raster, unsigned char* pixels, unsigned length) {
  static const auto real = next(&cupsRasterReadPixels, "cupsRasterReadPixels");
  return noted("read lines", real, raster, pixels, length);
}

long MVChangeImage(const tagMVBandImageParams* source, const tagMVChangeParams* params,
                   tagMVBandImageParams* destination, tagMVBandImageParams* matte,
                   unsigned char* rgbRate, unsigned char* opRate) {
  static const auto real = next(&MVChangeImage, "MVChangeImage");
  return noted("convert", real, source, params, destination, matte, rgbRate, opRate);
}

size_t fwrite(const void* bytes, size_t size, size_t count, FILE* stream) {
  static const auto real = next(&fwrite, "fwrite");
  return stream == stdout ? noted("write", real, bytes, size, count, stream)
                          : real(bytes, size, count, stream);
}

int fflush(FILE* stream) {
  static const auto real = next(&fflush, "fflush");
  return stream == stdout ? noted("flush", real, stream) : real(stream);
}

unsigned int sleep(unsigned int seconds) {
  static const auto real = next(&sleep, "sleep");
  return noted("pause", real, seconds);
}

void ppdClose(ppd_file_t* ppd) {
  static const auto real = next(&ppdClose, "ppdClose");
  const std::int64_t begin = now();
  real(ppd);
  note("close PPD", begin, now());
}

}  // extern "C"
