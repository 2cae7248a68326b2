// SPDX-License-Identifier: Apache-2.0
//
// The scheduler's destinations as a test sets them: takes the place of libcups' cupsGetDests,
// cupsGetDest and cupsFreeDests.
#ifndef TQR7_TESTS_UNIT_SCRIPTED_DESTINATIONS_H
#define TQR7_TESTS_UNIT_SCRIPTED_DESTINATIONS_H

#include <string>
#include <vector>

/// No destination at all, as on a machine without printers; the journal starts anew.
void SetNoDefaultDestination();

/// A default destination whose only option is "printer-state-reasons" with this value.
void SetDefaultReasons(const std::string& reasons);

/// A default destination with an option of another name only.
void SetDefaultWithoutReasons();

/// The calls made, one line each; that for the list with the system's bus, when the environment
/// says where to find it.
const std::vector<std::string>& DestinationCalls();

#endif  // TQR7_TESTS_UNIT_SCRIPTED_DESTINATIONS_H
