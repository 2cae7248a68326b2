// SPDX-License-Identifier: Apache-2.0
#include "tools/upright_photo.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

#include "photo/picture_turn.h"
#include "photo/read_facts.h"
#include "photo/to_srgb.h"

namespace tools {
namespace {

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

photo::PhotoFacts facts_of(const std::string& path) {
  const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(path.c_str(), "rbe"));
  photo::PhotoFacts facts;
  const std::string why =
      file != nullptr ? photo::read_facts(file.get(), facts) : "it cannot be read again";
  if (!why.empty()) {
    throw std::runtime_error(path + ": " + why);
  }
  return facts;
}

// The picture is RGB already, whatever the file has: only what is RGB there is still to be
// converted.
void convert(const photo::ToSrgb& colours, Picture& picture) {
  std::vector<unsigned char> row(3 * picture.width);
  for (std::size_t y = 0; y < picture.height; ++y) {
    colours.Convert(picture.At(0, y), row.data(), picture.width);
    std::copy(row.begin(), row.end(), picture.At(0, y));
  }
}

}  // namespace

UprightPhoto read_upright_photo(const std::string& path) {
  PictureFile file = read_picture_file(path);
  UprightPhoto result{{}, std::move(file.damage), facts_of(path), {}, false, false};
  const photo::ToSrgb colours(result.facts);
  result.converted = colours.Converts();
  result.profilePassedOver = colours.ProfilePassedOver();
  if (result.converted && result.facts.samples == photo::Samples::Rgb) {
    convert(colours, file.picture);
  }
  result.shape = photo::upright_shape(result.facts);
  result.picture = result.facts.orientation == 1
                       ? std::move(file.picture)
                       : photo::turned(file.picture, result.facts.orientation);
  return result;
}

}  // namespace tools
