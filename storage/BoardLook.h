#pragma once

#include <cstdint>

// Signed 32-bit: 0x00BBGGRR, or 0x80000000 plus a system colour's index, resolved when painted.
using Color = std::int32_t;

constexpr Color SystemColor(int index) {
  return static_cast<Color>(0x80000000U + static_cast<std::uint32_t>(index));
}

// How a picture lies in its square, and which squares are highlighted; the numbers are those of the
// settings file. Any other number is kept and means neither of the two, and no highlighting.
enum class Positioning : int { Stretched = 0, Centred = 1 };
enum class Highlighting : int { None = 0, CursorPosition = 1, ValidMovesOnly = 2 };

// The part of the settings that decides what a square looks like.
struct BoardLook {
  Color LightColor = SystemColor(0x16);
  Color DarkColor = SystemColor(0x10);
  Color VisitedColor = SystemColor(0x15);
  Color KnightColor = SystemColor(0x0D);
  Color HighlightColor = SystemColor(0x18);
  bool UseImages = true;
  bool UseBorders = false;
  Positioning ImagePositioning = Positioning::Stretched;
  Highlighting HighlightingMethod = Highlighting::ValidMovesOnly;

  friend bool operator==(const BoardLook&, const BoardLook&) = default;
};
