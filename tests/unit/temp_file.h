// SPDX-License-Identifier: Apache-2.0
//
// Files and folders of a test's own, removed with it.
#ifndef TQR7_TESTS_UNIT_TEMP_FILE_H
#define TQR7_TESTS_UNIT_TEMP_FILE_H

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

/// The whole content of a file; empty for a file that cannot be read.
inline std::string ReadFile(const std::filesystem::path& path) {
  std::ostringstream content;
  content << std::ifstream(path, std::ios::binary).rdbuf();
  return content.str();
}

/// A new empty folder, removed with all that is in it.
class TempFolder {
 public:
  TempFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "tqr7-test-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) {
      throw std::runtime_error("no folder for a test's files");
    }
    path_ = name;
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  /// The path of a file in the folder.
  std::string operator/(const std::string& name) const { return (path_ / name).string(); }

  const std::filesystem::path& path() const { return path_; }

  /// The names of what is in it, hidden files too, in order.
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(path_)) {
      names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
  }

 private:
  std::filesystem::path path_;
};

#endif  // TQR7_TESTS_UNIT_TEMP_FILE_H
