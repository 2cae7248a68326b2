// SPDX-License-Identifier: Apache-2.0
#include "decoder/proof_choice.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <system_error>

#include "decoder/profile_light.h"

namespace decoder {

std::string make_proof(const ProofChoice& choice, std::unique_ptr<SoftProof>& proof) {
  std::string why;
  if (choice.profile) {
    const std::vector<std::uint8_t> profile = read_profile_file(*choice.profile, why);
    if (why.empty()) {
      proof = SoftProof::Through(profile, why);
    }
  } else if (!choice.deviceValues) {
    proof = SoftProof::ThroughPrinterModel();
  }
  return why;
}

std::vector<std::uint8_t> read_profile_file(const std::string& path, std::string& why) {
  const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (file < 0) {
    why = std::generic_category().message(errno);
    return {};
  }
  std::vector<std::uint8_t> bytes(kProfileBytesMost + 1);
  std::size_t count = 0;
  ssize_t got = 1;
  while (count < bytes.size() && got > 0) {
    got = ::read(file, bytes.data() + count, bytes.size() - count);
    count += got > 0 ? static_cast<std::size_t>(got) : 0;
  }
  why = got < 0 ? std::generic_category().message(errno) : "";
  ::close(file);
  bytes.resize(got < 0 ? 0 : count);
  return bytes;
}

}  // namespace decoder
