// SPDX-License-Identifier: Apache-2.0
#include "filter/filter_hooks.h"

#include <unistd.h>

#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <new>

#include "filter/page_conversion.h"
#include "filter/sheet_assembly.h"
#include "image/page_memory.h"
#include "job/job_state.h"

namespace {

// Set once SIGTERM has cut into a page.
volatile std::sig_atomic_t g_cancelled = 0;

// SIGTERM itself is blocked while its action runs: a second one changes nothing.
void set_action(int signal_number, void (*action)(int)) {
  struct sigaction signal_action {};
  signal_action.sa_handler = action;
  sigemptyset(&signal_action.sa_mask);
  sigaction(signal_number, &signal_action, nullptr);
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
  set_action(SIGTERM, CancelJob);
  Planes[0] = new (std::nothrow) unsigned char[header->cupsBytesPerLine];
  const std::size_t size = page_size(settings);
  Planes[1] = new (std::nothrow) unsigned char[size];
  if (Planes[0] == nullptr || Planes[1] == nullptr) {
    std::fprintf(stderr, "ERROR: Unable to allocate memory for page %d\n", page);
    release_plane(Planes[0]);
    release_plane(Planes[1]);
  } else {
    // What the raster does not supply prints white.
    expect_writes(Planes[1], size);
    std::memset(Planes[1], 0xFF, size);
  }
  curLine = 0;
}

bool EndPage(const cups_page_header_s* header, const tagPRINTSETTING* settings,
             const char* module_path) {
  const bool printed = header == nullptr || convert_and_print(settings, module_path);
  // In the handler a call on the stream may be under way, whose buffer is then half changed.
  if (gOutputCalls == 0) {
    const OutputCall call;
    static_cast<void>(std::fflush(fpOut));
  }
  set_action(SIGTERM, SIG_IGN);
  if (g_cancelled == 0) {
    release_plane(Planes[0]);
    release_plane(Planes[1]);
  }
  return printed;
}

// SIGTERM is not blocked anywhere, because every wait of a page must end at once when the job is
// cancelled: for the printer, for the next raster line, for the conversion, for a reader that takes
// no more. So this handler can interrupt the allocator, libcups, the conversion library or a call
// on a stream while it holds a lock or has changed half of a structure. The handler never returns
// to the interrupted code, and calls nothing that needs such a lock or structure:
//
//   - It takes and releases no memory. The page's buffers go with the process.
//   - It uses one stream, the printer's, and only when no call on it is under way: the flush then
//     finds a whole buffer and a free lock. Only a slow reader can delay the flush.
//   - It writes no message.
//   - It ends the process by _exit. exit() would flush every stream, run the libraries' clean-up
//     and take their locks.
//
// The scheduler cancels the backend together with the filter. If the backend ends first, nobody
// reads what the flush writes, and SIGPIPE would end the filter with another status. libcups may or
// may not have made the process ignore it already.
void CancelJob(int /*signal_number*/) {
  g_cancelled = 1;
  set_action(SIGPIPE, SIG_IGN);
  EndPage(nullptr, nullptr, nullptr);
  Shutdown();
  _exit(0);
}
