// SPDX-License-Identifier: Apache-2.0
//
// Byte blocks in tests: written as numbers, compared as strings.
#ifndef TQR7_TESTS_UNIT_BYTES_H
#define TQR7_TESTS_UNIT_BYTES_H

#include <cstddef>
#include <initializer_list>
#include <string>

/// A string of the given byte values.
inline std::string Bytes(std::initializer_list<unsigned char> values) {
  std::string text;
  for (const unsigned char value : values) {
    text.push_back(static_cast<char>(value));
  }
  return text;
}

/// A string of the bytes of a block in memory.
inline std::string Bytes(const void* block, std::size_t size) {
  return {static_cast<const char*>(block), size};
}

/// A string of `count` zero bytes.
inline std::string Zeros(std::size_t count) {
  return std::string(count, '\0');
}

#endif  // TQR7_TESTS_UNIT_BYTES_H
