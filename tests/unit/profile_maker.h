// SPDX-License-Identifier: Apache-2.0
//
// Profiles as an owner might install them, and others that must not be used, made with Little CMS.
#ifndef TQR7_TESTS_UNIT_PROFILE_MAKER_H
#define TQR7_TESTS_UNIT_PROFILE_MAKER_H

#include <lcms2.h>

#include <cstddef>
#include <vector>

using ProfileBytes = std::vector<unsigned char>;

/// A device with three primaries and one gamma.
struct MatrixDevice {
  cmsProfileClassSignature kind = cmsSigDisplayClass;
  double version = 4.3;
  double gamma = 1.8;
  cmsCIExyYTRIPLE primaries = {{0.64, 0.33, 1}, {0.30, 0.60, 1}, {0.15, 0.06, 1}};
};

ProfileBytes matrix_profile(const MatrixDevice& device);

/// A printer that lays three dyes, each of which absorbs a little of what the others should, as
/// tables in both directions between device values and Lab.
struct DyeDevice {
  double version = 4.3;
  cmsUInt32Number grid = 17;
  bool eightBits = false;    ///< tables of bytes
  bool bothIntents = true;   ///< relative colorimetric tables beside the perceptual ones
  bool backToDevice = true;  ///< tables from colours to the device
  double chromaKept = 0.85;  ///< what the perceptual table leaves of a colour's chroma
  double density = 2.0;      ///< of full dye
  bool turnedRound = false;  ///< device 0 is white
  bool oneColour = false;    ///< the same device values for every colour
};

ProfileBytes dye_profile(const DyeDevice& device);

/// The profile that comes with the filter.
ProfileBytes model_bytes();

/// Profiles of other kinds: well-formed, and of no use here.
ProfileBytes gray_profile();
ProfileBytes cmyk_profile();
ProfileBytes device_link_profile();
ProfileBytes abstract_profile();

/// A profile with another word at this byte of its header: 0 the size, 12 the class, 16 the colour
/// space, 20 the connection space.
ProfileBytes with_header_word(ProfileBytes profile, std::size_t offset, cmsUInt32Number word);

#endif  // TQR7_TESTS_UNIT_PROFILE_MAKER_H
