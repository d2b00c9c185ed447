#include <gtest/gtest.h>

#include "core/Game.h"

TEST(CommandLine, NamesAGameFile) {
  EXPECT_EQ(GameFileOf("tour.knight"), "tour.knight");
}

TEST(CommandLine, NamesTheSameFileInQuotes) {
  EXPECT_EQ(GameFileOf("\"my games/tour.knight\""), "my games/tour.knight");
}

TEST(CommandLine, NamesAFileWithBlanks) {
  EXPECT_EQ(GameFileOf("my best tour.knight"), "my best tour.knight");
}

TEST(CommandLine, NamesTheShortestFiles) {
  EXPECT_EQ(GameFileOf("a.knight"), "a.knight");
  EXPECT_EQ(GameFileOf("\"knight\""), "knight");
}

TEST(CommandLine, IsIgnoredWhenItIsTooShort) {
  for (const char* text : {"", ".knight", "knight\""}) {
    EXPECT_EQ(GameFileOf(text), std::nullopt) << text;
  }
}

TEST(CommandLine, IsIgnoredWithAnyOtherEnding) {
  for (const char* text : {"tour.KNIGHT", "tour.Knight", "tour.kni", "tour.knight ", "tourknight",
                           "'tour.knight'", "tour.knight.txt"}) {
    EXPECT_EQ(GameFileOf(text), std::nullopt) << text;
  }
}
