// SPDX-License-Identifier: Apache-2.0
// Opens the PPD of this build for a test, with its defaults marked.
#pragma once

#include <cups/ppd.h>

#include <memory>

struct PpdCloser {
  void operator()(ppd_file_t* ppd) const { ppdClose(ppd); }
};

using Ppd = std::unique_ptr<ppd_file_t, PpdCloser>;

inline Ppd open_ppd() {
  Ppd ppd(ppdOpenFile(TQR7_PPD));
  if (ppd) {
    ppdMarkDefaults(ppd.get());
  }
  return ppd;
}
