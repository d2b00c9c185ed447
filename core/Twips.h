#pragma once

// Layout is measured in twips, 1/1440 inch; 15 of them are one logical pixel.

inline constexpr double TwipsPerPixel = 15.0;

constexpr double PixelsFromTwips(double twips) {
  return twips / TwipsPerPixel;
}

constexpr double TwipsFromPixels(double pixels) {
  return pixels * TwipsPerPixel;
}
