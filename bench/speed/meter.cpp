// SPDX-License-Identifier: Apache-2.0
#include "bench/speed/meter.h"

#include <fcntl.h>
#include <sched.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstddef>
#include <stdexcept>
#include <string_view>
#include <thread>
#include <utility>

#include "bench/speed/meter_report.h"
#include "bench/speed/printer_answers.h"
#include "tests/filter/descriptors.h"

namespace bench {

namespace {

using filter_test::CloseAndForget;
using filter_test::HighPipe;
using filter_test::MoveHigh;

constexpr std::size_t kRasterMark = 4;  // bytes at a raster stream's beginning, before its pages

[[noreturn]] void fail(const std::string& what) {
  throw std::runtime_error("meter: " + what);
}

/// The processors of this process: one for what is measured, one for the rest.
std::pair<int, int> two_processors() {
  cpu_set_t allowed;
  CPU_ZERO(&allowed);
  sched_getaffinity(0, sizeof allowed, &allowed);
  std::vector<int> found;
  for (int processor = 0; processor < CPU_SETSIZE; ++processor) {
    if (CPU_ISSET(static_cast<unsigned>(processor), &allowed)) {
      found.push_back(processor);
    }
  }
  return {found.back(), found.front()};
}

/// A thread on a processor of its own, to which a pipe without a reader is no reason to end.
template <typename Work>
std::thread thread_on(int processor, Work work) {
  return std::thread([processor, work] {
    cpu_set_t processors;
    CPU_ZERO(&processors);
    CPU_SET(static_cast<unsigned>(processor), &processors);
    sched_setaffinity(0, sizeof processors, &processors);
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    work();
  });
}

/// Reads to the end; returns how many bytes there were.
std::uint64_t drain(int descriptor, std::string* kept) {
  std::array<char, 65536> buffer;
  std::uint64_t total = 0;
  ssize_t bytes = 0;
  while ((bytes = read(descriptor, buffer.data(), buffer.size())) > 0) {
    total += static_cast<std::uint64_t>(bytes);
    if (kept != nullptr) {
      kept->append(buffer.data(), static_cast<std::size_t>(bytes));
    }
  }
  return total;
}

/// A file in memory, as far as it is read.
class MappedFile {
 public:
  explicit MappedFile(const std::string& path) {
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat about {};
    if (file < 0 || fstat(file, &about) != 0) {
      fail(path + " cannot be read");
    }
    size_ = static_cast<std::size_t>(about.st_size);
    bytes_ = size_ == 0 ? nullptr : mmap(nullptr, size_, PROT_READ, MAP_PRIVATE, file, 0);
    close(file);
    if (bytes_ == MAP_FAILED) {
      fail(path + " cannot be mapped");
    }
  }
  ~MappedFile() {
    if (bytes_ != nullptr) {
      munmap(bytes_, size_);
    }
  }
  MappedFile(const MappedFile&) = delete;
  MappedFile& operator=(const MappedFile&) = delete;

  std::string_view bytes() const { return {static_cast<const char*>(bytes_), size_}; }

 private:
  void* bytes_ = nullptr;
  std::size_t size_ = 0;
};

bool write_all(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(descriptor, bytes.data(), bytes.size());
    if (written <= 0) {
      return false;
    }
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

/// Feeds the file, what stands behind the mark of a raster stream as often as is asked.
void feed(int descriptor, std::string_view bytes, int times) {
  bool taken = write_all(descriptor, bytes.substr(0, kRasterMark));
  for (int time = 0; taken && time < times && bytes.size() > kRasterMark; ++time) {
    taken = write_all(descriptor, bytes.substr(kRasterMark));
  }
  close(descriptor);
}

/// The pauses that the program asks for.
class SharedPauses {
 public:
  SharedPauses() : file_(MoveHigh(memfd_create("pauses", MFD_CLOEXEC))) {
    if (ftruncate(file_, sizeof(Pauses)) != 0) {
      fail("no shared memory");
    }
    void* shared = mmap(nullptr, sizeof(Pauses), PROT_READ | PROT_WRITE, MAP_SHARED, file_, 0);
    if (shared == MAP_FAILED) {
      fail("no shared memory");
    }
    pauses_ = static_cast<Pauses*>(shared);
  }
  ~SharedPauses() {
    munmap(pauses_, sizeof(Pauses));
    close(file_);
  }
  SharedPauses(const SharedPauses&) = delete;
  SharedPauses& operator=(const SharedPauses&) = delete;

  int descriptor() const { return file_; }
  const Pauses& pauses() const { return *pauses_; }

 private:
  int file_;
  Pauses* pauses_ = nullptr;
};

/// The ends of whatever leads into the program and out of it. Those of the program are numbered as
/// it gets them; -1 is an end that nobody holds.
struct Ends {
  std::array<int, kPausesDescriptor + 1> program{-1, -1, -1, -1, -1, -1, -1};
  int input = -1;
  int output = -1;
  int messages = -1;
  int back_channel = -1;
  int side_channel = -1;
  int report = -1;

  Ends() = default;
  ~Ends() {
    close_program();
    for (int* end : {&input, &output, &messages, &back_channel, &side_channel, &report}) {
      CloseAndForget(end);
    }
  }
  Ends(const Ends&) = delete;
  Ends& operator=(const Ends&) = delete;

  void close_program() {
    for (int& end : program) {
      CloseAndForget(&end);
    }
  }
};

int open_high(const std::string& path, int flags) {
  const int file = open(path.c_str(), flags);
  if (file < 0) {
    fail(path + " cannot be opened");
  }
  return MoveHigh(file);
}

void open_streams(const MeteredRun& run, Ends* ends) {
  if (run.streams == Streams::Pipes) {
    std::tie(ends->program[0], ends->input) = HighPipe();
    std::tie(ends->output, ends->program[1]) = HighPipe();
    std::tie(ends->messages, ends->program[2]) = HighPipe();
  } else {
    ends->program[0] = open_high(run.input, O_RDONLY);
    ends->program[1] = open_high("/dev/null", O_WRONLY);
    ends->program[2] = open_high("/dev/null", O_WRONLY);
  }
}

void open_channels(const MeteredRun& run, Ends* ends) {
  if (!run.printer) {
    ends->program[3] = open_high("/dev/null", O_RDWR);
    ends->program[4] = open_high("/dev/null", O_RDWR);
    return;
  }
  std::tie(ends->program[3], ends->back_channel) = HighPipe();
  int sides[2] = {-1, -1};
  if (socketpair(AF_UNIX, SOCK_STREAM, 0, sides) != 0) {
    fail("no side channel");
  }
  ends->side_channel = MoveHigh(sides[0]);
  ends->program[4] = MoveHigh(sides[1]);
  // As the scheduler hands them out.
  fcntl(ends->program[3], F_SETFL, O_NONBLOCK);
  fcntl(ends->program[4], F_SETFL, O_NONBLOCK);
}

std::vector<std::string> variables_of(const MeteredRun& run) {
  std::map<std::string, std::string> environment = {
      {"PATH", "/usr/bin:/bin"},
      {"LC_ALL", "C"},
      {"CUPS_SERVER", "/nowhere/no-scheduler"},
      {"LD_PRELOAD", TQR7_COUNTED_SLEEP},
      {"TQR7_PAUSES", std::to_string(kPausesDescriptor)},
  };
  for (const auto& [name, value] : run.environment) {
    environment[name] = value;
  }
  std::vector<std::string> result;
  for (const auto& [name, value] : environment) {
    result.push_back(name);
    result.back().append("=").append(value);
  }
  return result;
}

std::vector<char*> pointers_to(std::vector<std::string>* texts) {
  std::vector<char*> result;
  for (std::string& text : *texts) {
    result.push_back(text.data());
  }
  result.push_back(nullptr);
  return result;
}

/// Starts the launcher with the program's ends as its own.
pid_t start(const MeteredRun& run, int processor, const Ends& ends) {
  std::vector<std::string> words = {TQR7_METER_LAUNCHER, std::to_string(processor)};
  words.insert(words.end(), run.argv.begin(), run.argv.end());
  std::vector<std::string> variables = variables_of(run);
  const std::vector<char*> argv = pointers_to(&words);
  const std::vector<char*> envp = pointers_to(&variables);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  for (std::size_t number = 0; number < ends.program.size(); ++number) {
    posix_spawn_file_actions_adddup2(&actions, ends.program[number], static_cast<int>(number));
  }
  pid_t process = 0;
  const int error = posix_spawn(&process, argv[0], &actions, nullptr, argv.data(), envp.data());
  posix_spawn_file_actions_destroy(&actions);
  if (error != 0) {
    fail(words[0] + " cannot be started");
  }
  return process;
}

void judge(const MeteredRun& run, const MeterReport& report, const Usage& usage) {
  if (!WIFEXITED(report.status) || WEXITSTATUS(report.status) != run.status) {
    fail(run.argv[0] + " ended with status " + std::to_string(report.status) + " (as wait has it)");
  }
  const std::uint64_t bytes = run.streams == Streams::Pipes ? usage.bytes : report.written;
  if (bytes < run.bytes) {
    fail(run.argv[0] + " wrote " + std::to_string(bytes) + " bytes, not " +
         std::to_string(run.bytes));
  }
}

double seconds_of(const timeval& time) {
  return static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_usec);
}

/// Plays all that is around the program until it has ended.
MeterReport run_beside(const MeteredRun& run, const MappedFile& input, Ends* ends,
                       std::uint64_t* bytes, std::string* output) {
  const auto [measured, others] = two_processors();
  const pid_t launcher = start(run, run.pinned ? measured : kAnyProcessor, *ends);
  ends->close_program();
  std::vector<std::thread> threads;
  if (run.streams == Streams::Pipes) {
    const int into = std::exchange(ends->input, -1);
    threads.push_back(thread_on(others, [&, into] { feed(into, input.bytes(), run.input_times); }));
    threads.push_back(thread_on(others, [&] { *bytes = drain(ends->output, output); }));
    threads.push_back(thread_on(others, [&] { drain(ends->messages, nullptr); }));
  }
  if (run.printer) {
    threads.push_back(
        thread_on(others, [&] { answer_for_printer(ends->side_channel, ends->back_channel); }));
  }
  MeterReport report{};
  const ssize_t told = read(ends->report, &report, sizeof report);
  for (std::thread& thread : threads) {
    thread.join();
  }
  waitpid(launcher, nullptr, 0);
  if (told != static_cast<ssize_t>(sizeof report)) {
    fail(run.argv[0] + " could not be started");
  }
  return report;
}

}  // namespace

Usage measure(const MeteredRun& run, std::string* output) {
  const MappedFile input(run.streams == Streams::Pipes ? run.input : "/dev/null");
  const SharedPauses pauses;
  Ends ends;
  open_streams(run, &ends);
  open_channels(run, &ends);
  std::tie(ends.report, ends.program[kReportDescriptor]) = HighPipe();
  ends.program[kPausesDescriptor] = MoveHigh(dup(pauses.descriptor()));

  Usage usage;
  const MeterReport report = run_beside(run, input, &ends, &usage.bytes, output);
  judge(run, report, usage);
  usage.user = seconds_of(report.usage.ru_utime);
  usage.system = seconds_of(report.usage.ru_stime);
  usage.wall = report.wall;
  usage.faults = report.usage.ru_minflt;
  usage.displaced = report.usage.ru_nivcsw;
  usage.peak = report.usage.ru_maxrss;
  usage.pauses = pauses.pauses().count;
  usage.paused_seconds = pauses.pauses().seconds;
  return usage;
}

}  // namespace bench
