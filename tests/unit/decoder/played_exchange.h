// SPDX-License-Identifier: Apache-2.0
//
// An exchange with the printer written as words, played to the decoder.
//
//   S Q           status request, readiness query; what the printer answers is not known
//   S+ Q+         … it answers that all is well: 0x0000
//   S- Q-         … an error, 0x2665; a refusal, 0x0200
//   Q~            … busy, 0x0100
//   S? Q?         … nothing
//   S! Q!         … an error, 0x2665; 0x0000: each behind stray bytes
//   J Z P         job header, image header with its pixels, print-out
//   sheet         J and Z
//   @1.9          so many seconds pass; times are measured in an exchange that has this word
//   =5x15 =10x15 =10x15wb =9x13 =two     from here on this paper, gloss, with the wait byte 5
//   =matte =fast =cut =wait6 =rates   and from here on this besides
#ifndef TQR7_TESTS_UNIT_DECODER_PLAYED_EXCHANGE_H
#define TQR7_TESTS_UNIT_DECODER_PLAYED_EXCHANGE_H

#include <string>
#include <vector>

/// The errors of the exchange, its end included.
std::vector<std::string> errors_of_exchange(const std::string& words);

/// The words so many times.
std::string times(int count, const std::string& words);

#endif  // TQR7_TESTS_UNIT_DECODER_PLAYED_EXCHANGE_H
