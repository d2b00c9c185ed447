#include <bit>
#include <random>

#include <gtest/gtest.h>

#include "ui/board/BoardModel.h"

namespace {

constexpr int CornerSquare = SquareIndex(0, 0);
constexpr int ReachableSquare = SquareIndex(2, 1);

class Board : public testing::Test {
 protected:
  Board() {
    Take(0, 0);
    model.RestoreColors(state, look, -1, -1);
    model.TakeChanges();
  }

  void Take(int x, int y) {
    state.Cell(x, y) = GameState::Visited;
    state.KnightX = static_cast<std::int16_t>(x);
    state.KnightY = static_cast<std::int16_t>(y);
    state.FirstMoveMade = true;
  }

  int ChangedCells() { return std::popcount(model.TakeChanges()); }

  GameState state;
  BoardLook look;
  BoardModel model;
};

// Two boards of one game, one of which looks at all of its cells at every refresh.
class AnyGame {
 public:
  AnyGame() { model_.SetCellSide(CellSide); }

  void ChangeSomething() {
    state_.Cell(Below(BoardSide), Below(BoardSide)) =
        Below(2) == 0 ? GameState::Visited : GameState::Unvisited;
    switch (Below(5)) {
      case 0:
        state_.KnightX = static_cast<std::int16_t>(Below(BoardSide));
        break;
      case 1:
        state_.KnightY = static_cast<std::int16_t>(Below(BoardSide));
        break;
      case 2:
        state_.FirstMoveMade = !state_.FirstMoveMade;
        break;
      case 3:
        HighlightSomething();
        break;
      default:
        ChangeTheLook();
    }
  }

  void Refresh() {
    thorough_.SetCellSide(CellSide);
    thorough_.RestoreColors(state_, look_, -1, -1);
    model_.RestoreColors(state_, look_, -1, -1);
  }

  void ExpectOnePicture() const {
    for (int i = 0; i < SquareCount; ++i) ASSERT_EQ(model_.Cell(i), thorough_.Cell(i)) << i;
  }

 private:
  static constexpr double CellSide = 900;

  int Below(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }

  void HighlightSomething() {
    const int square = Below(SquareCount);
    const bool forced = Below(2) == 0;
    for (BoardModel* board : {&model_, &thorough_}) {
      board->HighlightSquare(state_, look_, square, forced);
    }
  }

  // Now and then two looks have the same colour.
  void ChangeTheLook() {
    look_.LightColor = Below(3);
    look_.KnightColor = Below(3);
    look_.UseImages = Below(3) != 0;
    look_.UseBorders = Below(2) == 0;
    look_.ImagePositioning = static_cast<Positioning>(Below(3));
    const PictureSize size{300.0 + Below(2), 400};
    for (BoardModel* board : {&model_, &thorough_}) {
      board->SetPictureSize(SquarePicture::Knight, size);
    }
  }

  std::mt19937 random_{640};
  GameState state_;
  BoardLook look_;
  BoardModel model_;
  BoardModel thorough_;
};

}  // namespace

TEST_F(Board, IsDarkInTheTopLeftCornerAndLightBesideIt) {
  state = GameState{};
  model.RestoreColors(state, look, -1, -1);
  EXPECT_EQ(model.Cell(SquareIndex(0, 0)).backColor, look.DarkColor);
  EXPECT_EQ(model.Cell(SquareIndex(0, 0)).picture, SquarePicture::Dark);
  EXPECT_EQ(model.Cell(SquareIndex(1, 0)).backColor, look.LightColor);
  EXPECT_EQ(model.Cell(SquareIndex(1, 0)).picture, SquarePicture::Light);
}

TEST_F(Board, ShowsTheKnightAndTheSquaresItHasVisited) {
  Take(2, 1);
  model.RestoreColors(state, look, -1, -1);
  EXPECT_EQ(model.Cell(CornerSquare).picture, SquarePicture::Visited);
  EXPECT_EQ(model.Cell(ReachableSquare).picture, SquarePicture::Knight);
}

TEST_F(Board, ShowsNoKnightBeforeTheFirstSquareIsTaken) {
  BoardModel fresh;
  fresh.RestoreColors(GameState{}, look, -1, -1);
  for (int i = 0; i < SquareCount; ++i) EXPECT_NE(fresh.Cell(i).picture, SquarePicture::Knight);
}

TEST_F(Board, ChangesNothingWhenNothingChanged) {
  model.RestoreColors(state, look, -1, -1);
  EXPECT_EQ(ChangedCells(), 0);
}

TEST_F(Board, ChangesTwoCellsForAMove) {
  Take(2, 1);
  model.RestoreColors(state, look, -1, -1);
  EXPECT_EQ(ChangedCells(), 2);
}

TEST_F(Board, ChangesNothingWhileThePointerStaysInOneSquare) {
  model.HighlightSquare(state, look, ReachableSquare, false);
  EXPECT_EQ(ChangedCells(), 1);
  model.HighlightSquare(state, look, ReachableSquare, false);
  EXPECT_EQ(ChangedCells(), 0);
}

TEST_F(Board, HighlightsOneSquareAtATime) {
  model.HighlightSquare(state, look, ReachableSquare, false);
  model.HighlightSquare(state, look, SquareIndex(1, 2), false);
  EXPECT_NE(model.Cell(ReachableSquare).backColor, look.HighlightColor);
  EXPECT_EQ(model.Cell(SquareIndex(1, 2)).backColor, look.HighlightColor);
}

TEST_F(Board, HighlightsOnlyValidMovesWhenToldSo) {
  look.HighlightingMethod = Highlighting::ValidMovesOnly;
  model.HighlightSquare(state, look, SquareIndex(3, 3), false);
  EXPECT_NE(model.Cell(SquareIndex(3, 3)).backColor, look.HighlightColor);
  model.HighlightSquare(state, look, CornerSquare, false);
  EXPECT_EQ(model.Cell(CornerSquare).backColor, look.KnightColor);
  Take(2, 1);
  model.RestoreColors(state, look, -1, -1);
  model.HighlightSquare(state, look, CornerSquare, false);
  EXPECT_EQ(model.Cell(CornerSquare).backColor, look.VisitedColor);
}

TEST_F(Board, HighlightsAnySquareUnderTheCursorWhenToldSo) {
  look.HighlightingMethod = Highlighting::CursorPosition;
  model.HighlightSquare(state, look, SquareIndex(3, 3), false);
  EXPECT_EQ(model.Cell(SquareIndex(3, 3)).backColor, look.HighlightColor);
  EXPECT_EQ(model.Cell(SquareIndex(3, 3)).picture, SquarePicture::Highlight);
}

TEST_F(Board, HighlightsNothingWhenToldSo) {
  look.HighlightingMethod = Highlighting::None;
  model.HighlightSquare(state, look, ReachableSquare, false);
  EXPECT_EQ(ChangedCells(), 0);
}

TEST_F(Board, HighlightsTheSquareToBeginOnWhateverTheMethod) {
  look.HighlightingMethod = Highlighting::None;
  state = GameState{};
  model.HighlightSquare(state, look, SquareIndex(3, 3), false);
  EXPECT_EQ(model.Cell(SquareIndex(3, 3)).backColor, look.HighlightColor);
}

TEST_F(Board, HighlightsAForcedSquareWhateverTheMethod) {
  look.HighlightingMethod = Highlighting::None;
  model.HighlightSquare(state, look, SquareIndex(3, 3), true);
  EXPECT_EQ(model.Cell(SquareIndex(3, 3)).backColor, look.HighlightColor);
}

TEST_F(Board, DrawsNothingWhileTheSolverRunsAndEverythingAfterIt) {
  Take(2, 1);
  state.SolverRunning = true;
  model.RestoreColors(state, look, -1, -1);
  EXPECT_EQ(ChangedCells(), 0);
  state.SolverRunning = false;
  model.RestoreColors(state, look, -1, -1);
  EXPECT_EQ(ChangedCells(), 2);
}

TEST_F(Board, KeepsThePictureOfASquareWhoseColorStays) {
  look.UseImages = false;
  BoardModel plain;
  plain.RestoreColors(state, look, -1, -1);
  look.UseImages = true;
  plain.RestoreColors(state, look, -1, -1);
  EXPECT_FALSE(plain.Cell(SquareIndex(3, 3)).picture.has_value());
}

TEST_F(Board, HidesAllImagesWhenImagesAreNotUsed) {
  look.UseImages = false;
  model.RestoreColors(state, look, -1, -1);
  for (int i = 0; i < SquareCount; ++i) EXPECT_FALSE(model.Cell(i).imageVisible);
  EXPECT_EQ(ChangedCells(), SquareCount);
}

TEST_F(Board, StretchesOrCentresTheImagesItShowsAgain) {
  look.UseImages = false;
  model.RestoreColors(state, look, -1, -1);
  look.UseImages = true;
  look.ImagePositioning = Positioning::Centred;
  model.RestoreColors(state, look, -1, -1);
  for (int i = 0; i < SquareCount; ++i) {
    EXPECT_TRUE(model.Cell(i).imageVisible);
    EXPECT_FALSE(model.Cell(i).stretch);
  }
}

TEST_F(Board, SwitchesStretchingWithThePositioning) {
  for (const Positioning positioning : {Positioning::Centred, Positioning::Stretched}) {
    look.ImagePositioning = positioning;
    model.RestoreColors(state, look, -1, -1);
    for (int i = 0; i < SquareCount; ++i)
      EXPECT_EQ(model.Cell(i).stretch, positioning == Positioning::Stretched);
  }
}

TEST_F(Board, GivesAndTakesBorders) {
  look.UseBorders = true;
  model.RestoreColors(state, look, -1, -1);
  EXPECT_TRUE(model.Cell(5).border);
  look.UseBorders = false;
  model.RestoreColors(state, look, -1, -1);
  EXPECT_FALSE(model.Cell(5).border);
}

TEST_F(Board, CentresAPictureInItsCell) {
  look.ImagePositioning = Positioning::Centred;
  model.SetCellSide(1200);
  model.SetPictureSize(SquarePicture::Light, {600, 300});
  model.RestoreColors(state, look, -1, -1);
  EXPECT_DOUBLE_EQ(model.Cell(SquareIndex(1, 0)).imageLeft, 300);
  EXPECT_DOUBLE_EQ(model.Cell(SquareIndex(1, 0)).imageTop, 450);
}

TEST_F(Board, LeavesACentredPictureThatIsHalfATwipOff) {
  look.ImagePositioning = Positioning::Centred;
  model.SetPictureSize(SquarePicture::Light, {600, 600});
  model.SetCellSide(1200);
  model.ReCenterImages(look);
  model.SetCellSide(1201);
  model.ReCenterImages(look);
  EXPECT_DOUBLE_EQ(model.Cell(SquareIndex(1, 0)).imageLeft, 300);
  model.SetCellSide(1202);
  model.ReCenterImages(look);
  EXPECT_DOUBLE_EQ(model.Cell(SquareIndex(1, 0)).imageLeft, 301);
}

TEST_F(Board, StretchesAPictureOverItsCell) {
  model.SetCellSide(1200);
  model.ReCenterImages(look);
  EXPECT_DOUBLE_EQ(model.Cell(3).imageLeft, 0);
  EXPECT_DOUBLE_EQ(model.Cell(3).imageWidth, 1200);
  EXPECT_DOUBLE_EQ(model.Cell(3).imageHeight, 1200);
}

TEST(AnyBoard, LooksAfterARefreshAsIfItHadLookedAtEveryCell) {
  AnyGame game;
  for (int refresh = 0; refresh < 5'000; ++refresh) {
    game.ChangeSomething();
    game.Refresh();
    ASSERT_NO_FATAL_FAILURE(game.ExpectOnePicture()) << refresh;
  }
}
