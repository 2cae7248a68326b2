// SPDX-License-Identifier: Apache-2.0
//
// The output folder: the names and numbers of the sheets in it, and the list of what was printed.
#ifndef TQR7_SIMULATOR_SHEET_FOLDER_H
#define TQR7_SIMULATOR_SHEET_FOLDER_H

#include <cstdint>
#include <filesystem>
#include <string>

namespace simulator {

/// Each sheet that is begun takes the next number. Numbering goes on behind the highest number that
/// the folder already has, so that no earlier print is lost.
class SheetFolder {
 public:
  /// Makes the folder where it is missing. Returns what is wrong with it, or nothing.
  std::string Open(const std::filesystem::path& folder);

  const std::filesystem::path& Path() const { return folder_; }

  /// The next free number, taken.
  std::uint64_t TakeNumber() { return nextNumber_++; }

  /// DIR/sheet-0001.png
  std::filesystem::path PrintedName(std::uint64_t number) const;

  /// DIR/incomplete-0001.png, a name that no pattern for printed sheets matches.
  std::filesystem::path IncompleteName(std::uint64_t number) const;

  /// DIR/thumbnails, and DIR/thumbnails/sheet-0001.png
  std::filesystem::path Thumbnails() const { return folder_ / "thumbnails"; }
  std::filesystem::path ThumbnailName(std::uint64_t number) const;

  /// Makes the folder for thumbnails where it is missing. Returns what went wrong, or nothing.
  std::string MakeThumbnails() const;

  /// Adds a line to DIR/sheets.txt. Returns what went wrong, or nothing.
  std::string AddLine(const std::string& line) const;

 private:
  std::filesystem::path folder_;
  std::uint64_t nextNumber_ = 1;
};

}  // namespace simulator

#endif  // TQR7_SIMULATOR_SHEET_FOLDER_H
