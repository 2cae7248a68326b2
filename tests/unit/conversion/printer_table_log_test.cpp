// SPDX-License-Identifier: Apache-2.0
//
// What the log says of the profile: one line a process, whatever the path is.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <fstream>
#include <functional>
#include <string>

#include "conversion/printer_table.h"
#include "tests/unit/profile_maker.h"
#include "tests/unit/temp_file.h"

namespace {

/// What a new process writes to standard error while it does this.
std::string log_of(const std::function<void()>& work) {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) {
    return "no pipe";
  }
  const pid_t child = fork();
  if (child == 0) {
    dup2(ends[1], STDERR_FILENO);
    close(ends[0]);
    work();
    _exit(0);
  }
  close(ends[1]);
  std::string log;
  std::array<char, 4096> piece{};
  for (ssize_t got = 0; (got = read(ends[0], piece.data(), piece.size())) > 0;) {
    log.append(piece.data(), static_cast<std::size_t>(got));
  }
  close(ends[0]);
  int status = 0;
  waitpid(child, &status, 0);
  return status == 0 ? log : log + "(ended with " + std::to_string(status) + ")";
}

std::string log_of_loading(const std::string& path) {
  return log_of([&] { PrinterTable().load(path.c_str()); });
}

class PrinterTableLog : public testing::Test {
 protected:
  void put(const ProfileBytes& bytes) {
    std::ofstream(folder / "tqr7.icc", std::ios::binary | std::ios::trunc)
        << std::string(bytes.begin(), bytes.end());
  }

  TempFolder folder;
  std::string path = folder.path().string();
};

TEST_F(PrinterTableLog, NothingIsToldOfAProfileThatIsNotThere) {
  EXPECT_EQ(log_of_loading(path), "");
  EXPECT_EQ(log_of_loading(path + "/nowhere/"), "");
}

TEST_F(PrinterTableLog, ASlashAtTheEndOfTheDirectoryIsNotDoubled) {
  put(ProfileBytes(1, 0));
  EXPECT_EQ(log_of_loading(path + "/"), "DEBUG: Printer profile " + path +
                                            "/tqr7.icc is not used (it is too small for a "
                                            "profile); colours by the built-in model.\n");
}

TEST_F(PrinterTableLog, WithoutADirectoryTheFileAloneIsNamed) {
  const std::string line =
      "DEBUG: Printer profile tqr7.icc is not used (no module directory is known); colours by the "
      "built-in model.\n";
  EXPECT_EQ(log_of([] { PrinterTable().load(nullptr); }), line);
  EXPECT_EQ(log_of_loading(""), line);
}

TEST_F(PrinterTableLog, ABrokenProfileIsToldOnceAProcess) {
  put(ProfileBytes(1000, 0));
  EXPECT_EQ(log_of([&] {
              PrinterTable().load(path.c_str());
              PrinterTable().load(path.c_str());
              PrinterTable().load(nullptr);
            }),
            "DEBUG: Printer profile " + path +
                "/tqr7.icc is not used (it is not an ICC profile, or a damaged one); colours by "
                "the built-in model.\n");
}

TEST_F(PrinterTableLog, NothingIsToldOfAProfileThatIsUsed) {
  put(matrix_profile({}));
  EXPECT_EQ(log_of_loading(path), "");
  put(model_bytes());
  EXPECT_EQ(log_of_loading(path), "");
}

TEST_F(PrinterTableLog, LittleCmsSaysNothingOfItsOwn) {
  put(dye_profile({.grid = 5, .backToDevice = false}));
  EXPECT_EQ(log_of_loading(path),
            "DEBUG: Printer profile " + path +
                "/tqr7.icc is not used (it does not lead from colours to the printer); colours by "
                "the built-in model.\n");
}

TEST_F(PrinterTableLog, ALineBreakInThePathDoesNotBreakTheLine) {
  EXPECT_EQ(log_of_loading("/etc/passwd/\nSTATE: +paused\x1B\x7F/"),
            "DEBUG: Printer profile /etc/passwd/?STATE: +paused\?\?/tqr7.icc is not used (the "
            "module directory cannot be opened); colours by the built-in model.\n");
}

TEST_F(PrinterTableLog, PercentSignsInThePathMeanNothing) {
  EXPECT_EQ(log_of_loading("/etc/passwd/%s%n"),
            "DEBUG: Printer profile /etc/passwd/%s%n/tqr7.icc is not used (the module directory "
            "cannot be opened); colours by the built-in model.\n");
}

TEST_F(PrinterTableLog, OfAPathWithoutEndTheFirst1000BytesAreShown) {
  EXPECT_EQ(log_of_loading(std::string(50000, 'p')),
            "DEBUG: Printer profile " + std::string(1000, 'p') +
                "/tqr7.icc is not used (the module directory cannot be opened); colours by the "
                "built-in model.\n");
}

}  // namespace
