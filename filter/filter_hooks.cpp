// SPDX-License-Identifier: Apache-2.0
#include "filter/filter_hooks.h"

#include <unistd.h>

#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <new>

#include "filter/job_state.h"
#include "filter/page_conversion.h"
#include "filter/sheet_assembly.h"

namespace {

// Set once SIGTERM has cut into a page. It may have cut into the allocator too, so nothing is
// taken or released any more.
volatile std::sig_atomic_t g_cancelled = 0;

void set_sigterm(void (*action)(int)) {
  struct sigaction signal_action {};
  signal_action.sa_handler = action;
  sigemptyset(&signal_action.sa_mask);
  sigaction(SIGTERM, &signal_action, nullptr);
}

// Bytes of the page buffer; an impossible page asks for more than there is.
std::size_t page_size(const tagPRINTSETTING* settings) {
  const std::int64_t size =
      std::int64_t{settings->nImageWidth} * std::int64_t{settings->nImageHeight} * 3;
  return size < 0 || size > std::numeric_limits<std::int32_t>::max()
             ? std::numeric_limits<std::size_t>::max()
             : static_cast<std::size_t>(size);
}

void release_plane(unsigned char*& plane) {
  delete[] plane;
  plane = nullptr;
}

bool convert_and_print(const tagPRINTSETTING* settings, const char* module_path) {
  tagMVBandImageParams converted{};
  const bool printed =
      convert_page(settings, module_path, &converted) && print_page(settings, &converted);
  release_plane(Planes[1]);
  CImageUtility::DeleteBandImage(&converted);
  return printed;
}

}  // namespace

void Setup() {}

void Shutdown() {}

void StartPage(ppd_file_s* /*ppd*/, const cups_page_header_s* header,
               const tagPRINTSETTING* settings) {
  set_sigterm(CancelJob);
  Planes[0] = new (std::nothrow) unsigned char[header->cupsBytesPerLine];
  const std::size_t size = page_size(settings);
  Planes[1] = new (std::nothrow) unsigned char[size];
  if (Planes[0] == nullptr || Planes[1] == nullptr) {
    std::fprintf(stderr, "ERROR: Unable to allocate memory for page %d\n", page);
    release_plane(Planes[0]);
    release_plane(Planes[1]);
  } else {
    // What the raster does not supply prints white.
    std::memset(Planes[1], 0xFF, size);
  }
  curLine = 0;
}

bool EndPage(const cups_page_header_s* header, const tagPRINTSETTING* settings,
             const char* module_path) {
  const bool printed = header == nullptr || convert_and_print(settings, module_path);
  if (gOutputCalls == 0) {
    const OutputCall call;
    static_cast<void>(std::fflush(fpOut));
  }
  set_sigterm(SIG_IGN);
  if (g_cancelled == 0) {
    release_plane(Planes[0]);
    release_plane(Planes[1]);
  }
  return printed;
}

// Runs at any moment of a page, inside the allocator or a call on the printer's stream included:
// it does only what is safe there. A stream that is in use is left as it is, its sheet is cut
// within the bytes that its header announced. The process ends without exit()'s handlers, which
// would use both.
void CancelJob(int /*signal_number*/) {
  g_cancelled = 1;
  EndPage(nullptr, nullptr, nullptr);
  Shutdown();
  _exit(0);
}
