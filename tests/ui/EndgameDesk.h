#pragma once

#include <string_view>

#include <QPushButton>
#include <QStringList>

#include "tests/support/Games.h"
#include "tests/ui/Desk.h"
#include "ui/windows/scores/NameBox.h"
#include "ui/windows/scores/frmScores.h"

// A desk where games come to their end and score lists are looked at.
class EndgameDesk : public Desk {
 protected:
  using LookAtScores = std::function<void(frmScores& scores)>;

  // Clicks on one square after the other.
  void PlayOnBoard(std::string_view squares);
  // Plays a dead end of 20 moves, submits it and does something in the scores window.
  void SubmitAGame(LookAtScores look);
  // The next window is this one, and a button of it is pressed.
  void PressInNextWindow(const QString& windowName, const char* button);
  // Opens a list from the menu, looks at it and closes it.
  void LookAtList(const char* menuEntry, const LookAtScores& look);
  // The next message is that a name is missing; it is read and closed.
  void ExpectNameIsMissing();

  void WriteScores(const QByteArray& text);
};

// What to do with a button of a window.
void Press(QWidget& window, const char* button);
NameBox& BoxOf(frmScores& scores);
void TypeName(frmScores& scores, const QString& name);
// The texts of the ten labels of one name.
QStringList Texts(const QWidget& window, const char* name);
QLabel& LabelAt(const QWidget& window, const char* name, int row);
