// SPDX-License-Identifier: Apache-2.0
//
// A filter whose conversion library is not there or does not fit: the loader says so, and the
// printer gets nothing.
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/filter/comparison.h"
#include "tests/filter/filter_process.h"
#include "tests/filter/small_job.h"

namespace filter_test {
namespace {

constexpr int kLoaderFailed = 127;
const std::string kLibrary = "libTQR7mervale.so.1";

/// The filter alone in a folder of its own.
class FilterAlone : public testing::Test {
 protected:
  FilterAlone() {
    std::filesystem::copy_file(FILTER_TEST_PROGRAM, folder_.Path("rastertoprinter"));
  }

  void ExpectRefusal(const std::string& reason) {
    Job job;
    job.program = folder_.Path("rastertoprinter");
    job.input = SmallRaster();
    const Outcome outcome = Print(job);

    EXPECT_EQ(outcome.stream, "");
    EXPECT_NE(outcome.log.find(reason), std::string::npos) << outcome.log;
    EXPECT_EQ(outcome.log.find("TQR7Filter main()"), std::string::npos) << outcome.log;
    EXPECT_EQ(outcome.status, kLoaderFailed);
  }

  TemporaryFolder folder_;
};

TEST_F(FilterAlone, WithoutItsLibrarySaysSoAndSendsNothing) {
  ExpectRefusal(kLibrary + ": cannot open shared object file: No such file or directory");
}

TEST_F(FilterAlone, WithAnEmptyLibrarySaysSoAndSendsNothing) {
  folder_.Write(kLibrary, "");

  ExpectRefusal(kLibrary + ": file too short");
}

TEST_F(FilterAlone, WithATextInTheLibrarysPlaceSaysSoAndSendsNothing) {
  folder_.Write(kLibrary, std::string(5000, 'x'));

  ExpectRefusal(kLibrary + ": invalid ELF header");
}

TEST_F(FilterAlone, WithALibraryForAnotherProcessorSaysSoAndSendsNothing) {
  std::ifstream whole(FILTER_TEST_BUILD "/" + kLibrary, std::ios::binary);
  std::string library{std::istreambuf_iterator<char>(whole), {}};
  library.replace(18, 2, "\xFE\xFE");  // the ELF header's processor
  folder_.Write(kLibrary, library);

  ExpectRefusal(kLibrary + ": cannot open shared object file: No such file or directory");
}

TEST_F(FilterAlone, WithALibraryThatLacksTheConversionSaysSoAndSendsNothing) {
  std::filesystem::copy_file(FILTER_TEST_MEMORY, folder_.Path(kLibrary));

  ExpectRefusal("undefined symbol: MVChangeImage");
}

}  // namespace
}  // namespace filter_test
