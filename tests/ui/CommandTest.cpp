#include "tests/ui/CommandTest.h"

#include <QFile>

void CommandTest::StartUp() {
  globals.settings.PreviousDirectory = directory_.path() + "/";
  game.Form_Load("");
  window.log.clear();
}

Steps CommandTest::TakeLog() {
  return std::exchange(window.log, {});
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

QString CommandTest::ScriptedDialogs::Choose(const char* what, const FileQuestion& question) {
  test_.window.log.push_back(std::string(what) + " file|" + question.directory.toStdString() +
                             "|" + question.filter.toStdString());
  if (test_.chosenFiles.empty()) return {};
  QString chosen = test_.chosenFiles.front();
  test_.chosenFiles.pop_front();
  return chosen;
}

void CommandTest::ScriptedWindows::ShowSolve(int startMove) {
  Log("solve from " + std::to_string(startMove));
  if (test_.onSolve) test_.onSolve();
}

void CommandTest::ScriptedWindows::ShowReplay(int total) {
  Log("replay of " + std::to_string(total));
  if (test_.onReplay) test_.onReplay(total);
}

void CommandTest::ScriptedWindows::ShowCommandHistory() {
  Log("command history");
  if (test_.onCommandHistory) test_.onCommandHistory();
}

GameOverAnswer CommandTest::ScriptedWindows::ShowGameOver(const GameOverReport& report) {
  Log("game over|" + report.message + "|" + report.buttonCaption);
  return test_.gameOverAnswer;
}

ScoresAnswer CommandTest::ScriptedWindows::ShowScores(ScoreList list,
                                                      std::optional<FinishedGame> finished) {
  const std::string name = list == ScoreList::High ? "high scores" : "low scores";
  Log(finished ? name + " for " + std::to_string(finished->moveCount) : name);
  return test_.scoresAnswer;
}
