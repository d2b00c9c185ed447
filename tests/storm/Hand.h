#pragma once

#include "tests/storm/Chance.h"
#include "tests/storm/Journal.h"
#include "tests/storm/ProgramFolder.h"
#include "ui/windows/game/frmGame.h"

// What a random player holds: dice, a pencil, and the program.
struct Hand {
  Chance& chance;
  Journal& journal;
  const ProgramFolder& folder;
  frmGame& window;
};

// Each does one thing that a player can do at the moment.
void ActOnMainWindow(const Hand& hand);
void ActOnHelp(const Hand& hand, QWidget& help);
void ActOnDialog(const Hand& hand, QWidget& dialog);
void ActOnPopup(const Hand& hand, QWidget& popup);
// What the desktop's owner does at any time, also behind dialogs: another theme, another screen for
// the window, another state of the main window.
void ActOnDesktop(const Hand& hand, QWidget& window);

// One step on the way out of the program.
void LeaveDialog(const Hand& hand, QWidget& dialog);

// A key for whatever has the focus in a window.
void PressAnyKey(const Hand& hand, QWidget& window);
// One of the buttons, scroll bars and lists in a window.
void UseAnyControl(const Hand& hand, QWidget& window);
void ClickAt(const Hand& hand, QWidget& widget, Qt::MouseButton button);
