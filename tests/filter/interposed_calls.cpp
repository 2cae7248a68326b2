// SPDX-License-Identifier: Apache-2.0
//
// Preloaded into the filter: pauses and naps that pass at once, a clock that stands still but for
// them, waits on the scheduler's channels that can be shortened, and memory that can be refused.
// What was asked for is noted, so that a test can hold it against what the filter should ask for.
// A filter that counts its lines for coverage writes its counts when it ends at once, too.
//
// Settings come from the environment:
//   FILTER_TEST_NOTES       file that every sleep and every wait on a channel is noted in
//   FILTER_TEST_CLOCK       the local time at the start, "2026 3 4 5 6 7"
//   FILTER_TEST_TIME        the time in seconds, whose local time is the system's own
//   FILTER_TEST_LOCALE      "early": the locale of the environment holds from the start, as if a
//                           library that the filter loads had set it
//   FILTER_TEST_WAIT_SCALE  factor on every wait on the side channel, such as 0.05
//   FILTER_TEST_READ_SCALE  the same on the back channel
//   FILTER_TEST_MOST_WAIT   most milliseconds of any other wait, such as libcups' for the scheduler
//   FILTER_TEST_READS       results of the back channel's reads in turn: a number, "0*4000" for so
//                           many empty reads, or "real"
//   FILTER_TEST_TERM_SLEEP  the sleep during which SIGTERM arrives, counted from 1
//   FILTER_TEST_REASONS     a default destination with these state reasons
//   FILTER_TEST_DEFAULT     "bare": a default destination without state reasons
//   FILTER_TEST_SHORT_WRITE "items result": the first write of so many bytes on standard output
//                           writes nothing and has this result
//   FILTER_TEST_NO_MEMORY   "bytes count": refuse the count-th array of this many bytes
//   FILTER_TEST_NO_RASTER   "header 2" or "line 5": libcups has no memory for this header or line,
//                           counted from 1 over the job, nor for any after it
#include <cups/cups.h>
#include <cups/raster.h>
#include <cups/sidechannel.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <poll.h>
#include <stdio_ext.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <clocale>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <new>

namespace {

constexpr std::time_t kFrozenTime = 1234567890;

unsigned int g_slept = 0;
int g_sleeps = 0;

const char* Setting(const char* name) {
  return std::getenv(name);
}

template <typename Function>
Function Real(const char* symbol) {
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, symbol));
}

__attribute__((format(printf, 1, 2))) void Note(const char* format, ...) {
  const char* path = Setting("FILTER_TEST_NOTES");
  if (path == nullptr) {
    return;
  }
  char line[128];
  va_list arguments;
  va_start(arguments, format);
  const int length = std::vsnprintf(line, sizeof line, format, arguments);
  va_end(arguments);
  const int file = open(path, O_WRONLY | O_CREAT | O_APPEND, 0600);
  if (file >= 0 && write(file, line, static_cast<std::size_t>(length)) != length) {
    std::abort();
  }
  close(file);
}

double Scaled(double seconds, const char* setting) {
  const char* scale = Setting(setting);
  return scale == nullptr ? seconds : seconds * std::atof(scale);
}

/// The result that the setting gives for this read, or false when the read is to be made.
bool ScriptedRead(ssize_t* result) {
  static const char* entry = Setting("FILTER_TEST_READS");
  static long repeated = 0;
  if (entry == nullptr || *entry == '\0') {
    return false;
  }
  const bool real = std::strncmp(entry, "real", 4) == 0;
  char* end = nullptr;
  *result = std::strtol(entry, &end, 10);
  const long times = !real && *end == '*' ? std::atol(end + 1) : 1;
  if (++repeated >= times) {
    repeated = 0;
    entry = std::strchr(entry, ' ');
    entry = entry == nullptr ? nullptr : entry + 1;
  }
  return !real;
}

__attribute__((constructor)) void SetLocale() {
  if (Setting("FILTER_TEST_LOCALE") != nullptr && std::setlocale(LC_ALL, "") == nullptr) {
    std::abort();
  }
}

bool RefuseArray(std::size_t bytes) {
  static int seen = 0;
  const char* setting = Setting("FILTER_TEST_NO_MEMORY");
  if (setting == nullptr) {
    return false;
  }
  char* end = nullptr;
  const unsigned long long refused = std::strtoull(setting, &end, 10);
  return bytes == refused && ++seen == std::atoi(end);
}

/// Whether libcups has no memory for this header or line.
bool RefuseRaster(const char* kind, long number) {
  const char* setting = Setting("FILTER_TEST_NO_RASTER");
  const std::size_t length = std::strlen(kind);
  if (setting == nullptr || std::strncmp(setting, kind, length) != 0 ||
      number < std::atol(setting + length)) {
    return false;
  }
  errno = ENOMEM;
  return true;
}

using WriteCounts = void (*)();

// Looked up at the start: _exit may come from a signal's handler.
const WriteCounts g_write_counts =
    reinterpret_cast<WriteCounts>(dlsym(RTLD_DEFAULT, "__gcov_dump"));

}  // namespace

extern "C" void _exit(int status) {
  if (g_write_counts != nullptr) {
    g_write_counts();
  }
  syscall(SYS_exit_group, status);
  __builtin_unreachable();
}

extern "C" unsigned int sleep(unsigned int seconds) {
  Note("sleep %u, %s\n", seconds, __fpending(stdout) > 0 ? "output held back" : "output flushed");
  char line[32];
  const int length = std::snprintf(line, sizeof line, "[sleep %u]\n", seconds);
  if (write(STDERR_FILENO, line, static_cast<std::size_t>(length)) != length) {
    Note("standard error does not take a line\n");
  }
  g_slept += seconds;
  const char* term = Setting("FILTER_TEST_TERM_SLEEP");
  if (++g_sleeps == (term == nullptr ? 0 : std::atoi(term))) {
    static_cast<void>(std::raise(SIGTERM));
  }
  return 0;
}

// A wait for nothing but time is a nap.
extern "C" int poll(pollfd* polls, nfds_t count, int timeout) {
  if (count == 0) {
    Note("nap %d ms\n", timeout);
    return 0;
  }
  const char* most = Setting("FILTER_TEST_MOST_WAIT");
  const int wait = most == nullptr ? timeout : std::min(timeout, std::atoi(most));
  return Real<int (*)(pollfd*, nfds_t, int)>("poll")(polls, count, wait);
}

extern "C" std::time_t time(std::time_t* result) {
  const char* setting = Setting("FILTER_TEST_TIME");
  const std::time_t now = setting == nullptr ? kFrozenTime : std::atol(setting);
  if (result != nullptr) {
    *result = now;
  }
  return now;
}

extern "C" std::tm* localtime(const std::time_t* when) {
  static std::tm local;
  const char* clock = Setting("FILTER_TEST_CLOCK");
  if (clock == nullptr || *when != kFrozenTime) {
    return Real<std::tm* (*)(const std::time_t*)>("localtime")(when);
  }
  local = {};
  if (std::sscanf(clock, "%d %d %d %d %d %d", &local.tm_year, &local.tm_mon, &local.tm_mday,
                  &local.tm_hour, &local.tm_min, &local.tm_sec) != 6) {
    std::abort();
  }
  local.tm_year -= 1900;
  local.tm_mon -= 1;
  local.tm_sec += static_cast<int>(g_slept);
  return &local;
}

extern "C" cups_sc_status_t cupsSideChannelDoRequest(cups_sc_command_t command, char* data,
                                                     int* length, double timeout) {
  Note("side channel %d, room %d, %.1f s\n", static_cast<int>(command), *length, timeout);
  using DoRequest = cups_sc_status_t (*)(cups_sc_command_t, char*, int*, double);
  return Real<DoRequest>("cupsSideChannelDoRequest")(command, data, length,
                                                     Scaled(timeout, "FILTER_TEST_WAIT_SCALE"));
}

extern "C" ssize_t cupsBackChannelRead(char* buffer, size_t bytes, double timeout) {
  Note("back channel, room %zu, %.1f s\n", bytes, timeout);
  ssize_t result = 0;
  if (ScriptedRead(&result)) {
    return result;
  }
  using Read = ssize_t (*)(char*, size_t, double);
  return Real<Read>("cupsBackChannelRead")(buffer, bytes,
                                           Scaled(timeout, "FILTER_TEST_READ_SCALE"));
}

extern "C" unsigned cupsRasterReadHeader(cups_raster_t* raster, cups_page_header_t* header) {
  static long headers = 0;
  using Read = unsigned (*)(cups_raster_t*, cups_page_header_t*);
  return RefuseRaster("header ", ++headers) ? 0
                                            : Real<Read>("cupsRasterReadHeader")(raster, header);
}

extern "C" unsigned cupsRasterReadPixels(cups_raster_t* raster, unsigned char* line,
                                         unsigned bytes) {
  static long lines = 0;
  static const auto real =
      Real<unsigned (*)(cups_raster_t*, unsigned char*, unsigned)>("cupsRasterReadPixels");
  return RefuseRaster("line ", ++lines) ? 0 : real(raster, line, bytes);
}

extern "C" int cupsGetDests(cups_dest_t** destinations) {
  const char* reasons = Setting("FILTER_TEST_REASONS");
  const char* plain = Setting("FILTER_TEST_DEFAULT");
  if (reasons == nullptr && plain == nullptr) {
    return Real<int (*)(cups_dest_t**)>("cupsGetDests")(destinations);
  }
  *destinations = nullptr;
  int count = cupsAddDest("attic", nullptr, 0, destinations);
  count = cupsAddDest("photos", nullptr, count, destinations);
  cups_dest_t* other = cupsGetDest("attic", nullptr, count, *destinations);
  other->num_options =
      cupsAddOption("printer-state-reasons", "offline-report", other->num_options, &other->options);
  cups_dest_t* chosen = cupsGetDest("photos", nullptr, count, *destinations);
  chosen->is_default = 1;
  if (reasons != nullptr) {
    chosen->num_options =
        cupsAddOption("printer-state-reasons", reasons, chosen->num_options, &chosen->options);
  }
  return count;
}

extern "C" std::size_t fwrite(const void* data, std::size_t size, std::size_t items,
                              std::FILE* file) {
  static bool done = false;
  std::size_t refused = 0;
  std::size_t result = 0;
  const char* setting = Setting("FILTER_TEST_SHORT_WRITE");
  if (!done && setting != nullptr && file == stdout &&
      std::sscanf(setting, "%zu %zu", &refused, &result) == 2 && refused == items) {
    done = true;
    return result;
  }
  using Write = std::size_t (*)(const void*, std::size_t, std::size_t, std::FILE*);
  return Real<Write>("fwrite")(data, size, items, file);
}

// What is not refused comes from the allocator behind this one, which also takes it back.
// NOLINTNEXTLINE(cert-dcl54-cpp)
void* operator new[](std::size_t bytes) {
  if (RefuseArray(bytes)) {
    throw std::bad_alloc();
  }
  return Real<void* (*)(std::size_t)>("_Znam")(bytes);
}

void* operator new[](std::size_t bytes, const std::nothrow_t&) noexcept {
  try {
    return operator new[](bytes);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}
