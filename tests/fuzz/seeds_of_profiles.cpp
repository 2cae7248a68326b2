// SPDX-License-Identifier: Apache-2.0
//
// Profiles of each kind that an owner may have.
#include "model/printer_model.h"
#include "tests/fuzz/seeds.h"
#include "tests/unit/profile_maker.h"

namespace fuzz {
namespace {

std::string text_of(const ProfileBytes& bytes) {
  return {bytes.begin(), bytes.end()};
}

std::string dyes(double version, bool eightBits) {
  DyeDevice device;
  device.version = version;
  device.grid = 3;
  device.eightBits = eightBits;
  return text_of(dye_profile(device));
}

}  // namespace

Seeds profile_seeds() {
  const auto model = printer_model_profile();
  MatrixDevice old;
  old.version = 2.1;
  return {{"model", {model.begin(), model.end()}},   {"matrix4", text_of(matrix_profile({}))},
          {"matrix2", text_of(matrix_profile(old))}, {"dyes4", dyes(4.3, false)},
          {"dyes4-bytes", dyes(4.3, true)},          {"dyes2", dyes(2.4, false)},
          {"dyes2-bytes", dyes(2.4, true)}};
}

}  // namespace fuzz
