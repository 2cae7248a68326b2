// SPDX-License-Identifier: Apache-2.0
// Whoever opens the PPD in a language reads the words of that language's catalogue, each of them
// whole: a reader of PPD files keeps 80 bytes of a text, and drops the rest without a word.
#include <gtest/gtest.h>

#include <cctype>
#include <cstdlib>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "tests/unit/ppd/catalogue.h"
#include "tests/unit/ppd/open_ppd.h"

namespace {

/// As long as it lives this program runs in the language.
class Speaking {
 public:
  explicit Speaking(const std::string& language) {
    unsetenv("LC_ALL");
    unsetenv("LC_MESSAGES");
    setenv("LANG", (language + ".UTF-8").c_str(), 1);
  }
  Speaking(const Speaking&) = delete;
  Speaking& operator=(const Speaking&) = delete;
  ~Speaking() { setenv("LANG", "C", 1); }
};

Ppd open_localized() {
  Ppd ppd = open_ppd();
  if (ppd) {
    ppdLocalize(ppd.get());
  }
  return ppd;
}

std::vector<std::string> languages() {
  std::istringstream list(TQR7_LANGUAGES);
  std::vector<std::string> names;
  for (std::string name; list >> name;) {
    names.push_back(name);
  }
  return names;
}

bool is_number(const std::string& text) {
  return !text.empty() && text.find_first_not_of("+-0123456789") == std::string::npos;
}

void replace(std::string& text, const std::string& place, const std::string& value) {
  const std::size_t at = text.find(place);
  if (at != std::string::npos) {
    text.replace(at, place.size(), value);
  }
}

class PpdLanguage : public testing::TestWithParam<std::string> {
 protected:
  void SetUp() override {
    catalogue_ = read_catalogue(TQR7_CATALOGUES "/" + GetParam() + ".po");
    english_ = open_ppd();
    local_ = open_localized();
    ASSERT_NE(english_, nullptr);
    ASSERT_NE(local_, nullptr);
  }

  void ExpectTranslated(const std::string& english, const std::string& local) const {
    if (is_number(english)) {
      EXPECT_EQ(local, english);
      return;
    }
    const auto found = catalogue_.find(english);
    ASSERT_NE(found, catalogue_.end()) << english;
    EXPECT_EQ(local, found->second);
    EXPECT_LE(found->second.size(), 80U) << found->second;
  }

  Speaking speaking_{GetParam()};
  Catalogue catalogue_;
  Ppd english_;
  Ppd local_;
};

TEST_P(PpdLanguage, HasEveryGroupOptionChoiceAndPageSizeInItsWords) {
  ASSERT_EQ(local_->num_groups, english_->num_groups);
  int texts = 0;
  for (int g = 0; g < english_->num_groups; ++g) {
    const ppd_group_t& group = english_->groups[g];
    // Libcups makes up the first group for what stands in none.
    if (std::string(group.name) != "General") {
      ExpectTranslated(group.text, local_->groups[g].text);
    }
    for (int o = 0; o < group.num_options; ++o) {
      const ppd_option_t& option = group.options[o];
      const ppd_option_t& localOption = local_->groups[g].options[o];
      if (std::string(option.keyword) == "PageRegion") {
        continue;  // for programs: dialogs show PageSize
      }
      ExpectTranslated(option.text, localOption.text);
      for (int c = 0; c < option.num_choices; ++c) {
        ExpectTranslated(option.choices[c].text, localOption.choices[c].text);
        ++texts;
      }
    }
  }
  EXPECT_GE(texts, 186);
}

TEST_P(PpdLanguage, SaysEveryReasonInItsWordsToTheLastByte) {
  int reasons = 0;
  for (ppd_attr_t* reason = ppdFindAttr(english_.get(), "cupsIPPReason", nullptr);
       reason != nullptr; reason = ppdFindNextAttr(english_.get(), "cupsIPPReason", nullptr)) {
    const std::string keyword = reason->spec;
    const std::size_t error = keyword.find("error");
    std::string expected;
    if (keyword == "paused") {
      expected = catalogue_["The queue is stopped. Make the printer ready, then resume the queue."];
    } else if (keyword == "com.corvantiel-error0004") {
      expected = catalogue_
          ["Printer error 0004, an unknown error or no answer. Check it and its connection."];
    } else if (keyword.find('_') == std::string::npos) {
      expected = catalogue_["Printer error {number}. Check the printer, then print again."];
      replace(expected, "{number}", keyword.substr(error + 5));
    } else {
      expected = catalogue_
          ["Printer error {number} (class {class}). Check the printer, then print again."];
      replace(expected, "{number}", keyword.substr(keyword.find('_') + 1));
      replace(expected, "{class}", keyword.substr(error + 5, 4));
    }
    ASSERT_FALSE(expected.empty()) << keyword;
    char text[160];
    ASSERT_NE(ppdLocalizeIPPReason(local_.get(), keyword.c_str(), "text", text, sizeof(text)),
              nullptr)
        << keyword;
    EXPECT_EQ(std::string(text), expected);
    ++reasons;
  }
  EXPECT_EQ(reasons, 110);
}

INSTANTIATE_TEST_SUITE_P(Languages, PpdLanguage, testing::ValuesIn(languages()),
                         [](const auto& row) { return row.param; });

TEST(PpdLanguages, AreThoseOfTheCatalogues) {
  const Ppd ppd = open_ppd();
  ASSERT_NE(ppd, nullptr);
  const ppd_attr_t* const found = ppdFindAttr(ppd.get(), "cupsLanguages", nullptr);
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(std::string(found->value), "en " TQR7_LANGUAGES);
}

TEST(PpdLanguages, AreEnglishAndTheTenThatThisDriverSpeaks) {
  EXPECT_EQ(std::string("en " TQR7_LANGUAGES), "en de es fr it ja ko nl pl pt zh_CN");
}

// What a reader does with a longer text, which is why the catalogues may have none.
TEST(PpdLanguages, LoseWhatIsBeyondEightyBytesOfAText) {
  ppd_attr_t attribute;
  EXPECT_EQ(sizeof(attribute.text), 80U + 1);
  ppd_choice_t choice;
  EXPECT_EQ(sizeof(choice.text), 80U + 1);
}

TEST(PpdLanguages, OfNoCatalogueAreEnglish) {
  const Speaking speaking("tlh");
  const Ppd ppd = open_localized();
  ASSERT_NE(ppd, nullptr);
  EXPECT_STREQ(ppdFindOption(ppd.get(), "RQPrintFinish")->text, "Finish");
}

TEST(PpdLanguages, AreTakenForTheCountriesThatSpeakThem) {
  const Speaking speaking("de_AT");
  const Ppd ppd = open_localized();
  ASSERT_NE(ppd, nullptr);
  EXPECT_STREQ(ppdFindOption(ppd.get(), "RQPrintFinish")->text, "Oberfläche");
}

}  // namespace
