#include "tests/ui/ReplayTest.h"

#include <algorithm>
#include <utility>

#include "ui/commands/Replay.h"

void ReplayTest::Keep(const QString& advanceSpeed, const QString& advancement) {
  globals.IniFile.Change(
      {{"Replay", "Advance Speed", advanceSpeed}, {"Replay", "Advancement", advancement}});
  ASSERT_TRUE(globals.IniFile.IsSaved());
}

QString ReplayTest::Kept(const char* key) const {
  return clsIniFile().ReadIniFileValues(globals.IniFile.PathName()).Value("Replay", key);
}

void ReplayTest::Watch(const Watching& watching) {
  const int total = state.MoveCount;
  windows.onShow = [&](const std::string& shown) {
    ASSERT_EQ(shown, "frmReplay");
    frmReplay replay(context, nullptr);
    replay.StartWith(total);
    replay.show();
    watching(replay);
    if (!replay.isVisible()) return;
    if (Shown(replay).IsOn("cmdFinish")) window.answers.push_back(PlayerSays::No);
    replay.cmdClose_Click();
    EXPECT_FALSE(replay.isVisible());
  };
  mnuViewReplay_Click(context);
  windows.onShow = nullptr;
}

void ReplayTest::Watch(int moves, const Watching& watching) {
  state = GameState{};
  Begin();
  PlayTour(game, moves);
  Watch(watching);
}

void ReplayTest::WhileWalking(const std::function<void()>& what) {
  window.onDoEvents = [this, what] {
    const auto keptAlive = std::exchange(window.onDoEvents, nullptr);
    what();
  };
}

testing::AssertionResult ReplayTest::Agrees(frmReplay& replay) const {
  const Shown shown(replay);
  const QString position = QString::number(state.MoveCount);
  const std::vector<MoveRow> made = MovesMade(state);
  const QString square = QString::fromStdString(SquareName(made.back().x, made.back().y));
  std::size_t visited = 0;
  for (const MoveRow& row : made) visited += state.Cell(row.x, row.y) == GameState::Visited;

  const auto wrong = [this](const char* what) {
    return testing::AssertionFailure() << "at move " << state.MoveCount << ": " << what;
  };
  if (shown.Text("lblMoveValue") != position) return wrong("the move shown");
  if (shown.Text("lblPositionValue") != square) return wrong("the position shown");
  if (MoveRow{state.KnightX, state.KnightY} != made.back()) return wrong("the knight");
  if (visited != made.size()) return wrong("a square that is not taken");
  if (std::count(state.Board.begin(), state.Board.end(), GameState::Visited) != state.MoveCount) {
    return wrong("a square too many");
  }
  if (shown.Automatic().isChecked()) return testing::AssertionSuccess();
  if (shown.Bar().value() != state.MoveCount) return wrong("the bar");
  if (shown.Text("lblSpeedSeekValue") != position) return wrong("the move sought");
  return testing::AssertionSuccess();
}

void PressAnything(frmReplay& replay, std::mt19937& random) {
  const auto below = [&random](int count) {
    return std::uniform_int_distribution<int>(0, count - 1)(random);
  };
  const Shown shown(replay);
  switch (below(11)) {
    case 0:
    case 1:
    case 2:
      return replay.tmrAdvance_Timer();
    case 3:
    case 4:
      return shown.Bar().setValue(1 + below(shown.Bar().maximum()));
    case 5:
      return shown.Button("cmdAdvancePause").click();
    case 6:
      return shown.Button("cmdRestart").click();
    case 7:
      return shown.Button("cmdFinish").click();
    case 8:
      return shown.Automatic().click();
    case 9:
      return shown.Manual().click();
    default:
      return shown.Bar().triggerAction(QAbstractSlider::SliderPageStepAdd);
  }
}
