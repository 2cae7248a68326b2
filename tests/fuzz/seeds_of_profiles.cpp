// SPDX-License-Identifier: Apache-2.0
//
// make-profile-seeds FOLDER: writes profiles of each kind that fuzz_profile should begin with.
#include <cstdio>
#include <exception>
#include <fstream>
#include <stdexcept>
#include <string>

#include "model/printer_model.h"
#include "tests/unit/conversion/profile_maker.h"

namespace {

void write(const std::string& path, const ProfileBytes& bytes) {
  std::ofstream file(path, std::ios::binary);
  file << std::string(bytes.begin(), bytes.end());
  file.close();
  if (!file) {
    throw std::runtime_error(path + ": cannot be written");
  }
}

ProfileBytes dyes(double version, bool eightBits) {
  DyeDevice device;
  device.version = version;
  device.grid = 3;
  device.eightBits = eightBits;
  return dye_profile(device);
}

void write_seeds(const std::string& folder) {
  const auto model = printer_model_profile();
  write(folder + "/model.icc", {model.begin(), model.end()});
  write(folder + "/matrix4.icc", matrix_profile({}));
  MatrixDevice old;
  old.version = 2.1;
  write(folder + "/matrix2.icc", matrix_profile(old));
  write(folder + "/dyes4.icc", dyes(4.3, false));
  write(folder + "/dyes4-bytes.icc", dyes(4.3, true));
  write(folder + "/dyes2.icc", dyes(2.4, false));
  write(folder + "/dyes2-bytes.icc", dyes(2.4, true));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("Usage: make-profile-seeds FOLDER\n", stderr);
    return 2;
  }
  try {
    write_seeds(argv[1]);
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "make-profile-seeds: %s\n", fault.what());
    return 1;
  }
  return 0;
}
