// SPDX-License-Identifier: Apache-2.0
//
// The printer's profile as it is compiled in and installed: its facts, and the colours it gives.
#include "model/printer_model.h"

#include <gtest/gtest.h>
#include <lcms2.h>

#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "model/model_profile.h"
#include "tests/unit/temp_file.h"

namespace {

class PrinterModelProfile : public testing::Test {
 protected:
  void SetUp() override {
    const auto bytes = printer_model_profile();
    profile = cmsOpenProfileFromMem(bytes.data(), static_cast<cmsUInt32Number>(bytes.size()));
    ASSERT_NE(profile, nullptr);
    lab = cmsCreateLab4Profile(nullptr);
    toLab =
        cmsCreateTransform(profile, TYPE_RGB_DBL, lab, TYPE_Lab_DBL, INTENT_RELATIVE_COLORIMETRIC,
                           cmsFLAGS_NOOPTIMIZE | cmsFLAGS_NOCACHE);
    ASSERT_NE(toLab, nullptr);
  }
  void TearDown() override {
    cmsDeleteTransform(toLab);
    cmsCloseProfile(lab);
    cmsCloseProfile(profile);
  }

  std::string text(cmsInfoType kind) const {
    std::array<char, 256> words{};
    cmsGetProfileInfoASCII(profile, kind, "en", "US", words.data(), words.size());
    return words.data();
  }

  cmsCIELab print(double red, double green, double blue) const {
    const std::array<double, 3> device = {red, green, blue};
    cmsCIELab colour;
    cmsDoTransform(toLab, device.data(), &colour, 1);
    return colour;
  }

  const cmsToneCurve* curve(cmsTagSignature tag) const {
    return static_cast<const cmsToneCurve*>(cmsReadTag(profile, tag));
  }

  cmsHPROFILE profile = nullptr;
  cmsHPROFILE lab = nullptr;
  cmsHTRANSFORM toLab = nullptr;
};

TEST_F(PrinterModelProfile, IsTheFileThatComesWithTheFilter) {
  const auto bytes = printer_model_profile();
  EXPECT_EQ(ReadFile(TQR7_ICC), std::string(bytes.begin(), bytes.end()));
}

TEST_F(PrinterModelProfile, IsMadeOfTheModelsNumbers) {
  std::string why;
  const auto bytes = printer_model_profile();
  EXPECT_EQ(make_model_profile(kPrinterModel, why),
            std::vector<unsigned char>(bytes.begin(), bytes.end()))
      << why;
}

TEST_F(PrinterModelProfile, IsAnRgbPrintersOfVersion4OverXyz) {
  EXPECT_EQ(cmsGetEncodedICCversion(profile), 0x04300000U);
  EXPECT_EQ(cmsGetDeviceClass(profile), cmsSigOutputClass);
  EXPECT_EQ(cmsGetColorSpace(profile), cmsSigRgbData);
  EXPECT_EQ(cmsGetPCS(profile), cmsSigXYZData);
  EXPECT_TRUE(cmsIsMatrixShaper(profile));
}

TEST_F(PrinterModelProfile, SaysThatItIsAModelAndNotAMeasurement) {
  EXPECT_EQ(text(cmsInfoDescription), "TQR7 photo printer, glossy (a model, not a measurement)");
}

TEST_F(PrinterModelProfile, SaysUnderWhichTermsItMayBePassedOn) {
  EXPECT_EQ(text(cmsInfoCopyright), "The TQR7 driver's authors. Apache License 2.0.");
}

TEST_F(PrinterModelProfile, TakesThePaperToBeD50White) {
  const auto* white = static_cast<const cmsCIEXYZ*>(cmsReadTag(profile, cmsSigMediaWhitePointTag));
  ASSERT_NE(white, nullptr);
  EXPECT_NEAR(white->X, 0.9642, 1e-5);
  EXPECT_NEAR(white->Y, 1.0, 1e-5);
  EXPECT_NEAR(white->Z, 0.8249, 1e-5);
}

TEST_F(PrinterModelProfile, ItsThreeCurvesAreOneParametricCurveWithAStraightToe) {
  for (const cmsTagSignature tag : {cmsSigRedTRCTag, cmsSigGreenTRCTag, cmsSigBlueTRCTag}) {
    ASSERT_NE(curve(tag), nullptr);
    EXPECT_EQ(cmsGetToneCurveParametricType(curve(tag)), 5);
    EXPECT_EQ(cmsEvalToneCurveFloat(curve(tag), 0.3F),
              cmsEvalToneCurveFloat(curve(cmsSigRedTRCTag), 0.3F));
  }
}

TEST_F(PrinterModelProfile, ItsCurveRunsOnBelowBlackInTheSameStraightLine) {
  const cmsToneCurve* red = curve(cmsSigRedTRCTag);
  const double rise = cmsEvalToneCurveFloat(red, 0.02F) - cmsEvalToneCurveFloat(red, 0);
  const double below = cmsEvalToneCurveFloat(red, 0) - cmsEvalToneCurveFloat(red, -0.02F);
  EXPECT_GT(rise, 0.002);
  EXPECT_NEAR(below, rise, 1e-6);
}

TEST_F(PrinterModelProfile, TheToeMeetsTheCurveWithoutAStep) {
  const cmsToneCurve* red = curve(cmsSigRedTRCTag);
  const auto meeting = static_cast<float>(0.055 / 1.2);  // toe / (exponent - 1)
  EXPECT_NEAR(cmsEvalToneCurveFloat(red, meeting - 0.0001F),
              cmsEvalToneCurveFloat(red, meeting + 0.0001F), 4e-5);
}

TEST_F(PrinterModelProfile, FullRedGreenAndBlueAreThePapersWhite) {
  const cmsCIELab white = print(1, 1, 1);
  EXPECT_NEAR(white.L, 100, 0.01);
  EXPECT_NEAR(white.a, 0, 0.01);
  EXPECT_NEAR(white.b, 0, 0.01);
}

TEST_F(PrinterModelProfile, BlackHasTheModelsDensity) {
  const cmsCIELab black = print(0, 0, 0);
  cmsCIEXYZ colour;
  cmsLab2XYZ(nullptr, &colour, &black);
  EXPECT_NEAR(-std::log10(colour.Y), 2.1, 0.002);
  EXPECT_NEAR(black.a, 0, 0.01);
  EXPECT_NEAR(black.b, 0, 0.01);
}

TEST_F(PrinterModelProfile, EqualRedGreenAndBlueAreNeutral) {
  for (const double level : {0.03, 0.1, 0.25, 0.5, 0.75, 0.9}) {
    const cmsCIELab grey = print(level, level, level);
    EXPECT_NEAR(grey.a, 0, 0.01) << level;
    EXPECT_NEAR(grey.b, 0, 0.01) << level;
  }
}

}  // namespace
