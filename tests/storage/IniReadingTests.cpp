#include "storage/IniText.h"
#include "tests/storage/TestFiles.h"

namespace {

QString Value(const QByteArray& text, const QString& key = "Key") {
  return IniValues(text).Value("S", key);
}

}  // namespace

TEST(IniValue, IsWhatFollowsTheEqualsSign) {
  EXPECT_EQ(Value("[S]\r\nKey=some text\r\n"), "some text");
  EXPECT_EQ(Value("[S]\r\nKey=a=b\r\n"), "a=b");
}

TEST(IniValue, IsFoundWithEveryKindOfLineEnd) {
  EXPECT_EQ(Value("[S]\nOther=1\nKey=2\n"), "2");
  EXPECT_EQ(Value("[S]\rOther=1\rKey=2\r"), "2");
  EXPECT_EQ(Value("[S]\r\n\r\n\nOther=1\rKey=2"), "2");
}

TEST(IniValue, IsFoundWithoutRegardToCase) {
  EXPECT_EQ(IniValues("[high SCORES]\nNAME 1=Ann").Value("High Scores", "Name 1"), "Ann");
  EXPECT_EQ(IniValues("[\xC3\x84]\n\xC3\xB6=1").Value(QString("\u00e4"), QString("\u00d6")), "1");
}

TEST(IniValue, IsNotFoundInAnotherSection) {
  EXPECT_EQ(Value("Key=0\n[R]\nKey=1\n[S]\nOther=2\n[T]\nKey=3\n"), "");
}

TEST(IniValue, IsTheFirstOfSeveral) {
  EXPECT_EQ(Value("[S]\nKey=1\nKey=2\n[S]\nKey=3\n"), "1");
}

TEST(IniValue, IsLookedForInTheFirstSectionOfTheName) {
  EXPECT_EQ(Value("[S]\nOther=1\n[T]\n[S]\nKey=2\n"), "");
}

TEST(IniValue, MayBeEmptyWhichCountsAsMissing) {
  EXPECT_EQ(Value("[S]\nKey=\n"), "");
  EXPECT_EQ(Value("[S]\nKey=   \n"), "");
  EXPECT_EQ(Value("[S]\nKey=\"\"\n"), "");
}

TEST(IniValue, LosesTheBlanksAroundIt) {
  EXPECT_EQ(Value(" [ S ] \n \tKey \t= \t1 2 \t\n"), "1 2");
}

TEST(IniValue, LosesEveryKindOfBlank) {
  EXPECT_EQ(Value("[S]\n\v\fKey\t=\f1\v\t \n"), "1");
}

TEST(IniValue, LosesOnePairOfEqualQuotes) {
  EXPECT_EQ(Value("[S]\nKey=\" a \"\n"), " a ");
  EXPECT_EQ(Value("[S]\nKey='a'\n"), "a");
  EXPECT_EQ(Value("[S]\nKey=\"\"a\"\"\n"), "\"a\"");
}

TEST(IniValue, KeepsQuotesThatAreNoPair) {
  EXPECT_EQ(Value("[S]\nKey=\"a'\n"), "\"a'");
  EXPECT_EQ(Value("[S]\nKey=\"\n"), "\"");
  EXPECT_EQ(Value("[S]\nKey=a\"b\"\n"), "a\"b\"");
}

TEST(IniValue, IsNotReadFromAComment) {
  EXPECT_EQ(Value("[S]\n;Key=1\n ; Key=2\n"), "");
  EXPECT_EQ(Value("[S]\nKey=a ; b\n"), "a ; b");
}

TEST(IniValue, IsNotReadFromALineWithoutAnEqualsSign) {
  EXPECT_EQ(Value("[S]\nKey\nKey 2\n"), "");
}

TEST(IniValue, MayFollowABrokenSectionLine) {
  EXPECT_EQ(Value("[S]\n[broken\nKey=1\n"), "1");
  EXPECT_EQ(Value("[S] ; [a] comment\nKey=1\n"), "1");
}

TEST(IniValue, IsFoundBehindAByteOrderMark) {
  EXPECT_EQ(Value("\xEF\xBB\xBF[S]\nKey=1\n"), "1");
}

TEST(IniValue, IsCutTo255Characters) {
  EXPECT_EQ(Value("[S]\nKey=" + QByteArray(255, 'x')), QString(255, 'x'));
  EXPECT_EQ(Value("[S]\nKey=" + QByteArray(256, 'x')), QString(255, 'x'));
  EXPECT_EQ(Value("[S]\nKey=\"" + QByteArray(256, 'x') + '"'), QString(255, 'x'));
}

TEST(IniValue, IsNeverCutInsideACharacter) {
  EXPECT_EQ(Value("[S]\nKey=" + QByteArray("\xC3\xA9").repeated(300)), QString(255, u'\u00e9'));
  const QString knight = QString::fromUtf8("\xF0\x9F\x90\xB4");
  EXPECT_EQ(Value("[S]\nKey=" + knight.repeated(300).toUtf8()), knight.repeated(255));
  const QString asTheLast = QString(254, u'x') + knight;
  EXPECT_EQ(Value("[S]\nKey=" + asTheLast.toUtf8()), asTheLast);
  EXPECT_EQ(Value("[S]\nKey=" + asTheLast.toUtf8() + 'y'), asTheLast);
}

TEST(IniValue, IsReadAsWindows1252WhereItIsNotUtf8) {
  EXPECT_EQ(Value("[S]\nKey=caf\xE9 \x80\x9C\n"), QString("caf\u00e9 \u20ac\u0153"));
  EXPECT_EQ(Value("[S]\nKey=\xC3\n"), QString("\u00c3"));
}

TEST(IniValue, IsReadAsUtf8BesideValuesThatAreNot) {
  EXPECT_EQ(Value("[S]\nOther=\xE9\nKey=caf\xC3\xA9\n"), QString("caf\u00e9"));
}

TEST(IniValue, IsMissingInWhatIsNoIniText) {
  EXPECT_EQ(Value(""), "");
  EXPECT_EQ(Value(QByteArray(1000, '\0')), "");
  EXPECT_EQ(Value("[[[[\n====\n]]]]\n"), "");
}
