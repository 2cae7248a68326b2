// SPDX-License-Identifier: Apache-2.0
#include "conversion/profile_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

namespace {

constexpr std::size_t kPiece = 16384;

// A directory that may be searched but not listed is enough.
#ifdef O_PATH
constexpr int kDirectoryAccess = O_PATH;
#else
constexpr int kDirectoryAccess = O_RDONLY;
#endif

/// Closes a descriptor at the end of a block.
struct Descriptor {
  int number;

  explicit Descriptor(int opened) : number(opened) {}
  ~Descriptor() {
    if (number >= 0) {
      close(number);
    }
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
};

// Why the profile in this folder could not be opened; null when it has none.
const char* fault_of_open(int error, int folder) {
  struct stat link {};
  switch (error) {
    case ENOENT:
      return fstatat(folder, kProfileName, &link, AT_SYMLINK_NOFOLLOW) == 0
                 ? "its link leads nowhere"
                 : nullptr;
    case EACCES:
    case EPERM:
      return "it may not be read";
    case ELOOP:
      return "its link leads in a circle";
    case ENXIO:
      return "it is not a regular file";
    default:
      return "it cannot be opened";
  }
}

const char* fault_of_status(const struct stat& status) {
  if (!S_ISREG(status.st_mode)) {
    return "it is not a regular file";
  }
  if (status.st_size < static_cast<off_t>(kSmallestProfile)) {
    return "it is too small for a profile";
  }
  if (status.st_size > static_cast<off_t>(kLargestProfile)) {
    return "it is larger than 4 MiB";
  }
  return nullptr;
}

/// Reads up to `size` bytes at this offset. Returns how many it read, or a negative number.
ssize_t read_at(int descriptor, std::size_t offset, unsigned char* bytes, std::size_t size) {
  ssize_t got = -1;
  do {
    got = pread(descriptor, bytes, size, static_cast<off_t>(offset));
  } while (got < 0 && errno == EINTR);
  return got;
}

/// Reads exactly `size` bytes.
bool read_all(int descriptor, std::size_t offset, unsigned char* bytes, std::size_t size) {
  std::size_t done = 0;
  while (done < size) {
    const ssize_t got = read_at(descriptor, offset + done, bytes + done, size - done);
    if (got <= 0) {
      return false;
    }
    done += static_cast<std::size_t>(got);
  }
  return true;
}

/// True when the file has nothing after its first `size` bytes.
bool ends_at(int descriptor, std::size_t size) {
  unsigned char more = 0;
  return read_at(descriptor, size, &more, 1) == 0;
}

}  // namespace

ProfileFile::~ProfileFile() {
  if (descriptor_ >= 0) {
    close(descriptor_);
  }
}

const char* ProfileFile::open_in(const char* directory) {
  if (directory == nullptr || directory[0] == '\0') {
    return "no module directory is known";
  }
  if (descriptor_ >= 0) {
    close(descriptor_);
    descriptor_ = -1;
  }
  const Descriptor folder(open(directory, kDirectoryAccess | O_DIRECTORY | O_CLOEXEC));
  if (folder.number < 0) {
    return errno == ENOENT ? nullptr : "the module directory cannot be opened";
  }
  // Without O_NONBLOCK opening a pipe would wait for a writer, and some devices for a carrier.
  const int opened =
      openat(folder.number, kProfileName, O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
  if (opened < 0) {
    return fault_of_open(errno, folder.number);
  }
  descriptor_ = opened;
  struct stat status {};
  if (fstat(descriptor_, &status) != 0) {
    return "it cannot be opened";
  }
  const char* fault = fault_of_status(status);
  size_ = fault == nullptr ? static_cast<std::size_t>(status.st_size) : 0;
  return fault;
}

bool ProfileFile::has_content(std::span<const unsigned char> content) const {
  if (content.size() != size_) {
    return false;
  }
  std::array<unsigned char, kPiece> piece;
  for (std::size_t offset = 0; offset < size_; offset += kPiece) {
    const std::size_t count = std::min(kPiece, size_ - offset);
    if (!read_all(descriptor_, offset, piece.data(), count) ||
        std::memcmp(piece.data(), content.data() + offset, count) != 0) {
      return false;
    }
  }
  return ends_at(descriptor_, size_);
}

bool ProfileFile::read(unsigned char* content) const {
  return read_all(descriptor_, 0, content, size_) && ends_at(descriptor_, size_);
}
