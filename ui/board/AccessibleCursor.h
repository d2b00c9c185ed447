#pragma once

#include <utility>

#include <QAccessibleInterface>

#include "ui/board/BoardWords.h"

class BoardView;

// What a screen reader is led to instead of a square: it stands for that square, and says what is
// to be said. Each is new, since readers do not read again what they are at already; and it is no
// cell, since they read whole rows when they come to one.
class AccessibleCursor : public QAccessibleInterface {
 public:
  // A sentence about no square stands for the whole board. inset: pixels left free at the edge.
  AccessibleCursor(BoardView& view, int inset, Sentence sentence)
      : view_(view), inset_(inset), sentence_(std::move(sentence)) {}

  int Square() const { return sentence_.square; }

  bool isValid() const override { return true; }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override;
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QAccessible::Role role() const override { return QAccessible::Caret; }
  QAccessible::State state() const override;
  QRect rect() const override;
  QString text(QAccessible::Text text) const override;
  void setText(QAccessible::Text, const QString&) override {}

 private:
  BoardView& view_;
  int inset_;
  Sentence sentence_;
};
