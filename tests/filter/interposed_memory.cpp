// SPDX-License-Identifier: Apache-2.0
//
// Preloaded into the filter: memory that cannot be had at a chosen request, whoever asks: the
// filter, libcups, the C and C++ libraries. Requests count from main on; what the loader and the
// libraries take before is no job's.
//
// Settings come from the environment:
//   FILTER_TEST_REFUSE     the number of the request that is refused, counted from 1; with a "+"
//                          behind it every later request too
//   FILTER_TEST_REQUESTS   file that is left at exit with the number of requests, then a line for
//                          each way of calls that led to one: its first request, a blank, its last
//   FILTER_TEST_ERRNO      when set, each request that is granted leaves ENOMEM in errno, as one
//                          does for which the heap could not grow in place
//   FILTER_TEST_CRASH      file that is left by a crash with the function of libcups that was
//                          called, or "no function of libcups"
#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>
#include <unwind.h>

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

// The C library's own allocator, by the names that stay when malloc is taken over.
extern "C" {
// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
void* __libc_malloc(std::size_t bytes);
void* __libc_calloc(std::size_t count, std::size_t bytes);
void* __libc_realloc(void* block, std::size_t bytes);
void* __libc_memalign(std::size_t alignment, std::size_t bytes);
// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
}

namespace {

// Nothing in this file may ask for memory.

struct Way {
  std::uintptr_t calls = 0;  ///< of all return addresses
  long first = 0;
  long last = 0;
};

bool g_counting = false;
long g_requests = 0;
Way g_ways[4096];
std::size_t g_way_count = 0;

void Leave(int file, const char* text, int length) {
  if (file < 0 || write(file, text, static_cast<std::size_t>(length)) != length) {
    _exit(98);
  }
}

int OpenNote(const char* setting) {
  const char* path = std::getenv(setting);
  return path == nullptr ? -1 : open(path, O_WRONLY | O_CREAT | O_TRUNC, 0600);
}

_Unwind_Reason_Code AddCall(_Unwind_Context* context, void* calls) {
  auto& sum = *static_cast<std::uintptr_t*>(calls);
  sum = sum * 1000003 + _Unwind_GetIP(context);
  return _URC_NO_REASON;
}

void NoteWay() {
  std::uintptr_t calls = 0;
  _Unwind_Backtrace(AddCall, &calls);
  for (std::size_t i = 0; i < g_way_count; ++i) {
    if (g_ways[i].calls == calls) {
      g_ways[i].last = g_requests;
      return;
    }
  }
  if (g_way_count == sizeof g_ways / sizeof g_ways[0]) {
    _exit(98);
  }
  g_ways[g_way_count++] = {calls, g_requests, g_requests};
}

bool Refused() {
  if (!g_counting) {
    return false;
  }
  ++g_requests;
  const char* setting = std::getenv("FILTER_TEST_REFUSE");
  if (setting == nullptr) {
    NoteWay();
    return false;
  }
  char* end = nullptr;
  const long first = std::strtol(setting, &end, 10);
  if (g_requests != first && !(*end == '+' && g_requests > first)) {
    return false;
  }
  errno = ENOMEM;
  return true;
}

/// Counts what the process has asked for when it ends.
class Tally {
 public:
  Tally() = default;
  ~Tally() {
    const int file = OpenNote("FILTER_TEST_REQUESTS");
    if (file < 0) {
      return;
    }
    char line[64];
    Leave(file, line, std::snprintf(line, sizeof line, "%ld\n", g_requests));
    for (std::size_t i = 0; i < g_way_count; ++i) {
      Leave(file, line,
            std::snprintf(line, sizeof line, "%ld %ld\n", g_ways[i].first, g_ways[i].last));
    }
    close(file);
  }
  Tally(const Tally&) = delete;
  Tally& operator=(const Tally&) = delete;
};

const Tally g_tally;

// Frames come from the innermost out: the last one of libcups before another library's or the
// program's own is the function that was called.
_Unwind_Reason_Code FindCupsFunction(_Unwind_Context* context, void* found) {
  auto& name = *static_cast<const char**>(found);
  Dl_info frame{};
  // NOLINTNEXTLINE(performance-no-int-to-ptr): the unwinder tells addresses as numbers
  if (dladdr(reinterpret_cast<void*>(_Unwind_GetIP(context)), &frame) == 0) {
    return _URC_NO_REASON;
  }
  const bool in_cups = std::strstr(frame.dli_fname, "/libcups") != nullptr;
  if (in_cups) {
    name = frame.dli_sname != nullptr ? frame.dli_sname : "a function without a name";
  }
  return in_cups || name == nullptr ? _URC_NO_REASON : _URC_NORMAL_STOP;
}

void TellCrash(int signal_number) {
  const char* name = nullptr;
  _Unwind_Backtrace(FindCupsFunction, &name);
  if (name == nullptr) {
    name = "no function of libcups";
  }
  const int file = OpenNote("FILTER_TEST_CRASH");
  Leave(file, name, static_cast<int>(std::strlen(name)));
  std::signal(signal_number, SIG_DFL);
  static_cast<void>(std::raise(signal_number));
}

void* Granted(void* block) {
  static const bool noisy = std::getenv("FILTER_TEST_ERRNO") != nullptr;
  if (noisy && g_counting) {
    errno = ENOMEM;
  }
  return block;
}

using Main = int (*)(int, char**, char**);
using Start = int (*)(Main, int, char**, void (*)(), void (*)(), void (*)(), void*);

Main g_main = nullptr;

int CountedMain(int argc, char** argv, char** envp) {
  if (std::getenv("FILTER_TEST_CRASH") != nullptr) {
    std::signal(SIGSEGV, TellCrash);
    std::signal(SIGABRT, TellCrash);
  }
  g_counting = true;
  return g_main(argc, argv, envp);
}

}  // namespace

extern "C" {

// NOLINTNEXTLINE(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
int __libc_start_main(Main program, int argc, char** argv, void (*initialize)(), void (*finish)(),
                      void (*loader_finish)(), void* stack_end) {
  g_main = program;
  const auto start = reinterpret_cast<Start>(dlsym(RTLD_NEXT, "__libc_start_main"));
  return start(CountedMain, argc, argv, initialize, finish, loader_finish, stack_end);
}

void* malloc(std::size_t bytes) {
  return Refused() ? nullptr : Granted(__libc_malloc(bytes));
}

void* calloc(std::size_t count, std::size_t bytes) {
  return Refused() ? nullptr : Granted(__libc_calloc(count, bytes));
}

void* realloc(void* block, std::size_t bytes) {
  return Refused() ? nullptr : Granted(__libc_realloc(block, bytes));
}

void* memalign(std::size_t alignment, std::size_t bytes) {
  return Refused() ? nullptr : __libc_memalign(alignment, bytes);
}

void* aligned_alloc(std::size_t alignment, std::size_t bytes) {
  return Refused() ? nullptr : __libc_memalign(alignment, bytes);
}

int posix_memalign(void** block, std::size_t alignment, std::size_t bytes) {
  *block = Refused() ? nullptr : __libc_memalign(alignment, bytes);
  return *block == nullptr ? ENOMEM : 0;
}

}  // extern "C"
