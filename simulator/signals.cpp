// SPDX-License-Identifier: Apache-2.0
#include "simulator/signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <initializer_list>

namespace simulator {
namespace {

constexpr char kSeenTo = 'u';
constexpr char kReread = 'h';

// Set before the handlers are installed, and only read afterwards.
int stopWriteEnd = -1;
int wishesWriteEnd = -1;

void write_byte(int descriptor, char byte) {
  const int savedErrno = errno;
  // When the pipe is full, the reader will wake up anyway.
  [[maybe_unused]] const ssize_t written = ::write(descriptor, &byte, 1);
  errno = savedErrno;
}

void on_stop(int /*signal*/) {
  write_byte(stopWriteEnd, 0);
}

void on_seen_to(int /*signal*/) {
  write_byte(wishesWriteEnd, kSeenTo);
}

void on_reread(int /*signal*/) {
  write_byte(wishesWriteEnd, kReread);
}

void make_descriptor_quiet(int descriptor) {
  ::fcntl(descriptor, F_SETFD, FD_CLOEXEC);
  ::fcntl(descriptor, F_SETFL, O_NONBLOCK);
}

// The end to read from, or -1.
int make_pipe(int& writeEnd) {
  std::array<int, 2> ends{};
  if (::pipe(ends.data()) != 0) {
    return -1;
  }
  make_descriptor_quiet(ends[0]);
  make_descriptor_quiet(ends[1]);
  writeEnd = ends[1];
  return ends[0];
}

void handle(std::initializer_list<int> signals, void (*handler)(int), int flags = 0) {
  struct sigaction action {};
  action.sa_handler = handler;
  action.sa_flags = flags;
  sigemptyset(&action.sa_mask);
  for (const int signal : signals) {
    ::sigaction(signal, &action, nullptr);
  }
}

}  // namespace

std::optional<SignalEnds> catch_signals() {
  const SignalEnds ends{make_pipe(stopWriteEnd), make_pipe(wishesWriteEnd)};
  if (ends.stop < 0 || ends.wishes < 0) {
    return std::nullopt;
  }
  // Only the first of each: the program may hang because nobody reads its events any more, and then
  // a second signal must end it.
  handle({SIGTERM, SIGINT}, on_stop, static_cast<int>(SA_RESETHAND));
  handle({SIGUSR1}, on_seen_to);
  handle({SIGHUP}, on_reread);
  handle({SIGPIPE, SIGXFSZ}, SIG_IGN);
  return ends;
}

std::optional<Wish> take_wish(const SignalEnds& ends) {
  char byte = 0;
  if (::read(ends.wishes, &byte, 1) != 1) {
    return std::nullopt;
  }
  return byte == kReread ? Wish::Reread : Wish::SeenTo;
}

}  // namespace simulator
