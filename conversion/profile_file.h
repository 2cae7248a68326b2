// SPDX-License-Identifier: Apache-2.0
//
// The printer's profile, a file in the module directory. Anybody may have put anything there: a
// device, a pipe that nobody writes to, or a file without end.
#ifndef TQR7_CONVERSION_PROFILE_FILE_H
#define TQR7_CONVERSION_PROFILE_FILE_H

#include <cstddef>
#include <span>

/// The profile's name in the module directory.
inline constexpr const char* kProfileName = "tqr7.icc";

/// A profile's header alone has 128 bytes. Profiles of measured printers have 0.5 to 3 MB.
inline constexpr std::size_t kSmallestProfile = 128;
inline constexpr std::size_t kLargestProfile = std::size_t{4} << 20;

/// An open profile. Its calls wait for nothing but the disk.
class ProfileFile {
 public:
  ProfileFile() = default;
  ~ProfileFile();
  ProfileFile(const ProfileFile&) = delete;
  ProfileFile& operator=(const ProfileFile&) = delete;

  /// Opens the profile in this directory, whose path may end in "/" or not. Only a regular file
  /// within the limits of size is taken. Returns null, or why not in a few words. A missing
  /// file or directory is no fault: then nothing is open.
  const char* open_in(const char* directory);
  bool is_open() const { return descriptor_ >= 0; }

  /// Bytes, as they were when the file was opened.
  std::size_t size() const { return size_; }

  /// True when the file has this content. Needs only a small buffer.
  bool has_content(std::span<const unsigned char> content) const;

  /// Reads all size() bytes. False when they cannot be read, or the file's length has changed.
  bool read(unsigned char* content) const;

 private:
  int descriptor_ = -1;
  std::size_t size_ = 0;
};

#endif  // TQR7_CONVERSION_PROFILE_FILE_H
