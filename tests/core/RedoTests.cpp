#include <algorithm>

#include "tests/support/GameTest.h"

using Redo = GameTest;
using ClearRedo = GameTest;

TEST_F(Redo, TakesItsStepsInOrder) {
  Begin();
  PlayTour(game, 3);
  TakeBack();
  window.log.clear();
  game.mnuEditRedo_Click();
  EXPECT_EQ(TakeLog(), (Steps{
                           "mnuEditUndo on",
                           "mnuViewHistory on",
                           "mnuEditHistory on",
                           "mnuFileRestart on",
                           "mnuViewReplay on",
                           "mnuFileSave on",
                           "mnuFileAutoplay on",
                           "mnuFileSolve on",
                           "RestoreColors",
                           "clock on",
                           "mnuEditRedo off",
                           "RestoreColors",
                       }));
}

TEST_F(Redo, StaysEnabledWhileThereIsMoreToRedo) {
  Begin();
  PlayTour(game, 4);
  TakeBack(3);
  MakeAgain(2);
  EXPECT_TRUE(IsOn(MenuEntry::mnuEditRedo));
  MakeAgain();
  EXPECT_FALSE(IsOn(MenuEntry::mnuEditRedo));
}

TEST_F(Redo, BringsBackWhatWasUndone) {
  Begin();
  PlayTour(game, 10);
  const auto board = state.Board;
  const auto moves = state.MoveList;
  TakeBack(3);
  MakeAgain(3);
  EXPECT_EQ(state.Board, board);
  EXPECT_EQ(state.MoveList, moves);
  EXPECT_EQ(state.MoveCount, 10);
  EXPECT_EQ(Knight(), "G3");
}

TEST_F(Redo, SurvivesAnyNumberOfUndoAndRedoSteps) {
  Begin();
  PlayTour(game, 30);
  for (int steps = 1; steps < 30; ++steps) {
    TakeBack(steps);
    MakeAgain(steps);
  }
  EXPECT_EQ(MovesMade(state).size(), 30U);
  TakeBack(29);
  EXPECT_EQ(MovesToRedo(state).size(), 29U);
}

TEST_F(Redo, WithNothingToRedoDropsTheCursorAndDoesNothingElse) {
  Begin();
  PlayTour(game, 3);
  window.log.clear();
  game.mnuEditRedo_Click();
  EXPECT_EQ(Cursor(), "none");
  EXPECT_EQ(MovesMade(state), SquaresNamed("A8 C7 B5"));
  EXPECT_EQ(TakeLog(), Steps{});
}

TEST_F(Redo, OfAMoveShowsTheCursorOnIt) {
  Begin();
  PlayTour(game, 3);
  TakeBack();
  game.mnuEditRedo_Click();
  EXPECT_EQ(Cursor(), "B5");
}

TEST_F(Redo, TakesTheFirstSquareAgain) {
  Begin(StartOnPlayersChoice);
  ClickOn("E4");
  TakeBack();
  game.mnuEditRedo_Click();
  EXPECT_EQ(MovesMade(state), SquaresNamed("E4"));
  EXPECT_TRUE(state.FirstMoveMade);
  ClickOn("F6");
  EXPECT_EQ(Knight(), "F6");
}

TEST_F(Redo, EndsTheGameAgain) {
  Begin();
  PlaySquares(game, Games::DeadEndAfter20);
  TakeBack();
  window.log.clear();
  game.mnuEditRedo_Click();
  EXPECT_EQ(std::count(window.log.begin(), window.log.end(),
                       "EndGame &Submit to Scores|There are no more valid moves.|20|0"),
            1);
  EXPECT_FALSE(window.IsClockEnabled());
  EXPECT_FALSE(IsOn(MenuEntry::mnuEditRedo));
}

TEST_F(Redo, StaysEnabledWhenTheEndIsUndoneAtOnce) {
  Begin();
  PlaySquares(game, Games::DeadEndAfter20);
  TakeBack();
  window.onEndGame = [this](const GameOverReport&) { game.mnuEditUndo_Click(); };
  game.mnuEditRedo_Click();
  EXPECT_TRUE(IsOn(MenuEntry::mnuEditRedo));
  EXPECT_EQ(MovesToRedo(state), SquaresNamed("A1"));
}

TEST_F(Redo, LeavesANewGameAloneThatBeganAtTheEnd) {
  Begin();
  PlaySquares(game, Games::DeadEndAfter20);
  TakeBack();
  options.StartingPosition = StartOnPlayersChoice;
  window.onEndGame = [this](const GameOverReport&) { game.mnuFileNew_Click(); };
  game.mnuEditRedo_Click();
  EXPECT_EQ(state.MoveCount, 0);
  EXPECT_FALSE(state.FirstMoveMade);
  EXPECT_FALSE(IsOn(MenuEntry::mnuEditRedo));
  ClickOn("E4");
  EXPECT_EQ(MovesMade(state), SquaresNamed("E4"));
}

TEST_F(Redo, LeavesTheClockAloneWhileTheProgramMakesMoves) {
  Begin();
  PlayTour(game, 3);
  TakeBack();
  window.EnableClock(false);
  state.ApplyingMoves = true;
  game.mnuEditRedo_Click();
  EXPECT_FALSE(window.IsClockEnabled());
}

TEST_F(Redo, OfTheSixtyFourthMoveStaysEnabled) {
  Begin();
  PlayTour(game, 64);
  TakeBack();
  EXPECT_EQ(MovesToRedo(state), SquaresNamed("C1"));
  game.mnuEditRedo_Click();
  EXPECT_EQ(MovesMade(state), SquaresNamed(Games::CompleteTour));
  EXPECT_TRUE(IsOn(MenuEntry::mnuEditRedo));
}

TEST_F(Redo, AfterSixtyFourMovesDropsTheCursorAndDoesNothingElse) {
  Begin();
  PlayTour(game, 64);
  TakeBack();
  game.mnuEditRedo_Click();
  const GameState before = state;
  window.log.clear();
  MakeAgain(3);
  EXPECT_EQ(Cursor(), "none");
  EXPECT_EQ(TakeLog(), Steps{});
  EXPECT_EQ(state.MoveCount, 64);
  EXPECT_EQ(state.MoveList, before.MoveList);
  EXPECT_EQ(state.Board, before.Board);
  EXPECT_EQ(Knight(), "C1");
  EXPECT_TRUE(IsOn(MenuEntry::mnuEditRedo));
}

TEST_F(Redo, IsLostToAMoveOfThePlayer) {
  Begin();
  PlayTour(game, 6);
  TakeBack(3);
  ClickOn("D4");
  EXPECT_TRUE(MovesToRedo(state).empty());
  EXPECT_FALSE(IsOn(MenuEntry::mnuEditRedo));
  EXPECT_EQ(MovesMade(state), SquaresNamed("A8 C7 B5 D4"));
}

TEST_F(Redo, IsLostEvenToTheSameMove) {
  Begin();
  PlayTour(game, 6);
  TakeBack(3);
  ClickOn("D6");
  EXPECT_TRUE(MovesToRedo(state).empty());
}

TEST_F(ClearRedo, EmptiesTheRowsAfterTheMovesMade) {
  Begin();
  PlayTour(game, 64);
  TakeBack(60);
  game.ClearRedo();
  EXPECT_EQ(MovesMade(state), SquaresNamed("A8 C7 B5 D6"));
  for (std::size_t row = 4; row < 64; ++row) EXPECT_EQ(state.MoveList[row], EmptyMove) << row;
  EXPECT_EQ(state.MoveList[64], (MoveRow{0, 0}));
}

TEST_F(ClearRedo, StopsAtTheFirstEmptyRow) {
  Begin();
  state.MoveList[1] = {2, 1};
  state.MoveList[3] = {5, 5};
  game.ClearRedo();
  EXPECT_EQ(state.MoveList[1], EmptyMove);
  EXPECT_EQ(state.MoveList[3], (MoveRow{5, 5}));
}

TEST_F(ClearRedo, LeavesACompleteTourAlone) {
  Begin();
  PlayTour(game, 64);
  const auto moves = state.MoveList;
  window.log.clear();
  game.ClearRedo();
  EXPECT_EQ(state.MoveList, moves);
  EXPECT_EQ(TakeLog(), Steps{"mnuEditRedo off"});
}
