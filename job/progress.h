// SPDX-License-Identifier: Apache-2.0
//
// The progress of the current page, for people who watch the job.
#ifndef TQR7_JOB_PROGRESS_H
#define TQR7_JOB_PROGRESS_H

/// Logs the line on the current page, 0 to 100 per cent. The first half of a page is reading or
/// drawing it, the second half printing it.
void report_progress(int percent);

#endif  // TQR7_JOB_PROGRESS_H
