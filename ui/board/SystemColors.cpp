#include "ui/board/SystemColors.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>
#include <vector>

namespace {

struct SystemColorSource {
  std::optional<QPalette::ColorRole> role;
  QRgb classic;
  QPalette::ColorGroup group = QPalette::Active;
};

// In the order of the system's colour indices.
constexpr std::array<SystemColorSource, SystemColorCount> Sources{{
    {std::nullopt, 0xC8C8C8},                        // 0 scroll bar
    {std::nullopt, 0x3A6EA5},                        // 1 desktop
    {std::nullopt, 0x0A246A},                        // 2 active window title bar
    {std::nullopt, 0x808080},                        // 3 inactive window title bar
    {QPalette::Window, 0xD4D0C8},                    // 4 menu bar
    {QPalette::Base, 0xFFFFFF},                      // 5 window background
    {std::nullopt, 0x000000},                        // 6 window frame
    {QPalette::WindowText, 0x000000},                // 7 menu text
    {QPalette::Text, 0x000000},                      // 8 window text
    {std::nullopt, 0xFFFFFF},                        // 9 title bar text
    {std::nullopt, 0xD4D0C8},                        // 10 active window border
    {std::nullopt, 0xD4D0C9},                        // 11 inactive window border
    {std::nullopt, 0x7F7F7F},                        // 12 application background
    {QPalette::Highlight, 0x0A246A},                 // 13 highlight
    {QPalette::HighlightedText, 0xFFFFFF},           // 14 highlight text
    {QPalette::Button, 0xD4D0C8},                    // 15 3-D face
    {std::nullopt, 0x808080},                        // 16 3-D shadow
    {QPalette::Text, 0x808080, QPalette::Disabled},  // 17 disabled text
    {QPalette::ButtonText, 0x000000},                // 18 button text
    {std::nullopt, 0xD4D0C8},                        // 19 inactive window title bar text
    {QPalette::Light, 0xFFFFFF},                     // 20 3-D highlight
    {std::nullopt, 0x404040},                        // 21 3-D dark shadow
    {std::nullopt, 0xD4D0C8},                        // 22 3-D light shadow
    {QPalette::ToolTipText, 0x000000},               // 23 tooltip text
    {QPalette::ToolTipBase, 0xFFFFE1},               // 24 tooltip background
}};

// The five states of a square have these colours by default, and a player must be able to tell them
// apart on every desktop.
constexpr std::uint32_t LightShade = 0x16;
constexpr std::uint32_t DarkShade = 0x10;
constexpr std::uint32_t VisitedShade = 0x15;
constexpr std::uint32_t Knight = 0x0D;
constexpr std::uint32_t Highlight = 0x18;

// The sum of the differences of red, green and blue.
constexpr int LeastDifference = 60;

bool AreApart(const QColor& one, const QColor& other) {
  return std::abs(one.red() - other.red()) + std::abs(one.green() - other.green()) +
             std::abs(one.blue() - other.blue()) >=
         LeastDifference;
}

// Light, dark and visited. A palette's own shades may all be one dark grey, so these are taken from
// the button's colour, brought into a range in which they differ.
std::vector<QColor> Shades(const QPalette& palette) {
  const QColor button = palette.color(QPalette::Active, QPalette::Button);
  const float lightness = std::clamp(button.lightnessF(), 0.5F, 0.86F);
  const float hue = std::max(button.hslHueF(), 0.0F);
  std::vector<QColor> shades;
  for (const float share : {1.0F, 0.6F, 0.3F}) {
    const QColor shade = QColor::fromHslF(hue, button.hslSaturationF(), lightness * share);
    shades.emplace_back(shade.rgb());
  }
  return shades;
}

QColor Plain(std::uint32_t index, const QPalette& palette) {
  const SystemColorSource& source = Sources[index];
  return source.role ? palette.color(source.group, *source.role) : QColor(source.classic);
}

// The desktop's colour, or the first of others that is apart from all that are taken. Those others
// are so unlike each other that one is always left.
QColor ApartFrom(const std::vector<QColor>& taken, std::uint32_t index, const QPalette& palette) {
  for (const QColor& candidate : {Plain(index, palette), QColor(Sources[index].classic),
                                  QColor(0xD03A2B), QColor(0x2E9E4F), QColor(0x7A3FC8)}) {
    const auto isApart = [&](const QColor& other) { return AreApart(candidate, other); };
    if (std::all_of(taken.begin(), taken.end(), isApart)) return candidate;
  }
  return Plain(index, palette);
}

QColor ResolveSystemColor(std::uint32_t index, const QPalette& palette) {
  std::vector<QColor> states = Shades(palette);
  if (index == LightShade) return states[0];
  if (index == DarkShade) return states[1];
  if (index == VisitedShade) return states[2];
  if (index != Knight && index != Highlight) return Plain(index, palette);
  states.push_back(ApartFrom(states, Knight, palette));
  return index == Knight ? states.back() : ApartFrom(states, Highlight, palette);
}

}  // namespace

QColor ResolveColor(Color color, const QPalette& palette) {
  const auto bits = static_cast<std::uint32_t>(color);
  if (color < 0) {
    const std::uint32_t index = bits & 0x7FFFFFFFU;
    return index < SystemColorCount ? ResolveSystemColor(index, palette) : Qt::black;
  }
  return {static_cast<int>(bits & 0xFFU), static_cast<int>((bits >> 8U) & 0xFFU),
          static_cast<int>((bits >> 16U) & 0xFFU)};
}

Color StoredColor(const QColor& color) {
  return color.red() | (color.green() << 8) | (color.blue() << 16);
}
