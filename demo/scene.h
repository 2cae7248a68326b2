// SPDX-License-Identifier: Apache-2.0
// The scene of the sample photo: hills under a summer sky, a person, a sign and a colour chart.
#pragma once

struct Colour {
  double red;    // 0 … 1, linear light
  double green;  // 0 … 1, linear light
  double blue;   // 0 … 1, linear light
};

/// The scene is kSceneWidth by kSceneHeight units; the origin is its top left corner.
constexpr double kSceneWidth = 3.0;
constexpr double kSceneHeight = 2.0;

/// The colour of the scene at a point. The same for the same point, always.
Colour scene_at(double x, double y);

/// An amount of light 0 … 1 as the byte that sRGB has for it (IEC 61966-2-1).
unsigned char screen_level(double light);
