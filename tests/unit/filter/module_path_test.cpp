// SPDX-License-Identifier: Apache-2.0
//
// The module directory from the PPD's cupsFilter lines, also those that no PPD file could have.
#include "filter/module_path.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace {

constexpr int kBufferSize = 1024;

/// What get_filter_path leaves in a buffer of `size` bytes, behind which 512 more must stay '#'.
struct Lookup {
  bool found = false;
  std::string text;
  bool guard_intact = false;
  bool untouched = false;
};

Lookup Find(const ppd_file_t* ppd, int size = kBufferSize) {
  std::array<char, kBufferSize + 512> buffer{};
  buffer.fill('#');
  Lookup lookup;
  lookup.found = get_filter_path(ppd, buffer.data(), size);
  lookup.guard_intact = std::all_of(buffer.begin() + std::max(size, 0), buffer.end(),
                                    [](char byte) { return byte == '#'; });
  lookup.untouched =
      std::all_of(buffer.begin(), buffer.end(), [](char byte) { return byte == '#'; });
  if (lookup.found) {
    lookup.text = buffer.data();
  }
  return lookup;
}

/// The lookup in a filter list of any length, with a buffer of `size` bytes.
Lookup FindInList(std::vector<std::string> filters, int size = kBufferSize) {
  std::vector<char*> pointers;
  pointers.reserve(filters.size());
  for (std::string& filter : filters) {
    pointers.push_back(filter.data());
  }
  ppd_file_t ppd = {};
  ppd.num_filters = static_cast<int>(pointers.size());
  ppd.filters = pointers.data();
  return Find(&ppd, size);
}

/// "/aaa…/" of the given length.
std::string DirectoryOfLength(std::size_t length) {
  std::string directory(length, 'a');
  directory.front() = '/';
  directory.back() = '/';
  return directory;
}

}  // namespace

struct Lines {
  const char* name;
  std::vector<std::string> filters;
  const char* directory;  ///< null: none
};

class ModulePathOf : public testing::TestWithParam<Lines> {};

TEST_P(ModulePathOf, TheseLines) {
  const Lookup lookup = FindInList(GetParam().filters);
  EXPECT_EQ(lookup.found, GetParam().directory != nullptr);
  EXPECT_EQ(lookup.untouched, !lookup.found);
  EXPECT_EQ(lookup.text, lookup.found ? GetParam().directory : "");
}

const Lines kLines[] = {
    {"None", {}, nullptr},
    {"InTheRoot", {"application/vnd.cups-raster 0 /rastertoprinter"}, "/"},
    {"Relative", {"application/vnd.cups-raster 0 sub/rastertoprinter"}, "sub/"},
    {"FirstForRaster",
     {"application/vnd.cups-pdf 0 /opt/pdf/filter", "application/vnd.cups-raster 0 /opt/a/filter",
      "application/vnd.cups-raster 0 /opt/b/filter"},
     "/opt/a/"},
    {"FirstForRasterHasNone",
     {"application/vnd.cups-raster 0 -", "application/vnd.cups-raster 0 /opt/b/filter"},
     nullptr},
    {"LetterCaseOfApplication", {"Application/vnd.cups-raster 0 /opt/a/filter"}, nullptr},
    {"LetterCaseOfCups", {"application/vnd.CUPS-raster 0 /opt/a/filter"}, nullptr},
    {"LongerType", {"application/vnd.cups-raster2 0 /opt/a/filter"}, nullptr},
    {"ShorterType", {"application/vnd.cups-raste 0 /opt/a/filter"}, nullptr},
    {"OverlongTypes",
     {std::string(100000, 'a') + " 0 /opt/a/filter",
      "application/vnd.cups-raster" + std::string(100000, 'a') + " 0 /opt/a/filter",
      "application/vnd.cups-raster 0 /opt/b/filter"},
     "/opt/b/"},
    {"OverlongProgram",
     {"application/vnd.cups-raster 0 /opt/" + std::string(100000, 'a') + "/rastertoprinter"},
     nullptr},
    {"MissingFields",
     {"", "application/vnd.cups-raster", "application/vnd.cups-raster 0",
      "application/vnd.cups-raster high /opt/a/filter",
      "application/vnd.cups-raster 100 /opt/b/filter"},
     "/opt/b/"},
    {"ManyBlanks", {"  application/vnd.cups-raster\t -7 \n /opt/a/filter  more"}, "/opt/a/"},
    {"PositiveCost", {"application/vnd.cups-raster +5 /opt/a/filter"}, "/opt/a/"},
    {"SignWithoutCost", {"application/vnd.cups-raster + /opt/a/filter"}, nullptr},
    {"BlankInTheProgram", {"application/vnd.cups-raster 0 /opt/my printer/filter"}, "/opt/"},
};

INSTANTIATE_TEST_SUITE_P(With, ModulePathOf, testing::ValuesIn(kLines),
                         [](const testing::TestParamInfo<Lines>& lines) {
                           return std::string(lines.param.name);
                         });

TEST(ModulePath, AnEmptyPlaceInTheListIsSkipped) {
  std::string line = "application/vnd.cups-raster 0 /opt/printer/filter";
  std::vector<char*> pointers = {nullptr, line.data()};
  ppd_file_t ppd = {};
  ppd.num_filters = 2;
  ppd.filters = pointers.data();
  EXPECT_EQ(Find(&ppd).text, "/opt/printer/");
}

TEST(ModulePath, WithoutAPpdThereIsNone) {
  const Lookup lookup = Find(nullptr);
  EXPECT_FALSE(lookup.found);
  EXPECT_TRUE(lookup.untouched);
}

TEST(ModulePath, ADirectoryOf1023CharactersFitsABufferOf1024) {
  const Lookup lookup = FindInList({"application/vnd.cups-raster 0 " + DirectoryOfLength(1023)});
  EXPECT_TRUE(lookup.found);
  EXPECT_EQ(lookup.text, DirectoryOfLength(1023));
  EXPECT_TRUE(lookup.guard_intact);
}

TEST(ModulePath, ADirectoryOf1024CharactersDoesNotFit) {
  const Lookup lookup =
      FindInList({"application/vnd.cups-raster 0 " + DirectoryOfLength(1024) + "filter"});
  EXPECT_FALSE(lookup.found);
  EXPECT_TRUE(lookup.untouched);
}

TEST(ModulePath, ADirectoryThatJustFitsASmallBufferIsFound) {
  const Lookup lookup = FindInList({"application/vnd.cups-raster 0 /opt/printer/filter"}, 14);
  EXPECT_TRUE(lookup.found);
  EXPECT_EQ(lookup.text, "/opt/printer/");
  EXPECT_TRUE(lookup.guard_intact);
}

TEST(ModulePath, ADirectoryThatFillsTheBufferDoesNotFit) {
  for (const int size : {13, 1, 0, -1}) {
    const Lookup lookup = FindInList({"application/vnd.cups-raster 0 /opt/printer/filter"}, size);
    EXPECT_FALSE(lookup.found) << size;
    EXPECT_TRUE(lookup.untouched) << size;
  }
}
