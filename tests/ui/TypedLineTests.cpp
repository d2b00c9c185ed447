// What a screen reader finds where something is typed.

#include <QAccessible>
#include <QLineEdit>
#include <gtest/gtest.h>

#include "ui/application/AccessibleLineEdit.h"

namespace {

class TypedLine : public testing::Test {
 protected:
  TypedLine() { AccessibleLineEdit::Install(); }

  QAccessibleInterface& Line() { return *QAccessible::queryAccessibleInterface(&line); }
  QAccessibleTextInterface& Text() { return *Line().textInterface(); }

  QLineEdit line{"a name"};
};

}  // namespace

TEST_F(TypedLine, IsOneRunToItsLastLetter) {
  for (const int offset : {0, 3, 6}) {
    int start = -1;
    int end = -1;
    Text().attributes(offset, &start, &end);
    EXPECT_EQ(start, 0);
    EXPECT_EQ(end, 6);
  }
  EXPECT_EQ(Text().text(0, 6), "a name");
}

TEST_F(TypedLine, IsAnEditableTextWithItsValue) {
  EXPECT_EQ(Line().role(), QAccessible::EditableText);
  EXPECT_TRUE(Line().state().editable);
  EXPECT_EQ(Line().text(QAccessible::Value), "a name");
  line.setReadOnly(true);
  EXPECT_FALSE(Line().state().editable);
}

TEST_F(TypedLine, TellsAndTakesASelection) {
  EXPECT_EQ(Text().selectionCount(), 0);
  Text().addSelection(2, 6);
  EXPECT_EQ(line.selectedText(), "name");
  int start = -1;
  int end = -1;
  Text().selection(0, &start, &end);
  EXPECT_EQ(start, 2);
  EXPECT_EQ(end, 6);
  EXPECT_EQ(Text().selectionCount(), 1);
  Text().removeSelection(0);
  EXPECT_FALSE(line.hasSelectedText());
}

TEST_F(TypedLine, TellsAndTakesThePlaceOfTheCursor) {
  Text().setCursorPosition(2);
  EXPECT_EQ(line.cursorPosition(), 2);
  EXPECT_EQ(Text().cursorPosition(), 2);
}

TEST_F(TypedLine, FindsALetterWhereItStands) {
  line.show();
  for (const int offset : {0, 2, 5}) {
    const QRect letter = Text().characterRect(offset);
    EXPECT_EQ(Text().offsetAtPoint(letter.center() - QPoint(letter.width() / 4, 0)), offset);
  }
}

TEST_F(TypedLine, IsChangedByParts) {
  QAccessibleEditableTextInterface& text = *Line().editableTextInterface();
  text.insertText(6, "d");
  text.deleteText(0, 2);
  text.replaceText(0, 1, "N");
  EXPECT_EQ(line.text(), "Named");
  line.setReadOnly(true);
  text.deleteText(0, 1);
  EXPECT_EQ(line.text(), "Named");
}
