#include <random>

#include "storage/IniText.h"
#include "tests/storage/TestFiles.h"

namespace {

QByteArray Written(const QByteArray& text, const QString& value) {
  return ReplaceIniValues(text, {{"S", "Key", value}});
}

// What a value is after it was written and read.
QString AndBack(const QString& value) {
  return IniValues(Written("", value)).Value("S", "Key");
}

}  // namespace

TEST(WritingIniValues, MakesANewTextWithCrLf) {
  EXPECT_EQ(Written("", "1"), "[S]\r\nKey=1\r\n");
}

TEST(WritingIniValues, KeepsEveryOtherLineByteForByte) {
  const QByteArray before = "; \xE9\x01 mine\n  odd = line \r\n\r\n[R]\r=x\n[S]\r\n a = b \n";
  const QByteArray after = "\n\r\n [T] \r\nKey=2\nlast";
  EXPECT_EQ(Written(before + "Key=1\r" + after, "new"), before + "Key=new\r" + after);
}

TEST(WritingIniValues, ReplacesTheFirstOfSeveralKeys) {
  EXPECT_EQ(Written("[S]\nkey=1\nKEY=2\n[S]\nKey=3\n", "x"), "[S]\nKey=x\nKEY=2\n[S]\nKey=3\n");
}

TEST(WritingIniValues, AddsAKeyAtTheEndOfItsSection) {
  EXPECT_EQ(Written("[S]\nA=1\n; note\n\n\n[T]\nB=2\n", "x"),
            "[S]\nA=1\n; note\nKey=x\n\n\n[T]\nB=2\n");
  EXPECT_EQ(Written("[S]\n[T]\n", "x"), "[S]\nKey=x\n[T]\n");
}

TEST(WritingIniValues, AddsASectionAtTheEndOfTheText) {
  EXPECT_EQ(Written("[T]\nB=2\n", "x"), "[T]\nB=2\n[S]\nKey=x\n");
}

TEST(WritingIniValues, EndsALineThatWasOpen) {
  EXPECT_EQ(Written("[T]\nB=2", "x"), "[T]\nB=2\n[S]\nKey=x\n");
  EXPECT_EQ(Written("[S]\r\nA=2", "x"), "[S]\r\nA=2\r\nKey=x\r\n");
}

TEST(WritingIniValues, KeepsTheLastLineOpenWhenItIsReplaced) {
  EXPECT_EQ(Written("[S]\nKey=1", "x"), "[S]\nKey=x");
}

TEST(WritingIniValues, UsesTheLineEndThatTheTextUses) {
  EXPECT_EQ(Written("[T]\n\n\r\n", "x"), "[T]\n\n\r\n[S]\nKey=x\n");
  EXPECT_EQ(Written("[T]\r\n\r\n\n", "x"), "[T]\r\n\r\n\n[S]\r\nKey=x\r\n");
}

TEST(WritingIniValues, AddsToATextWhoseLinesEndInReturns) {
  EXPECT_EQ(Written("[S]\rOther=1\r", "1"), "[S]\rOther=1\rKey=1\r\n");
}

TEST(WritingIniValues, KeepsAByteOrderMark) {
  EXPECT_EQ(Written("\xEF\xBB\xBF", "x"), "\xEF\xBB\xBF[S]\r\nKey=x\r\n");
  EXPECT_EQ(Written("\xEF\xBB\xBF[S]\r\n", "x"), "\xEF\xBB\xBF[S]\r\nKey=x\r\n");
}

TEST(WritingIniValues, PutsSeveralInTheirOrder) {
  EXPECT_EQ(ReplaceIniValues("", {{"A", "1", "a"}, {"B", "2", "b"}, {"A", "3", "c"}}),
            "[A]\r\n1=a\r\n3=c\r\n[B]\r\n2=b\r\n");
}

TEST(WritingIniValues, WritesUtf8) {
  EXPECT_EQ(Written("", QString("caf\u00e9")), "[S]\r\nKey=caf\xC3\xA9\r\n");
}

TEST(WritingIniValues, WritesAnEmptyValueAsNothing) {
  EXPECT_EQ(Written("[S]\nKey=1\n", ""), "[S]\nKey=\n");
}

TEST(WritingIniValues, QuotesOnlyWhatWouldOtherwiseChange) {
  EXPECT_EQ(Written("", "a \"b\" c"), "[S]\r\nKey=a \"b\" c\r\n");
  EXPECT_EQ(Written("", " a"), "[S]\r\nKey=\" a\"\r\n");
}

TEST(WritingIniValues, LetsEveryValueComeBackAsItWas) {
  for (const QString value :
       {"a",       " a",  "a ",   "   ", "\t",  "\"a\"", "'a'", "\"",           "'",
        "\"\"",    "'\"", "\" a", "=",   "[S]", ";a",    "a;b", "<b>&amp;</b>", "\" a \"",
        "\"'a'\"", "\\n", "%1",   "a\tb"}) {
    EXPECT_EQ(AndBack(value), value);
  }
}

TEST(WritingIniValues, LetsChanceValuesComeBackAsTheyWere) {
  std::mt19937 random(260);
  const QString letters = QString::fromUtf8(" \t\"'=;[]aZ\xC3\xA9\xE2\x82\xAC\xF0\x9F\x90\xB4");
  for (int test = 0; test < 20000; ++test) {
    QString value;
    for (unsigned length = random() % 8; length > 0; --length) {
      value += letters[static_cast<qsizetype>(random() % static_cast<unsigned>(letters.size()))];
    }
    if (value.toUcs4() != QString::fromUtf8(value.toUtf8()).toUcs4()) continue;
    ASSERT_EQ(AndBack(value), value);
  }
}

TEST(WritingIniValues, TurnsALineBreakIntoABlank) {
  EXPECT_EQ(AndBack("a\r\nb\nc\rd"), "a b c d");
  EXPECT_EQ(Written("", "a\r\n[T]\r\nb=1"), "[S]\r\nKey=a [T] b=1\r\n");
}

TEST(WritingIniValues, ChangesNothingWhenWrittenTwice) {
  const QByteArray once = Written("[T]\nB=2", " x ");
  EXPECT_EQ(Written(once, " x "), once);
}
