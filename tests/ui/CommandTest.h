#pragma once

#include <string_view>

#include <QTemporaryDir>

#include "tests/support/Games.h"
#include "tests/ui/Displays.h"
#include "tests/ui/RecordingMainWindow.h"
#include "ui/commands/CommandContext.h"

// Commands at work on a live game, with recording windows and dialogs around them. All of them
// write into the main window's log.
class CommandTest : public testing::Test {
 protected:
  CommandTest();

  // Starts the program and forgets the steps that it took.
  void Begin(FirstSquare startingPosition = FirstSquare::Stored);
  // The steps written down since the last call, a repaint of all squares as one of them; those that
  // show another window.
  Steps TakeLog();
  Steps TakeWindows();

  void Click(std::string_view square) { game.pctGrid_Click(IndexOf(square)); }

  QString FilePath(const QString& name) const { return directory_.filePath(name); }
  // Writes a file and gives its path.
  QString FileWith(const QString& name, const QByteArray& bytes) const;
  static QByteArray BytesOf(const QString& pathName);

  GameState state;
  Globals globals;
  RecordingMainWindow window;
  RecordingWindows windows{window.log};
  RecordingDialogs dialogs{window.log};
  Game game{state, globals.settings, window};
  PicturePace pace{AlwaysReady()};
  CommandContext context{game, state, window, dialogs, windows, globals, pace};

 private:
  QTemporaryDir directory_;
};
