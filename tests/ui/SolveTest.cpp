#include "tests/ui/SolveTest.h"

#include <stdexcept>

#include "tests/ui/Labels.h"

void SolveTest::Open(std::string_view squares, int refreshRate) {
  Begin(FirstSquare::PlayersChoice);
  PlaySquares(game, squares);
  TakeLog();
  state.ApplyingMoves = true;
  window.EnableClock(true);
  globals.settings.SolveRefreshRate = static_cast<std::int16_t>(refreshRate);
  solve = std::make_unique<frmSolve>(context, nullptr);
  solve->StartAt(state.MoveCount);
  TakeLog();
}

void SolveTest::InYield(int number, std::function<void()> action) {
  window.onDoEvents = [yields = 0, number, action = std::move(action)]() mutable {
    if (++yields == number) action();
  };
}

void SolveTest::WhenTheTourIsFound(std::function<void()> action) {
  window.onDoEvents = [this, action = std::move(action)] {
    if (state.MoveCount != SquareCount) return;
    const auto once = action;
    window.onDoEvents = nullptr;
    once();
  };
}

QAbstractButton& SolveTest::Button(const char* name) const {
  auto* button = solve->findChild<QAbstractButton*>(name);
  if (button == nullptr) throw std::runtime_error(std::string("no button named ") + name);
  return *button;
}

void SolveTest::Press(const char* button) {
  Button(button).click();
}

std::string SolveTest::Text(const char* label) const {
  return TextOf(*solve, label).toStdString();
}

std::string SolveTest::Values() const {
  return Text("lblMoveValue") + "/" + Text("lblTestedValue") + "/" + Text("lblPositionValue");
}

std::string SolveTest::Buttons() const {
  std::string text;
  for (const char* name : {"cmdStartStop", "cmdBacktrack"}) {
    const QAbstractButton& button = Button(name);
    const std::string caption = button.text().toStdString();
    text += (text.empty() ? "" : " ") + (button.isEnabled() ? caption : "(" + caption + ")");
  }
  return text;
}
