// SPDX-License-Identifier: Apache-2.0
//
// The printer's profile as a file: what is opened, compared and read, and what is not.
#include "conversion/profile_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/unit/temp_file.h"

namespace {

class ProfileFileTest : public testing::Test {
 protected:
  void put(const std::string& bytes) { std::ofstream(path, std::ios::binary) << bytes; }

  std::string openFault() {
    const char* fault = file.open_in(folder.path().c_str());
    return fault == nullptr ? "opened" : fault;
  }

  bool has(const std::string& bytes) const {
    const std::vector<unsigned char> content(bytes.begin(), bytes.end());
    return file.has_content(content);
  }

  TempFolder folder;
  std::string path = folder / "tqr7.icc";
  ProfileFile file;
};

TEST_F(ProfileFileTest, ReadsTheWholeFile) {
  const std::string bytes = std::string(20000, 'a') + std::string(20000, 'b');
  put(bytes);
  EXPECT_EQ(openFault(), "opened");
  ASSERT_EQ(file.size(), 40000U);
  std::vector<unsigned char> content(40000);
  EXPECT_TRUE(file.read(content.data()));
  EXPECT_EQ(std::string(content.begin(), content.end()), bytes);
}

TEST_F(ProfileFileTest, KnowsItsContent) {
  put(std::string(40000, 'a'));
  EXPECT_EQ(openFault(), "opened");
  EXPECT_TRUE(has(std::string(40000, 'a')));
  EXPECT_FALSE(has(std::string(39999, 'a')));
  EXPECT_FALSE(has(std::string(40001, 'a')));
  EXPECT_FALSE(has(std::string("b").append(39999, 'a')));
  EXPECT_FALSE(has(std::string(39999, 'a') + "b"));
}

TEST_F(ProfileFileTest, AFileThatBecomesShorterIsNotRead) {
  put(std::string(40000, 'a'));
  EXPECT_EQ(openFault(), "opened");
  std::filesystem::resize_file(path, 30000);
  std::vector<unsigned char> content(40000);
  EXPECT_FALSE(file.read(content.data()));
  EXPECT_FALSE(has(std::string(40000, 'a')));
}

TEST_F(ProfileFileTest, AFileThatBecomesLongerIsNotRead) {
  put(std::string(40000, 'a'));
  EXPECT_EQ(openFault(), "opened");
  std::ofstream(path, std::ios::binary | std::ios::app) << 'a';
  std::vector<unsigned char> content(40000);
  EXPECT_FALSE(file.read(content.data()));
  EXPECT_FALSE(has(std::string(40000, 'a')));
}

TEST_F(ProfileFileTest, ALinkToAProfileIsFollowed) {
  std::ofstream(folder / "mine.icc") << std::string(500, 'a');
  std::filesystem::create_symlink("mine.icc", path);
  EXPECT_EQ(openFault(), "opened");
  EXPECT_EQ(file.size(), 500U);
}

TEST_F(ProfileFileTest, FilesFrom128BytesTo4MiBAreOpened) {
  put(std::string(127, 'a'));
  EXPECT_EQ(openFault(), "it is too small for a profile");
  put(std::string(128, 'a'));
  EXPECT_EQ(openFault(), "opened");
  std::filesystem::resize_file(path, 4194304);
  EXPECT_EQ(openFault(), "opened");
  std::filesystem::resize_file(path, 4194305);
  EXPECT_EQ(openFault(), "it is larger than 4 MiB");
}

TEST_F(ProfileFileTest, AFileOf3GiBIsRefusedByItsSize) {
  put("");
  std::filesystem::resize_file(path, 3221225472);
  EXPECT_EQ(openFault(), "it is larger than 4 MiB");
}

TEST_F(ProfileFileTest, NoFileIsNoFault) {
  EXPECT_EQ(file.open_in(folder.path().c_str()), nullptr);
  EXPECT_FALSE(file.is_open());
}

TEST_F(ProfileFileTest, ALinkThatLeadsNowhereIsTold) {
  std::filesystem::create_symlink("old.icc", path);
  EXPECT_EQ(openFault(), "its link leads nowhere");
}

TEST_F(ProfileFileTest, APipeThatNobodyWritesToDoesNotHoldUp) {
  ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
  EXPECT_EQ(openFault(), "it is not a regular file");
}

TEST_F(ProfileFileTest, AFolderIsNoProfile) {
  std::filesystem::create_directory(path);
  EXPECT_EQ(openFault(), "it is not a regular file");
}

TEST_F(ProfileFileTest, ADeviceWithoutEndIsNoProfile) {
  std::filesystem::create_symlink("/dev/zero", path);
  EXPECT_EQ(openFault(), "it is not a regular file");
}

TEST_F(ProfileFileTest, LinksInACircleAreTold) {
  std::filesystem::create_symlink("tqr7.icc", path);
  EXPECT_EQ(openFault(), "its link leads in a circle");
}

TEST_F(ProfileFileTest, AModuleDirectoryThatIsNotThereIsNoFault) {
  EXPECT_EQ(file.open_in((folder / "nowhere/").c_str()), nullptr);
  EXPECT_FALSE(file.is_open());
}

TEST_F(ProfileFileTest, AModuleDirectoryThatIsAFileIsTold) {
  put(std::string(500, 'a'));
  EXPECT_STREQ(file.open_in(path.c_str()), "the module directory cannot be opened");
}

TEST_F(ProfileFileTest, WithoutAModuleDirectoryNothingIsOpened) {
  EXPECT_STREQ(file.open_in(nullptr), "no module directory is known");
  EXPECT_STREQ(file.open_in(""), "no module directory is known");
}

/// The superuser may read everything: such a one steps down for the test.
class AsSomebodyElse {
 public:
  AsSomebodyElse() {
    if (!change(65534)) {
      throw std::runtime_error("the user cannot be changed");
    }
  }
  ~AsSomebodyElse() { change(0); }
  AsSomebodyElse(const AsSomebodyElse&) = delete;
  AsSomebodyElse& operator=(const AsSomebodyElse&) = delete;

 private:
  static bool change(uid_t user) { return getuid() != 0 || seteuid(user) == 0; }
};

TEST_F(ProfileFileTest, AFileThatMayNotBeReadIsTold) {
  put(std::string(500, 'a'));
  std::filesystem::permissions(folder.path(), std::filesystem::perms(0755));
  std::filesystem::permissions(path, std::filesystem::perms::none);
  const AsSomebodyElse somebody;
  EXPECT_EQ(openFault(), "it may not be read");
}

}  // namespace
