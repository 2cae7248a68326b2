// SPDX-License-Identifier: Apache-2.0
#include "commands/command_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/filter/seeded_random.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using namespace std::string_literals;

/// A file with these bytes, which need not end in a line end.
class CommandFileTest : public testing::Test {
 protected:
  ~CommandFileTest() override {
    if (stream_ != nullptr) {
      std::fclose(stream_);
    }
  }

  CommandFile Open(const std::string& bytes) {
    stream_ = std::tmpfile();
    std::fwrite(bytes.data(), 1, bytes.size(), stream_);
    std::rewind(stream_);
    return CommandFile(stream_);
  }

  bool BeginsWell(const std::string& bytes) { return Open(bytes).begins_as_command_file(); }

  /// The commands behind the first line, as "name" or "name|parameters".
  std::vector<std::string> Commands(const std::string& bytes) {
    CommandFile file = Open("#CUPS-COMMAND\n" + bytes);
    EXPECT_TRUE(file.begins_as_command_file());
    std::vector<std::string> commands;
    while (const std::optional<Command> command = file.next()) {
      commands.push_back(command->name +
                         (command->parameters.empty() ? "" : "|" + command->parameters));
    }
    return commands;
  }

  std::FILE* stream_ = nullptr;
};

TEST_F(CommandFileTest, BeginsWithItsMark) {
  EXPECT_TRUE(BeginsWell("#CUPS-COMMAND\n"));
}

TEST_F(CommandFileTest, NeedsNoLineEndBehindItsMark) {
  EXPECT_TRUE(BeginsWell("#CUPS-COMMAND"));
}

TEST_F(CommandFileTest, MayHaveLineEndsOfOtherSystems) {
  EXPECT_TRUE(BeginsWell("#CUPS-COMMAND\r\nReportStatus\r\n"));
  EXPECT_THAT(Commands("ReportStatus\r\n"), ElementsAre("ReportStatus"));
}

TEST_F(CommandFileTest, IsNoneWithAnotherFirstLine) {
  EXPECT_FALSE(BeginsWell("ReportStatus\n"));
}

TEST_F(CommandFileTest, IsNoneWithTheMarkInTheSecondLine) {
  EXPECT_FALSE(BeginsWell("\n#CUPS-COMMAND\n"));
}

TEST_F(CommandFileTest, IsNoneWithTheMarkInSmallLetters) {
  EXPECT_FALSE(BeginsWell("#cups-command\n"));
}

TEST_F(CommandFileTest, IsNoneWithoutAByte) {
  EXPECT_FALSE(BeginsWell(""));
}

TEST_F(CommandFileTest, IsNoneWithPartOfTheMark) {
  EXPECT_FALSE(BeginsWell("#CUPS-COMMAN"));
}

TEST_F(CommandFileTest, GivesACommandALine) {
  EXPECT_THAT(Commands("ReportStatus\nPrintSelfTestPage\n"),
              ElementsAre("ReportStatus", "PrintSelfTestPage"));
}

TEST_F(CommandFileTest, GivesTheLastCommandWithoutALineEnd) {
  EXPECT_THAT(Commands("ReportStatus"), ElementsAre("ReportStatus"));
}

TEST_F(CommandFileTest, GivesWhatFollowsTheNameAsParameters) {
  EXPECT_THAT(Commands("Clean all\nSetAlignment  1\t14 \n"),
              ElementsAre("Clean|all", "SetAlignment|1\t14"));
}

TEST_F(CommandFileTest, SkipsCommentsAndBlankLines) {
  EXPECT_THAT(Commands("# a comment\n\n   \t\n  # another\nReportStatus\n#"),
              ElementsAre("ReportStatus"));
}

TEST_F(CommandFileTest, SkipsBlanksAroundACommand) {
  EXPECT_THAT(Commands(" \tReportStatus \t\n"), ElementsAre("ReportStatus"));
}

TEST_F(CommandFileTest, KeepsNullBytesInAName) {
  EXPECT_THAT(Commands("Report\0Status\n"s), ElementsAre("Report\0Status"s));
}

TEST_F(CommandFileTest, CutsALineAfter255Bytes) {
  EXPECT_THAT(Commands(std::string(100'000, 'a') + "\nReportStatus\n"),
              ElementsAre(std::string(255, 'a'), "ReportStatus"));
}

TEST_F(CommandFileTest, IsReadForAMegabyteAndNotBeyond) {
  EXPECT_THAT(Commands(std::string(1'048'576, '\n') + "ReportStatus\n"), IsEmpty());
}

TEST_F(CommandFileTest, WithAnEndlessLineEnds) {
  stream_ = std::fopen("/dev/zero", "rb");
  CommandFile file(stream_);

  EXPECT_FALSE(file.begins_as_command_file());
  EXPECT_FALSE(file.next());
}

TEST_F(CommandFileTest, ThatCannotBeReadIsEmpty) {
  stream_ = std::fopen("/", "rb");  // a folder
  CommandFile file(stream_);

  EXPECT_FALSE(file.begins_as_command_file());
  EXPECT_FALSE(file.next());
}

TEST_F(CommandFileTest, OfAnyBytesGivesCommandsWithNamesOfBoundedLength) {
  std::mt19937 random = filter_test::SeededRandom(23);
  std::string bytes(200'000, ' ');
  for (char& byte : bytes) {
    byte = static_cast<char>(random());
  }
  const std::vector<std::string> commands = Commands(bytes);
  EXPECT_GT(commands.size(), 100U);
  for (const std::string& command : commands) {
    EXPECT_LE(command.size(), 256U);
    EXPECT_EQ(command.find('\n'), std::string::npos);
  }
}

TEST(Command, NamesHaveNoUpperAndLowerCase) {
  EXPECT_TRUE((Command{"PRINTSELFTESTPAGE", ""}.is("PrintSelfTestPage")));
  EXPECT_TRUE((Command{"printselftestpage", ""}.is("PrintSelfTestPage")));
}

TEST(Command, IsNoOtherThatBeginsOrEndsLikeIt) {
  EXPECT_FALSE((Command{"ReportStatu", ""}.is("ReportStatus")));
  EXPECT_FALSE((Command{"ReportStatuses", ""}.is("ReportStatus")));
  EXPECT_FALSE((Command{"ReportStatus\0"s, ""}.is("ReportStatus")));
  EXPECT_FALSE((Command{"", ""}.is("ReportStatus")));
}

}  // namespace
