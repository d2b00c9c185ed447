// What is read aloud of a page of the help after a key.

#include <QKeyEvent>
#include <QTextCursor>
#include <QTextDocument>
#include <gtest/gtest.h>

#include "ui/application/SpokenText.h"
#include "ui/help/PageReading.h"

using PageReading::Unit;

namespace {

Unit ReadAfter(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  return PageReading::After(QKeyEvent(QEvent::KeyPress, key, modifiers));
}

class PageIsRead : public testing::Test {
 protected:
  PageIsRead() {
    page.setPlainText("The knight, free.\n\nThe end");
    cursor.movePosition(QTextCursor::Start);
  }

  std::string At(const QString& text, Unit unit) {
    cursor = page.find(text, 0);
    cursor.setPosition(cursor.selectionStart());
    return AtCursor(unit);
  }
  std::string AtCursor(Unit unit) {
    return PageReading::Spoken(PageReading::At(cursor, unit).selectedText()).toStdString();
  }

  QTextDocument page;
  QTextCursor cursor{&page};
};

}  // namespace

TEST_F(PageIsRead, ByLineUpAndDownAndFromEndToEnd) {
  for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown}) {
    EXPECT_EQ(ReadAfter(key), Unit::Line);
  }
  EXPECT_EQ(ReadAfter(Qt::Key_Home, Qt::ControlModifier), Unit::Line);
  EXPECT_EQ(ReadAfter(Qt::Key_End, Qt::ControlModifier), Unit::Line);
  EXPECT_EQ(At("free", Unit::Line), "The knight, free.");
}

TEST_F(PageIsRead, ByWordWithCtrl) {
  EXPECT_EQ(ReadAfter(Qt::Key_Right, Qt::ControlModifier), Unit::Word);
  EXPECT_EQ(ReadAfter(Qt::Key_Left, Qt::ControlModifier), Unit::Word);
  EXPECT_EQ(At("knight", Unit::Word), "knight");
}

TEST_F(PageIsRead, ByCharacterOtherwise) {
  for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End}) {
    EXPECT_EQ(ReadAfter(key), Unit::Character);
  }
  EXPECT_EQ(At("knight", Unit::Character), "k");
}

TEST_F(PageIsRead, NeverInSilence) {
  EXPECT_EQ(At(" knight", Unit::Character), "space");
  cursor.movePosition(QTextCursor::NextBlock);
  for (const Unit unit : {Unit::Character, Unit::Word, Unit::Line}) {
    EXPECT_EQ(AtCursor(unit), "blank");
  }
  cursor.movePosition(QTextCursor::End);
  EXPECT_EQ(AtCursor(Unit::Line), "The end");
  EXPECT_EQ(AtCursor(Unit::Character), "blank");
}

TEST_F(PageIsRead, WithTheNamesOfItsSigns) {
  EXPECT_EQ(At(",", Unit::Character), "comma");
  EXPECT_EQ(At(".", Unit::Word), "dot");
}

TEST_F(PageIsRead, OnlyByKeysThatMoveTheCursor) {
  EXPECT_EQ(ReadAfter(Qt::Key_Return), Unit::None);
  EXPECT_EQ(ReadAfter(Qt::Key_Tab), Unit::None);
  EXPECT_EQ(ReadAfter(Qt::Key_Down, Qt::ShiftModifier), Unit::None);
}

TEST(TextThatFollows, IsReadSentenceBySentence) {
  const SpokenText text("A knight. An empty board.\nThe end", [](int) {});
  int start = 0;
  int end = 0;
  EXPECT_EQ(text.textAtOffset(0, QAccessible::SentenceBoundary, &start, &end), "A knight. ");
  EXPECT_EQ(text.textAtOffset(end, QAccessible::SentenceBoundary, &start, &end),
            "An empty board.\n");
  EXPECT_EQ(text.text(end, text.characterCount()), "The end");
}

TEST(TextThatFollows, TakesThePlayerToWhereTheReaderWasStopped) {
  int place = 0;
  SpokenText text("A knight. An empty board.", [&](int stopped) { place = stopped; });
  text.setCursorPosition(10);
  EXPECT_EQ(place, 10);
}
