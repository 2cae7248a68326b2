// SPDX-License-Identifier: Apache-2.0
#include "tools/job_words.h"

#include <cups/cups.h>
#include <unistd.h>

#include <array>

namespace tools {
namespace {

std::string host_of(const std::string& deviceUri) {
  std::array<char, 32> scheme{};
  std::array<char, 256> user{};
  std::array<char, 256> host{};
  std::array<char, 1024> resource{};
  int port = 0;
  httpSeparateURI(HTTP_URI_CODING_ALL, deviceUri.c_str(), scheme.data(), scheme.size(), user.data(),
                  user.size(), host.data(), host.size(), &port, resource.data(), resource.size());
  return host.data();
}

}  // namespace

PersonalWords words_of_job(ipp_t* job, const std::string& deviceUri) {
  PersonalWords words;
  for (ipp_attribute_t* attribute = ippFirstAttribute(job); attribute != nullptr;
       attribute = ippNextAttribute(job)) {
    const std::string name = ippGetName(attribute) != nullptr ? ippGetName(attribute) : "";
    const char* const text = ippGetString(attribute, 0, nullptr);
    if (text == nullptr) {
      continue;
    }
    if (name == "job-name" || name.starts_with("document-name")) {
      words.AddTitle(text);
    } else if (name == "job-originating-user-name") {
      words.AddName(text, "(user)");
    } else if (name == "job-originating-host-name") {
      words.AddName(text, "(host)");
    }
  }
  words.AddName(host_of(deviceUri), "(printer)");
  return words;
}

void add_own_names(PersonalWords& words) {
  std::array<char, 256> machine{};
  words.AddName(cupsUser(), "(user)");
  if (gethostname(machine.data(), machine.size() - 1) == 0) {
    words.AddName(machine.data(), "(host)");
  }
}

}  // namespace tools
