// SPDX-License-Identifier: Apache-2.0
//
// The output folder: the names and numbers of the sheets in it, and the list of what was printed.
#ifndef TQR7_SIMULATOR_SHEET_FOLDER_H
#define TQR7_SIMULATOR_SHEET_FOLDER_H

#include <cstdint>
#include <filesystem>
#include <string>

namespace simulator {

/// Gives each sheet that begins the next number, starting after the highest number in the folder,
/// so that no earlier print is lost.
class SheetFolder {
 public:
  /// Creates the folder if it does not exist. Returns what is wrong with it, or nothing.
  std::string Open(const std::filesystem::path& folder);

  const std::filesystem::path& Path() const { return folder_; }

  /// Takes the next free number.
  std::uint64_t TakeNumber() { return nextNumber_++; }

  /// DIR/sheet-0001.png
  std::filesystem::path PrintedName(std::uint64_t number) const;

  /// DIR/incomplete-0001.png, a name that no pattern for printed sheets matches.
  std::filesystem::path IncompleteName(std::uint64_t number) const;

  /// DIR/thumbnails, and DIR/thumbnails/sheet-0001.png
  std::filesystem::path Thumbnails() const { return folder_ / "thumbnails"; }
  std::filesystem::path ThumbnailName(std::uint64_t number) const;

  /// Creates the folder for thumbnails if it does not exist. Returns what went wrong, or nothing.
  std::string MakeThumbnails() const;

  /// Adds a line to DIR/sheets.txt. Returns what went wrong, or nothing.
  std::string AddLine(const std::string& line) const;

 private:
  std::filesystem::path folder_;
  std::uint64_t nextNumber_ = 1;
};

}  // namespace simulator

#endif  // TQR7_SIMULATOR_SHEET_FOLDER_H
