// SPDX-License-Identifier: Apache-2.0
#include "photo/exif.h"

#include <gmock/gmock.h>

#include <cstdint>
#include <string>
#include <vector>

namespace photo {
namespace {

using Bytes = std::vector<std::uint8_t>;

// A TIFF file of one directory with one entry: orientation 6, as cameras write it.
const Bytes kLittleEndian = {'I', 'I', 42, 0, 8, 0, 0, 0, 1, 0, 0x12, 0x01, 3,
                             0,   1,   0,  0, 0, 6, 0, 0, 0, 0, 0,    0,    0};
const Bytes kBigEndian = {'M', 'M', 0, 42, 0, 0, 0, 8, 0, 1, 0x01, 0x12, 0,
                          3,   0,   0, 0,  1, 0, 6, 0, 0, 0, 0,    0,    0};

// Across 145 / 2 and down 300 / 2, behind two entries.
const Bytes kDensity = {'M',  'M',  0, 42,  0, 0, 0, 8, 0, 2,                     // two entries
                        0x01, 0x1A, 0, 5,   0, 0, 0, 1, 0, 0, 0, 38,              // across
                        0x01, 0x1B, 0, 5,   0, 0, 0, 1, 0, 0, 0, 46, 0, 0, 0, 0,  // down
                        0,    0,    0, 145, 0, 0, 0, 2, 0, 0, 1, 44, 0, 0, 0, 2};

TEST(ExifDensity, IsTheWholePartOfAFraction) {
  EXPECT_EQ(exif_density(kDensity).across, 72U);
  EXPECT_EQ(exif_density(kDensity).down, 150U);
}

TEST(ExifDensity, IsNoneWhereAFractionIsNone) {
  Bytes bytes = kDensity;
  bytes[45] = 0;  // divided by 0
  EXPECT_EQ(exif_density(bytes).across, 0U);
  EXPECT_EQ(exif_density(bytes).down, 150U);
}

TEST(ExifDensity, IsNoneWhereThereIsNone) {
  EXPECT_FALSE(exif_density({}).IsKnown());
  EXPECT_FALSE(exif_density(kBigEndian).IsKnown());
}

TEST(ExifDensity, OfDataThatIsCutOffReadsNothingBeyond) {
  for (std::size_t length = 0; length < kDensity.size(); ++length) {
    const Bytes cut(kDensity.begin(), kDensity.begin() + static_cast<std::ptrdiff_t>(length));
    EXPECT_FALSE(exif_density(cut).IsKnown()) << length;
  }
}

TEST(ExifOrientation, IsReadInEitherByteOrder) {
  EXPECT_EQ(exif_orientation(kLittleEndian), 6);
  EXPECT_EQ(exif_orientation(kBigEndian), 6);
}

TEST(ExifOrientation, IsFoundBehindOtherEntries) {
  const Bytes bytes = {'M',  'M',  0, 42, 0, 0, 0, 8, 0,   2,            // two entries
                       0x01, 0x0F, 0, 2,  0, 0, 0, 4, 'C', 'a', 'm', 0,  // the camera's maker
                       0x01, 0x12, 0, 3,  0, 0, 0, 1, 0,   8,   0,   0};
  EXPECT_EQ(exif_orientation(bytes), 8);
}

TEST(ExifOrientation, IsUprightWhereThereIsNone) {
  EXPECT_EQ(exif_orientation({}), 1);
  EXPECT_EQ(exif_orientation(Bytes{'I', 'I', 42, 0, 8, 0, 0, 0, 0, 0}), 1);
}

TEST(ExifOrientation, OfANumberThatThereIsNotIsUpright) {
  Bytes bytes = kLittleEndian;
  bytes[18] = 9;
  EXPECT_EQ(exif_orientation(bytes), 1);
  bytes[18] = 0;
  EXPECT_EQ(exif_orientation(bytes), 1);
}

TEST(ExifOrientation, OfAnotherTypeOrCountIsUpright) {
  Bytes type = kLittleEndian;
  type[12] = 2;
  EXPECT_EQ(exif_orientation(type), 1);
  Bytes count = kLittleEndian;
  count[14] = 2;
  EXPECT_EQ(exif_orientation(count), 1);
}

TEST(ExifOrientation, OfWhatIsNoTiffFileIsUpright) {
  Bytes order = kLittleEndian;
  order[1] = 'M';
  EXPECT_EQ(exif_orientation(order), 1);
  Bytes magic = kLittleEndian;
  magic[2] = 43;
  EXPECT_EQ(exif_orientation(magic), 1);
}

TEST(ExifOrientation, OfACutOffFileIsUpright) {
  for (std::size_t length = 0; length < 20; ++length) {
    EXPECT_EQ(exif_orientation(std::span(kLittleEndian).first(length)), 1) << length;
  }
}

TEST(ExifOrientation, OfADirectoryOutsideTheFileIsUpright) {
  Bytes bytes = kLittleEndian;
  bytes[4] = bytes[5] = bytes[6] = bytes[7] = 0xFF;
  EXPECT_EQ(exif_orientation(bytes), 1);
}

TEST(ExifOrientation, IsFoundThoughTheDirectoryClaimsMoreEntriesThanThereAre) {
  Bytes bytes = kLittleEndian;
  bytes[8] = bytes[9] = 0xFF;
  EXPECT_EQ(exif_orientation(bytes), 6);
}

}  // namespace
}  // namespace photo
