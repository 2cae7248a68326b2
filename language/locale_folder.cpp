// SPDX-License-Identifier: Apache-2.0
#include "language/locale_folder.h"

#include <filesystem>
#include <system_error>

#ifdef __APPLE__
#include <mach-o/dyld.h>

#include <array>
#endif

namespace language {
namespace {

namespace fs = std::filesystem;

// The program's own file; empty where the system does not tell.
fs::path own_file() {
  std::error_code error;
#ifdef __APPLE__
  std::array<char, 4096> path{};
  auto size = static_cast<std::uint32_t>(path.size());
  return ::_NSGetExecutablePath(path.data(), &size) == 0 ? fs::canonical(path.data(), error)
                                                         : fs::path();
#else
  return fs::read_symlink("/proc/self/exe", error);
#endif
}

}  // namespace

std::string locale_folder() {
  const fs::path programs = own_file().parent_path();
  if (!programs.empty()) {
    std::error_code error;
    for (const fs::path& folder :
         {programs / "share" / "locale", programs.parent_path() / "share" / "locale"}) {
      if (fs::is_directory(folder, error)) {
        return folder.string();
      }
    }
  }
  return TQR7_LOCALE_DIR;
}

}  // namespace language
