// SPDX-License-Identifier: Apache-2.0
#include "tools/device_connection.h"

#include <algorithm>
#include <array>
#include <cctype>

#include "language/messages.h"

namespace tools {

using language::N_;
namespace {

std::string scheme_of(std::string_view uri) {
  std::string scheme(uri.substr(0, std::min(uri.find(':'), uri.size())));
  std::transform(scheme.begin(), scheme.end(), scheme.begin(),
                 [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
  return scheme;
}

template <std::size_t N>
bool is_one_of(std::string_view word, const std::array<std::string_view, N>& words) {
  return std::find(words.begin(), words.end(), word) != words.end();
}

// Backends that pass on the printer's answers.
constexpr std::array<std::string_view, 2> kTwoWay = {"socket", "usb"};
// Backends that only send, or talk to a queue of another machine.
constexpr std::array<std::string_view, 9> kOneWay = {"lpd",   "file", "ipp",      "ipps", "http",
                                                     "https", "smb",  "cups-pdf", "fax"};

// The place where the host ends: at a port, a path, a query or the end of the address.
std::size_t end_of_host(std::string_view rest) {
  if (rest.starts_with('[')) {
    const std::size_t bracket = rest.find(']');
    return bracket == std::string_view::npos ? rest.size() : bracket + 1;
  }
  return std::min(rest.find_first_of(":/?"), rest.size());
}

}  // namespace

Bidirectional bidirectional(std::string_view deviceUri) {
  // The scheduler only writes to a device file.
  if (deviceUri.starts_with('/')) {
    return Bidirectional::No;
  }
  const std::string scheme = scheme_of(deviceUri);
  if (is_one_of(scheme, kTwoWay)) {
    return Bidirectional::Yes;
  }
  return is_one_of(scheme, kOneWay) ? Bidirectional::No : Bidirectional::CannotTell;
}

const char* to_string(Bidirectional answer) {
  switch (answer) {
    case Bidirectional::Yes:
      return N_("yes");
    case Bidirectional::No:
      return N_("no");
    case Bidirectional::CannotTell:
      break;
  }
  return N_("cannot be told");
}

std::string without_private_parts(std::string_view deviceUri) {
  const std::size_t slashes = deviceUri.find("://");
  if (slashes == std::string_view::npos) {
    return scheme_of(deviceUri) + ":…";
  }
  const std::string scheme = scheme_of(deviceUri);
  std::string_view rest = deviceUri.substr(slashes + 3);
  if (scheme == "usb") {
    return "usb://…";  // maker, model and serial number
  }
  if (scheme != "socket") {
    return scheme + "://…";
  }
  const std::size_t path = std::min(rest.find_first_of("/?"), rest.size());
  const std::size_t at = rest.substr(0, path).rfind('@');
  if (at != std::string_view::npos) {
    rest.remove_prefix(at + 1);
  }
  return scheme + "://HOST" + std::string(rest.substr(end_of_host(rest)));
}

}  // namespace tools
