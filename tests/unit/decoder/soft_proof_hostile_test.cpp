// SPDX-License-Identifier: Apache-2.0
//
// Profiles that are broken, lying or of something else: refused with a reason, or used; no more.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "decoder/proof_choice.h"
#include "decoder/soft_proof.h"
#include "tests/unit/temp_file.h"
#include "tests/unit/test_profiles.h"

namespace {

using decoder::SoftProof;
using profiles::Profile;
using testing::HasSubstr;
using testing::StartsWith;

std::string refusal(const Profile& profile) {
  std::string why;
  return SoftProof::Through(profile, why) == nullptr ? why : "it was taken";
}

// Whether a proof came, or else a reason. A proof is used from the darkest to the lightest, so that
// the sanitizers see what the profile makes it do.
bool serves_or_says_why(const Profile& profile) {
  std::string why;
  const auto proof = SoftProof::Through(profile, why);
  if (proof == nullptr) {
    return !why.empty();
  }
  const std::vector<std::uint16_t> samples = {0, 0, 0, 0x3FFF, 0x3FFF, 0x3FFF, 5000, 0, 0xFFFF};
  std::vector<std::uint8_t> bytes(samples.size());
  proof->ToScreen(samples, bytes);
  return why.empty();
}

TEST(HostileProfile, WithoutAByteIsRefused) {
  EXPECT_THAT(refusal({}), StartsWith("not an ICC profile"));
}

TEST(HostileProfile, OfTextIsRefused) {
  EXPECT_THAT(refusal(Profile(5000, 'A')), StartsWith("not an ICC profile"));
}

TEST(HostileProfile, OfMoreThan4MiBIsRefused) {
  Profile large = profiles::matrix_printer();
  large.resize((std::size_t{4} << 20U) + 1);
  EXPECT_EQ(refusal(large), "larger than 4 MiB, which no printer's profile is");
}

TEST(HostileProfile, OfAGreyDeviceIsRefused) {
  EXPECT_EQ(refusal(profiles::grey_display()), "not the profile of an RGB device");
}

TEST(HostileProfile, OfAScannerIsRefused) {
  EXPECT_EQ(refusal(profiles::rgb_scanner()), "not the profile of a printer or a display");
}

TEST(HostileProfile, ThatLinksTwoDevicesIsRefused) {
  EXPECT_EQ(refusal(profiles::link_of_two()), "not the profile of a printer or a display");
}

TEST(HostileProfile, WithoutCurvesOrTablesIsRefused) {
  Profile profile = profiles::matrix_printer();
  constexpr std::size_t kTagCount = 128 + 3;
  profile.at(kTagCount) = 1;
  EXPECT_THAT(refusal(profile), StartsWith("no way from its device values to colours"));
}

TEST(HostileProfile, ThatClaimsATableLargerThanItselfIsRefused) {
  Profile profile = profiles::table_printer();
  // An mAB table begins with the number of points of each of its sides.
  const Profile points = {9, 9, 9, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
  const auto at = std::search(profile.begin(), profile.end(), points.begin(), points.end());
  ASSERT_NE(at, profile.end());
  std::fill_n(at, 3, std::uint8_t{255});
  EXPECT_THAT(refusal(profile), StartsWith("no way from its device values to colours"));
}

TEST(HostileProfile, CutAnywhereServesOrSaysWhy) {
  const Profile whole = profiles::table_printer();
  for (std::size_t length = 0; length < whole.size(); length += length < 400 ? 1 : 97) {
    const auto end = whole.begin() + static_cast<std::ptrdiff_t>(length);
    ASSERT_TRUE(serves_or_says_why(Profile(whole.begin(), end))) << length;
  }
}

TEST(HostileProfile, WithAnyByteOfATableProfileChangedServesOrSaysWhy) {
  Profile profile = profiles::table_printer();
  for (std::size_t i = 0; i < profile.size(); i += i < 500 ? 1 : 61) {
    const std::uint8_t before = profile[i];
    for (const int value : {0x00, 0x7F, 0xFF}) {
      profile[i] = static_cast<std::uint8_t>(value);
      ASSERT_TRUE(serves_or_says_why(profile)) << "byte " << i << " made " << value;
    }
    profile[i] = before;
  }
}

TEST(HostileProfile, WithAnyByteOfItsCurvesChangedServesOrSaysWhy) {
  Profile profile = profiles::matrix_printer();
  for (std::size_t i = 128; i < profile.size(); i += 2) {
    const std::uint8_t before = profile[i];
    profile[i] = static_cast<std::uint8_t>(before ^ 0xFFU);
    ASSERT_TRUE(serves_or_says_why(profile)) << "byte " << i;
    profile[i] = before;
  }
}

TEST(ProfileFile, IsReadWhole) {
  const TempFolder folder;
  const std::string path = folder.path() / "some.icc";
  std::ofstream(path) << "some bytes";
  std::string why;
  const std::string bytes = "some bytes";
  EXPECT_EQ(decoder::read_profile_file(path, why), Profile(bytes.begin(), bytes.end()));
  EXPECT_EQ(why, "");
}

TEST(ProfileFile, ThatIsMissingHasAReason) {
  const TempFolder folder;
  std::string why;
  EXPECT_TRUE(decoder::read_profile_file(folder.path() / "none.icc", why).empty());
  EXPECT_EQ(why, "No such file or directory");
}

TEST(ProfileFile, ThatIsAFolderHasAReason) {
  const TempFolder folder;
  std::string why;
  EXPECT_TRUE(decoder::read_profile_file(folder.path(), why).empty());
  EXPECT_EQ(why, "Is a directory");
}

TEST(ProfileFile, WithoutEndIsReadJustBeyondTheLargestProfile) {
  std::string why;
  EXPECT_EQ(decoder::read_profile_file("/dev/zero", why).size(), 4194305U);
  EXPECT_EQ(why, "");
}

}  // namespace
