// SPDX-License-Identifier: Apache-2.0
//
// The profile made of a model's numbers.
#include "model/model_profile.h"

#include <gtest/gtest.h>
#include <lcms2.h>

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace {

PrinterModel some_model() {
  PrinterModel model{};
  model.description = "A printer";
  model.copyright = "Nobody's.";
  model.date = {2025, 1, 31};
  model.white = {0.9642, 1.0, 0.8249};
  model.red = {0.61, 0.33};
  model.green = {0.27, 0.57};
  model.blue = {0.17, 0.11};
  model.exponent = 2.2;
  model.toe = 0.05;
  model.blackDensity = 2;
  return model;
}

std::vector<unsigned char> bytes_of(const PrinterModel& model) {
  std::string why;
  return make_model_profile(model, why);
}

std::string fault_of(const PrinterModel& model) {
  std::string why;
  return make_model_profile(model, why).empty() ? why : "made";
}

TEST(ModelProfile, TwoMakingsGiveTheSameBytes) {
  const std::vector<unsigned char> first = bytes_of(some_model());
  ASSERT_GT(first.size(), 128U);
  EXPECT_EQ(bytes_of(some_model()), first);
}

TEST(ModelProfile, CarriesTheModelsDateAtMidnight) {
  const std::vector<unsigned char> bytes = bytes_of(some_model());
  const std::vector<unsigned char> created(bytes.begin() + 24, bytes.begin() + 36);
  EXPECT_EQ(created, (std::vector<unsigned char>{0x07, 0xE9, 0, 1, 0, 31, 0, 0, 0, 0, 0, 0}));
}

TEST(ModelProfile, CarriesTheFingerprintOfItsBytes) {
  const std::vector<unsigned char> bytes = bytes_of(some_model());
  cmsHPROFILE profile =
      cmsOpenProfileFromMem(bytes.data(), static_cast<cmsUInt32Number>(bytes.size()));
  ASSERT_NE(profile, nullptr);
  EXPECT_TRUE(cmsMD5computeID(profile));
  std::vector<unsigned char> id(16);
  cmsGetHeaderProfileID(profile, id.data());
  cmsCloseProfile(profile);
  EXPECT_EQ(std::vector<unsigned char>(bytes.begin() + 84, bytes.begin() + 100), id);
  EXPECT_NE(id, std::vector<unsigned char>(16, 0));
}

TEST(ModelProfile, OtherNumbersGiveOtherBytes) {
  PrinterModel other = some_model();
  other.blackDensity = 1.9;
  EXPECT_NE(bytes_of(other), bytes_of(some_model()));
}

TEST(ModelProfile, PrimariesThatDoNotEncloseTheWhiteAreRefused) {
  PrinterModel model = some_model();
  model.green = {0.40, 0.20};
  EXPECT_EQ(fault_of(model),
            "red, green and blue do not enclose the white: expected a triangle of x y around it");
}

TEST(ModelProfile, PrimariesOnOneLineAreRefused) {
  PrinterModel model = some_model();
  model.green = model.red;
  EXPECT_EQ(fault_of(model),
            "red, green and blue do not enclose the white: expected a triangle of x y around it");
}

}  // namespace
