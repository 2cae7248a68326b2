// SPDX-License-Identifier: Apache-2.0
#include "tests/unit/simulator/printer_process.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <sstream>
#include <string_view>

namespace {

constexpr int kPatienceMilliseconds = 30000;
constexpr int kTurnMilliseconds = 5;

struct Child {
  pid_t pid;
  int outputEnd;
};

void become_printer(const std::vector<std::string>& options, int from, int descriptor,
                    std::uint64_t fileSizeLimit) {
  ::dup2(from, descriptor);
  if (fileSizeLimit > 0) {
    const rlimit limit{fileSizeLimit, fileSizeLimit};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  std::vector<char*> arguments{const_cast<char*>(TQR7_PRINTER_SIM)};
  for (const std::string& option : options) {
    arguments.push_back(const_cast<char*>(option.c_str()));
  }
  arguments.push_back(nullptr);
  ::execv(TQR7_PRINTER_SIM, arguments.data());
  ::_exit(127);
}

// The end to read from, and the end that is a terminal.
bool open_terminal(std::array<int, 2>& ends) {
  ends[0] = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
  if (ends[0] < 0 || ::grantpt(ends[0]) != 0 || ::unlockpt(ends[0]) != 0) {
    return false;
  }
  ends[1] = ::open(::ptsname(ends[0]), O_RDWR | O_NOCTTY | O_CLOEXEC);
  return ends[1] >= 0;
}

Child start(const std::vector<std::string>& options, int descriptor, std::uint64_t fileSizeLimit,
            PrinterProcess::Sink sink = PrinterProcess::Sink::Pipe) {
  std::array<int, 2> ends{};
  const bool opened = sink == PrinterProcess::Sink::Terminal ? open_terminal(ends)
                                                             : ::pipe2(ends.data(), O_CLOEXEC) == 0;
  if (!opened) {
    return {-1, -1};
  }
  const pid_t pid = ::fork();
  if (pid == 0) {
    become_printer(options, ends[1], descriptor, fileSizeLimit);
  }
  ::close(ends[1]);
  return {pid, ends[0]};
}

// "12:34:56.789 ", which each line but the first begins with.
std::string without_time(const std::string& line) {
  constexpr std::size_t kLength = 13;
  constexpr std::string_view kForm = "dd:dd:dd.ddd ";
  if (line.size() < kLength) {
    return line;
  }
  for (std::size_t i = 0; i < kLength; ++i) {
    const bool digit = line[i] >= '0' && line[i] <= '9';
    if (kForm[i] == 'd' ? !digit : line[i] != kForm[i]) {
      return line;
    }
  }
  return line.substr(kLength);
}

int exit_status(int status) {
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace

PrinterProcess::PrinterProcess(const std::vector<std::string>& options, std::uint64_t fileSizeLimit,
                               Sink sink) {
  std::vector<std::string> all = options;
  if (std::find(options.begin(), options.end(), "--port") == options.end()) {
    all.insert(all.begin(), {"--port", "0"});
  }
  const Child child = start(all, STDOUT_FILENO, fileSizeLimit, sink);
  pid_ = child.pid;
  outputEnd_ = child.outputEnd;
}

PrinterProcess::~PrinterProcess() {
  if (pid_ > 0) {
    ::kill(pid_, SIGKILL);
    ::waitpid(pid_, nullptr, 0);
  }
  ::close(outputEnd_);
}

bool PrinterProcess::ReadMore() {
  pollfd wait{outputEnd_, POLLIN, 0};
  if (::poll(&wait, 1, kPatienceMilliseconds) <= 0) {
    return false;
  }
  std::array<char, 4096> bytes{};
  const ssize_t count = ::read(outputEnd_, bytes.data(), bytes.size());
  if (count <= 0) {
    return false;
  }
  output_.append(bytes.data(), static_cast<std::size_t>(count));
  return true;
}

std::string PrinterProcess::WaitForLine(const std::string& text) {
  for (;;) {
    const std::size_t end = output_.find('\n', searched_);
    if (end == std::string::npos) {
      if (!ReadMore()) {
        return {};
      }
      continue;
    }
    std::string line = output_.substr(searched_, end - searched_);
    searched_ = end + 1;
    if (line.find(text) != std::string::npos) {
      return without_time(line);
    }
  }
}

std::string PrinterProcess::Lines() const {
  std::istringstream stream(output_);
  std::string lines;
  for (std::string line; std::getline(stream, line);) {
    lines += without_time(line) + "\n";
  }
  return lines;
}

std::uint16_t PrinterProcess::Port() {
  if (port_ == 0) {
    const std::string line = WaitForLine("listening on ");
    const std::size_t at = line.rfind(' ');
    port_ = at == std::string::npos ? std::uint16_t{0}
                                    : static_cast<std::uint16_t>(std::atoi(line.c_str() + at));
  }
  return port_;
}

void PrinterProcess::CloseOutput() {
  ::close(outputEnd_);
  outputEnd_ = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
}

void PrinterProcess::Signal(int number) const {
  ::kill(pid_, number);
}

int PrinterProcess::Wait() {
  while (ReadMore()) {
  }
  const auto end =
      std::chrono::steady_clock::now() + std::chrono::milliseconds(kPatienceMilliseconds);
  int status = 0;
  while (std::chrono::steady_clock::now() < end) {
    if (::waitpid(pid_, &status, WNOHANG) == pid_) {
      pid_ = -1;
      return exit_status(status);
    }
    ::poll(nullptr, 0, kTurnMilliseconds);
  }
  return -1;
}

int PrinterProcess::Stop() {
  Signal(SIGTERM);
  return Wait();
}

bool PrinterProcess::OutputIsFull() const {
  constexpr int kNearlyFull = 60000;  // of 65536
  for (int waited = 0; waited < kPatienceMilliseconds; waited += kTurnMilliseconds) {
    int bytes = 0;
    if (::ioctl(outputEnd_, FIONREAD, &bytes) == 0 && bytes > kNearlyFull) {
      return true;
    }
    ::poll(nullptr, 0, kTurnMilliseconds);
  }
  return false;
}

bool PrinterProcess::DiesBy(int number) {
  for (int waited = 0; waited < kPatienceMilliseconds; waited += kTurnMilliseconds) {
    ::kill(pid_, number);
    int status = 0;
    if (::waitpid(pid_, &status, WNOHANG) == pid_) {
      pid_ = -1;
      return WIFSIGNALED(status) && WTERMSIG(status) == number;
    }
    ::poll(nullptr, 0, kTurnMilliseconds);
  }
  return false;
}

FinishedRun run_to_its_end(const std::vector<std::string>& options) {
  const Child child = start(options, STDERR_FILENO, 0);
  FinishedRun run{{}, -1};
  std::array<char, 4096> bytes{};
  for (;;) {
    const ssize_t count = ::read(child.outputEnd, bytes.data(), bytes.size());
    if (count <= 0) {
      break;
    }
    run.errors.append(bytes.data(), static_cast<std::size_t>(count));
  }
  ::close(child.outputEnd);
  int status = 0;
  ::waitpid(child.pid, &status, 0);
  run.status = exit_status(status);
  return run;
}
