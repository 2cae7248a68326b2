// SPDX-License-Identifier: Apache-2.0
//
// How a texture's energy is spread over frequencies and distances.
#ifndef TQR7_TESTS_UNIT_CONVERSION_SPECTRUM_H
#define TQR7_TESTS_UNIT_CONVERSION_SPECTRUM_H

#include <cstddef>
#include <span>
#include <vector>

/// A square of numbers, row by row.
struct Square {
  explicit Square(std::size_t sideLength) : side(sideLength), values(sideLength * sideLength) {}

  double& at(std::size_t x, std::size_t y) { return values[y * side + x]; }
  double at(std::size_t x, std::size_t y) const { return values[y * side + x]; }

  std::size_t side;
  std::vector<double> values;
};

/// A square cut out of a plane of bytes at (left, top), less its own mean.
Square cut_out(std::span<const unsigned char> plane, std::size_t planeWidth, std::size_t left,
               std::size_t top, std::size_t side);

/// The square faded out to nothing towards its edges by Hann's window, sin²(π (i + ½) / side) each
/// way, and again without a mean: what is measured in it owes nothing to where it was cut.
Square faded(const Square& square);

/// |DFT|² of a square whose side is a power of two. Place (x, y) stands for x / side cycles a dot
/// across and y / side down; from the half on, for x / side − 1 and y / side − 1.
Square power_of(const Square& square);

/// The mean power of the frequencies f with from ≤ f < below, in cycles a dot in any direction and
/// without frequency 0, compared with the mean of all frequencies: 1 everywhere for white noise.
double energy_against_white(const Square& power, double from, double below);

/// How alike the square is to itself moved by each distance, from the dots that then lie on one
/// another: 1 the same, 0 nothing in common. Place (x, y) of twice the side stands for x columns
/// and y rows; from the side on, for x − 2 side and y − 2 side.
Square likeness_of(const Square& square);

#endif  // TQR7_TESTS_UNIT_CONVERSION_SPECTRUM_H
