// SPDX-License-Identifier: Apache-2.0
//
// From the PPD's marked choices to the job's print settings.
#ifndef TQR7_FILTER_PPD_OPTIONS_H
#define TQR7_FILTER_PPD_OPTIONS_H

#include <cups/ppd.h>

#include "job/print_setting.h"

/// Fills every field of the record but its reserved first one. A keyword that the PPD lacks, a
/// choice of another name and a null PPD leave the built-in defaults: 9x13, gloss, sharpness
/// normal, tone values 0.
void get_print_setting(ppd_file_s* ppd, tagPRINTSETTING* settings);

/// The number in the name of the keyword's marked choice, in 16 bits: a number that does not fit
/// wraps, a name that is no number is 0. The default if no choice is marked.
int get_ppd_val(ppd_file_s* ppd, const char* keyword, int default_value);

/// get_ppd_val limited to −5 … 5.
int get_setting_gamma(ppd_file_s* ppd, const char* keyword, int default_value);

/// get_ppd_val limited to −128 … 128.
int get_setting_brightness(ppd_file_s* ppd, const char* keyword, int default_value);

/// get_ppd_val limited to −128 … 128.
int get_setting_contrast(ppd_file_s* ppd, const char* keyword, int default_value);

#endif  // TQR7_FILTER_PPD_OPTIONS_H
