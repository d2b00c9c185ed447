#pragma once

#include <deque>

#include <QTemporaryDir>

#include "tests/support/GameTest.h"
#include "ui/commands/CommandContext.h"

// A main window that writes down what commands ask of it.
class RecordingMainWindow : public Recording<MainWindow> {
 public:
  bool minimised = false;
  WindowPlacement placement{.Left = 150, .Top = 300, .Height = 9900, .Width = 9600};

  void Form_Resize() override { log.push_back("Form_Resize"); }
  void CatchUpOnResize() override { log.push_back("CatchUpOnResize"); }
  void RepaintWholeBoard() override { log.push_back("RepaintWholeBoard"); }
  void RefreshHighlight() override { log.push_back("RefreshHighlight"); }
  bool IsMinimised() const override { return minimised; }
  WindowPlacement Placement() const override { return placement; }
};

// A command on a recording window: its dialogs are answered, and its windows shown, as the test has
// arranged. Every request goes into the window's log.
class CommandTest : public testing::Test {
 protected:
  // Starts the program and forgets the steps that it took.
  void StartUp();
  Steps TakeLog();
  QString FilePath(const QString& name) const { return directory_.filePath(name); }
  // Writes a file and gives its path.
  QString FileWith(const QString& name, const QByteArray& bytes) const;
  static QByteArray BytesOf(const QString& pathName);
  void Click(std::string_view square) { game.pctGrid_Click(IndexOf(square)); }

  GameState state;
  Globals globals;
  RecordingMainWindow window;
  Game game{state, globals.settings, window};

  // What the file dialogs answer, in order; a dialog without an answer is cancelled.
  std::deque<QString> chosenFiles;
  // What happens while a secondary window is open; nothing by default.
  std::function<void()> onSolve;
  std::function<void(int total)> onReplay;
  std::function<void()> onCommandHistory;
  GameOverAnswer gameOverAnswer = GameOverAnswer::MainButton;
  ScoresAnswer scoresAnswer = ScoresAnswer::Close;

 private:
  class ScriptedDialogs : public Dialogs {
   public:
    explicit ScriptedDialogs(CommandTest& test) : test_(test) {}
    QString OpenFile(const FileQuestion& question) override { return Choose("open", question); }
    QString SaveFile(const FileQuestion& question) override { return Choose("save", question); }

   private:
    QString Choose(const char* what, const FileQuestion& question);
    CommandTest& test_;
  };

  class ScriptedWindows : public SecondaryWindows {
   public:
    explicit ScriptedWindows(CommandTest& test) : test_(test) {}
    void ShowSolve(int startMove) override;
    void ShowReplay(int total) override;
    void ShowMoveHistory() override { Log("move history"); }
    void ShowCommandHistory() override;
    void ShowWin() override { Log("You Win!"); }
    GameOverAnswer ShowGameOver(const GameOverReport& report) override;
    ScoresAnswer ShowScores(ScoreList list, std::optional<FinishedGame> finished) override;
    void ShowPreferences() override { Log("preferences"); }
    void ShowAbout() override { Log("about"); }

   private:
    void Log(std::string line) { test_.window.log.push_back(std::move(line)); }
    CommandTest& test_;
  };

  QTemporaryDir directory_;
  ScriptedDialogs dialogs_{*this};
  ScriptedWindows windows_{*this};

 protected:
  CommandContext context{game, state, window, dialogs_, windows_, globals};
};
