// SPDX-License-Identifier: Apache-2.0
//
// The same work in several processes at the same time.
#ifndef TQR7_BENCH_SPEED_AT_ONCE_H
#define TQR7_BENCH_SPEED_AT_ONCE_H

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <exception>
#include <functional>
#include <stdexcept>
#include <type_traits>
#include <utility>
#include <vector>

namespace bench {

/// A pipe that no program started from here inherits.
class Pipe {
 public:
  Pipe() {
    if (pipe2(ends_.data(), O_CLOEXEC) != 0) {
      throw std::runtime_error("no pipe for jobs at once");
    }
  }
  ~Pipe() {
    close_end(0);
    close_end(1);
  }
  Pipe(const Pipe&) = delete;
  Pipe& operator=(const Pipe&) = delete;

  int reader() const { return ends_[0]; }
  int writer() const { return ends_[1]; }
  void close_end(std::size_t end) {
    if (ends_[end] >= 0) {
      close(std::exchange(ends_[end], -1));
    }
  }

 private:
  std::array<int, 2> ends_ = {-1, -1};
};

/// A record of fixed size that a process of its own works out.
template <typename Record>
void run_child(const Pipe& go, const Pipe& results, const std::function<Record()>& work) {
  char nothing = 0;
  while (read(go.reader(), &nothing, 1) > 0) {  // until the parent closes its end
  }
  try {
    const Record record = work();
    _exit(write(results.writer(), &record, sizeof record) == sizeof record ? 0 : 1);
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "growth: %s\n", fault.what());
    _exit(1);
  }
}

/// Has `count` processes do the same work at once; returns their records and sets the seconds from
/// the common start to the last one's end. Processes, not threads: each may start programs.
template <typename Record>
requires std::is_trivially_copyable_v<Record> std::vector<Record> at_once(
    int count, const std::function<Record()>& work, double* seconds) {
  Pipe go;
  Pipe results;
  std::vector<pid_t> children;
  for (int i = 0; i < count; ++i) {
    const pid_t child = fork();
    if (child < 0) {
      throw std::runtime_error("no process for jobs at once");
    }
    if (child == 0) {
      go.close_end(1);
      run_child(go, results, work);
    }
    children.push_back(child);
  }
  const auto start = std::chrono::steady_clock::now();
  go.close_end(1);
  results.close_end(1);
  std::vector<Record> records;
  Record record;
  while (read(results.reader(), &record, sizeof record) == sizeof record) {
    records.push_back(record);
  }
  *seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  for (const pid_t child : children) {
    waitpid(child, nullptr, 0);
  }
  if (records.size() != children.size()) {
    throw std::runtime_error("a job among several at once has failed");
  }
  return records;
}

}  // namespace bench

#endif  // TQR7_BENCH_SPEED_AT_ONCE_H
