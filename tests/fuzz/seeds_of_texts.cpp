// SPDX-License-Identifier: Apache-2.0
//
// Seeds of what people and other programs write: PPDs and options, names, lists, command files,
// scripts of faults.
#include "image/band_image.h"
#include "tests/filter/ppd_maker.h"
#include "tests/fuzz/seeds.h"

namespace fuzz {
namespace {

std::string ppd_input(char room, const std::string& options, const filter_test::Ppd& ppd) {
  return room + options + '\0' + ppd.Text();
}

std::string text_input(char room, const std::string& text) {
  return room + bytes_of(MV_TYPEDEF::tagRECT{0, 0, 10, 4}) + bytes_of(std::int64_t{-60}) + text;
}

// Only some options, so that a mutation seldom falls on what nobody reads.
const std::vector<std::string> kWithoutTones = {"RQGammaG",      "RQGammaB",      "RQBrightnessG",
                                                "RQBrightnessB", "RQContrastG",   "RQContrastB",
                                                "RQWaitTime",    "RQMarginCutOff"};

}  // namespace

Seeds ppd_options_seeds() {
  const std::string raster = "application/vnd.cups-raster 0 ";
  return {
      {"all", ppd_input(64, "PageSize=RQ_5x15x2_2 RQGammaR=-5 RQPrintFinish=Matte", {})},
      {"few",
       ppd_input(10, "RQGammaR=40000 PageSize=Letter media=RQ_15x20", {.without = kWithoutTones})},
      {"defaults", ppd_input(1, "",
                             {.defaults = {{"RQBrightnessR", "-300"},
                                           {"PageSize", "RQ_9x13_WB"},
                                           {"RQSharpness_Common", "Plus3"}},
                              .without = kWithoutTones})},
      {"no-folder", ppd_input(5, "PageSize=Custom.100x200 RQWaitTime=soon",
                              {.filters = {raster + "rastertoprinter"}, .without = kWithoutTones})},
      {"two-filters", ppd_input(0, "RQContrastR=128 {a=b} c='d e' noRQMarginCutOff",
                                {.filters = {"text/plain 1 /x/y", raster + "/a/b/rastertoprinter"},
                                 .without = kWithoutTones})},
  };
}

Seeds text_fields_seeds() {
  return {
      {"filter-line", text_input(40, "application/vnd.cups-raster 0 /opt/filter/rastertoprinter")},
      {"filter-line-short", text_input(3, "application/vnd.cups-raster\t-7/a/b")},
      {"template", text_input(60, "page%C_%Wx%H_%Bbit_%T.raw")},
      {"template-cut", text_input(5, "a name that does not fit")},
      {"numbers", text_input(5, "1,-2 3.5e2,70000 9999999999999t5")},
      {"no-room", text_input(0, "%T%%")},
  };
}

Seeds command_file_seeds() {
  return {
      {"status", "#CUPS-COMMAND\nReportStatus\n"},
      {"self-test", "#CUPS-COMMAND\r\n# a comment\r\n\r\n  PrintSelfTestPage  \r\nClean all\n"},
      {"long", "#CUPS-COMMAND\nClean " + std::string(300, 'x') + "\nReportLevels"},
      {"other", "%!PS-Adobe-3.0\n"},
  };
}

Seeds fault_script_seeds() {
  return {
      {"status", "status 0x2665\nsheet 2: status 0x2665 once\n"},
      {"enable", "# a comment\nenable 0x0101\njob 2: enable 0xFFFF 3 times\n"},
      {"busy", "busy 100\nbusy 3\n"},
      {"pieces", "status pieces 4 7\nenable pieces 2 3\n"},
      {"late", "status late 0.3 s\nenable late 3 s\n"},
      {"short", "status short 10\nstatus stray 11 22 33 44 26 65\nstatus silent\n"},
      {"drop", "drop at byte 1544\nread 100000 bytes/s\n"},
      {"sources", "paper 3 then 0x2110 for 5 s\nribbon 2 then 0x2120\ncover 0x2010 for 3 s\n"},
  };
}

}  // namespace fuzz
