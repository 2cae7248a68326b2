// SPDX-License-Identifier: Apache-2.0
//
// Preloaded into an emulated test: a program for the emulated processor that the test starts is
// emulated, too. The system would refuse it, unless somebody has told the kernel of the emulator;
// programs of this machine start as they are.
#include <dlfcn.h>
#include <elf.h>
#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cstddef>
#include <cstdlib>
#include <cstring>

#ifndef TQR7_EMULATOR  // a build for this machine knows of this file only to have it checked
#define TQR7_EMULATOR ""
#define TQR7_SYSROOT ""
#endif

namespace {

using Execute = int (*)(const char*, char* const[], char* const[]);

/// Room for the longest command line of a test.
constexpr std::size_t kMostWords = 2000;

Execute next_execute(const char* symbol) {
  return reinterpret_cast<Execute>(dlsym(RTLD_NEXT, symbol));
}

bool is_for_the_emulator(const char* path) {
  const int file = open(path, O_RDONLY | O_CLOEXEC);
  Elf64_Ehdr header{};
  const bool read_all = file >= 0 && read(file, &header, sizeof header) == sizeof header;
  close(file);
  return read_all && std::memcmp(header.e_ident, ELFMAG, SELFMAG) == 0 &&
         header.e_machine == EM_AARCH64;
}

/// Nothing is taken from the allocator, and little from the stack, which GoogleTest makes small:
/// this is between fork and exec.
int execute(const char* symbol, const char* path, char* const argv[], char* const envp[]) {
  if (!is_for_the_emulator(path)) {
    return next_execute(symbol)(path, argv, envp);
  }
  static std::array<char*, kMostWords> words;
  std::size_t count = 0;
  for (const char* word : {TQR7_EMULATOR, "-L", TQR7_SYSROOT, "-0"}) {
    words[count++] = const_cast<char*>(word);
  }
  words[count++] = argv[0];
  words[count++] = const_cast<char*>(path);
  for (char* const* word = argv + 1; *word != nullptr && count < kMostWords - 1; ++word) {
    words[count++] = *word;
  }
  words[count] = nullptr;
  return next_execute("execve")(TQR7_EMULATOR, words.data(), envp);
}

/// What the test starts has no need of this library, and a program of this machine cannot load it.
[[gnu::constructor]] void leave_the_environment() {
  unsetenv("LD_PRELOAD");
}

}  // namespace

extern "C" {

int execve(const char* path, char* const argv[], char* const envp[]) noexcept {
  return execute("execve", path, argv, envp);
}

int execv(const char* path, char* const argv[]) noexcept {
  return execute("execve", path, argv, environ);
}

int execvpe(const char* file, char* const argv[], char* const envp[]) noexcept {
  return execute("execvpe", file, argv, envp);
}

int execvp(const char* file, char* const argv[]) noexcept {
  return execute("execvpe", file, argv, environ);
}
}
