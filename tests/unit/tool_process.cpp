// SPDX-License-Identifier: Apache-2.0
#include "tests/unit/tool_process.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <stdexcept>

#include "tests/unit/temp_file.h"

namespace {

// Files in place of pipes: no order of reading and writing can make either side wait.
void redirect(const std::string& path, int flags, int descriptor) {
  const int file = open(path.c_str(), flags | O_CLOEXEC, 0600);
  if (file < 0 || dup2(file, descriptor) < 0) {
    _exit(126);
  }
}

}  // namespace

ToolRun run_program(std::vector<std::string> words, const std::string& input) {
  const TempFolder folder;
  std::ofstream(folder / "in", std::ios::binary) << input;
  std::vector<char*> pointers;
  pointers.reserve(words.size() + 1);
  for (std::string& word : words) {
    pointers.push_back(word.data());
  }
  pointers.push_back(nullptr);
  const pid_t child = fork();
  if (child < 0) {
    throw std::runtime_error("no process for a test");
  }
  if (child == 0) {
    redirect(folder / "in", O_RDONLY, STDIN_FILENO);
    redirect(folder / "out", O_WRONLY | O_CREAT, STDOUT_FILENO);
    redirect(folder / "errors", O_WRONLY | O_CREAT, STDERR_FILENO);
    execvp(pointers[0], pointers.data());
    _exit(127);
  }
  int status = 0;
  waitpid(child, &status, 0);
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ReadFile(folder / "out"),
          ReadFile(folder / "errors")};
}

ToolRun run_tool(const std::vector<std::string>& arguments, const std::string& input) {
  std::vector<std::string> words = {TQR7_TOOL};
  words.insert(words.end(), arguments.begin(), arguments.end());
  return run_program(words, input);
}
