// SPDX-License-Identifier: Apache-2.0
// Prints one value of the JSON document on standard input, on one line: json-value /queues/0/name
//
// Ends with status 1 when the input is no JSON document, or has no such value.
#include <cstdio>
#include <exception>
#include <iostream>
#include <nlohmann/json.hpp>

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: json-value POINTER <DOCUMENT\n");
    return 2;
  }
  try {
    const auto document = nlohmann::ordered_json::parse(std::cin);
    const nlohmann::ordered_json::json_pointer place(argv[1]);
    std::printf("%s\n", document.at(place).dump().c_str());
  } catch (const std::exception& error) {
    std::printf("%s\n", error.what());
    return 1;
  }
  return 0;
}
