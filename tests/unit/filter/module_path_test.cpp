// SPDX-License-Identifier: Apache-2.0
//
// The module directory from the PPD's cupsFilter lines: real PPD files, and filter lists that no
// PPD file could hold.
#include "filter/module_path.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "tests/unit/ppd_file.h"

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

/// The lookup in a PPD with these cupsFilter lines.
Lookup FindInPpd(const std::vector<std::string>& filters) {
  std::string lines;
  for (const std::string& filter : filters) {
    lines += "*cupsFilter: \"" + filter + "\"\n";
  }
  PpdFile ppd(lines);
  return Find(ppd.get());
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

TEST(ModulePath, IsTheFiltersDirectoryWithItsSlash) {
  const Lookup lookup =
      FindInPpd({"application/vnd.cups-raster 0 /opt/printer/filter/rastertoprinter"});
  EXPECT_TRUE(lookup.found);
  EXPECT_EQ(lookup.text, "/opt/printer/filter/");
  EXPECT_TRUE(lookup.guard_intact);
}

TEST(ModulePath, AFilterInTheRootDirectoryHasTheRootsSlash) {
  EXPECT_EQ(FindInPpd({"application/vnd.cups-raster 0 /rastertoprinter"}).text, "/");
}

TEST(ModulePath, ARelativeDirectoryIsKeptAsItIs) {
  EXPECT_EQ(FindInPpd({"application/vnd.cups-raster 0 sub/rastertoprinter"}).text, "sub/");
}

TEST(ModulePath, AProgramWithoutASlashHasNone) {
  const Lookup lookup = FindInPpd({"application/vnd.cups-raster 0 -"});
  EXPECT_FALSE(lookup.found);
  EXPECT_TRUE(lookup.untouched);
}

TEST(ModulePath, OnlyTheFilterForCupsRasterCounts) {
  EXPECT_FALSE(FindInPpd({"application/vnd.cups-pdf 0 /opt/pdf/filter",
                          "application/vnd.cups-postscript 0 /opt/ps/filter"})
                   .found);
  EXPECT_EQ(FindInPpd({"application/vnd.cups-pdf 0 /opt/pdf/filter",
                       "application/vnd.cups-raster 0 /opt/raster/filter"})
                .text,
            "/opt/raster/");
}

TEST(ModulePath, OnlyTheFirstFilterForCupsRasterCounts) {
  EXPECT_EQ(FindInPpd({"application/vnd.cups-raster 0 /opt/first/filter",
                       "application/vnd.cups-raster 0 /opt/second/filter"})
                .text,
            "/opt/first/");
  EXPECT_FALSE(FindInPpd({"application/vnd.cups-raster 0 -",
                          "application/vnd.cups-raster 0 /opt/second/filter"})
                   .found);
}

TEST(ModulePath, TheTypesLetterCaseCounts) {
  EXPECT_FALSE(FindInList({"Application/vnd.cups-raster 0 /opt/printer/filter"}).found);
  EXPECT_FALSE(FindInList({"application/vnd.CUPS-raster 0 /opt/printer/filter"}).found);
}

TEST(ModulePath, ATypeThatOnlyBeginsSoDoesNotCount) {
  EXPECT_FALSE(FindInList({"application/vnd.cups-raster2 0 /opt/printer/filter"}).found);
  EXPECT_FALSE(FindInList({"application/vnd.cups-raste 0 /opt/printer/filter"}).found);
}

TEST(ModulePath, LinesThatLackAFieldAreSkipped) {
  EXPECT_EQ(FindInList({"", "application/vnd.cups-raster", "application/vnd.cups-raster 0",
                        "application/vnd.cups-raster high /opt/nocost/filter",
                        "application/vnd.cups-raster 100 /opt/printer/filter"})
                .text,
            "/opt/printer/");
}

TEST(ModulePath, FieldsMayStandAnyBlanksApart) {
  EXPECT_EQ(FindInList({"  application/vnd.cups-raster\t -7 \n /opt/printer/filter  more"}).text,
            "/opt/printer/");
}

TEST(ModulePath, ACostMayHaveEitherSignAndIsNotASignAlone) {
  EXPECT_EQ(FindInList({"application/vnd.cups-raster +5 /opt/plus/filter"}).text, "/opt/plus/");
  EXPECT_EQ(FindInList({"application/vnd.cups-raster -5 /opt/minus/filter"}).text, "/opt/minus/");
  EXPECT_FALSE(FindInList({"application/vnd.cups-raster + /opt/sign/filter"}).found);
}

TEST(ModulePath, AnEmptyPlaceInTheListIsSkipped) {
  std::string line = "application/vnd.cups-raster 0 /opt/printer/filter";
  std::vector<char*> pointers = {nullptr, line.data()};
  ppd_file_t ppd = {};
  ppd.num_filters = 2;
  ppd.filters = pointers.data();
  EXPECT_EQ(Find(&ppd).text, "/opt/printer/");
}

TEST(ModulePath, AProgramEndsAtABlank) {
  EXPECT_EQ(FindInList({"application/vnd.cups-raster 0 /opt/my printer/filter"}).text, "/opt/");
}

TEST(ModulePath, WithoutFiltersThereIsNone) {
  EXPECT_FALSE(FindInList({}).found);
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

TEST(ModulePath, AnOverlongTypeIsNoMatchAndOverflowsNothing) {
  const std::string type(100000, 'a');
  EXPECT_EQ(FindInList({type + " 0 /opt/other/filter",
                        "application/vnd.cups-raster" + type + " 0 /opt/other/filter",
                        "application/vnd.cups-raster 0 /opt/printer/filter"})
                .text,
            "/opt/printer/");
}

TEST(ModulePath, AnOverlongProgramNamesNoDirectoryAndOverflowsNothing) {
  const Lookup lookup = FindInList(
      {"application/vnd.cups-raster 0 /opt/" + std::string(100000, 'a') + "/rastertoprinter"});
  EXPECT_FALSE(lookup.found);
  EXPECT_TRUE(lookup.untouched);
}
