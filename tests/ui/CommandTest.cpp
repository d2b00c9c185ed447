#include "tests/ui/CommandTest.h"

#include <algorithm>
#include <utility>

#include <QFile>

#include "ui/commands/EndOfGame.h"

namespace {

// Every square highlighted, from the last to the first, and then as it is: one line for all.
void FoldRepaint(Steps& steps) {
  Steps repaint;
  for (int index = SquareCount - 1; index >= 0; --index) {
    repaint.push_back("HighlightSquare " + std::to_string(index) + " forced");
  }
  repaint.emplace_back("RestoreColors");
  const auto found = std::search(steps.begin(), steps.end(), repaint.begin(), repaint.end());
  if (found == steps.end()) return;
  *found = "RepaintWholeBoard";
  steps.erase(found + 1, found + SquareCount + 1);
}

}  // namespace

CommandTest::CommandTest() {
  globals.ProgramDirectory = directory_.path() + "/";
  globals.IniFile = KeptFile(globals.ProgramDirectory + "GallopadeNova.ini");
  globals.ScoreFile = KeptFile(globals.ProgramDirectory + "Scores.dat");
  globals.settings.PreviousDirectory = globals.ProgramDirectory;
  window.onEndGame = [this](const GameOverReport& report) { EndGame(context, report); };
}

void CommandTest::Begin(FirstSquare startingPosition) {
  globals.settings.StartingPosition = startingPosition;
  game.Form_Load([] {});
  TakeLog();
}

Steps CommandTest::TakeLog() {
  FoldRepaint(window.log);
  return std::exchange(window.log, {});
}

Steps CommandTest::TakeWindows() {
  Steps steps = TakeLog();
  std::erase_if(steps, [](const std::string& step) { return !step.starts_with("show "); });
  return steps;
}

QString CommandTest::FileWith(const QString& name, const QByteArray& bytes) const {
  QFile file(FilePath(name));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(bytes);
  return file.fileName();
}

QByteArray CommandTest::BytesOf(const QString& pathName) {
  QFile file(pathName);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << pathName.toStdString();
  return file.readAll();
}
