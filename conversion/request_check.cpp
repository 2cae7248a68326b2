// SPDX-License-Identifier: Apache-2.0
#include "conversion/request_check.h"

namespace {

/// The codes for the faults of one band.
struct BandCodes {
  ChangeCode noPixels;
  ChangeCode empty;
  ChangeCode tooLarge;
  ChangeCode shortStride;
};

/// The edges may be any 64-bit numbers: their distance fits only into the unsigned type. Only for
/// low < high.
std::uint64_t distance(std::int64_t low, std::int64_t high) {
  return static_cast<std::uint64_t>(high) - static_cast<std::uint64_t>(low);
}

/// |value|, also of the lowest number.
std::uint64_t magnitude(std::int64_t value) {
  const auto bits = static_cast<std::uint64_t>(value);
  return value < 0 ? 0 - bits : bits;
}

ChangeCode check_band(const tagMVBandImageParams& band, std::uint64_t bytesPerPixel,
                      const BandCodes& codes) {
  const auto& rect = band.rcBand;
  if (band.pBits == nullptr) {
    return codes.noPixels;
  }
  if (rect.right <= rect.left || rect.bottom <= rect.top) {
    return codes.empty;
  }
  const std::uint64_t width = distance(rect.left, rect.right);
  const std::uint64_t height = distance(rect.top, rect.bottom);
  const std::uint64_t stride = magnitude(band.lStride);
  // A division: a product of such numbers can wrap around to a small one.
  const std::uint64_t longestLine = kLargestBand / height;
  if (width > longestLine / bytesPerPixel || stride > longestLine) {
    return codes.tooLarge;
  }
  if (stride < width * bytesPerPixel) {
    return codes.shortStride;
  }
  return kChangeDone;
}

ChangeCode check_pointers(const tagMVBandImageParams* source, const tagMVChangeParams* params,
                          const tagMVBandImageParams* destination, const unsigned char* rgbRate,
                          const unsigned char* opRate) {
  if (source == nullptr) {
    return kChangeNullSource;
  }
  if (params == nullptr) {
    return kChangeNullParams;
  }
  if (destination == nullptr) {
    return kChangeNullDestination;
  }
  if (rgbRate == nullptr) {
    return kChangeNullRgbRate;
  }
  return opRate == nullptr ? kChangeNullOpRate : kChangeDone;
}

ChangeCode check_source(const tagMVBandImageParams& source) {
  return check_band(
      source, kSourceBytesPerPixel,
      {kChangeSourceNoPixels, kChangeSourceEmpty, kChangeSourceTooLarge, kChangeSourceShortStride});
}

ChangeCode check_destination(const tagMVBandImageParams& destination,
                             const tagMVBandImageParams& source) {
  const ChangeCode code = check_band(destination, kDestinationBytesPerPixel,
                                     {kChangeDestinationNoPixels, kChangeDestinationEmpty,
                                      kChangeDestinationTooLarge, kChangeDestinationShortStride});
  if (code != kChangeDone) {
    return code;
  }
  const auto& to = destination.rcBand;
  const auto& from = source.rcBand;
  const bool sameSize = distance(to.left, to.right) == distance(from.left, from.right) &&
                        distance(to.top, to.bottom) == distance(from.top, from.bottom);
  return sameSize ? kChangeDone : kChangeDestinationOtherSize;
}

ChangeCode check_matte(const tagMVBandImageParams* matte) {
  if (matte == nullptr) {
    return kChangeDone;
  }
  return check_band(
      *matte, kMatteBytesPerPixel,
      {kChangeMatteNoPixels, kChangeMatteEmpty, kChangeMatteTooLarge, kChangeMatteShortStride});
}

}  // namespace

ChangeCode check_request(const tagMVBandImageParams* source, const tagMVChangeParams* params,
                         const tagMVBandImageParams* destination, const tagMVBandImageParams* matte,
                         const unsigned char* rgbRate, const unsigned char* opRate) {
  ChangeCode code = check_pointers(source, params, destination, rgbRate, opRate);
  if (code == kChangeDone) {
    code = check_source(*source);
  }
  if (code == kChangeDone) {
    code = check_destination(*destination, *source);
  }
  if (code == kChangeDone) {
    code = check_matte(matte);
  }
  return code;
}
