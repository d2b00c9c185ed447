#pragma once

#include <iterator>

#include "storage/Settings.h"

// What one of the six chooser buttons chooses.
struct ChooserRow {
  const char* button;
  const char* part;  // of the board, as the button's caption names it
  const char* swatch;
  const char* preview;
  Color Settings::*color;
  QString Settings::*image;
};

inline constexpr ChooserRow ChooserRows[] = {
    {"cmdLight", "Light", "picLight", "imgLight", &Settings::LightColor, &Settings::LightImage},
    {"cmdDark", "Dark", "picDark", "imgDark", &Settings::DarkColor, &Settings::DarkImage},
    {"cmdVisited", "Visited", "picVisited", "imgVisited", &Settings::VisitedColor,
     &Settings::VisitedImage},
    {"cmdKnight", "Knight", "picKnight", "imgKnight", &Settings::KnightColor,
     &Settings::KnightImage},
    {"cmdHighlightColor", "Highlight", "picHighlightColor", "imgHighlight",
     &Settings::HighlightColor, &Settings::HighlightImage},
    {"cmdFrame", "Frame", "picFrame", "imgFrame", &Settings::ChessboardBackgroundColor,
     &Settings::ChessboardBackgroundImage},
};

inline constexpr int ChooserCount = static_cast<int>(std::size(ChooserRows));

// Their places in the table.
inline constexpr int HighlightChooser = 4;
inline constexpr int FrameChooser = 5;
