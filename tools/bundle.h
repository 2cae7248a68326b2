// SPDX-License-Identifier: Apache-2.0
//
// A compressed tar file of texts. The same texts give the same bytes: it has no times and no
// owners.
#ifndef TQR7_TOOLS_BUNDLE_H
#define TQR7_TOOLS_BUNDLE_H

#include <string>
#include <string_view>
#include <vector>

namespace tools {

struct BundleFile {
  std::string name;
  std::string text;
};

/// Writes the files in their order, in a folder of the bundle. Empty when it succeeded; otherwise
/// why not, and then no file is left behind.
std::string write_bundle(const std::string& path, const std::string& folder,
                         const std::vector<BundleFile>& files);

/// The text as part of a file's name: letters, digits, "-", "_" and "." that does not lead; all
/// else is "_". At most 64 bytes.
std::string file_name_of(std::string_view text);

}  // namespace tools

#endif  // TQR7_TOOLS_BUNDLE_H
