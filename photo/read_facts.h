// SPDX-License-Identifier: Apache-2.0
//
// What is to be known of a photo before it is laid out.
#ifndef TQR7_PHOTO_READ_FACTS_H
#define TQR7_PHOTO_READ_FACTS_H

#include <cstdio>
#include <string>

#include "photo/layout.h"
#include "photo/photo_rows.h"

namespace photo {

/// Reads what the file says of its picture, from the beginning. Says why it cannot be printed, or
/// nothing.
std::string read_facts(std::FILE* file, PhotoFacts& facts);

/// The photo as one looks at it.
PhotoShape upright_shape(const PhotoFacts& facts);

}  // namespace photo

#endif  // TQR7_PHOTO_READ_FACTS_H
