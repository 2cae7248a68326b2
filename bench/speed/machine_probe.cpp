// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/machine_probe.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <numeric>
#include <stdexcept>
#include <vector>

#include "bench/cpu_time.h"
#include "bench/speed/at_once.h"
#include "bench/spread.h"

namespace bench {

namespace {

double turn_registers() {
  constexpr long kTurns = 30'000'000;
  const double before = cpu_seconds();
  std::uint64_t bits = 88172645463325252ULL;
  for (long turn = 0; turn < kTurns; ++turn) {
    bits ^= bits << 13U;
    bits ^= bits >> 7U;
    bits ^= bits << 17U;
  }
  volatile std::uint64_t kept = bits;
  static_cast<void>(kept);
  return cpu_seconds() - before;
}

double copy_to_and_fro(std::size_t bytes, int times) {
  std::vector<char> one(bytes, 1);
  std::vector<char> other(bytes, 2);
  const double before = cpu_seconds();
  for (int time = 0; time < times; ++time) {
    std::memcpy(other.data(), one.data(), bytes);
    // The compiler may not know that the copy is never looked at.
    asm volatile("" ::"r"(other.data()) : "memory");
    std::memcpy(one.data(), other.data(), bytes);
    asm volatile("" ::"r"(one.data()) : "memory");
  }
  return cpu_seconds() - before;
}

/// 20 MB in small pages, new to the process.
class FreshMemory {
 public:
  static constexpr std::size_t kSize = 20'000'000;  // a page's buffers

  FreshMemory()
      : bytes_(mmap(nullptr, kSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0)) {
    if (bytes_ == MAP_FAILED) {
      throw std::runtime_error("no memory for the cost of a fault");
    }
    madvise(bytes_, kSize, MADV_NOHUGEPAGE);
  }
  ~FreshMemory() { munmap(bytes_, kSize); }
  FreshMemory(const FreshMemory&) = delete;
  FreshMemory& operator=(const FreshMemory&) = delete;

  void fill(int value) { std::memset(bytes_, value, kSize); }

 private:
  void* bytes_;
};

double take_fresh_memory() {
  constexpr int kTimes = 6;
  const double before = cpu_seconds();
  for (int time = 0; time < kTimes; ++time) {
    FreshMemory().fill(1);
  }
  return cpu_seconds() - before;
}

double read_file(const std::string& path) {
  const double before = cpu_seconds();
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  std::array<char, 65536> buffer;
  ssize_t bytes = 1;
  while (file >= 0 && bytes > 0) {
    bytes = read(file, buffer.data(), buffer.size());
  }
  if (file < 0 || bytes < 0) {
    throw std::runtime_error(path + " cannot be read");
  }
  close(file);
  return cpu_seconds() - before;
}

double mean_cpu(int processes, const std::function<double()>& work) {
  double wall = 0.0;
  const std::vector<double> each = at_once<double>(processes, work, &wall);
  return std::accumulate(each.begin(), each.end(), 0.0) / static_cast<double>(each.size());
}

}  // namespace

ProbeTimes probe_machine(int processes, const std::string& file) {
  ProbeTimes times;
  times.registers = mean_cpu(processes, turn_registers);
  times.cache = mean_cpu(processes, [] { return copy_to_and_fro(500'000, 800); });
  times.memory = mean_cpu(processes, [] { return copy_to_and_fro(10'000'000, 30); });
  times.fresh = mean_cpu(processes, take_fresh_memory);
  times.file = mean_cpu(processes, [&file] { return read_file(file); });
  return times;
}

double microseconds_a_fault() {
  constexpr int kGoes = 9;
  const double pages =
      static_cast<double>(FreshMemory::kSize) / static_cast<double>(sysconf(_SC_PAGESIZE));
  std::vector<double> costs;
  for (int go = 0; go < kGoes; ++go) {
    FreshMemory memory;
    const double before = cpu_seconds();
    memory.fill(1);
    const double between = cpu_seconds();
    memory.fill(2);
    const double after = cpu_seconds();
    costs.push_back(1e6 * ((between - before) - (after - between)) / pages);
  }
  return median_of(costs);
}

}  // namespace bench
