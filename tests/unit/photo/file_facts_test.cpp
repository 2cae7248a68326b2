// SPDX-License-Identifier: Apache-2.0
//
// What a photo's file says of it beside its pixels, and rows that come in steps.
#include <gmock/gmock.h>

#include <cstdio>
#include <string>

#include "image/file_handle.h"
#include "photo/photo_rows.h"
#include "tests/unit/photo_files.h"

namespace photo {
namespace {

using testing::ElementsAre;
using namespace std::string_literals;

FileHandle file_of(const std::string& bytes) {
  FileHandle file(std::tmpfile());
  std::fwrite(bytes.data(), 1, bytes.size(), file.get());
  return file;
}

PhotoFacts facts_of(const std::string& bytes) {
  const FileHandle file = file_of(bytes);
  PhotoFacts facts;
  EXPECT_EQ(find_reader(file.get())->Open(facts), "");
  return facts;
}

void expect_density(const std::string& bytes, std::uint32_t across, std::uint32_t down) {
  const PixelDensity density = facts_of(bytes).density;
  EXPECT_EQ(density.across, across);
  EXPECT_EQ(density.down, down);
}

const std::string kRed = "\xFF\x00\x00"s;

TEST(DensityOfAFile, IsToTheInch) {
  expect_density(jpeg_file(16, 16), 0, 0);
  expect_density(with_density(jpeg_file(16, 16), 1, 72, 144), 72, 144);
  expect_density(with_density(jpeg_file(16, 16), 2, 100, 50), 254, 127);  // to the centimetre
  expect_density(png_dot(kRed, "pHYs\x00\x00\x2E\x23\x00\x00\x17\x12\x01"s), 300, 150);  // metre
}

TEST(DensityOfAFile, IsThatOfTheExifDataFirst) {
  expect_density(with_density(jpeg_file(16, 16, exif_density_data(200, 100)), 1, 72, 144), 100, 50);
}

TEST(OrientationOfAFile, IsThatOfItsExifData) {
  EXPECT_EQ(facts_of(jpeg_file(16, 16, exif_data(6))).orientation, 6);
  const std::vector<std::uint8_t> exif = exif_data(8);
  EXPECT_EQ(facts_of(png_dot(kRed, "eXIf" + std::string(exif.begin(), exif.end()))).orientation, 8);
}

TEST(SamplesOfAFile, OfInkAreInvertedWhereAdobeWroteThem) {
  EXPECT_EQ(facts_of(cmyk_jpeg({0, 0, 0, 0}, false)).samples, Samples::Cmyk);
  EXPECT_EQ(facts_of(cmyk_jpeg({0, 0, 0, 0}, true)).samples, Samples::CmykInverted);
  EXPECT_EQ(bytes_per_pixel(Samples::Cmyk), 4U);
}

TEST(SteppedPng, HasItsRows) {
  const FileHandle file = file_of(png_dot("\x64\x96\xC8", "tEXtComment"s + '\0'));
  const std::unique_ptr<PhotoRows> reader = find_reader(file.get());
  PhotoFacts facts;
  std::size_t width = 0;
  std::size_t height = 0;
  std::vector<std::uint8_t> row(3);
  ASSERT_EQ(reader->Open(facts), "");
  ASSERT_EQ(reader->Begin(1, width, height), "");
  ASSERT_EQ(reader->Row(row.data()), "");
  EXPECT_THAT(row, ElementsAre(0x64, 0x96, 0xC8));
}

}  // namespace
}  // namespace photo
