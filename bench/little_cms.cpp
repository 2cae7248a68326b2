// SPDX-License-Identifier: Apache-2.0
#include "bench/little_cms.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace bench {

namespace {

void* made(void* thing, const char* what) {
  if (thing == nullptr) {
    throw std::runtime_error(std::string("Little CMS cannot make ") + what);
  }
  return thing;
}

}  // namespace

ProfileBytes read_profile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  ProfileBytes bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  if (!file || bytes.empty()) {
    throw std::runtime_error(path + ": cannot be read");
  }
  return bytes;
}

Profile opened(std::span<const unsigned char> bytes) {
  return Profile(
      made(cmsOpenProfileFromMem(bytes.data(), static_cast<cmsUInt32Number>(bytes.size())),
           "a profile of these bytes"));
}

Profile srgb_profile() {
  return Profile(made(cmsCreate_sRGBProfile(), "the sRGB profile"));
}

Profile lab_profile() {
  return Profile(made(cmsCreateLab4Profile(nullptr), "the Lab profile"));
}

ProfileBytes saved(const Profile& profile) {
  cmsUInt32Number size = 0;
  cmsSaveProfileToMem(profile.get(), nullptr, &size);
  ProfileBytes bytes(size);
  if (size == 0 || cmsSaveProfileToMem(profile.get(), bytes.data(), &size) == 0) {
    throw std::runtime_error("Little CMS cannot save the profile");
  }
  return bytes;
}

Transform transform_between(const Profile& from, cmsUInt32Number fromLayout, const Profile& to,
                            cmsUInt32Number toLayout, cmsUInt32Number intent,
                            cmsUInt32Number flags) {
  return Transform(
      made(cmsCreateTransform(from.get(), fromLayout, to.get(), toLayout, intent, flags),
           "the transform"));
}

}  // namespace bench
