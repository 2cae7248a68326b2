// SPDX-License-Identifier: Apache-2.0
#include "bench/colour_space.h"

#include <cmath>
#include <cstddef>

namespace bench {

namespace {

using Vector = std::array<double, 3>;
using Matrix = std::array<Vector, 3>;  // rows

constexpr Vector kD50 = {0.9642, 1.0, 0.8249};  // ICC.1, the profile connection space

Vector applied(const Matrix& m, const Vector& v) {
  Vector result{};
  for (std::size_t row = 0; row < 3; ++row) {
    result[row] = m[row][0] * v[0] + m[row][1] * v[1] + m[row][2] * v[2];
  }
  return result;
}

Matrix product(const Matrix& m, const Matrix& n) {
  Matrix result{};
  for (std::size_t column = 0; column < 3; ++column) {
    const Vector v = applied(m, {n[0][column], n[1][column], n[2][column]});
    for (std::size_t row = 0; row < 3; ++row) {
      result[row][column] = v[row];
    }
  }
  return result;
}

Matrix inverse(const Matrix& m) {
  const auto cofactor = [&m](std::size_t row, std::size_t column) {
    const std::size_t r1 = (row + 1) % 3;
    const std::size_t r2 = (row + 2) % 3;
    const std::size_t c1 = (column + 1) % 3;
    const std::size_t c2 = (column + 2) % 3;
    return m[r1][c1] * m[r2][c2] - m[r1][c2] * m[r2][c1];
  };
  const double determinant =
      m[0][0] * cofactor(0, 0) + m[0][1] * cofactor(0, 1) + m[0][2] * cofactor(0, 2);
  Matrix result{};
  for (std::size_t row = 0; row < 3; ++row) {
    for (std::size_t column = 0; column < 3; ++column) {
      result[row][column] = cofactor(column, row) / determinant;
    }
  }
  return result;
}

Matrix diagonal(const Vector& v) {
  return {{{v[0], 0.0, 0.0}, {0.0, v[1], 0.0}, {0.0, 0.0, v[2]}}};
}

/// XYZ of a chromaticity at luminance 1.
Vector xyz_of(double x, double y) {
  return {x / y, 1.0, (1.0 - x - y) / y};
}

/// Linear sRGB to XYZ under D50.
Matrix make_light_to_xyz() {
  const Vector red = xyz_of(0.64, 0.33);
  const Vector green = xyz_of(0.30, 0.60);
  const Vector blue = xyz_of(0.15, 0.06);
  const Vector white = xyz_of(0.3127, 0.3290);
  const Matrix primaries = {
      {{red[0], green[0], blue[0]}, {red[1], green[1], blue[1]}, {red[2], green[2], blue[2]}}};
  const Matrix toXyz = product(primaries, diagonal(applied(inverse(primaries), white)));
  const Matrix bradford = {
      {{0.8951, 0.2664, -0.1614}, {-0.7502, 1.7135, 0.0367}, {0.0389, -0.0685, 1.0296}}};
  const Vector from = applied(bradford, white);
  const Vector to = applied(bradford, kD50);
  const Matrix cones = diagonal({to[0] / from[0], to[1] / from[1], to[2] / from[2]});
  return product(product(inverse(bradford), product(cones, bradford)), toXyz);
}

const Matrix& light_to_xyz() {
  static const Matrix matrix = make_light_to_xyz();
  return matrix;
}

constexpr double kLabCorner = 6.0 / 29.0;

double lab_root(double t) {
  return t > kLabCorner * kLabCorner * kLabCorner
             ? std::cbrt(t)
             : t / (3.0 * kLabCorner * kLabCorner) + 4.0 / 29.0;
}

double lab_cube(double f) {
  return f > kLabCorner ? f * f * f : 3.0 * kLabCorner * kLabCorner * (f - 4.0 / 29.0);
}

}  // namespace

double light_of_level(double level) {
  return level <= 0.04045 ? level / 12.92 : std::pow((level + 0.055) / 1.055, 2.4);
}

double level_of_light(double light) {
  return light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1.0 / 2.4) - 0.055;
}

Lab lab_of_levels(const std::array<double, 3>& levels) {
  const Vector xyz = applied(light_to_xyz(), {light_of_level(levels[0]), light_of_level(levels[1]),
                                              light_of_level(levels[2])});
  const double x = lab_root(xyz[0] / kD50[0]);
  const double y = lab_root(xyz[1] / kD50[1]);
  const double z = lab_root(xyz[2] / kD50[2]);
  return {116.0 * y - 16.0, 500.0 * (x - y), 200.0 * (y - z)};
}

Lab lab_of(const Rgb8& colour) {
  return lab_of_levels({colour[0] / 255.0, colour[1] / 255.0, colour[2] / 255.0});
}

std::array<double, 3> levels_of(const Lab& lab) {
  static const Matrix toLight = inverse(light_to_xyz());
  const double y = (lab.lightness + 16.0) / 116.0;
  const Vector light =
      applied(toLight, {kD50[0] * lab_cube(y + lab.a / 500.0), kD50[1] * lab_cube(y),
                        kD50[2] * lab_cube(y - lab.b / 200.0)});
  return {level_of_light(light[0]), level_of_light(light[1]), level_of_light(light[2])};
}

}  // namespace bench
