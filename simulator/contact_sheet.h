// SPDX-License-Identifier: Apache-2.0
//
// A run in one page: DIR/index.html shows each printed sheet small, with the fields of its headers,
// and the errors. It is plain HTML that a browser opens from the folder.
#ifndef TQR7_SIMULATOR_CONTACT_SHEET_H
#define TQR7_SIMULATOR_CONTACT_SHEET_H

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "decoder/named_fields.h"

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

/// Text as HTML shows it, in attributes, too.
std::string escaped(const std::string& text);

/// Gathers a run.
class ContactSheet {
 public:
  /// Begins the page, without sheets. Returns what went wrong, or nothing.
  std::string Begin(const std::filesystem::path& folder);

  /// Adds a sheet and writes the page anew. Returns what went wrong, or nothing.
  std::string Add(const ContactEntry& entry);

  /// Adds an error or a failure, for the next time that the page is written. After a thousand the
  /// further ones are counted only.
  void AddError(const std::string& line);

  /// Writes the page, under another name until it is whole, when there is something new. Returns
  /// what went wrong, or nothing.
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
