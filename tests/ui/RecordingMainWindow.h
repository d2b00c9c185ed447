#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>

#include "tests/support/RecordingWindow.h"
#include "ui/commands/Dialogs.h"
#include "ui/commands/MainWindow.h"
#include "ui/commands/SecondaryWindows.h"

// A main window without a window, which writes down what commands ask of it.
class RecordingMainWindow : public Recording<MainWindow> {
 public:
  // What happens while the settings are read.
  std::function<void()> onLoadGameSetup;
  bool minimised = false;
  WindowPlacement placement;
  // What happens while the pictures are read.
  std::function<void()> onLoadPictures;

  void LoadPictures() override {
    log.push_back("LoadPictures");
    if (onLoadPictures) onLoadPictures();
  }
  void Form_Resize() override { log.push_back("Form_Resize"); }
  void CatchUpOnResize() override { log.push_back("CatchUpOnResize"); }
  void LoadGameSetup() override {
    log.push_back("LoadGameSetup");
    if (onLoadGameSetup) onLoadGameSetup();
  }
  void Exit() override { log.push_back("Exit"); }
  bool IsMinimised() const override { return minimised; }
  WindowPlacement Placement() const override { return placement; }
};

// Secondary windows without windows: each is written down as one line in the log given, does what
// the test has arranged, and is closed with the answer that the test has arranged.
class RecordingWindows : public SecondaryWindows {
 public:
  explicit RecordingWindows(Steps& log) : log_(log) {}

  GameOverAnswer gameOverAnswer = GameOverAnswer::MainButton;
  ScoresAnswer scoresAnswer = ScoresAnswer::Close;
  // What happens while a window is open, by its name.
  std::function<void(const std::string& window)> onShow;

  void ShowSolve(int startMove) override;
  void ShowReplay(int total) override;
  void ShowMoveHistory() override { Show("frmHistory"); }
  void ShowCommandHistory() override { Show("frmCommandHistory"); }
  void ShowWin() override { Show("frmWin"); }
  GameOverAnswer ShowGameOver(const GameOverReport& report) override;
  ScoresAnswer ShowScores(ScoreList list, std::optional<FinishedGame> finished) override;
  void ShowPreferences() override { Show("frmPreferences"); }
  void ShowAbout() override { Show("frmAbout"); }
  void ShowHelp(const QString& topic) override { Show("frmHelp", topic.toStdString()); }

 private:
  void Show(const std::string& window, const std::string& details = std::string());

  Steps& log_;
};

// Common dialogs without dialogs: each is written down and gives the next answer of its kind that
// the test has arranged; without one it is cancelled.
class RecordingDialogs : public Dialogs {
 public:
  explicit RecordingDialogs(Steps& log) : log_(log) {}

  std::deque<QString> paths;
  std::deque<QColor> colors;
  std::deque<QString> inputs;

  QString OpenFile(const FileQuestion& question) override { return Choose("open", question); }
  QString SaveFile(const FileQuestion& question) override { return Choose("save", question); }
  std::optional<QColor> ChooseColor(const QColor& initial) override;
  std::optional<QString> InputBox(const QString& title, const QString& prompt,
                                  const QString& prefilled) override;

 private:
  QString Choose(const std::string& purpose, const FileQuestion& question);

  Steps& log_;
};
