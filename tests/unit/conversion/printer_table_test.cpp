// SPDX-License-Identifier: Apache-2.0
//
// Which table a page gets, from the file in the module directory, call after call.
#include "conversion/printer_table.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

#include "conversion/table_from_profile.h"
#include "tests/unit/conversion/refused_memory.h"
#include "tests/unit/profile_maker.h"
#include "tests/unit/temp_file.h"

namespace {

std::string text_of(const ProfileBytes& bytes) {
  return {bytes.begin(), bytes.end()};
}

/// Profiles of one size, told apart by their gamma.
std::string owners_profile(double gamma) {
  MatrixDevice device;
  device.gamma = gamma;
  return text_of(matrix_profile(device));
}

/// The red of the middle grey, and the light of sRGB's 16/32 to the power of 1 / gamma.
int middle(const PrinterTable& printer) {
  return printer.table().nodes[(16 * 33 + 16) * 33 + 16][0];
}
constexpr int kMiddleOfGamma1 = 3507;   // 0.21404114 × 16383
constexpr int kMiddleOfGamma3 = 9800;   // its cube root × 16383
constexpr int kMiddleOfGamma4 = 11143;  // its fourth root × 16383

class PrinterTableTest : public testing::Test {
 protected:
  void put(const std::string& bytes) {
    std::ofstream(folder / "tqr7.icc", std::ios::binary | std::ios::trunc) << bytes;
  }
  void load() { printer.load(folder.path().c_str()); }
  bool isModels() const { return &printer.table() == &builtin_table(); }

  TempFolder folder;
  PrinterTable printer;
};

TEST_F(PrinterTableTest, BeforeAnythingIsLoadedTheTableIsTheModels) {
  EXPECT_TRUE(isModels());
}

TEST_F(PrinterTableTest, TheProfileThatComesWithTheFilterGivesTheCompiledInTable) {
  put(text_of(model_bytes()));
  load();
  EXPECT_TRUE(isModels());
}

TEST_F(PrinterTableTest, AnOwnersProfileIsUsed) {
  put(owners_profile(1));
  load();
  EXPECT_EQ(middle(printer), kMiddleOfGamma1);
}

TEST_F(PrinterTableTest, TheWholeTableIsTheOneThatTheProfileGives) {
  put(text_of(dye_profile({})));
  load();
  const ProfileBytes bytes = dye_profile({});
  ColourTable expected;
  ASSERT_STREQ(make_colour_table(bytes, expected), nullptr);
  EXPECT_EQ(printer.table().nodes, expected.nodes);
}

TEST_F(PrinterTableTest, TheModuleDirectoryMayEndInASlash) {
  put(owners_profile(1));
  printer.load((folder.path().string() + "/").c_str());
  EXPECT_EQ(middle(printer), kMiddleOfGamma1);
}

TEST_F(PrinterTableTest, AnotherProfileInItsPlaceIsUsedFromTheNextCallOn) {
  put(owners_profile(1));
  load();
  put(owners_profile(3));
  load();
  EXPECT_EQ(middle(printer), kMiddleOfGamma3);
}

TEST_F(PrinterTableTest, OtherContentOfTheSameSizeAndTimeIsSeen) {
  put(owners_profile(1));
  const auto time = std::filesystem::last_write_time(folder / "tqr7.icc");
  load();
  put(owners_profile(3));
  ASSERT_EQ(owners_profile(1).size(), owners_profile(3).size());
  std::filesystem::last_write_time(folder / "tqr7.icc", time);
  load();
  EXPECT_EQ(middle(printer), kMiddleOfGamma3);
}

TEST_F(PrinterTableTest, TheModelComesBackWithItsFile) {
  put(owners_profile(1));
  load();
  put(text_of(model_bytes()));
  load();
  EXPECT_TRUE(isModels());
}

TEST_F(PrinterTableTest, TheOwnersProfileComesBackAfterABrokenOne) {
  put(owners_profile(1));
  load();
  put(owners_profile(1).substr(0, 300));
  load();
  EXPECT_TRUE(isModels());
  put(owners_profile(1));
  load();
  EXPECT_EQ(middle(printer), kMiddleOfGamma1);
}

TEST_F(PrinterTableTest, ABrokenProfileStaysRefused) {
  put(std::string(1000, 'x'));
  load();
  EXPECT_TRUE(isModels());
  load();
  EXPECT_TRUE(isModels());
}

TEST_F(PrinterTableTest, AProfileOfAnotherKindGivesTheModel) {
  put(text_of(cmyk_profile()));
  load();
  EXPECT_TRUE(isModels());
}

TEST_F(PrinterTableTest, AProfileThatNeedsTooMuchMemoryGivesTheModel) {
  DyeDevice device;
  device.version = 2.4;
  device.eightBits = true;
  device.grid = 68;
  put(text_of(dye_profile(device)));
  load();
  EXPECT_TRUE(isModels());
}

TEST_F(PrinterTableTest, NoFileOrNoDirectoryGivesTheModel) {
  load();
  EXPECT_TRUE(isModels());
  printer.load(nullptr);
  EXPECT_TRUE(isModels());
  printer.load("");
  EXPECT_TRUE(isModels());
}

TEST_F(PrinterTableTest, APipeGivesTheModelAtOnce) {
  ASSERT_EQ(mkfifo((folder / "tqr7.icc").c_str(), 0600), 0);
  load();
  EXPECT_TRUE(isModels());
}

TEST_F(PrinterTableTest, WithoutMemoryForTheFileTheModelServesAndLaterTheOwners) {
  put(owners_profile(4));
  memory_script().grantsLeft = 0;
  load();
  memory_script().grantsLeft = -1;
  EXPECT_TRUE(isModels());
  put(owners_profile(1));
  load();
  EXPECT_EQ(middle(printer), kMiddleOfGamma1);
}

TEST_F(PrinterTableTest, WithoutMemoryForTheTableTheModelServesAndLaterTheOwners) {
  put(owners_profile(1));
  memory_script().tablesRefused = true;
  load();
  memory_script().tablesRefused = false;
  EXPECT_TRUE(isModels());
  load();
  EXPECT_EQ(middle(printer), kMiddleOfGamma1);
}

TEST_F(PrinterTableTest, ATableStaysAsItIsWhileOthersAreLoaded) {
  put(owners_profile(1));
  load();
  put(owners_profile(3));
  PrinterTable another;
  another.load(folder.path().c_str());
  EXPECT_EQ(middle(printer), kMiddleOfGamma1);
  EXPECT_EQ(middle(another), kMiddleOfGamma3);
}

TEST_F(PrinterTableTest, ThreadsWithDifferentProfilesEachGetTheirOwn) {
  const std::array<double, 3> gammas = {1, 3, 4};
  std::array<TempFolder, 3> folders;
  std::array<std::array<int, 8>, 3> middles{};
  std::array<std::thread, 3> threads;
  for (std::size_t i = 0; i < 3; ++i) {
    std::ofstream(folders[i] / "tqr7.icc", std::ios::binary) << owners_profile(gammas[i]);
  }
  for (std::size_t i = 0; i < 3; ++i) {
    threads[i] = std::thread([&, i] {
      for (int& seen : middles[i]) {
        PrinterTable own;
        own.load(folders[i].path().c_str());
        seen = middle(own);
      }
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  std::array<std::array<int, 8>, 3> expected{};
  expected[0].fill(kMiddleOfGamma1);
  expected[1].fill(kMiddleOfGamma3);
  expected[2].fill(kMiddleOfGamma4);
  EXPECT_EQ(middles, expected);
}

}  // namespace
