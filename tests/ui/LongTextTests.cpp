#include <gtest/gtest.h>

#include "ui/widgets/LongText.h"

TEST(ALongText, StaysOneLineWhereItFits) {
  EXPECT_EQ(InLines("", 5), "");
  EXPECT_EQ(InLines("Ann", 5), "Ann");
  EXPECT_EQ(InLines("Annie", 5), "Annie");
}

TEST(ALongText, IsBrokenBetweenWords) {
  EXPECT_EQ(InLines("one two three", 7), "one two\nthree");
  EXPECT_EQ(InLines("one two three", 8), "one two\nthree");
}

TEST(ALongText, IsBrokenAnywhereWhereItHasNoBlanks) {
  EXPECT_EQ(InLines("abcdefghijkl", 5), "abcde\nfghij\nkl");
  EXPECT_EQ(InLines("ab cdefghijkl", 5), "ab\ncdefg\nhijkl");
}

TEST(ALongText, KeepsCharactersOfSeveralPartsTogether) {
  EXPECT_EQ(InLines(QString::fromUtf8("😀😀😀"), 3), QString::fromUtf8("😀\n😀\n😀"));
}
