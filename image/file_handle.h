// SPDX-License-Identifier: Apache-2.0
//
// An open file of the C library that closes itself.
#ifndef TQR7_IMAGE_FILE_HANDLE_H
#define TQR7_IMAGE_FILE_HANDLE_H

#include <cstdio>
#include <memory>

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

/// Owns the file. To know whether the last bytes were written, close what release() returns.
using FileHandle = std::unique_ptr<std::FILE, FileCloser>;

#endif  // TQR7_IMAGE_FILE_HANDLE_H
