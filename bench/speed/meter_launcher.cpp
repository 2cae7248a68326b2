// SPDX-License-Identifier: Apache-2.0
//
// Runs one program on one processor and tells what it used: meter-launcher CPU PROGRAM
// [ARGUMENT...].
//
// A process's peak memory begins with that of the process which started it, so that one must be
// small: this program is nothing else. It gives all its descriptors but the report's away, so that
// a pipe ends with the program that it is for.
#include <fcntl.h>
#include <sched.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

#include "bench/speed/meter_report.h"

namespace {

constexpr unsigned kLongestRun = 600;  // seconds
constexpr int kFailed = 2;

volatile sig_atomic_t g_process = 0;

void end_process(int /*signal*/) {
  kill(g_process, SIGKILL);
}

double now() {
  timespec time{};
  clock_gettime(CLOCK_MONOTONIC, &time);
  return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

void stay_on(int processor) {
  if (processor == bench::kAnyProcessor) {
    return;
  }
  cpu_set_t processors;
  CPU_ZERO(&processors);
  CPU_SET(static_cast<unsigned>(processor), &processors);
  static_cast<void>(sched_setaffinity(0, sizeof processors, &processors));
}

// Of a process that has ended and was not waited for. The most there is where the kernel does not
// count: then nothing is known that would make the run void.
std::uint64_t written_by(pid_t process) {
  char path[64];
  std::snprintf(path, sizeof path, "/proc/%d/io", static_cast<int>(process));
  std::FILE* file = std::fopen(path, "r");
  std::uint64_t bytes = file == nullptr ? UINT64_MAX : 0;
  char line[128];
  while (file != nullptr && std::fgets(line, sizeof line, file) != nullptr) {
    if (std::strncmp(line, "wchar: ", 7) == 0) {
      bytes = std::strtoull(line + 7, nullptr, 10);
    }
  }
  if (file != nullptr) {
    std::fclose(file);
  }
  return bytes;
}

pid_t start(char** argv) {
  pid_t process = 0;
  const int error = posix_spawnp(&process, argv[0], nullptr, nullptr, argv, environ);
  if (error != 0) {
    std::fprintf(stderr, "meter-launcher: %s: %s\n", argv[0], std::strerror(error));
    std::exit(kFailed);
  }
  return process;
}

void wait_for(pid_t process, bench::MeterReport* report) {
  siginfo_t ended{};
  while (waitid(P_PID, static_cast<id_t>(process), &ended, WEXITED | WNOWAIT) != 0 &&
         errno == EINTR) {
  }
  report->wall = now() - report->wall;
  report->written = written_by(process);
  wait4(process, &report->status, 0, &report->usage);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fprintf(stderr, "usage: meter-launcher CPU PROGRAM [ARGUMENT...]\n");
    return kFailed;
  }
  stay_on(std::atoi(argv[1]));
  fcntl(bench::kReportDescriptor, F_SETFD, FD_CLOEXEC);
  bench::MeterReport report{};
  report.wall = now();
  const pid_t process = start(argv + 2);
  for (int descriptor = 0; descriptor < bench::kReportDescriptor; ++descriptor) {
    close(descriptor);
  }
  close(bench::kPausesDescriptor);
  g_process = process;
  signal(SIGALRM, end_process);
  alarm(kLongestRun);
  wait_for(process, &report);
  return write(bench::kReportDescriptor, &report, sizeof report) == sizeof report ? 0 : kFailed;
}
