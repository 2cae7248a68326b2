// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/kernel_race.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <stdexcept>

namespace bench {

namespace {

/// Long enough for a thread's clock, whose steps are of some microseconds at most.
constexpr double kLeastSeconds = 0.01;

/// Keeps what each repetition of each kernel took; says nothing.
class Notes : public benchmark::BenchmarkReporter {
 public:
  explicit Notes(std::size_t kernels) : seconds_(kernels) {}

  bool ReportContext(const Context& /*context*/) override { return true; }

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type == Run::RT_Iteration && !run.error_occurred && run.iterations > 0) {
        seconds_[static_cast<std::size_t>(run.per_family_instance_index)].push_back(
            run.cpu_accumulated_time / static_cast<double>(run.iterations));
      }
    }
  }

  /// Throws std::runtime_error when no time was taken.
  double median_seconds(std::size_t kernel) {
    std::vector<double>& all = seconds_[kernel];
    if (all.empty()) {
      throw std::runtime_error("not every kernel could be timed");
    }
    const auto middle = all.begin() + static_cast<std::ptrdiff_t>(all.size() / 2);
    std::nth_element(all.begin(), middle, all.end());
    return *middle;
  }

 private:
  std::vector<std::vector<double>> seconds_;
};

/// Google Benchmark calls plain functions, with a number: the kernel's place here.
std::vector<Kernel*>& field() {
  static std::vector<Kernel*> kernels;
  return kernels;
}

void run_kernel(benchmark::State& state) {
  const Kernel& kernel = *field()[static_cast<std::size_t>(state.range(0))];
  for (auto pass : state) {
    static_cast<void>(pass);
    kernel.work();
    benchmark::ClobberMemory();
  }
}

benchmark::internal::Benchmark* const kRunKernel =
    benchmark::RegisterBenchmark("kernel", run_kernel);

void mix_the_order() {
  std::array<char, 8> program{"kernels"};
  std::array<char, 48> mixed{"--benchmark_enable_random_interleaving=true"};
  std::array<char*, 3> arguments{program.data(), mixed.data(), nullptr};
  int count = 2;
  benchmark::Initialize(&count, arguments.data());
}

}  // namespace

void race_kernels(const std::vector<Kernel*>& kernels, int repetitions) {
  mix_the_order();
  field() = kernels;
  kRunKernel->DenseRange(0, static_cast<std::int64_t>(kernels.size()) - 1)
      ->Repetitions(repetitions)
      ->MinTime(kLeastSeconds);
  Notes notes(kernels.size());
  benchmark::RunSpecifiedBenchmarks(&notes);
  for (std::size_t i = 0; i < kernels.size(); ++i) {
    kernels[i]->nanoseconds =
        notes.median_seconds(i) * 1e9 / static_cast<double>(kernels[i]->pixels);
  }
}

}  // namespace bench
