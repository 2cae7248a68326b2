// SPDX-License-Identifier: Apache-2.0
//
// Photos for the tests, with whatever a camera or a hostile hand puts beside the pixels.
#ifndef TQR7_TESTS_UNIT_PHOTO_FILES_H
#define TQR7_TESTS_UNIT_PHOTO_FILES_H

#include <array>
#include <cstdint>
#include <string>
#include <vector>

/// A grey JPEG of this size; `exif` and `profile` are embedded where they are not empty.
std::string jpeg_file(unsigned width, unsigned height, const std::vector<std::uint8_t>& exif = {},
                      const std::vector<std::uint8_t>& profile = {});

/// A JPEG of 1852 x 1232 pixels for the press, of one colour. A file by Adobe's programs says 255
/// for no ink, any other 0.
std::string cmyk_jpeg(const std::array<std::uint8_t, 4>& samples, bool byAdobe,
                      const std::vector<std::uint8_t>& profile = {});

/// The JPEG file with this density in its first marker; unit 1 is the inch, 2 the centimetre.
std::string with_density(std::string jpeg, unsigned char unit, unsigned char across,
                         unsigned char down);

/// Exif data that says these densities, as fractions of 2.
std::vector<std::uint8_t> exif_density_data(std::uint8_t across, std::uint8_t down);

/// Exif data that says this orientation and nothing else.
std::vector<std::uint8_t> exif_data(std::uint8_t orientation);

/// A grey JPEG that is shown in 757 steps, each of them finer.
std::string jpeg_in_steps(unsigned width, unsigned height);

/// A JPEG whose header says this size, to be shown in steps or from top to bottom.
std::string jpeg_claim(std::uint16_t width, std::uint16_t height, bool inSteps = false);

/// A PNG that claims a size, to be shown in steps or from top to bottom, and has no pixels.
std::string png_claim(std::uint32_t width, std::uint32_t height, bool inSteps = false);

/// A PNG of one dot, to be shown in steps. `marks` is a chunk that comes before it: type and data.
std::string png_dot(const std::string& rgb, const std::string& marks);

#endif  // TQR7_TESTS_UNIT_PHOTO_FILES_H
