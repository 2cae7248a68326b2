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

// A name such as "tqr7.example.org" is also said without its domain.
void add_machine(PersonalWords& words, const std::string& name, const char* replacement) {
  constexpr std::size_t kShortLeast = 3;  // bytes; "a" would be found everywhere
  words.AddName(name, replacement);
  const std::string label = name.substr(0, name.find('.'));
  const bool number = label.find_first_not_of("0123456789") == std::string::npos;
  if (label.size() >= kShortLeast && label.size() < name.size() && !number) {
    words.AddName(label, replacement);
  }
}

}  // namespace

PersonalWords words_of_job(ipp_t* job, const std::vector<std::string>& deviceUris) {
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
      add_machine(words, text, "(host)");
    }
  }
  for (const std::string& uri : deviceUris) {
    add_machine(words, host_of(uri), "(printer)");
  }
  return words;
}

void add_own_names(PersonalWords& words) {
  std::array<char, 256> machine{};
  words.AddName(cupsUser(), "(user)");
  if (gethostname(machine.data(), machine.size() - 1) == 0) {
    add_machine(words, machine.data(), "(host)");
  }
}

}  // namespace tools
