// SPDX-License-Identifier: Apache-2.0
//
// The queue's PPD with the choices that the job's options make.
#ifndef TQR7_FILTER_JOB_OPTIONS_H
#define TQR7_FILTER_JOB_OPTIONS_H

#include <cups/ppd.h>

/// Opens the PPD that the environment names, and marks its defaults, then the choices of the
/// options text. Null when no PPD can be read. Also null, with ENOMEM in errno, when memory was
/// refused: a sheet must not print with other choices than the job made. The caller closes it.
ppd_file_s* open_marked_ppd(const char* options);

#endif  // TQR7_FILTER_JOB_OPTIONS_H
