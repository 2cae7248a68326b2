// SPDX-License-Identifier: Apache-2.0
#include "photo/read_facts.h"

#include <memory>
#include <utility>

#include "photo/picture_turn.h"

namespace photo {

std::string read_facts(std::FILE* file, PhotoFacts& facts) {
  std::rewind(file);
  const std::unique_ptr<PhotoRows> reader = find_reader(file);
  return reader != nullptr ? reader->Open(facts) : "it is neither a JPEG nor a PNG file";
}

PhotoShape upright_shape(const PhotoFacts& facts) {
  PhotoShape shape{facts.width, facts.height, 0, 0};
  if (facts.density.IsKnown()) {
    shape.perInchAcross = facts.density.across;
    shape.perInchDown = facts.density.down;
  }
  if (swaps_sides(facts.orientation)) {
    std::swap(shape.width, shape.height);
    std::swap(shape.perInchAcross, shape.perInchDown);
  }
  return shape;
}

}  // namespace photo
