// SPDX-License-Identifier: Apache-2.0
//
// Preloaded into the filter: SIGTERM within a call of the filter's choice or of its libraries', and
// a watch over what the handler then does. What it may not do at such a moment ends the process by
// SIGABRT: take or release memory, write a message, use a stream that is in use, end by exit(), or
// return.
//
// Settings come from the environment:
//   FILTER_TEST_SIGNAL_AT     "call number moment": SIGTERM in the call of this number, counted
//                             from 1 over all pages while the filter handles the signal; the moment
//                             is "before" or "after" the call's own work. The calls: malloc (calloc
//                             and realloc too), staging (the malloc of a transfer's buffer), free,
//                             fwrite and fflush (on standard output), message (on standard error),
//                             localtime, getdests, readpixels, readreply, sidechannel, sleep;
//                             sigaction (for SIGTERM, pages or not)
//   FILTER_TEST_SIGNAL_AGAIN  when set, a second SIGTERM arrives within the handler
//   FILTER_TEST_SIGNAL_GONE   when set, SIGTERM waits until nobody reads standard output any more
//   FILTER_TEST_SECOND        milliseconds that a second of a pause lasts; none without it
#include <cups/cups.h>
#include <cups/raster.h>
#include <cups/sidechannel.h>
#include <dlfcn.h>
#include <poll.h>
#include <unistd.h>

#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

namespace {

constexpr std::size_t kStagingSize = 0x30000;

char g_call[24];
int g_number = 0;
bool g_after = false;
bool g_again = false;
bool g_gone = false;

int g_seen = 0;
volatile std::sig_atomic_t g_in_page = 0;
volatile std::sig_atomic_t g_in_handler = 0;
volatile std::sig_atomic_t g_output_calls = 0;
void (*g_handler)(int) = nullptr;

__attribute__((constructor)) void ReadSettings() {
  const char* at = std::getenv("FILTER_TEST_SIGNAL_AT");
  char moment[8] = "";
  if (at != nullptr && std::sscanf(at, "%23s %d %7s", g_call, &g_number, moment) != 3) {
    std::abort();
  }
  g_after = std::strcmp(moment, "after") == 0;
  g_again = std::getenv("FILTER_TEST_SIGNAL_AGAIN") != nullptr;
  g_gone = std::getenv("FILTER_TEST_SIGNAL_GONE") != nullptr;
}

template <typename Function>
Function Real(const char* symbol) {
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, symbol));
}

void Say(const char* text) {
  if (write(STDERR_FILENO, text, std::strlen(text)) < 0) {
    std::abort();
  }
}

void Handle(int signal_number) {
  g_in_handler = 1;
  if (g_again) {
    static_cast<void>(std::raise(SIGTERM));
  }
  g_handler(signal_number);
  Say("[the handler returned]\n");
  std::abort();
}

void Terminate() {
  constexpr int kLongestWait = 20000;  // milliseconds
  pollfd output{STDOUT_FILENO, 0, 0};
  if (g_gone && poll(&output, 1, kLongestWait) != 1) {
    std::abort();
  }
  Say("[SIGTERM]\n");
  static_cast<void>(std::raise(SIGTERM));
}

/// Stands in each call: brings SIGTERM into the one that is chosen.
class Call {
 public:
  explicit Call(const char* name, bool counts = g_in_page != 0) {
    chosen_ = counts && g_in_handler == 0 && std::strcmp(name, g_call) == 0 && ++g_seen == g_number;
    if (chosen_ && !g_after) {
      Terminate();
    }
  }
  ~Call() {
    if (chosen_ && g_after) {
      Terminate();
    }
  }
  Call(const Call&) = delete;
  Call& operator=(const Call&) = delete;

 private:
  bool chosen_;
};

/// The same in a call that the handler may not make.
class ForbiddenCall : public Call {
 public:
  explicit ForbiddenCall(const char* name) : Call(name) {
    if (g_in_handler != 0) {
      Say("[the handler calls ");
      Say(name);
      Say("]\n");
      std::abort();
    }
  }
};

/// The same in a call on standard output, which the handler may only make when none is under way.
class OutputCall {
 public:
  explicit OutputCall(const char* name) : call_((Enter(), name)) {}
  ~OutputCall() { g_output_calls = g_output_calls - (entered_ ? 1 : 0); }
  OutputCall(const OutputCall&) = delete;
  OutputCall& operator=(const OutputCall&) = delete;

 private:
  void Enter() {
    if (g_in_handler != 0 && g_output_calls != 0) {
      Say("[the handler uses standard output, which is in use]\n");
      std::abort();
    }
    g_output_calls = g_output_calls + 1;
    entered_ = true;
  }
  bool entered_ = false;
  Call call_;
};

}  // namespace

extern "C" int sigaction(int signal_number, const struct sigaction* action,
                         struct sigaction* previous) noexcept {
  using Action = int (*)(int, const struct sigaction*, struct sigaction*);
  static const auto real = Real<Action>("sigaction");
  if (signal_number != SIGTERM || action == nullptr || g_in_handler != 0) {
    return real(signal_number, action, previous);
  }
  const Call call("sigaction", true);
  struct sigaction watched = *action;
  const bool handles = action->sa_handler != SIG_DFL && action->sa_handler != SIG_IGN;
  if (handles) {
    g_handler = action->sa_handler;
    watched.sa_handler = Handle;
  }
  const int result = real(signal_number, &watched, previous);
  g_in_page = handles ? 1 : 0;
  return result;
}

#ifndef FILTER_TEST_FOREIGN_ALLOCATOR  // the sanitizers' does not let itself be watched
extern "C" void* malloc(std::size_t size) noexcept {
  static const auto real = Real<void* (*)(std::size_t)>("malloc");
  const ForbiddenCall call(size == kStagingSize ? "staging" : "malloc");
  return real(size);
}

extern "C" void* calloc(std::size_t items, std::size_t size) noexcept {
  static const auto real = Real<void* (*)(std::size_t, std::size_t)>("calloc");
  const ForbiddenCall call("malloc");
  return real(items, size);
}

extern "C" void* realloc(void* memory, std::size_t size) noexcept {
  static const auto real = Real<void* (*)(void*, std::size_t)>("realloc");
  const ForbiddenCall call("malloc");
  return real(memory, size);
}

extern "C" void free(void* memory) noexcept {
  static const auto real = Real<void (*)(void*)>("free");
  const ForbiddenCall call("free");
  real(memory);
}
#endif

extern "C" std::size_t fwrite(const void* data, std::size_t size, std::size_t items,
                              std::FILE* file) {
  using Write = std::size_t (*)(const void*, std::size_t, std::size_t, std::FILE*);
  static const auto real = Real<Write>("fwrite");
  if (file == stderr) {
    const ForbiddenCall call("message");
    return real(data, size, items, file);
  }
  if (file != stdout) {
    return real(data, size, items, file);
  }
  const OutputCall call("fwrite");
  return real(data, size, items, file);
}

extern "C" int fflush(std::FILE* file) {
  static const auto real = Real<int (*)(std::FILE*)>("fflush");
  if (file != stdout) {
    const ForbiddenCall call("fflush (other)");
    return real(file);
  }
  const OutputCall call("fflush");
  return real(file);
}

extern "C" int fprintf(std::FILE* file, const char* format, ...) {
  const ForbiddenCall call("message");
  va_list arguments;
  va_start(arguments, format);
  // NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized): it is, in the line above
  const int result = std::vfprintf(file, format, arguments);
  va_end(arguments);
  return result;
}

// What fprintf is called in a program whose calls are checked at run time.
// NOLINTNEXTLINE(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
extern "C" int __fprintf_chk(std::FILE* file, int /*flag*/, const char* format, ...) {
  const ForbiddenCall call("message");
  va_list arguments;
  va_start(arguments, format);
  // NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized): it is, in the line above
  const int result = std::vfprintf(file, format, arguments);
  va_end(arguments);
  return result;
}

extern "C" void exit(int status) noexcept {
  {
    const ForbiddenCall call("exit");
  }
  Real<void (*)(int)>("exit")(status);
  __builtin_unreachable();
}

extern "C" std::tm* localtime(const std::time_t* when) noexcept {
  const Call call("localtime");
  return Real<std::tm* (*)(const std::time_t*)>("localtime")(when);
}

extern "C" int cupsGetDests(cups_dest_t** destinations) {
  const Call call("getdests");
  return Real<int (*)(cups_dest_t**)>("cupsGetDests")(destinations);
}

extern "C" unsigned cupsRasterReadPixels(cups_raster_t* raster, unsigned char* pixels,
                                         unsigned length) {
  const Call call("readpixels");
  using Read = unsigned (*)(cups_raster_t*, unsigned char*, unsigned);
  return Real<Read>("cupsRasterReadPixels")(raster, pixels, length);
}

extern "C" ssize_t cupsBackChannelRead(char* buffer, size_t bytes, double timeout) {
  const Call call("readreply");
  using Read = ssize_t (*)(char*, size_t, double);
  return Real<Read>("cupsBackChannelRead")(buffer, bytes, timeout);
}

extern "C" cups_sc_status_t cupsSideChannelDoRequest(cups_sc_command_t command, char* data,
                                                     int* length, double timeout) {
  const Call call("sidechannel");
  using DoRequest = cups_sc_status_t (*)(cups_sc_command_t, char*, int*, double);
  return Real<DoRequest>("cupsSideChannelDoRequest")(command, data, length, timeout);
}

extern "C" unsigned int sleep(unsigned int seconds) {
  const Call call("sleep");
  const char* second = std::getenv("FILTER_TEST_SECOND");
  if (second != nullptr) {
    usleep(static_cast<useconds_t>(std::atoi(second)) * 1000U * seconds);
  }
  return Real<unsigned int (*)(unsigned int)>("sleep")(seconds);
}
