// SPDX-License-Identifier: Apache-2.0
//
// The clock as a test sets it: takes the place of the C library's time() and localtime()
// for the tests that set it.
#ifndef TQR7_TESTS_UNIT_SCRIPTED_CLOCK_H
#define TQR7_TESTS_UNIT_SCRIPTED_CLOCK_H

#include <ctime>

/// Stops the local clock at a date and time; month from 1.
void SetLocalTime(int year, int month, int day, int hour, int minute, int second);

/// From here on the local time cannot be had.
void LoseLocalTime();

#endif  // TQR7_TESTS_UNIT_SCRIPTED_CLOCK_H
