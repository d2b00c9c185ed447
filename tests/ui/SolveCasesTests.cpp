// The positions whose answers are known, in the real Solve window.

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "tests/support/Games.h"
#include "tests/ui/Labels.h"
#include "tests/ui/SolveDesk.h"

namespace {

std::vector<MoveRow> Squares(const QJsonValue& value) {
  std::vector<MoveRow> squares;
  for (const QJsonValue square : value.toArray()) {
    squares.push_back({static_cast<std::int16_t>(square[0].toInt()),
                       static_cast<std::int16_t>(square[1].toInt())});
  }
  return squares;
}

QJsonObject Case(int number) {
  QFile file(TEST_DATA_DIRECTORY "solver-cases.jsonl");
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return QJsonDocument::fromJson(file.readAll().trimmed().split('\n').at(number)).object();
}

class SolveCases : public SolveDesk, public testing::WithParamInterface<int> {
 protected:
  // By clicks on the board.
  void OpenGame(const std::vector<MoveRow>& moves) {
    SolveDesk::OpenGame({});
    globals.settings.StartingPosition = FirstSquare::PlayersChoice;
    Choose("mnuFileNew");
    for (const MoveRow& move : moves) ClickSquare(move.x, move.y);
    ASSERT_EQ(MovesMade(State()), moves);
  }
};

}  // namespace

TEST_P(SolveCases, AreAnsweredExactly) {
  const QJsonObject known = Case(GetParam());
  const bool solved = known["solved"].toBool();
  const std::vector<MoveRow> moves = Squares(known["moves"]);
  OpenGame(moves);
  Solve([&](frmSolve& solve) {
    WhenNextModalOpens([&](QWidget& box) {
      EXPECT_EQ(box.windowTitle(), solved ? "Solved Successfully" : "No Solution");
      box.close();
    });
    Search(solve, [](int) {});
    EXPECT_EQ(TextOf(solve, "lblTestedValue").toLongLong(), known["entries"].toInteger() - 1);
  });
  EXPECT_EQ(MovesMade(State()), solved ? Squares(known["tour"]) : moves);
}

INSTANTIATE_TEST_SUITE_P(Positions, SolveCases, testing::Range(0, 20));
