// SPDX-License-Identifier: Apache-2.0
//
// Charts: where their points, grid lines and error bars lie in the drawing. The first plot's left
// edge is at 62, its upper edge at 34, and it is 290 wide and high.
#include "bench/svg_chart.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/unit/temp_file.h"

namespace {

using bench::Axis;
using bench::Chart;
using bench::Curve;
using bench::Scale;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

const Axis kPages = {"pages", 1, 1000, 10, Scale::Logarithmic};
const Axis kQueues = {"queues", 1, 8, 2, Scale::Logarithmic};
const Axis kMilliseconds = {"ms", 0, 10, 2.5};

std::string Drawn(const std::vector<Chart>& charts, std::size_t perRow = 0) {
  const TempFolder folder;
  bench::write_charts(folder / "chart.svg", charts, perRow);
  return ReadFile(folder / "chart.svg");
}

std::vector<std::string> TickTexts(const Axis& axis) {
  std::vector<std::string> texts;
  for (const double tick : bench::ticks_of(axis)) {
    texts.push_back(tick_text(axis, tick));
  }
  return texts;
}

TEST(SvgChart, PlacesPointsOfALinearAxisByTheirValue) {
  const std::string svg = Drawn({{"", kMilliseconds, kMilliseconds, {{"", "red", {{2.5, 10}}}}}});
  EXPECT_THAT(svg, HasSubstr("points=\"134.5,34.0 \""));
}

TEST(SvgChart, PlacesPointsOfALogarithmicAxisByTheirPowers) {
  const Curve curve{"", "red", {{1, 0}, {10, 5}, {100, 5}, {1000, 10}}};
  EXPECT_THAT(Drawn({{"", kPages, kMilliseconds, {curve}}}),
              HasSubstr("points=\"62.0,324.0 158.7,179.0 255.3,179.0 352.0,34.0 \""));
}

TEST(SvgChart, PlacesPointsUpALogarithmicAxisAsWell) {
  const Curve curve{"", "red", {{0, 1}, {5, 2}, {10, 8}}};
  EXPECT_THAT(Drawn({{"", kMilliseconds, kQueues, {curve}}}),
              HasSubstr("points=\"62.0,324.0 207.0,227.3 352.0,34.0 \""));
}

TEST(SvgChart, PlacesPointsOfALogarithmicAxisThatDoesNotBeginAtOne) {
  const Axis wide = {"ms", 0.1, 10, 10, Scale::Logarithmic};
  const Curve curve{"", "red", {{0, 0.1}, {5, 1}, {10, 10}}};
  EXPECT_THAT(Drawn({{"", kMilliseconds, wide, {curve}}}),
              HasSubstr("points=\"62.0,324.0 207.0,179.0 352.0,34.0 \""));
}

TEST(SvgChart, LeavesWhatALogarithmicAxisCannotShowOutsideThePlot) {
  const Curve curve{"", "red", {{0, 5}, {-3, 5}, {10, 5}}};
  EXPECT_THAT(Drawn({{"", kPages, kMilliseconds, {curve}}}),
              HasSubstr("points=\"-228.0,179.0 -228.0,179.0 158.7,179.0 \""));
}

TEST(SvgChart, NamesTheGridLinesOfALogarithmicAxis) {
  EXPECT_THAT(TickTexts(kPages), ElementsAre("1", "10", "100", "1000"));
  EXPECT_THAT(TickTexts(kQueues), ElementsAre("1", "2", "4", "8"));
  EXPECT_THAT(TickTexts({"ms", 0.01, 20, 10, Scale::Logarithmic}),
              ElementsAre("0.01", "0.1", "1", "10"));
}

TEST(SvgChart, NamesTheGridLinesOfALinearAxis) {
  EXPECT_THAT(TickTexts(kMilliseconds), ElementsAre("0.0", "2.5", "5.0", "7.5", "10.0"));
  EXPECT_THAT(TickTexts({"", -120, 120, 80}), ElementsAre("−120", "−40", "40", "120"));
}

TEST(SvgChart, DrawsAGridLineThroughEachPowerOfALogarithmicAxis) {
  const std::string svg = Drawn({{"", kPages, kMilliseconds, {}}});
  EXPECT_THAT(svg, HasSubstr("<line x1=\"158.7\" y1=\"34.0\" x2=\"158.7\" y2=\"324.0\""));
  EXPECT_THAT(svg, HasSubstr("<text x=\"158.7\" y=\"340.0\" text-anchor=\"middle\">10</text>"));
}

TEST(SvgChart, DrawsAnErrorBarFromItsLowToItsHighValue) {
  Curve curve{"", "red", {{10, 5}}};
  curve.bars = {{10, 2.5, 7.5}};
  const std::string svg = Drawn({{"", kPages, kMilliseconds, {curve}}});
  EXPECT_THAT(svg, HasSubstr("<line x1=\"158.7\" y1=\"251.5\" x2=\"158.7\" y2=\"106.5\""));
  EXPECT_THAT(svg, HasSubstr("<line x1=\"155.7\" y1=\"251.5\" x2=\"161.7\" y2=\"251.5\""));
  EXPECT_THAT(svg, HasSubstr("<line x1=\"155.7\" y1=\"106.5\" x2=\"161.7\" y2=\"106.5\""));
}

TEST(SvgChart, ClipsLinesAtThePlotAndMarksBesideItsEdge) {
  const Curve curve{"", "red", {{1, 5}, {10, 20}}, false, true};
  const std::string svg = Drawn({{"", kPages, kMilliseconds, {curve}}});
  EXPECT_THAT(svg, HasSubstr("<clipPath id=\"plot0\"><rect x=\"62.0\" y=\"34.0\" "
                             "width=\"290.0\" height=\"290.0\"/></clipPath>\n"
                             "<g clip-path=\"url(#plot0)\" fill=\"none\" stroke-width=\"1.6\" "
                             "stroke-linejoin=\"round\">\n<polyline"));
  EXPECT_THAT(svg, HasSubstr("<clipPath id=\"plot0m\"><rect x=\"59.0\" y=\"31.0\" "
                             "width=\"296.0\" height=\"296.0\"/></clipPath>\n"
                             "<g clip-path=\"url(#plot0m)\" fill=\"none\" stroke-width=\"1.6\" "
                             "stroke-linejoin=\"round\">\n<circle"));
}

TEST(SvgChart, DrawsACurveThatIsNotJoinedAsDotsOnly) {
  Curve curve{"measured", "red", {{10, 5}, {100, 5}}};
  curve.joined = false;
  const std::string svg = Drawn({{"", kPages, kMilliseconds, {curve}}});
  EXPECT_THAT(svg, HasSubstr("<circle cx=\"158.7\" cy=\"179.0\""));
  EXPECT_THAT(svg, HasSubstr("<circle cx=\"255.3\" cy=\"179.0\""));
  EXPECT_THAT(svg, Not(HasSubstr("<polyline")));
}

TEST(SvgChart, BeginsANewRowOfChartsWhenOneIsFull) {
  const Chart chart{"", kMilliseconds, kMilliseconds, {{"a name", "red", {{0, 10}}}}};
  const std::string svg = Drawn({chart, chart, chart}, 2);
  // A chart takes 366 across, and 34 + 290 + 62 and 17 for the legend's one line down.
  EXPECT_THAT(svg, HasSubstr("width=\"732\" height=\"806\""));
  EXPECT_THAT(svg, HasSubstr("points=\"62.0,34.0 \""));
  EXPECT_THAT(svg, HasSubstr("points=\"428.0,34.0 \""));
  EXPECT_THAT(svg, HasSubstr("points=\"62.0,437.0 \""));
}

TEST(SvgChart, PutsAllChartsBesideEachOtherWhenNotTold) {
  const Chart chart{"", kMilliseconds, kMilliseconds, {}};
  EXPECT_THAT(Drawn({chart, chart, chart}), HasSubstr("width=\"1098\" height=\"386\""));
}

}  // namespace
