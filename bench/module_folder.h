// SPDX-License-Identifier: Apache-2.0
//
// A folder with a profile as tqr7.icc, for the conversion to take its colours from.
#ifndef TQR7_BENCH_MODULE_FOLDER_H
#define TQR7_BENCH_MODULE_FOLDER_H

#include <span>
#include <string>

namespace bench {

class ModuleFolder {
 public:
  /// Makes a temporary folder and writes the profile there; std::runtime_error when it cannot.
  explicit ModuleFolder(std::span<const unsigned char> profile);
  /// Removes the folder.
  ~ModuleFolder();
  ModuleFolder(const ModuleFolder&) = delete;
  ModuleFolder& operator=(const ModuleFolder&) = delete;

  /// With the "/" at its end that the conversion expects.
  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

}  // namespace bench

#endif  // TQR7_BENCH_MODULE_FOLDER_H
