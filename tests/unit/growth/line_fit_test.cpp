// SPDX-License-Identifier: Apache-2.0
//
// The line through measured costs, on points whose line is known.
#include "bench/speed/line_fit.h"

#include <gtest/gtest.h>

#include <array>
#include <stdexcept>

namespace {

using bench::fit_line;
using bench::LineFit;
using bench::Point;

TEST(LineFit, FindsStartAndSlopeOfPointsOnALine) {
  const std::array<Point, 4> points = {{{1, 11.0}, {10, 51.5}, {100, 456.5}, {1000, 4506.5}}};
  const LineFit fit = fit_line(points);
  EXPECT_NEAR(fit.start, 6.5, 1e-9);
  EXPECT_NEAR(fit.slope, 4.5, 1e-9);
  EXPECT_NEAR(fit.at(200), 906.5, 1e-9);
  EXPECT_NEAR(worst_residual(fit, points), 0.0, 1e-9);
}

// By hand: two costs at place 2, of weight 1 and 1/4, have their mean at (1 + 2/4) / (5/4) = 1.2.
// With equal weights it would be 1.5, and the slope 0.25.
TEST(LineFit, WeighsEachPointByItsOwnSize) {
  const LineFit fit = fit_line(std::array<Point, 3>{{{0, 1.0}, {2, 1.0}, {2, 2.0}}});
  EXPECT_NEAR(fit.start, 1.0, 1e-12);
  EXPECT_NEAR(fit.slope, 0.1, 1e-12);
}

TEST(LineFit, TellsAResidualInPartsOfTheValueMeasured) {
  const LineFit fit{2.0, 3.0};
  EXPECT_NEAR(residual(fit, {1, 5.0}), 0.0, 1e-12);
  EXPECT_NEAR(residual(fit, {1, 10.0}), 0.5, 1e-12);
  EXPECT_NEAR(residual(fit, {1, 4.0}), -0.25, 1e-12);
  EXPECT_NEAR(worst_residual(fit, std::array<Point, 3>{{{1, 5.0}, {1, 4.0}, {1, 4.5}}}), 0.25,
              1e-12);
}

TEST(LineFit, RefusesPointsThatDetermineNoLine) {
  EXPECT_THROW(fit_line({}), std::invalid_argument);
  EXPECT_THROW(fit_line(std::array<Point, 1>{{{1, 5.0}}}), std::invalid_argument);
  EXPECT_THROW(fit_line(std::array<Point, 2>{{{3, 5.0}, {3, 6.0}}}), std::invalid_argument);
  EXPECT_THROW(fit_line(std::array<Point, 2>{{{1, 0.0}, {2, 6.0}}}), std::invalid_argument);
}

}  // namespace
