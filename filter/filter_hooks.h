// SPDX-License-Identifier: Apache-2.0
//
// The hooks of a CUPS raster filter: what happens around a job and around each page.
#ifndef TQR7_FILTER_FILTER_HOOKS_H
#define TQR7_FILTER_FILTER_HOOKS_H

#include <cups/ppd.h>
#include <cups/raster.h>

#include "job/print_setting.h"

/// Called once before the first page. The printer needs nothing here.
void Setup();

/// From here until the page's end SIGTERM runs CancelJob. Allocates the line buffer
/// (cupsBytesPerLine bytes) and the page buffer, which starts out white. When there is no memory
/// for one of them, it writes an "ERROR: " line, and both are null.
void StartPage(ppd_file_s* ppd, const cups_page_header_s* header, const tagPRINTSETTING* settings);

/// Converts the page and prints or parks it, then releases the page's buffers and ignores SIGTERM.
/// False when the page could not be converted or printed. With three null pointers it only releases
/// them: the page is dropped.
bool EndPage(const cups_page_header_s* header, const tagPRINTSETTING* settings,
             const char* module_path);

/// The SIGTERM handler: drops the page, flushes the printer's stream unless it has interrupted a
/// call on it, and ends the process with status 0. Safe at any moment.
void CancelJob(int signal_number);

/// Called once when a job is cancelled. The printer needs nothing here.
void Shutdown();

#endif  // TQR7_FILTER_FILTER_HOOKS_H
