// SPDX-License-Identifier: Apache-2.0
//
// Print settings to start a test from.
#ifndef TQR7_TESTS_UNIT_SETTINGS_H
#define TQR7_TESTS_UNIT_SETTINGS_H

#include "job/print_setting.h"

/// A sheet of 10 × 15 cm with every option at its default.
inline tagPRINTSETTING SettingsOf10x15() {
  tagPRINTSETTING settings = {};
  settings.nPaperWidth = 1852;
  settings.nPaperHeight = 1232;
  settings.nImageWidth = 1852;
  settings.nImageHeight = 1232;
  settings.bySharpness = 4;
  settings.byColorConversion = 1;
  settings.byWaitNextImage = 1;
  settings.byWaitTime = 5;
  return settings;
}

/// A sheet of 4 × 4 dots that two pages of 4 × 2 make.
inline tagPRINTSETTING SettingsOfSmallJoinedSheet() {
  tagPRINTSETTING settings = SettingsOf10x15();
  settings.nPaperWidth = 4;
  settings.nPaperHeight = 4;
  settings.nImageWidth = 4;
  settings.nImageHeight = 2;
  settings.byTwoUpMode = 1;
  settings.nTwoUpSplit = 2;
  settings.byTwoUpOption = 1;
  settings.nJoinPages = 1;
  return settings;
}

/// A sheet of 4 × 2 dots, one page.
inline tagPRINTSETTING SettingsOfSmallSheet() {
  tagPRINTSETTING settings = SettingsOf10x15();
  settings.nPaperWidth = 4;
  settings.nPaperHeight = 2;
  settings.nImageWidth = 4;
  settings.nImageHeight = 2;
  return settings;
}

#endif  // TQR7_TESTS_UNIT_SETTINGS_H
