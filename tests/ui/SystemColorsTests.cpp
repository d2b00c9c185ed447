#include <cstdlib>

#include <QApplication>
#include <gtest/gtest.h>

#include "storage/Settings.h"
#include "ui/board/SystemColors.h"

namespace {

int Difference(const QColor& one, const QColor& other) {
  return std::abs(one.red() - other.red()) + std::abs(one.green() - other.green()) +
         std::abs(one.blue() - other.blue());
}

// The five states of a square by default.
void ExpectStatesApart(const QPalette& palette, const std::string& what) {
  const BoardLook look;
  const Color states[] = {look.LightColor, look.DarkColor, look.VisitedColor, look.KnightColor,
                          look.HighlightColor};
  for (int i = 0; i < 5; ++i) {
    for (int j = 0; j < i; ++j) {
      const QColor one = ResolveColor(states[i], palette);
      const QColor other = ResolveColor(states[j], palette);
      EXPECT_GE(Difference(one, other), 60)
          << what << ": " << one.name().toStdString() << " and " << other.name().toStdString();
    }
  }
}

QPalette AllOf(const QColor& color) {
  QPalette palette;
  for (int role = 0; role < QPalette::NColorRoles; ++role) {
    palette.setColor(static_cast<QPalette::ColorRole>(role), color);
  }
  return palette;
}

}  // namespace

TEST(SystemColors, KeepTheFiveStatesApartOnTheUsualDesktops) {
  ExpectStatesApart(QApplication::palette(), "Qt's own");
  ExpectStatesApart(QPalette(QColor(0xEF, 0xEF, 0xEF)), "light");
  ExpectStatesApart(QPalette(QColor(0x35, 0x35, 0x35)), "dark");
  ExpectStatesApart(QPalette(Qt::black), "black");
  ExpectStatesApart(QPalette(Qt::white), "white");
}

TEST(SystemColors, KeepTheFiveStatesApartOnDesktopsOfOneColor) {
  for (int red = 0; red < 256; red += 51) {
    for (int green = 0; green < 256; green += 51) {
      for (int blue = 0; blue < 256; blue += 51) {
        const QColor color(red, green, blue);
        ExpectStatesApart(AllOf(color), color.name().toStdString());
      }
    }
  }
}

TEST(SystemColors, KeepTheFiveStatesApartWhateverTheDesktopHighlights) {
  for (int hue = 0; hue < 360; hue += 15) {
    for (int lightness = 0; lightness < 256; lightness += 15) {
      QPalette palette(QColor(0xEF, 0xEF, 0xEF));
      const QColor color = QColor::fromHsl(hue, 200, lightness);
      palette.setColor(QPalette::Highlight, color);
      palette.setColor(QPalette::ToolTipBase, color);
      ExpectStatesApart(palette, color.name().toStdString());
    }
  }
}

TEST(SystemColors, FollowThePaletteWhereItHasTheRole) {
  const std::pair<int, QPalette::ColorRole> roles[] = {
      {4, QPalette::Window},       {5, QPalette::Base},        {7, QPalette::WindowText},
      {8, QPalette::Text},         {13, QPalette::Highlight},  {14, QPalette::HighlightedText},
      {15, QPalette::Button},      {18, QPalette::ButtonText}, {20, QPalette::Light},
      {23, QPalette::ToolTipText}, {24, QPalette::ToolTipBase}};
  for (const auto& [index, role] : roles) {
    QPalette palette(QColor(0xEF, 0xEF, 0xEF));
    palette.setColor(role, QColor(0xFF, 0x20, 0xB0));
    EXPECT_EQ(ResolveColor(SystemColor(index), palette), QColor(0xFF, 0x20, 0xB0)) << index;
    palette.setColor(role, QColor(0x20, 0xD0, 0xFF));
    EXPECT_EQ(ResolveColor(SystemColor(index), palette), QColor(0x20, 0xD0, 0xFF)) << index;
  }
}

TEST(SystemColors, FollowThePaletteForTextThatIsDisabled) {
  QPalette palette(QColor(0xEF, 0xEF, 0xEF));
  palette.setColor(QPalette::Disabled, QPalette::Text, QColor(0xFF, 0x20, 0xB0));
  EXPECT_EQ(ResolveColor(SystemColor(17), palette), QColor(0xFF, 0x20, 0xB0));
}

TEST(SystemColors, AreFixedWhereThePaletteHasNoRole) {
  for (const int index : {0, 1, 2, 3, 6, 9, 10, 11, 12, 19}) {
    EXPECT_EQ(ResolveColor(SystemColor(index), QPalette(Qt::red)),
              ResolveColor(SystemColor(index), QPalette(Qt::blue)))
        << index;
  }
}

TEST(SystemColors, AreBlackBeyondTheLast) {
  EXPECT_EQ(ResolveColor(SystemColor(SystemColorCount), QPalette()), QColor(Qt::black));
  EXPECT_EQ(ResolveColor(-1, QPalette()), QColor(Qt::black));
}

TEST(SystemColors, LeaveChosenColorsAsTheyAre) {
  EXPECT_EQ(ResolveColor(0x00563412, QPalette()), QColor(0x12, 0x34, 0x56));
  EXPECT_EQ(StoredColor(QColor(0x12, 0x34, 0x56)), 0x00563412);
  EXPECT_EQ(StoredColor(Qt::white), 0x00FFFFFF);
}
