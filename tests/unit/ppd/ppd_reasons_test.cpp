// SPDX-License-Identifier: Apache-2.0
// Every state reason that the filter can raise has words in the PPD.
#include <gtest/gtest.h>

#include <string>

#include "tests/unit/ppd/open_ppd.h"

namespace {

constexpr const char* kReasons[] = {
    "com.corvantiel-error0001",      "com.corvantiel-error0002",
    "com.corvantiel-error0003",      "com.corvantiel-error0004",
    "com.corvantiel-error0005",      "com.corvantiel-error0032",
    "com.corvantiel-error0033",      "com.corvantiel-error0007_2100",
    "com.corvantiel-error0007_2110", "com.corvantiel-error0007_2120",
    "com.corvantiel-error0007_2130", "com.corvantiel-error0006_2190",
    "com.corvantiel-error0011_2200", "com.corvantiel-error0015_2202",
    "com.corvantiel-error0013_2390", "com.corvantiel-error0008_2600",
    "com.corvantiel-error0008_2601", "com.corvantiel-error0008_2602",
    "com.corvantiel-error0008_2610", "com.corvantiel-error0008_2611",
    "com.corvantiel-error0008_2620", "com.corvantiel-error0008_2621",
    "com.corvantiel-error0008_2622", "com.corvantiel-error0008_2623",
    "com.corvantiel-error0008_2624", "com.corvantiel-error0008_2625",
    "com.corvantiel-error0008_2626", "com.corvantiel-error0008_2660",
    "com.corvantiel-error0008_2661", "com.corvantiel-error0008_2662",
    "com.corvantiel-error0008_2663", "com.corvantiel-error0008_2664",
    "com.corvantiel-error0008_2665", "com.corvantiel-error0008_2666",
    "com.corvantiel-error0008_2667", "com.corvantiel-error0008_2668",
    "com.corvantiel-error0008_2669", "com.corvantiel-error0008_2670",
    "com.corvantiel-error0008_2671", "com.corvantiel-error0008_2672",
    "com.corvantiel-error0008_2673", "com.corvantiel-error0008_2674",
    "com.corvantiel-error0008_2675", "com.corvantiel-error0008_2676",
    "com.corvantiel-error0008_2677", "com.corvantiel-error0008_2678",
    "com.corvantiel-error0008_2679", "com.corvantiel-error0008_2680",
    "com.corvantiel-error0008_2681", "com.corvantiel-error0008_2682",
    "com.corvantiel-error0008_2683", "com.corvantiel-error0008_2684",
    "com.corvantiel-error0008_2685", "com.corvantiel-error0008_2686",
    "com.corvantiel-error0008_2687", "com.corvantiel-error0008_2688",
    "com.corvantiel-error0008_2689", "com.corvantiel-error0008_2690",
    "com.corvantiel-error0010_2800", "com.corvantiel-error0012_2900",
    "com.corvantiel-error0009_3190", "com.corvantiel-error0009_3290",
    "com.corvantiel-error0009_3490", "com.corvantiel-error0009_3590",
    "com.corvantiel-error0009_3790", "com.corvantiel-error0016_4093",
    "com.corvantiel-error0016_4291", "com.corvantiel-error0016_4293",
    "com.corvantiel-error0016_4391", "com.corvantiel-error0016_4393",
    "com.corvantiel-error0016_4491", "com.corvantiel-error0016_4493",
    "com.corvantiel-error0020_6001", "com.corvantiel-error0020_6003",
    "com.corvantiel-error0020_6011", "com.corvantiel-error0020_6013",
    "com.corvantiel-error0028_6030", "com.corvantiel-error0021_6100",
    "com.corvantiel-error0029_6200", "com.corvantiel-error0029_6210",
    "com.corvantiel-error0029_6220", "com.corvantiel-error0024_6300",
    "com.corvantiel-error0024_6310", "com.corvantiel-error0024_6320",
    "com.corvantiel-error0025_6400", "com.corvantiel-error0025_6410",
    "com.corvantiel-error0025_6430", "com.corvantiel-error0031_6500",
    "com.corvantiel-error0031_6510", "com.corvantiel-error0031_6520",
    "com.corvantiel-error0031_6530", "com.corvantiel-error0027_6620",
    "com.corvantiel-error0034_6700", "com.corvantiel-error0034_6710",
    "com.corvantiel-error0019_6802", "com.corvantiel-error0034_6900",
    "com.corvantiel-error0034_6901", "com.corvantiel-error0034_6903",
    "com.corvantiel-error0018_7054", "com.corvantiel-error0017_7092",
    "com.corvantiel-error0017_7192", "com.corvantiel-error0017_7194",
    "com.corvantiel-error0018_7250", "com.corvantiel-error0017_7292",
    "com.corvantiel-error0018_7350", "com.corvantiel-error0017_7392",
    "com.corvantiel-error0018_7452", "com.corvantiel-error0017_7493",
    "com.corvantiel-error0018_7552",
};

std::string words(ppd_file_t* ppd, const char* reason) {
  // Twice what clients show, so that a longer text is seen as too long.
  char text[160];
  return ppdLocalizeIPPReason(ppd, reason, "text", text, sizeof(text)) != nullptr ? text : "";
}

class PpdReason : public testing::TestWithParam<const char*> {};

TEST_P(PpdReason, SaysItsNumberInAtMostEightyCharacters) {
  const Ppd ppd = open_ppd();
  ASSERT_NE(ppd, nullptr);
  const std::string reason = GetParam();
  const std::string number = reason.substr(reason.size() - 4);
  const std::string text = words(ppd.get(), GetParam());
  EXPECT_EQ(text.rfind("Printer error " + number, 0), 0U) << text;
  EXPECT_EQ(text.back(), '.') << text;
  EXPECT_LE(text.size(), 80U) << text;
}

INSTANTIATE_TEST_SUITE_P(Reasons, PpdReason, testing::ValuesIn(kReasons), [](const auto& reason) {
  return std::string(reason.param).substr(std::string("com.corvantiel-").size());
});

TEST(PpdReasons, NameClassAndNumberOfAPrinterError) {
  const Ppd ppd = open_ppd();
  ASSERT_NE(ppd, nullptr);
  EXPECT_EQ(words(ppd.get(), "com.corvantiel-error0008_2665"),
            "Printer error 2665 (class 0008). Check the printer, then print again.");
  EXPECT_EQ(words(ppd.get(), "com.corvantiel-error0034_6903"),
            "Printer error 6903 (class 0034). Check the printer, then print again.");
  EXPECT_EQ(words(ppd.get(), "com.corvantiel-error0033"),
            "Printer error 0033. Check the printer, then print again.");
}

TEST(PpdReasons, SayThatTheCatchAllMayMeanNoAnswerAtAll) {
  const Ppd ppd = open_ppd();
  ASSERT_NE(ppd, nullptr);
  EXPECT_EQ(words(ppd.get(), "com.corvantiel-error0004"),
            "Printer error 0004, an unknown error or no answer. Check it and its connection.");
}

TEST(PpdReasons, SayHowToGoOnWhenTheQueueWasStopped) {
  const Ppd ppd = open_ppd();
  ASSERT_NE(ppd, nullptr);
  EXPECT_EQ(words(ppd.get(), "paused"),
            "The queue is stopped. Make the printer ready, then resume the queue.");
}

TEST(PpdReasons, AreTheFiltersHundredAndNineAndTheStoppedQueue) {
  const Ppd ppd = open_ppd();
  ASSERT_NE(ppd, nullptr);
  int count = 0;
  for (ppd_attr_t* found = ppdFindAttr(ppd.get(), "cupsIPPReason", nullptr); found != nullptr;
       found = ppdFindNextAttr(ppd.get(), "cupsIPPReason", nullptr)) {
    ++count;
  }
  EXPECT_EQ(count, 110);
}

}  // namespace
