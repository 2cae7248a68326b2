// SPDX-License-Identifier: Apache-2.0
//
// A page on the whole run: DIR/index.html shows the errors and a small picture of each printed
// sheet with the fields of its headers. It is plain HTML that a browser opens from the folder.
#ifndef TQR7_SIMULATOR_CONTACT_SHEET_H
#define TQR7_SIMULATOR_CONTACT_SHEET_H

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "decoder/command_blocks.h"

namespace simulator {

/// One sheet of the run. File names are relative to the folder.
struct ContactEntry {
  std::string title;      ///< "sheet 1, connection 1"
  std::string file;       ///< of the PNG
  std::string thumbnail;  ///< of the small PNG
  std::string words;
  std::vector<decoder::NamedField> job;
  std::vector<decoder::NamedField> image;
};

/// The text escaped for HTML, also for attributes.
std::string escaped(const std::string& text);

/// Collects what the page shows.
class ContactSheet {
 public:
  /// Begins the page, without sheets. Returns what went wrong, or nothing.
  std::string Begin(const std::filesystem::path& folder);

  /// Adds a sheet and writes the page anew. Returns what went wrong, or nothing.
  std::string Add(const ContactEntry& entry);

  /// Adds an error or a failure, which the page shows when it is written next. Only counts those
  /// after the first thousand.
  void AddError(const std::string& line);

  /// Writes the page if there is something new on it. It has another name until it is whole.
  /// Returns what went wrong, or nothing.
  std::string Write();

 private:
  std::string Page() const;

  std::filesystem::path folder_;
  std::vector<std::string> sheets_;  ///< in HTML
  std::vector<std::string> errors_;
  std::uint64_t furtherErrors_ = 0;
  bool changed_ = false;
};

}  // namespace simulator

#endif  // TQR7_SIMULATOR_CONTACT_SHEET_H
