// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/kernel_race.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <map>
#include <stdexcept>

namespace bench {

namespace {

/// Long enough for a thread's clock, whose steps are of some microseconds at most.
constexpr double kLeastSeconds = 0.01;

/// Keeps what each repetition took; says nothing.
class Notes : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context& /*context*/) override { return true; }

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type == Run::RT_Iteration && !run.error_occurred && run.iterations > 0) {
        seconds_[run.run_name.function_name].push_back(run.cpu_accumulated_time /
                                                       static_cast<double>(run.iterations));
      }
    }
  }

  double median_seconds(const std::string& name) {
    std::vector<double>& all = seconds_[name];
    if (all.empty()) {
      throw std::runtime_error("no time was taken of: " + name);
    }
    const auto middle = all.begin() + static_cast<std::ptrdiff_t>(all.size() / 2);
    std::nth_element(all.begin(), middle, all.end());
    return *middle;
  }

 private:
  std::map<std::string, std::vector<double>> seconds_;
};

void mix_the_order() {
  std::array<char, 8> program{"kernels"};
  std::array<char, 48> mixed{"--benchmark_enable_random_interleaving=true"};
  std::array<char*, 3> arguments{program.data(), mixed.data(), nullptr};
  int count = 2;
  benchmark::Initialize(&count, arguments.data());
}

}  // namespace

void race_kernels(std::vector<Kernel*>& kernels, int repetitions) {
  mix_the_order();
  for (Kernel* kernel : kernels) {
    benchmark::RegisterBenchmark(kernel->name.c_str(),
                                 [kernel](benchmark::State& state) {
                                   for (auto pass : state) {
                                     static_cast<void>(pass);
                                     kernel->work();
                                     benchmark::ClobberMemory();
                                   }
                                 })
        ->Repetitions(repetitions)
        ->MinTime(kLeastSeconds);
  }
  Notes notes;
  benchmark::RunSpecifiedBenchmarks(&notes);
  for (Kernel* kernel : kernels) {
    kernel->nanoseconds =
        notes.median_seconds(kernel->name) * 1e9 / static_cast<double>(kernel->pixels);
  }
}

}  // namespace bench
