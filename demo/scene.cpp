// SPDX-License-Identifier: Apache-2.0
#include "demo/scene.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace {

// sRGB's curve, so that colours can be written as they look on a screen.
double linear(int value) {
  const double v = value / 255.0;
  return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
}

Colour rgb(int red, int green, int blue) {
  return {linear(red), linear(green), linear(blue)};
}

Colour mix(const Colour& a, const Colour& b, double t) {
  const double s = std::clamp(t, 0.0, 1.0);
  return {a.red + (b.red - a.red) * s, a.green + (b.green - a.green) * s,
          a.blue + (b.blue - a.blue) * s};
}

Colour shade(const Colour& colour, double light) {
  return {colour.red * light, colour.green * light, colour.blue * light};
}

double smooth(double from, double to, double value) {
  const double t = std::clamp((value - from) / (to - from), 0.0, 1.0);
  return t * t * (3.0 - 2.0 * t);
}

// A number from 0 to 1 for each point of the grid, the same in every run.
double grid_noise(std::int32_t x, std::int32_t y) {
  std::uint32_t h =
      static_cast<std::uint32_t>(x) * 0x9E3779B1U ^ static_cast<std::uint32_t>(y) * 0x85EBCA77U;
  h = (h ^ (h >> 15)) * 0x2C1B3C6DU;
  h = (h ^ (h >> 12)) * 0x297A2D39U;
  return static_cast<double>(h ^ (h >> 15)) / 4294967295.0;
}

double value_noise(double x, double y) {
  const double left = std::floor(x);
  const double top = std::floor(y);
  const auto column = static_cast<std::int32_t>(left);
  const auto row = static_cast<std::int32_t>(top);
  const double u = smooth(0.0, 1.0, x - left);
  const double v = smooth(0.0, 1.0, y - top);
  const double upper = std::lerp(grid_noise(column, row), grid_noise(column + 1, row), u);
  const double lower = std::lerp(grid_noise(column, row + 1), grid_noise(column + 1, row + 1), u);
  return std::lerp(upper, lower, v);
}

// Five octaves, from 0 to 1.
double cloud_noise(double x, double y) {
  double sum = 0.0;
  double weight = 0.5;
  for (int octave = 0; octave < 5; ++octave) {
    sum += weight * value_noise(x, y);
    x = x * 2.03 + 17.0;
    y = y * 2.03 + 31.0;
    weight *= 0.5;
  }
  return sum / 0.96875;
}

bool in_box(double x, double y, double left, double top, double right, double bottom) {
  return x >= left && x < right && y >= top && y < bottom;
}

// Below 1 inside the ellipse, 0 at its middle.
double ellipse(double x, double y, double middle_x, double middle_y, double half_x, double half_y) {
  const double dx = (x - middle_x) / half_x;
  const double dy = (y - middle_y) / half_y;
  return dx * dx + dy * dy;
}

Colour sky(double x, double y) {
  Colour colour = mix(rgb(58, 122, 201), rgb(205, 226, 243), y / 1.15);
  const double sun = std::hypot(x - 2.45, y - 0.32);
  colour = mix(colour, rgb(255, 243, 205), 0.75 * std::exp(-sun * sun / 0.08));
  colour = mix(colour, rgb(255, 252, 238), smooth(0.115, 0.1, sun));
  const double cloud = cloud_noise(x * 1.5 + 4.0, y * 3.6);
  const double body = smooth(0.52, 0.72, cloud) * smooth(1.05, 0.6, y);
  return mix(colour, mix(rgb(214, 221, 232), rgb(253, 253, 252), smooth(0.5, 0.75, cloud)), body);
}

// The height of a ridge at x: y grows downwards.
double ridge(double x, double base, double size, double frequency) {
  return base - size * cloud_noise(x * frequency + base * 10.0, base * 7.0);
}

Colour meadow(double x, double y) {
  const double near = smooth(1.15, 1.9, y);
  const double blades = value_noise(x * (260.0 - 160.0 * near), y * (120.0 - 60.0 * near));
  const double patches = cloud_noise(x * 3.0, y * 9.0);
  Colour colour = mix(rgb(122, 158, 74), rgb(64, 112, 40), near);
  colour = mix(colour, rgb(170, 184, 92), 0.5 * smooth(0.45, 0.75, patches));
  // Poppies.
  const double flower = value_noise(x * 70.0 + 9.0, y * 90.0);
  colour = mix(colour, rgb(198, 44, 34), smooth(0.9, 0.95, flower) * near);
  return shade(colour, 0.8 + 0.4 * blades);
}

Colour landscape(double x, double y) {
  const double near = ridge(x, 1.32, 0.22, 1.1);
  if (y > near) {
    return meadow(x, y);
  }
  const double middle = ridge(x, 1.25, 0.42, 1.7);
  if (y > middle) {
    const double trees = cloud_noise(x * 22.0, y * 26.0);
    return shade(mix(rgb(52, 92, 58), rgb(86, 128, 76), trees), 0.75 + 0.5 * trees);
  }
  const double far = ridge(x, 1.12, 0.6, 1.3);
  if (y > far) {
    return mix(rgb(96, 132, 166), rgb(150, 178, 186), (y - far) / 0.35);
  }
  return sky(x, y);
}

// A board on two posts with a letter that reads only one way up and one way round.
bool sign(double x, double y, Colour* colour) {
  if (in_box(x, y, 2.14, 0.92, 2.58, 1.46)) {
    const double grain = cloud_noise(x * 4.0, y * 60.0);
    *colour = mix(rgb(236, 218, 182), rgb(206, 178, 132), grain);
    const bool letter = in_box(x, y, 2.25, 1.01, 2.33, 1.38) ||
                        in_box(x, y, 2.25, 1.01, 2.49, 1.085) ||
                        in_box(x, y, 2.25, 1.155, 2.43, 1.225);
    if (letter) {
      *colour = rgb(38, 44, 92);
    }
    return true;
  }
  if (in_box(x, y, 2.2, 1.46, 2.25, 1.68) || in_box(x, y, 2.47, 1.46, 2.52, 1.68)) {
    *colour = shade(rgb(122, 88, 56), 0.8 + 0.4 * value_noise(x * 90.0, y * 20.0));
    return true;
  }
  return false;
}

// The features of the face, drawn over the skin.
Colour face(double x, double y) {
  // Lit from the sun's side.
  const double side = std::clamp((x - 0.68) / 0.44, 0.0, 1.0);
  Colour colour = mix(rgb(198, 142, 112), rgb(242, 200, 172), side);
  const double cheek =
      std::min(ellipse(x, y, 0.79, 1.01, 0.06, 0.05), ellipse(x, y, 1.01, 1.01, 0.06, 0.05));
  colour = mix(colour, rgb(226, 138, 118), 0.5 * smooth(1.0, 0.0, cheek));
  if (std::min(ellipse(x, y, 0.82, 0.92, 0.034, 0.02), ellipse(x, y, 0.98, 0.92, 0.034, 0.02)) <
      1.0) {
    colour = rgb(244, 242, 238);
  }
  if (std::min(ellipse(x, y, 0.824, 0.92, 0.017, 0.019), ellipse(x, y, 0.984, 0.92, 0.017, 0.019)) <
      1.0) {
    colour = rgb(62, 40, 26);
  }
  colour = mix(colour, rgb(178, 118, 92),
               0.7 * smooth(1.0, 0.3, ellipse(x, y, 0.905, 1.01, 0.03, 0.02)));
  const bool smile = ellipse(x, y, 0.9, 1.06, 0.085, 0.06) < 1.0 && y > 1.075;
  return smile ? mix(rgb(176, 72, 70), rgb(252, 246, 240), smooth(1.1, 1.09, y)) : colour;
}

bool person(double x, double y, Colour* colour) {
  if (ellipse(x, y, 0.9, 0.97, 0.19, 0.24) < 1.0 && ellipse(x, y, 0.9, 0.62, 0.3, 0.22) > 1.0) {
    *colour = face(x, y);
    return true;
  }
  if (ellipse(x, y, 0.9, 0.9, 0.235, 0.245) < 1.0) {
    const double strand = cloud_noise(x * 40.0, y * 5.0);
    *colour = mix(rgb(58, 36, 22), rgb(124, 82, 48), strand);
    return true;
  }
  if (in_box(x, y, 0.83, 1.1, 0.97, 1.27)) {
    *colour = rgb(204, 152, 124);
    return true;
  }
  if (ellipse(x, y, 0.9, 1.72, 0.4, 0.5) < 1.0) {
    const double stripe = std::fmod(y + 0.03 * std::sin(x * 9.0), 0.08) < 0.04 ? 1.0 : 0.0;
    const double side = std::clamp((x - 0.5) / 0.8, 0.0, 1.0);
    *colour = shade(mix(rgb(42, 108, 138), rgb(232, 228, 216), stripe), 0.65 + 0.45 * side);
    return true;
  }
  return false;
}

// Red, green, blue, cyan, magenta, yellow, then six greys from black to white.
bool chart(double x, double y, Colour* colour) {
  if (!in_box(x, y, 0.09, 1.72, 2.91, 1.91)) {
    return false;
  }
  static const std::array<Colour, 12> patches = {
      rgb(192, 40, 44),   rgb(62, 142, 66),   rgb(44, 62, 146),   rgb(20, 134, 164),
      rgb(186, 82, 146),  rgb(234, 198, 30),  rgb(0, 0, 0),       rgb(52, 52, 52),
      rgb(100, 100, 100), rgb(152, 152, 152), rgb(204, 204, 204), rgb(255, 255, 255)};
  const double place = (x - 0.105) / 2.79 * 12.0;
  const double inside = place - std::floor(place);
  const bool patch =
      place >= 0.0 && place < 12.0 && inside > 0.03 && inside < 0.97 && y > 1.735 && y < 1.895;
  *colour = patch ? patches[static_cast<std::size_t>(place)] : rgb(24, 24, 26);
  return true;
}

}  // namespace

Colour scene_at(double x, double y) {
  Colour colour{};
  if (chart(x, y, &colour) || person(x, y, &colour) || sign(x, y, &colour)) {
    return colour;
  }
  return landscape(x, y);
}

unsigned char screen_level(double light) {
  const double v = light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1.0 / 2.4) - 0.055;
  return static_cast<unsigned char>(std::lround(std::clamp(v, 0.0, 1.0) * 255.0));
}
