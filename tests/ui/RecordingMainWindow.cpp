#include "tests/ui/RecordingMainWindow.h"

namespace {

template <typename Answer>
std::optional<Answer> Next(std::deque<Answer>& answers) {
  if (answers.empty()) return std::nullopt;
  const Answer answer = answers.front();
  answers.pop_front();
  return answer;
}

}  // namespace

void RecordingWindows::Show(const std::string& window, const std::string& details) {
  log_.push_back("show " + window + (details.empty() ? "" : " " + details));
  if (onShow) onShow(window);
}

void RecordingWindows::ShowSolve(int startMove) {
  Show("frmSolve", std::to_string(startMove));
}

void RecordingWindows::ShowReplay(int total) {
  Show("frmReplay", std::to_string(total));
}

GameOverAnswer RecordingWindows::ShowGameOver(const GameOverReport& report) {
  Show("frmGameOver", report.buttonCaption + "|" + report.message);
  return gameOverAnswer;
}

ScoresAnswer RecordingWindows::ShowScores(ScoreList list, std::optional<FinishedGame> finished) {
  std::string details = list == ScoreList::High ? "high" : "low";
  if (finished) {
    details +=
        "|" + std::to_string(finished->totalMoves) + "|" + std::to_string(finished->totalTime);
  }
  Show("frmScores", details);
  return scoresAnswer;
}

QString RecordingDialogs::Choose(const std::string& purpose, const FileQuestion& question) {
  log_.push_back(purpose + " " + question.directory.toStdString() + "|" +
                 question.filter.toStdString());
  return Next(paths).value_or(QString());
}

std::optional<QColor> RecordingDialogs::ChooseColor(const QColor& initial) {
  log_.push_back("color " + initial.name().toStdString());
  return Next(colors);
}

std::optional<QString> RecordingDialogs::InputBox(const QString& title, const QString& prompt,
                                                  const QString& prefilled) {
  log_.push_back("input " + title.toStdString() + "|" + prompt.toStdString() + "|" +
                 prefilled.toStdString());
  return Next(inputs);
}
