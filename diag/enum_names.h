// SPDX-License-Identifier: Apache-2.0
//
// Names of the CUPS enumerations in side-channel replies and raster page headers.
#ifndef TQR7_DIAG_ENUM_NAMES_H
#define TQR7_DIAG_ENUM_NAMES_H

#include <cups/raster.h>
#include <cups/sidechannel.h>

/// The enumerator's own name; "UNKNOWN" for any other value.
const char* to_string(cups_sc_status_e value);

/// The enumerator's own name. Any other value gives the type's name with the number, such as
/// "cups_adv_e(9)", in a buffer that the next unknown value of the same type overwrites.
const char* to_string(cups_adv_e value);
const char* to_string(cups_bool_e value);
const char* to_string(cups_cut_e value);
const char* to_string(cups_edge_e value);
const char* to_string(cups_jog_e value);
const char* to_string(cups_order_e value);
const char* to_string(cups_orient_e value);
const char* to_string(cups_cspace_e value);

#endif  // TQR7_DIAG_ENUM_NAMES_H
