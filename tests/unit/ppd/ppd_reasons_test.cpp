// SPDX-License-Identifier: Apache-2.0
// Every state reason that the filter can raise has words in the PPD.
#include <gtest/gtest.h>

#include <string>

#include "tests/reason_keywords.h"
#include "tests/unit/ppd/open_ppd.h"

namespace {

std::string words(ppd_file_t* ppd, const char* reason) {
  // Twice what clients show, so that a longer text is seen as too long.
  char text[160];
  return ppdLocalizeIPPReason(ppd, reason, "text", text, sizeof(text)) != nullptr ? text : "";
}

TEST(PpdReasons, SayTheirNumberInAtMostEightyCharacters) {
  const Ppd ppd = open_ppd();
  ASSERT_NE(ppd, nullptr);
  for (const ReasonKeyword& reason : ReasonKeywords()) {
    const std::string number = reason.keyword.substr(reason.keyword.size() - 4);
    const std::string text = words(ppd.get(), reason.keyword.c_str());
    EXPECT_EQ(text.rfind("Printer error " + number, 0), 0U) << text;
    EXPECT_EQ(text.back(), '.') << text;
    EXPECT_LE(text.size(), 80U) << text;
  }
}

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
