// SPDX-License-Identifier: Apache-2.0
//
// The backend's words in the language of who sent the job.
#include "tools/scheduler_words.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>

#include "tests/unit/temp_file.h"
#include "tests/unit/tools/queue_samples.h"
#include "tools/standstill.h"

using tools::in_english;

namespace {

constexpr std::array<std::string_view, 2> kSentences = {"The door is ajar.", "Cannot write"};

// A folder with one catalogue.
std::map<std::string, std::string> read(const std::string& text) {
  const TempFolder folder;
  std::filesystem::create_directory(folder / "xx");
  std::ofstream(folder / "xx/cups_xx.po") << text;
  return tools::read_translations(folder / ".", kSentences);
}

using Map = std::map<std::string, std::string>;

}  // namespace

TEST(SchedulerWords, AreThoseOfTheCatalogueThatAreAskedFor) {
  EXPECT_EQ(read("# a comment\n"
                 "msgid \"\"\n"
                 "msgstr \"Content-Type: text/plain\\n\"\n"
                 "\n"
                 "msgid \"Another sentence\"\n"
                 "msgstr \"Otra\"\n"
                 "\n"
                 "#, c-format\n"
                 "msgid \"The door is ajar.\"\n"
                 "msgstr \"La \\\"porta\\\".\"\n"),
            (Map{{"La \"porta\".", "The door is ajar."}}));
}

TEST(SchedulerWords, MayStandOnSeveralLines) {
  EXPECT_EQ(read("msgid \"\"\n\"The door \"\n\"is ajar.\"\nmsgstr \"\"\n\"La por\"\n\"ta.\"\n"),
            (Map{{"La porta.", "The door is ajar."}}));
}

TEST(SchedulerWords, WithoutATranslationAreLeftOut) {
  EXPECT_EQ(read("msgid \"Cannot write\"\nmsgstr \"\"\n"), Map{});
}

TEST(SchedulerWords, AreNoneWithoutCatalogues) {
  EXPECT_EQ(tools::read_translations("/nonexistent/folder", kSentences), Map{});
  EXPECT_EQ(read("\"\n\\\nmsgid\nmsgstr\nmsgid \nmsgstr \"\n"), Map{});
}

TEST(SchedulerWords, AreTakenBackToEnglishWholeOrWithAReasonBehindThem) {
  const Map words = {{"La porta.", "The door is ajar."}, {"Non si scrive", "Cannot write"}};
  EXPECT_EQ(in_english("La porta.", words), "The door is ajar.");
  EXPECT_EQ(in_english("Non si scrive: tubo rotto", words), "Cannot write: tubo rotto");
  EXPECT_EQ(in_english("La porta. E poi?", words), "La porta. E poi?");
  EXPECT_EQ(in_english("", words), "");
  EXPECT_EQ(in_english("a: b: c", words), "a: b: c");
}

// With the catalogues of the CUPS that is installed.
TEST(SchedulerWords, InGermanShowThatTheDriverStoppedTheQueueAndNotAPerson) {
  tools::QueueList list{{refused_queue("photo")}};
  list.queues.front().message = "Warte auf Abschluss.";
  EXPECT_EQ(tools::cause_of_standstill(list, list.queues.front()).kind, tools::Standstill::Refused);
  list.queues.front().message = "Warte auf Bea.";
  EXPECT_EQ(tools::cause_of_standstill(list, list.queues.front()).kind,
            tools::Standstill::ByPerson);
}
