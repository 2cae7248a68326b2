// SPDX-License-Identifier: Apache-2.0
#include "tests/unit/scripted_destinations.h"

#include <cups/cups.h>

#include <array>
#include <cstdlib>

#include "tests/unit/stand_in.h"

namespace {

std::string option_name;
std::string option_value;
std::array<cups_option_t, 1> options;
std::array<cups_dest_t, 1> destinations;
bool scripted = false;
bool has_default = false;
std::vector<std::string> calls;

const bool destinations_restored = AfterEachTest([] {
  scripted = false;
  has_default = false;
  calls.clear();
});

void SetDefault(const std::string& name, const std::string& value) {
  option_name = name;
  option_value = value;
  options[0] = {option_name.data(), option_value.data()};
  static std::array<char, 6> queue = {"photo"};
  destinations[0] = {queue.data(), nullptr, 1, 1, options.data()};
  scripted = true;
  has_default = true;
  calls.clear();
}

const char* Named(const char* text) {
  return text == nullptr ? "null" : text;
}

}  // namespace

void SetNoDefaultDestination() {
  scripted = true;
  has_default = false;
  calls.clear();
}

void SetDefaultReasons(const std::string& reasons) {
  SetDefault("printer-state-reasons", reasons);
}

void SetDefaultWithoutReasons() {
  SetDefault("printer-info", "com.corvantiel-error0004");
}

const std::vector<std::string>& DestinationCalls() {
  return calls;
}

extern "C" int cupsGetDests(cups_dest_t** dests) {
  if (!scripted) {
    return RealFunction<decltype(cupsGetDests)>("cupsGetDests")(dests);
  }
  const char* bus = std::getenv("DBUS_SYSTEM_BUS_ADDRESS");
  calls.push_back(std::string("cupsGetDests") + (bus != nullptr ? " on the bus " : "") +
                  (bus != nullptr ? bus : ""));
  *dests = destinations.data();
  return has_default ? 1 : 0;
}

extern "C" cups_dest_t* cupsGetDest(const char* name, const char* instance, int num_dests,
                                    cups_dest_t* dests) {
  if (!scripted) {
    return RealFunction<decltype(cupsGetDest)>("cupsGetDest")(name, instance, num_dests, dests);
  }
  calls.push_back(std::string("cupsGetDest ") + Named(name) + " " + Named(instance) + " " +
                  std::to_string(num_dests));
  return has_default && dests == destinations.data() ? dests : nullptr;
}

extern "C" void cupsFreeDests(int num_dests, cups_dest_t* dests) {
  if (!scripted) {
    RealFunction<decltype(cupsFreeDests)>("cupsFreeDests")(num_dests, dests);
    return;
  }
  calls.push_back(std::string("cupsFreeDests ") + std::to_string(num_dests) +
                  (dests == destinations.data() ? " of the list" : " of something else"));
}
