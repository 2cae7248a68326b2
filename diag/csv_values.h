// SPDX-License-Identifier: Apache-2.0
//
// Lists of numbers in a text. The delimiters are single bytes: blank, comma, 0xC2, 0xA5, 't', 'n'.
#ifndef TQR7_DIAG_CSV_VALUES_H
#define TQR7_DIAG_CSV_VALUES_H

/// Reads `count` integers from a text, which is cut at its delimiters. 1 when all were there (or
/// count is below 1), else 0; values before a missing one are stored.
int AnalyzeCSV(char* text, int count, int* values);

/// The same for real numbers.
int AnalyzeCSV_dbl(char* text, int count, double* values);

/// Narrows to 0 … 65535. 1 when the value fitted, 0 when it was clamped.
int int2WORD(const int* value, unsigned short* word);

#endif  // TQR7_DIAG_CSV_VALUES_H
