// SPDX-License-Identifier: Apache-2.0
//
// The two files that a job is given, its PPD and its raster stream, when they are no ordinary ones.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <thread>

#include "tests/filter/comparison.h"
#include "tests/filter/descriptors.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

/// A job whose PPD cannot be used ends before anything is sent.
void ExpectNoPpd(const std::string& path) {
  const Outcome outcome = Print({.input = SmallRaster(), .environment = {{"PPD", path}}});

  EXPECT_TRUE(SameLog(outcome.log, kBanner + "ERROR: Unable to find module path\n: " + kAnyText +
                                       "\n[sleep 1]\n" + kNoPages));
  EXPECT_TRUE(SameStream(outcome.stream, ""));
  EXPECT_EQ(outcome.status, 1);
}

std::vector<std::string> ArgumentsWithFile(const std::string& path) {
  return {"7", "anna", "Beach", "1", "", path};
}

/// A job whose file holds no pages ends as one without pages does.
void ExpectNoPages(const std::string& path) {
  const Outcome outcome = Print({.arguments = ArgumentsWithFile(path)});

  EXPECT_TRUE(SameLog(outcome.log, GoodStart() + kNoPages));
  EXPECT_TRUE(SameStream(outcome.stream, StatusRequest() + PrintOut()));
  EXPECT_EQ(outcome.status, 1);
}

TEST(PpdFile, OfAnEmptyNameIsNone) {
  ExpectNoPpd("");
}

TEST(PpdFile, OfAHugeNameIsNone) {
  ExpectNoPpd(std::string(std::size_t{120} * 1024, 'x'));
}

TEST(PpdFile, ThatIsEmptyIsNone) {
  const TemporaryFolder folder;
  ExpectNoPpd(folder.Write("empty.ppd", ""));
}

TEST(PpdFile, ThatIsAFolderIsNone) {
  ExpectNoPpd("/etc");
}

TEST(PpdFile, ThatIsADeviceWithoutEndIsNone) {
  ExpectNoPpd("/dev/zero");
}

TEST(PpdFile, ThatIsAPipeIsRead) {
  const TemporaryFolder folder;
  const std::string path = folder.Path("pipe.ppd");
  ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
  FilterProcess filter({.input = SmallRaster(), .environment = {{"PPD", path}}});
  int pipe = -1;
  while (pipe < 0 && !filter.Ended()) {
    filter.PlayFor(std::chrono::milliseconds(1));
    pipe = open(path.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);  // once somebody reads
  }
  const std::string text = Ppd{}.Text();
  EXPECT_EQ(write(pipe, text.data(), text.size()), static_cast<ssize_t>(text.size()));
  close(pipe);

  ExpectPrinted(filter.Finish());
}

TEST(PpdFile, ThatIsAnOpenPipeIsRead) {
  const auto [read_end, write_end] = HighPipe();
  const Opened reader(read_end);
  const std::string text = Ppd{}.Text();
  ASSERT_EQ(write(write_end, text.data(), text.size()), static_cast<ssize_t>(text.size()));
  close(write_end);

  ExpectPrinted(Print({.input = SmallRaster(),
                       .environment = {{"PPD", "/dev/fd/9"}},
                       .given_descriptors = {{9, reader.number()}}}));
}

TEST(PpdFile, ThatIsStandardInputIsReadBesideARasterFile) {
  const TemporaryFolder folder;

  ExpectPrinted(Print({.input = Ppd{}.Text(),
                       .arguments = ArgumentsWithFile(folder.Write("page.ras", SmallRaster())),
                       .environment = {{"PPD", "/dev/stdin"}}}));
}

TEST(PpdFile, ThatLinksToItselfIsNone) {
  const TemporaryFolder folder;
  const std::string path = folder.Path("loop.ppd");
  std::filesystem::create_symlink(path, path);

  ExpectNoPpd(path);
}

TEST(PpdFile, ThatIsALinkIsFollowed) {
  const TemporaryFolder folder;
  const std::string path = folder.Path("link.ppd");
  std::filesystem::create_symlink(folder.Write("real.ppd", Ppd{}.Text()), path);

  ExpectPrinted(Print({.input = SmallRaster(), .environment = {{"PPD", path}}}));
}

TEST(PpdFile, OfAHundredMegabytesIsRead) {
  const TemporaryFolder folder;
  std::string text = Ppd{}.Text();
  const std::string comment = "*% " + std::string(240, '-') + "\n";
  text.reserve(101 << 20);
  while (text.size() < (100 << 20)) {
    text += comment;
  }

  ExpectPrinted(
      Print({.input = SmallRaster(), .environment = {{"PPD", folder.Write("large.ppd", text)}}}));
}

TEST(PpdFile, OfOneEndlessLineIsNone) {
  const TemporaryFolder folder;
  ExpectNoPpd(folder.Write("line.ppd", Ppd{}.Text() + std::string(10 << 20, '*')));
}

TEST(RasterFile, ThatIsAFolderHasNoPages) {
  ExpectNoPages("/etc");
}

TEST(RasterFile, ThatIsEmptyHasNoPages) {
  const TemporaryFolder folder;
  ExpectNoPages(folder.Write("empty.ras", ""));
}

TEST(RasterFile, OfZerosWithoutEndHasNoPages) {
  ExpectNoPages("/dev/zero");
}

TEST(RasterFile, ThatIsTheNullDeviceHasNoPages) {
  ExpectNoPages("/dev/null");
}

TEST(RasterFile, ThatCannotBeOpenedEndsTheJobAfterASecond) {
  const TemporaryFolder folder;
  const std::string path = folder.Path("loop.ras");
  std::filesystem::create_symlink(path, path);

  const Outcome outcome = Print({.arguments = ArgumentsWithFile(path)});

  EXPECT_TRUE(SameLog(outcome.log, kBanner +
                                       "ERROR: Unable to open raster file - : Too many levels of "
                                       "symbolic links\n[sleep 1]\n"));
  EXPECT_TRUE(SameStream(outcome.stream, ""));
  EXPECT_EQ(outcome.status, 1);
}

TEST(RasterFile, ThatIsAPipeIsReadLikeStandardInput) {
  const TemporaryFolder folder;
  const std::string path = folder.Path("pipe.ras");
  ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
  std::thread writer([&] { folder.Write("pipe.ras", SmallRaster()); });

  ExpectPrinted(Print({.arguments = ArgumentsWithFile(path)}));

  writer.join();
}

TEST(RasterFile, ThatIsAPipeNobodyWritesIsWaitedForUntilTheJobIsCancelled) {
  const TemporaryFolder folder;
  const std::string path = folder.Path("pipe.ras");
  ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
  FilterProcess filter({.arguments = ArgumentsWithFile(path)});
  filter.WaitForLog(kBanner);
  filter.PlayFor(std::chrono::milliseconds(50));
  filter.Terminate();

  const Outcome outcome = filter.Finish();

  EXPECT_EQ(outcome.signal, SIGTERM);
  EXPECT_TRUE(SameLog(outcome.log, kBanner));
  EXPECT_TRUE(SameStream(outcome.stream, ""));
}

}  // namespace
}  // namespace filter_test
