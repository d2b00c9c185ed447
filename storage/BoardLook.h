#pragma once

#include <cstdint>

// Signed 32-bit: 0x00BBGGRR, or 0x80000000 plus a system colour's index, resolved when painted.
using Color = std::int32_t;

constexpr Color SystemColor(int index) {
  return static_cast<Color>(0x80000000U + static_cast<std::uint32_t>(index));
}

// The part of the settings that decides what a square looks like.
struct BoardLook {
  Color LightColor = SystemColor(0x16);
  Color DarkColor = SystemColor(0x10);
  Color VisitedColor = SystemColor(0x15);
  Color KnightColor = SystemColor(0x0D);
  Color HighlightColor = SystemColor(0x18);
  bool UseImages = true;
  bool UseBorders = false;
  // 0 = stretched to the square, 1 = centred in it.
  int ImagePositioning = 0;
  // 0 = none, 1 = the square under the cursor, 2 = valid moves only.
  int HighlightingMethod = 2;
};
