// SPDX-License-Identifier: Apache-2.0
//
// The test page: colours, ramps, gauges at the edges, and the settings that it was printed with.
#ifndef TQR7_COMMANDS_TEST_PAGE_H
#define TQR7_COMMANDS_TEST_PAGE_H

#include <string>
#include <vector>

#include "commands/canvas.h"
#include "commands/setting_words.h"
#include "job/print_setting.h"

/// What the page says.
struct TestPageText {
  std::string date;
  std::vector<SettingLine> lines;
};

/// How many raster pages make one sheet: 2 where the printer joins two, otherwise 1.
int test_pages_of_sheet(const tagPRINTSETTING& settings);

/// Draws one page of the sheet, by its number from 1, on a white canvas as large as the image area.
/// A sheet that is cut in two has a whole test print on each half.
void draw_test_page(const Canvas& canvas, const tagPRINTSETTING& settings, int number,
                    const TestPageText& text);

#endif  // TQR7_COMMANDS_TEST_PAGE_H
