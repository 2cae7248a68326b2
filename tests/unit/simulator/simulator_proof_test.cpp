// SPDX-License-Identifier: Apache-2.0
//
// The printer's sheets as soft proofs: through the model built in, through a person's own profile,
// and not at all.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "decoder/soft_proof.h"
#include "tests/unit/png_file.h"
#include "tests/unit/simulator/print_client.h"
#include "tests/unit/simulator/printer_process.h"
#include "tests/unit/stream_bytes.h"
#include "tests/unit/temp_file.h"
#include "tests/unit/test_profiles.h"

namespace {

using stream::Bytes;
using stream::Finish;
using testing::ElementsAre;

// 3000, 10000 and 8192.
constexpr std::array<std::uint8_t, 6> kPixel = {0xB8, 0x0B, 0x10, 0x27, 0x00, 0x20};

class Proofs : public testing::Test {
 protected:
  std::string InFolder(const std::string& name) const { return (folder_.path() / name).string(); }

  std::string Keep(const profiles::Profile& profile) const {
    std::ofstream file(InFolder("own.icc"), std::ios::binary);
    file.write(reinterpret_cast<const char*>(profile.data()),
               static_cast<std::streamsize>(profile.size()));
    return InFolder("own.icc");
  }

  // The sheet of this paper, one colour all over, as a printer with these options shows it.
  PngFile Print(const Bytes& sheet, std::vector<std::string> options) const {
    options.insert(options.end(), {"--output", folder_.path().string()});
    PrinterProcess printer(options);
    EXPECT_TRUE(print(printer.Port(),
                      stream::join({stream::status_request(), sheet, stream::print_out()})));
    EXPECT_EQ(printer.Stop(), 0);
    return read_png(InFolder("sheet-0001.png"));
  }

  TempFolder folder_;
};

TEST_F(Proofs, GoThroughTheProfileThatIsNamed) {
  const PngFile png = Print(stream::sheet(stream::paper_5x15(), Finish::Gloss, kPixel),
                            {"--profile", Keep(profiles::linear())});
  EXPECT_THAT(png.At(0, 0), ElementsAre(119, 205, 188));
  EXPECT_THAT(png.At(1851, 630), ElementsAre(119, 205, 188));
}

TEST_F(Proofs, GoThroughTheModelBuiltInWhenNoneIsNamed) {
  const PngFile png = Print(stream::sheet(stream::paper_5x15(), Finish::Gloss, kPixel), {});
  std::array<std::uint8_t, 3> expected{};
  decoder::SoftProof::ThroughPrinterModel()->ToScreen(
      std::array<std::uint16_t, 3>{3000, 10000, 8192}, expected);
  EXPECT_THAT(png.At(0, 0), ElementsAre(expected[0], expected[1], expected[2]));
  EXPECT_THAT(png.At(0, 0), testing::Not(ElementsAre(47, 156, 128)));
}

TEST_F(Proofs, AreLeftAwayForDeviceValues) {
  const PngFile png =
      Print(stream::sheet(stream::paper_5x15(), Finish::Gloss, kPixel), {"--device-values"});
  EXPECT_THAT(png.At(0, 0), ElementsAre(47, 156, 128));  // 46.7, 155.7 and 127.5
}

TEST_F(Proofs, SayThatTheirColoursAreSrgb) {
  const Bytes sheet = stream::sheet(stream::paper_5x15(), Finish::Gloss, kPixel);
  EXPECT_TRUE(Print(sheet, {}).sRgb);
}

TEST_F(Proofs, SayNothingOfColoursWithDeviceValues) {
  const Bytes sheet = stream::sheet(stream::paper_5x15(), Finish::Gloss, kPixel);
  EXPECT_FALSE(Print(sheet, {"--device-values"}).sRgb);
}

TEST_F(Proofs, LeaveTheBorderWhiteWhateverTheProfileMakesOfWhite) {
  // Of sheets with a border the image alone is the print engine's.
  const PngFile png = Print(stream::sheet(stream::paper_9x13_wb(), Finish::Gloss, kPixel),
                            {"--profile", Keep(profiles::linear())});
  EXPECT_THAT(png.At(83, 74), ElementsAre(255, 255, 255));
  EXPECT_THAT(png.At(84, 74), ElementsAre(119, 205, 188));
  EXPECT_THAT(png.At(1466, 1007), ElementsAre(255, 255, 255));
}

TEST_F(Proofs, HaveTheMatteTextureOverThem) {
  const PngFile png = Print(stream::sheet(stream::paper_5x15(), Finish::Matte, kPixel, 0x00),
                            {"--profile", Keep(profiles::linear())});
  EXPECT_THAT(png.At(7, 7), ElementsAre(104, 179, 165));  // seven eighths of 119, 205 and 188
}

}  // namespace
