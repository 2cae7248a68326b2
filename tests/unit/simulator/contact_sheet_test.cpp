// SPDX-License-Identifier: Apache-2.0
//
// The page of a run: its text made safe, its errors counted, its file left alone.
#include "simulator/contact_sheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/unit/temp_file.h"

namespace {

using simulator::ContactSheet;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class ContactPage : public testing::Test {
 protected:
  std::filesystem::path Index() const { return folder_.path() / "index.html"; }

  std::string Page() const {
    std::ifstream file(Index());
    return {std::istreambuf_iterator<char>(file), {}};
  }

  TempFolder folder_;
  ContactSheet sheet_;
};

TEST(ContactSheetText, ShowsMarkupAsText) {
  EXPECT_EQ(simulator::escaped("<a href=\"x\">'&'</a>"),
            "&lt;a href=&quot;x&quot;&gt;&#39;&amp;&#39;&lt;/a&gt;");
}

TEST_F(ContactPage, ShowsAnErrorsMarkupAsText) {
  ASSERT_EQ(sheet_.Begin(folder_.path()), "");
  sheet_.AddError("prints <b>&co</b>: No space left");
  ASSERT_EQ(sheet_.Write(), "");
  EXPECT_THAT(Page(), HasSubstr("<li>prints &lt;b&gt;&amp;co&lt;/b&gt;: No space left</li>"));
}

TEST_F(ContactPage, ShowsAThousandErrorsAndCountsTheOthers) {
  ASSERT_EQ(sheet_.Begin(folder_.path()), "");
  for (int i = 1; i <= 1002; ++i) {
    sheet_.AddError("wrong byte " + std::to_string(i));
  }
  ASSERT_EQ(sheet_.Write(), "");
  EXPECT_THAT(Page(), HasSubstr("<h1>0 sheets, 1002 errors</h1>"));
  EXPECT_THAT(Page(), HasSubstr("<li>wrong byte 1000</li>"));
  EXPECT_THAT(Page(), Not(HasSubstr("<li>wrong byte 1001</li>")));
  EXPECT_THAT(Page(), HasSubstr("<p>2 further errors</p>"));
}

TEST_F(ContactPage, IsNotWrittenWhenThereIsNothingNew) {
  ASSERT_EQ(sheet_.Begin(folder_.path()), "");
  std::filesystem::remove(Index());
  EXPECT_EQ(sheet_.Write(), "");
  EXPECT_THAT(folder_.Names(), IsEmpty());
}

TEST_F(ContactPage, LeavesNothingBehindWhenItCannotBeWritten) {
  std::filesystem::create_directory(Index());
  EXPECT_EQ(sheet_.Begin(folder_.path()), "Is a directory");
  EXPECT_THAT(folder_.Names(), ElementsAre("index.html"));
}

TEST_F(ContactPage, IsTriedAgainWhenItCouldNotBeWritten) {
  std::filesystem::create_directory(Index());
  ASSERT_EQ(sheet_.Begin(folder_.path()), "Is a directory");
  std::filesystem::remove(Index());
  EXPECT_EQ(sheet_.Write(), "");
  EXPECT_THAT(Page(), HasSubstr("<h1>0 sheets, 0 errors</h1>"));
}

}  // namespace
