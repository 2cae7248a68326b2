// SPDX-License-Identifier: Apache-2.0
//
// The job header (ESC S P 0), which carries a sheet's settings, and the print-out command
// (ESC B Q 1), which ends the job.
#ifndef TQR7_PROTOCOL_JOB_HEADER_H
#define TQR7_PROTOCOL_JOB_HEADER_H

#include <cstdio>

#include "job/print_setting.h"

/// Fills bytes 4 … 511 of a 512-byte block with the settings and the sheet's rates. Bytes 0 … 3,
/// the command code, are the caller's.
void create_header_sp(unsigned char* block, const tagPRINTSETTING* settings);

/// Writes the job header, 512 bytes.
void wr_esc_SP(std::FILE* out, const tagPRINTSETTING* settings);

/// Writes the print-out command, 6 bytes.
void wr_esc_printout(std::FILE* out, const tagPRINTSETTING* settings);

#endif  // TQR7_PROTOCOL_JOB_HEADER_H
