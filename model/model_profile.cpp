// SPDX-License-Identifier: Apache-2.0
#include "model/model_profile.h"

#include <lcms2.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <memory>

#include "model/little_cms_handles.h"

namespace {

using Vector = std::array<double, 3>;
using Matrix = std::array<Vector, 3>;  ///< rows

using cms::Curve;
using cms::Profile;

struct TextFreer {
  void operator()(cmsMLU* text) const { cmsMLUfree(text); }
};

// Byte offsets in the header of a profile (ICC.1, 7.2).
constexpr std::size_t kHeaderSize = 128;
constexpr std::size_t kOffsetCreated = 24;
constexpr std::size_t kOffsetProfileId = 84;

/// Profiles hold numbers as whole multiples of 1/65536.
double to_profile_unit(double value) {
  return std::round(value * 65536) / 65536;
}

double determinant(const Matrix& m) {
  return m[0][0] * (m[1][1] * m[2][2] - m[1][2] * m[2][1]) -
         m[0][1] * (m[1][0] * m[2][2] - m[1][2] * m[2][0]) +
         m[0][2] * (m[1][0] * m[2][1] - m[1][1] * m[2][0]);
}

Vector xyz_of_chromaticity(const std::array<double, 2>& xy) {
  return {xy[0] / xy[1], 1, (1 - xy[0] - xy[1]) / xy[1]};
}

/// Finds X Y Z of the full red, green and blue. Their chromaticities are given; each is as light as
/// it must be for the three to add up to the connection space's white (Cramer's rule). Green gets
/// what is lost by rounding, so that the sum is the white to the last bit. Returns false when the
/// primaries do not enclose the white.
bool make_primaries(const PrinterModel& model, std::array<cmsCIEXYZ, 3>& primaries) {
  const cmsCIEXYZ* d50 = cmsD50_XYZ();
  const Vector white = {to_profile_unit(d50->X), to_profile_unit(d50->Y), to_profile_unit(d50->Z)};
  const std::array<Vector, 3> colours = {xyz_of_chromaticity(model.red),
                                         xyz_of_chromaticity(model.green),
                                         xyz_of_chromaticity(model.blue)};
  Matrix columns{};
  for (std::size_t i = 0; i < 3; ++i) {
    columns[i] = {colours[0][i], colours[1][i], colours[2][i]};
  }
  const double whole = determinant(columns);
  for (std::size_t c = 0; c < 3; ++c) {
    Matrix replaced = columns;
    for (std::size_t i = 0; i < 3; ++i) {
      replaced[i][c] = white[i];
    }
    const double light = determinant(replaced) / whole;
    if (!std::isfinite(light) || light <= 0) {
      return false;
    }
    primaries[c] = {to_profile_unit(light * colours[c][0]), to_profile_unit(light * colours[c][1]),
                    to_profile_unit(light * colours[c][2])};
  }
  primaries[1] = {white[0] - primaries[0].X - primaries[2].X,
                  white[1] - primaries[0].Y - primaries[2].Y,
                  white[2] - primaries[0].Z - primaries[2].Z};
  return true;
}

/// The tone response above black's light k, as the parametric curve of ICC.1 10.18 with a straight
/// toe and offsets:
///   Y = (a v + b)^g + e  from v = d up,  Y = c v + f  below.
/// With t(v) = ((v + toe) / (1 + toe))^g the light is k + (1 - k) t(v); the toe is the tangent of
/// t through 0, which touches it at toe / (g - 1).
Curve make_tone_response(const PrinterModel& model) {
  const double g = model.exponent;
  const double k = std::pow(10, -model.blackDensity);
  const double scale = std::pow(1 - k, 1 / g);
  const double a = scale / (1 + model.toe);
  const double b = scale - a;
  const double d = model.toe / (g - 1);
  const double c = g * a * std::pow(a * d + b, g - 1);
  // These are rounded as the profile will round them, so that the two pieces still meet: e makes
  // the white 1, and f makes the toe end at the curve.
  const Vector rounded = {to_profile_unit(g), to_profile_unit(a), to_profile_unit(b)};
  const double e = to_profile_unit(1 - std::pow(rounded[1] + rounded[2], rounded[0]));
  const double f = std::pow(rounded[1] * d + rounded[2], rounded[0]) + e - to_profile_unit(c) * d;
  const std::array<double, 7> parameters = {g, a, b, c, d, e, f};
  constexpr int kToeAndOffsets = 5;  // Little CMS's number of this kind of curve
  return Curve(cmsBuildParametricToneCurve(nullptr, kToeAndOffsets, parameters.data()));
}

bool write_text(void* profile, cmsTagSignature tag, const char* words) {
  const std::unique_ptr<cmsMLU, TextFreer> text(cmsMLUalloc(nullptr, 1));
  return text != nullptr && cmsMLUsetASCII(text.get(), "en", "US", words) != 0 &&
         cmsWriteTag(profile, tag, text.get()) != 0;
}

bool write_tags(void* profile, const PrinterModel& model,
                const std::array<cmsCIEXYZ, 3>& primaries) {
  const Curve response = make_tone_response(model);
  const cmsCIEXYZ white = {model.white[0], model.white[1], model.white[2]};
  return response != nullptr &&
         write_text(profile, cmsSigProfileDescriptionTag, model.description) &&
         write_text(profile, cmsSigCopyrightTag, model.copyright) &&
         cmsWriteTag(profile, cmsSigMediaWhitePointTag, &white) != 0 &&
         cmsWriteTag(profile, cmsSigRedColorantTag, primaries.data()) != 0 &&
         cmsWriteTag(profile, cmsSigGreenColorantTag, &primaries[1]) != 0 &&
         cmsWriteTag(profile, cmsSigBlueColorantTag, &primaries[2]) != 0 &&
         cmsWriteTag(profile, cmsSigRedTRCTag, response.get()) != 0 &&
         cmsLinkTag(profile, cmsSigGreenTRCTag, cmsSigRedTRCTag) != 0 &&
         cmsLinkTag(profile, cmsSigBlueTRCTag, cmsSigRedTRCTag) != 0;
}

std::vector<unsigned char> saved(void* profile) {
  cmsUInt32Number size = 0;
  if (cmsSaveProfileToMem(profile, nullptr, &size) == 0 || size < kHeaderSize) {
    return {};
  }
  std::vector<unsigned char> bytes(size);
  return cmsSaveProfileToMem(profile, bytes.data(), &size) != 0 ? bytes
                                                                : std::vector<unsigned char>();
}

/// Replaces the time of creation by midnight of the model's day, and then sets the profile's
/// fingerprint.
bool fix_date_and_id(const ModelDate& date, std::vector<unsigned char>& bytes) {
  const std::array<int, 6> created = {date.year, date.month, date.day, 0, 0, 0};
  for (std::size_t i = 0; i < created.size(); ++i) {
    bytes[kOffsetCreated + 2 * i] = static_cast<unsigned char>(created[i] >> 8);
    bytes[kOffsetCreated + 2 * i + 1] = static_cast<unsigned char>(created[i] & 0xFF);
  }
  const Profile profile(
      cmsOpenProfileFromMem(bytes.data(), static_cast<cmsUInt32Number>(bytes.size())));
  if (profile == nullptr || cmsMD5computeID(profile.get()) == 0) {
    return false;
  }
  cmsGetHeaderProfileID(profile.get(), &bytes[kOffsetProfileId]);
  return true;
}

}  // namespace

std::vector<unsigned char> make_model_profile(const PrinterModel& model, std::string& why) {
  std::array<cmsCIEXYZ, 3> primaries{};
  if (!make_primaries(model, primaries)) {
    why = "red, green and blue do not enclose the white: expected a triangle of x y around it";
    return {};
  }
  const Profile profile(cmsCreateProfilePlaceholder(nullptr));
  if (profile == nullptr) {
    why = "Little CMS cannot make a profile";
    return {};
  }
  cmsSetProfileVersion(profile.get(), 4.3);
  cmsSetDeviceClass(profile.get(), cmsSigOutputClass);
  cmsSetColorSpace(profile.get(), cmsSigRgbData);
  cmsSetPCS(profile.get(), cmsSigXYZData);
  cmsSetHeaderRenderingIntent(profile.get(), INTENT_RELATIVE_COLORIMETRIC);
  cmsSetHeaderAttributes(profile.get(), cmsReflective | cmsGlossy);
  std::vector<unsigned char> bytes;
  if (write_tags(profile.get(), model, primaries)) {
    bytes = saved(profile.get());
  }
  if (bytes.empty() || !fix_date_and_id(model.date, bytes)) {
    why = "Little CMS cannot write the profile";
    return {};
  }
  return bytes;
}
