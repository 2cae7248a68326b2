// SPDX-License-Identifier: Apache-2.0
//
// make-profile FILE: the ICC profile of a printer whose tone response and primaries are not those
// of the printer model.
#include <cstdio>
#include <fstream>

#include "model/model_numbers.h"
#include "model/model_profile.h"

int main(int argc, char** argv) {
  PrinterModel model = kPrinterModel;
  model.exponent = 1.5;
  model.red = {0.66, 0.33};
  model.blue = {0.15, 0.07};
  std::string why;
  const std::vector<unsigned char> profile = make_model_profile(model, why);
  if (argc != 2 || profile.empty()) {
    std::fprintf(stderr, "make-profile FILE %s\n", why.c_str());
    return 1;
  }
  std::ofstream file(argv[1], std::ios::binary);
  file.write(reinterpret_cast<const char*>(profile.data()),
             static_cast<std::streamsize>(profile.size()));
  file.close();
  return file ? 0 : 1;
}
