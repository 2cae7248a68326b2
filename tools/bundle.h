// SPDX-License-Identifier: Apache-2.0
//
// A compressed tar file of texts. It has no times and no owners, so that the same texts make the
// same bytes.
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

/// Writes the files in their order, in one folder of the bundle. Returns why it failed, or nothing;
/// after a failure no bundle is left.
std::string write_bundle(const std::string& path, const std::string& folder,
                         const std::vector<BundleFile>& files);

/// The text as a part of a file's name, at most 64 bytes: letters, digits, "-", "_", and "." except
/// at the beginning. All other bytes become "_".
std::string file_name_of(std::string_view text);

}  // namespace tools

#endif  // TQR7_TOOLS_BUNDLE_H
