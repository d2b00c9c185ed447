// A game, the program at work, and the windows that move the knight.

#include <QAbstractButton>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>

#include "tests/storm/Moments.h"
#include "tests/support/Games.h"

namespace {

using Window = QWidget;

constexpr const char* NoWarnings = "[Settings]\nShow Solve Warnings=0\nSolve Refresh=1000\n";
constexpr const char* PlayerBegins = "[Position]\nStarting Position=1\n";
constexpr const char* ByHand = "[Replay]\nAdvancement=1\n";

void Here(Stage& stage) {
  stage.Next([&stage](Window&) { stage.Moment(); });
}

std::vector<MoveRow> First(std::string_view squares, std::size_t moves) {
  std::vector<MoveRow> rows = SquaresNamed(squares);
  rows.resize(moves);
  return rows;
}

void OpenFortyMoves(Stage& stage) {
  stage.OpenGame(First(Games::CompleteTour, 40));
}

// Two squares are left, and no knight gets from the one to the other.
std::vector<MoveRow> Hopeless() {
  std::vector<MoveRow> rows = SquaresNamed(Games::CompleteTour);
  for (const char* square : {"B3", "H8", "A1"}) std::erase(rows, SquareNamed(square));
  rows.push_back(SquareNamed("A1"));
  return rows;
}

// --- the main window alone ---

void Fresh(Stage& stage) {
  stage.Moment();
}

void InMidGame(Stage& stage) {
  stage.Play(4);
  stage.Choose("mnuEditUndo");
  stage.Moment();
}

void Finished(Stage& stage) {
  stage.Answer("&No");
  stage.OpenGame(SquaresNamed(Games::DeadEndAfter20));
  stage.Moment();
}

void MenuOpen(Stage& stage) {
  stage.Play(4);
  Here(stage);
  QTest::keyClick(&stage.Window(), Qt::Key_F, Qt::AltModifier);
  stage.Settle(50);
}

// --- at work ---

void Autoplay(Stage& stage) {
  stage.Play(4);
  stage.WhenAtWork([&stage] { stage.Moment(); });
  stage.Choose("mnuFileAutoplay");
}

void Loading(Stage& stage) {
  stage.WhenAtWork([&stage] { stage.Moment(); });
  OpenFortyMoves(stage);
}

void Restarting(Stage& stage) {
  stage.Play(40);
  stage.Answer("&Yes");
  stage.WhenAtWork([&stage] { stage.Moment(); });
  stage.Choose("mnuFileRestart");
}

void SteppingBack(Stage& stage) {
  stage.Play(40);
  stage.Next([&stage](Window& history) {
    stage.After(5, [&stage] { stage.Moment(); });
    history.findChild<QListWidget*>("lstMoves")->setCurrentRow(0);
    Press(history, "cmdOptionsOrUndo");
  });
  stage.Choose("mnuEditHistory");
}

// --- the Solve window ---

void SolveIdle(Stage& stage) {
  OpenFortyMoves(stage);
  Here(stage);
  stage.Choose("mnuFileSolve");
}

void Solving(Stage& stage) {
  stage.Next([&stage](Window& solve) {
    stage.After(10, [&stage] { stage.Moment(); });
    Press(solve, "cmdStartStop");
  });
  stage.Choose("mnuFileSolve");
}

void Unwinding(Stage& stage) {
  stage.Next([&stage](Window& solve) {
    stage.After(10, [&stage, &solve] {
      Press(solve, "cmdStartStop");
      stage.Moment();
    });
    Press(solve, "cmdStartStop");
  });
  stage.Choose("mnuFileSolve");
}

void Solve(Stage& stage) {
  OpenFortyMoves(stage);
  stage.Next([](Window& solve) { Press(solve, "cmdStartStop"); });
}

void SolvedMessage(Stage& stage) {
  Solve(stage);
  Here(stage);
  stage.Choose("mnuFileSolve");
}

void Solved(Stage& stage) {
  Solve(stage);
  stage.Answer("OK");
  Here(stage);
  stage.Choose("mnuFileSolve");
}

void NoSolution(Stage& stage) {
  stage.OpenGame(Hopeless());
  stage.Next([](Window& solve) { Press(solve, "cmdStartStop"); });
  Here(stage);
  stage.Choose("mnuFileSolve");
}

void BacktrackQuestion(Stage& stage) {
  Solve(stage);
  stage.Answer("OK");
  stage.Next([](Window& solve) { Press(solve, "cmdClose"); });
  Here(stage);
  stage.Choose("mnuFileSolve");
}

void Backtracking(Stage& stage) {
  Solve(stage);
  stage.Answer("OK");
  stage.Next([&stage](Window& solve) {
    stage.After(5, [&stage] { stage.Moment(); });
    Press(solve, "cmdBacktrack");
  });
  stage.Choose("mnuFileSolve");
}

// --- the replay ---

// Just after a tick, so that the next one does not come in the middle of what is tried.
void AfterTheSixthTick(Stage& stage) {
  if (stage.Window().State().MoveCount > 6) return stage.Moment();
  stage.After(5, [&stage] { AfterTheSixthTick(stage); });
}

void ReplayAdvancing(Stage& stage) {
  OpenFortyMoves(stage);
  stage.Next([&stage](Window&) { AfterTheSixthTick(stage); });
  stage.Choose("mnuViewReplay");
}

void ReplaySeeking(Stage& stage) {
  OpenFortyMoves(stage);
  stage.Next([&stage](Window& replay) {
    stage.After(5, [&stage] { stage.Moment(); });
    replay.findChild<QScrollBar*>("hsclSpeedSeekSet")->setValue(30);
  });
  stage.Choose("mnuViewReplay");
}

void EndReplayQuestion(Stage& stage) {
  OpenFortyMoves(stage);
  stage.Next([](Window& replay) { Press(replay, "cmdClose"); });
  Here(stage);
  stage.Choose("mnuViewReplay");
}

void GameOverQuestion(Stage& stage) {
  Here(stage);
  stage.OpenGame(SquaresNamed(Games::DeadEndAfter20));
}

// --- the end of a game ---

void PlayToTheEnd(Stage& stage) {
  stage.OpenGame(First(Games::DeadEndAfter20, 19));
  stage.Click("A1");
}

void GameOver(Stage& stage) {
  Here(stage);
  PlayToTheEnd(stage);
}

void NameEntry(Stage& stage) {
  stage.Next([](Window& gameOver) { Press(gameOver, "cmdScoresReplay"); });
  Here(stage);
  PlayToTheEnd(stage);
}

void NameMissing(Stage& stage) {
  stage.Next([](Window& gameOver) { Press(gameOver, "cmdScoresReplay"); });
  stage.Next([](Window& scores) {
    QTest::keyClick(scores.findChild<QLineEdit*>("txtHighScore"), Qt::Key_Return);
  });
  Here(stage);
  PlayToTheEnd(stage);
}

void Won(Stage& stage) {
  stage.OpenGame(First(Games::CompleteTour, 63));
  Here(stage);
  stage.Click("C1");
}

}  // namespace

const std::vector<MomentRow>& GameMoments() {
  using enum MomentKind;
  static const std::vector<MomentRow> rows{
      {"AFreshGame", Idle, Fresh},
      {"AGame", Idle, InMidGame},
      {"AFinishedGame", Idle, Finished},
      {"BeforeTheFirstSquare", Idle, Fresh, {}, PlayerBegins},
      {"TheFileMenu", Menu, MenuOpen},
      {"Autoplay", Work, Autoplay},
      {"AFileBeingOpened", Work, Loading},
      {"Restart", Work, Restarting},
      {"StepsOfTheCommandHistory", Dialog, SteppingBack},
      {"TheSolveWindow", Dialog, SolveIdle},
      {"ASearch", Dialog, Solving, {}, NoWarnings},
      {"ASearchThatUnwinds", Dialog, Unwinding, {}, NoWarnings},
      {"SolvedSuccessfully", Dialog, SolvedMessage, {"Solve", "Backtrack?"}},
      {"ASolvedGame", Dialog, Solved, {"Backtrack?"}},
      {"NoSolution", Dialog, NoSolution, {"Solve"}},
      {"BacktrackQuestion", Dialog, BacktrackQuestion},
      {"Backtracking", Dialog, Backtracking},
      {"AReplayThatAdvances", Dialog, ReplayAdvancing, {"End Replay"}},
      {"AReplayThatSeeks", Dialog, ReplaySeeking, {"End Replay"}, ByHand},
      {"EndReplayQuestion", Dialog, EndReplayQuestion},
      {"GameOverQuestion", Dialog, GameOverQuestion},
      {"GameOver", Dialog, GameOver, {"Low Scores"}},
      {"TheNameEntry", Dialog, NameEntry},
      {"TheNameIsMissing", Dialog, NameMissing, {"Low Scores"}},
      {"YouWin", Dialog, Won, {"Game Over...", "High Scores"}},
  };
  return rows;
}
