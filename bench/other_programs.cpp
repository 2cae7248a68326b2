// SPDX-License-Identifier: Apache-2.0
#include "bench/other_programs.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "bench/little_cms.h"

// What programs that are started get to see; POSIX leaves its declaration to us.
extern char** environ;  // NOLINT(readability-redundant-declaration)

namespace bench {

namespace {

using Command = std::vector<std::string>;

double seconds_of(const timeval& time) {
  return static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_usec);
}

/// Starts the program with its output thrown away and waits for it; its processor time, user and
/// system, in `seconds`. False when it cannot be started or does not end with status 0.
bool run_program(const Command& command, double& seconds) {
  std::vector<char*> arguments;
  arguments.reserve(command.size() + 1);
  for (const std::string& argument : command) {
    arguments.push_back(const_cast<char*>(argument.c_str()));
  }
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t child = 0;
  const int started =
      posix_spawnp(&child, arguments[0], &actions, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  int status = 0;
  rusage usage{};
  if (started != 0 || wait4(child, &status, 0, &usage) != child) {
    return false;
  }
  seconds = seconds_of(usage.ru_utime) + seconds_of(usage.ru_stime);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

double run_all(const std::vector<Command>& commands) {
  double sum = 0.0;
  for (const Command& command : commands) {
    double seconds = 0.0;
    if (!run_program(command, seconds)) {
      std::string words;
      for (const std::string& word : command) {
        words += word + " ";
      }
      throw std::runtime_error("failed: " + words);
    }
    sum += seconds;
  }
  return sum;
}

Contestant program(std::string name, std::vector<Command> commands) {
  return {std::move(name), [commands = std::move(commands)] { return run_all(commands); }, {}};
}

void write_file(const std::string& path, const std::string& content) {
  std::ofstream file(path, std::ios::binary);
  file << content;
  file.close();
  if (!file) {
    throw std::runtime_error(path + ": cannot be written");
  }
}

std::string text_of(std::span<const unsigned char> bytes) {
  return {bytes.begin(), bytes.end()};
}

std::string ppm_of(const Picture& page) {
  const std::string head =
      "P6\n" + std::to_string(page.width) + " " + std::to_string(page.height) + "\n255\n";
  return head + text_of({page.row(0), 3 * page.pixels.size()});
}

/// The picture and 5/8 of its difference to its surroundings (weights 1 4 6 4 1 both ways), as the
/// plain unsharp mask has it; whole numbers over 2048.
std::string unsharp_matrix() {
  constexpr std::array<int, 5> kWeights = {1, 4, 6, 4, 1};
  std::string matrix = "5 5 2048 0\n";
  for (std::size_t y = 0; y < 5; ++y) {
    for (std::size_t x = 0; x < 5; ++x) {
      const int middle = x == 2 && y == 2 ? 2048 + 5 * 256 : 0;
      matrix += std::to_string(middle - 5 * kWeights[x] * kWeights[y]) + " ";
    }
    matrix += "\n";
  }
  return matrix;
}

std::string new_folder() {
  const bool memory = std::filesystem::is_directory("/dev/shm");
  const auto base =
      memory ? std::filesystem::path("/dev/shm") : std::filesystem::temp_directory_path();
  std::string path = base / "colour-speed-XXXXXX";
  if (mkdtemp(path.data()) == nullptr) {
    throw std::runtime_error(path + ": cannot be made");
  }
  return path;
}

}  // namespace

WorkFolder::WorkFolder(const Picture& page, std::span<const unsigned char> profile)
    : path_(new_folder()) {
  // One thread, so that times compare.
  setenv("VIPS_CONCURRENCY", "1", 1);
  setenv("OMP_NUM_THREADS", "1", 1);
  write_file(file("page.ppm"), ppm_of(page));
  write_file(file("srgb.icc"), text_of(saved(srgb_profile())));
  write_file(file("printer.icc"), text_of(profile));
  write_file(file("unsharp.mat"), unsharp_matrix());
  if (installed("vips")) {
    run_all({{"vips", "copy", file("page.ppm"), file("page.v")}});
  }
}

WorkFolder::~WorkFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

ProgramRace vips_race(const WorkFolder& folder) {
  const std::string page = folder.file("page.v");
  const std::string middle = folder.file("middle.v");
  const std::string out = folder.file("out.v");
  const Command sharpen = {"vips",        "conv",   page, middle, folder.file("unsharp.mat"),
                           "--precision", "integer"};
  const Command convert = {"vips",
                           "icc_transform",
                           middle,
                           out,
                           folder.file("printer.icc"),
                           "--input-profile",
                           folder.file("srgb.icc"),
                           "--intent",
                           "relative",
                           "--black-point-compensation",
                           "--depth",
                           "16"};
  const Command copy = {"vips", "copy", page, out};
  return {program("vips", {sharpen, convert}), program("vips, load and save", {copy, copy})};
}

ProgramRace graphics_magick_race(const WorkFolder& folder) {
  const std::string page = folder.file("page.ppm");
  const std::string out = folder.file("out.ppm");
  const Command work = {"gm",
                        "convert",
                        page,
                        "-unsharp",
                        "2x1+0.625+0",
                        "-profile",
                        folder.file("srgb.icc"),
                        "-profile",
                        folder.file("printer.icc"),
                        "-depth",
                        "16",
                        out};
  const Command copy = {"gm", "convert", page, "-depth", "16", out};
  return {program("GraphicsMagick", {work}), program("GraphicsMagick, load and save", {copy})};
}

Contestant without_loading(const ProgramRace& race) {
  Contestant net{race.work.name, nullptr, {}};
  for (std::size_t round = 0; round < race.work.seconds.size(); ++round) {
    net.seconds.push_back(race.work.seconds[round] - race.loadAndSave.seconds[round]);
  }
  return net;
}

bool installed(const char* program) {
  double seconds = 0.0;
  return run_program({program, "--version"}, seconds) || run_program({program, "version"}, seconds);
}

}  // namespace bench
