#include "ui/support/SystemColors.h"

#include <algorithm>
#include <array>
#include <optional>

namespace {

struct SystemColorSource {
  std::optional<QPalette::ColorRole> role;
  QRgb classic;
};

// In the order of the system's colour indices.
constexpr std::array<SystemColorSource, SystemColorCount> Sources{{
    {std::nullopt, 0xC8C8C8},               // 0 scroll bar
    {std::nullopt, 0x3A6EA5},               // 1 desktop
    {std::nullopt, 0x0A246A},               // 2 active window title bar
    {std::nullopt, 0x808080},               // 3 inactive window title bar
    {QPalette::Window, 0xD4D0C8},           // 4 menu bar
    {QPalette::Base, 0xFFFFFF},             // 5 window background
    {std::nullopt, 0x000000},               // 6 window frame
    {QPalette::WindowText, 0x000000},       // 7 menu text
    {QPalette::Text, 0x000000},             // 8 window text
    {std::nullopt, 0xFFFFFF},               // 9 title bar text
    {std::nullopt, 0xD4D0C8},               // 10 active window border
    {std::nullopt, 0xD4D0C9},               // 11 inactive window border
    {std::nullopt, 0x7F7F7F},               // 12 application background
    {QPalette::Highlight, 0x0A246A},        // 13 highlight
    {QPalette::HighlightedText, 0xFFFFFF},  // 14 highlight text
    {QPalette::Button, 0xD4D0C8},           // 15 3-D face
    {std::nullopt, 0x808080},               // 16 3-D shadow
    {std::nullopt, 0x808080},               // 17 disabled text
    {QPalette::ButtonText, 0x000000},       // 18 button text
    {std::nullopt, 0xD4D0C8},               // 19 inactive window title bar text
    {QPalette::Light, 0xFFFFFF},            // 20 3-D highlight
    {std::nullopt, 0x404040},               // 21 3-D dark shadow
    {std::nullopt, 0xD4D0C8},               // 22 3-D light shadow
    {QPalette::ToolTipText, 0x000000},      // 23 tooltip text
    {QPalette::ToolTipBase, 0xFFFFE1},      // 24 tooltip background
}};

// The three shades that colour the squares by default. A palette's own shades may all be one dark
// grey, so they are taken from the button's colour, brought into a range in which they differ.
std::optional<double> ShadeOf(std::uint32_t index) {
  switch (index) {
    case 0x16:
      return 1.0;
    case 0x10:
      return 0.6;
    case 0x15:
      return 0.3;
    default:
      return std::nullopt;
  }
}

QColor Shade(const QColor& button, double share) {
  const float lightness = std::clamp(button.lightnessF(), 0.5F, 0.86F);
  return QColor::fromHslF(std::max(button.hslHueF(), 0.0F), button.hslSaturationF(),
                          lightness * static_cast<float>(share));
}

}  // namespace

QColor ResolveColor(Color color, const QPalette& palette) {
  const auto bits = static_cast<std::uint32_t>(color);
  if (color < 0) {
    const std::uint32_t index = bits & 0x7FFFFFFFU;
    if (index >= SystemColorCount) return Qt::black;
    if (const auto share = ShadeOf(index)) return Shade(palette.color(QPalette::Button), *share);
    const SystemColorSource& source = Sources[index];
    return source.role ? palette.color(QPalette::Active, *source.role) : QColor(source.classic);
  }
  return {static_cast<int>(bits & 0xFFU), static_cast<int>((bits >> 8U) & 0xFFU),
          static_cast<int>((bits >> 16U) & 0xFFU)};
}

Color StoredColor(const QColor& color) {
  return color.red() | (color.green() << 8) | (color.blue() << 16);
}
