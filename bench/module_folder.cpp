// SPDX-License-Identifier: Apache-2.0
#include "bench/module_folder.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <system_error>

namespace bench {

ModuleFolder::ModuleFolder(std::span<const unsigned char> profile) {
  path_ = std::filesystem::temp_directory_path() / "module-XXXXXX";
  if (mkdtemp(path_.data()) == nullptr) {
    throw std::runtime_error(path_ + ": cannot be made");
  }
  path_ += "/";
  std::ofstream file(path_ + "tqr7.icc", std::ios::binary);
  file << std::string(profile.begin(), profile.end());
  file.close();
  if (!file) {
    throw std::runtime_error(path_ + "tqr7.icc: cannot be written");
  }
}

ModuleFolder::~ModuleFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

}  // namespace bench
