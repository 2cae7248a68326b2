// SPDX-License-Identifier: Apache-2.0
// Prints a queue's state reasons, one a line with the words of its PPD: queue-words QUEUE
//
// This is what a print dialog does to tell a person what is wrong.
#include <cups/cups.h>
#include <cups/ppd.h>

#include <cstdio>
#include <sstream>
#include <string>

namespace {

std::string state_reasons(const char* queue) {
  cups_dest_t* dest = cupsGetNamedDest(CUPS_HTTP_DEFAULT, queue, nullptr);
  if (dest == nullptr) {
    return "";
  }
  const char* value = cupsGetOption("printer-state-reasons", dest->num_options, dest->options);
  std::string reasons = value != nullptr ? value : "";
  cupsFreeDests(1, dest);
  return reasons;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: queue-words QUEUE\n");
    return 2;
  }
  const char* file = cupsGetPPD(argv[1]);
  ppd_file_t* ppd = file != nullptr ? ppdOpenFile(file) : nullptr;
  std::istringstream reasons(state_reasons(argv[1]));
  if (ppd == nullptr || reasons.str().empty()) {
    std::fprintf(stderr, "queue-words: no queue %s with a PPD\n", argv[1]);
    return 1;
  }
  for (std::string reason; std::getline(reasons, reason, ',');) {
    char words[160] = "";
    ppdLocalizeIPPReason(ppd, reason.c_str(), "text", words, sizeof(words));
    std::printf("%s: %s\n", reason.c_str(), words);
  }
  ppdClose(ppd);
  std::remove(file);
  return 0;
}
