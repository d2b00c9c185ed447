#include <utility>

#include "core/Menus.h"
#include "tests/support/GameTest.h"

namespace {

constexpr std::pair<MenuEntry, const char*> Entries[] = {
    {MenuEntry::mnuEditUndo, "Undo"},
    {MenuEntry::mnuEditRedo, "Redo"},
    {MenuEntry::mnuEditHistory, "CommandHistory"},
    {MenuEntry::mnuViewHistory, "MoveHistory"},
    {MenuEntry::mnuFileRestart, "Restart"},
    {MenuEntry::mnuViewReplay, "Replay"},
    {MenuEntry::mnuFileSave, "Save"},
    {MenuEntry::mnuFileSaveReplay, "SaveReplay"},
    {MenuEntry::mnuFileAutoplay, "Autoplay"},
    {MenuEntry::mnuFileSolve, "Solve"},
};

constexpr const char* Fresh = "Autoplay Solve";
constexpr const char* OneSquare = "Undo CommandHistory MoveHistory Save Autoplay Solve";
constexpr const char* Playing =
    "Undo CommandHistory MoveHistory Restart Replay Save Autoplay Solve";
constexpr const char* PlayingWithRedo =
    "Undo Redo CommandHistory MoveHistory Restart Replay Save Autoplay Solve";
constexpr const char* Over = "Undo CommandHistory MoveHistory Restart Replay SaveReplay";

class Menus : public GameTest {
 protected:
  // The entries that the player can choose.
  std::string On() const {
    std::string names;
    for (const auto& [entry, name] : Entries) {
      if (IsOn(entry)) names += names.empty() ? name : std::string(" ") + name;
    }
    return names;
  }
};

}  // namespace

TEST_F(Menus, OfAFreshGameOfferItsAutomaticEndingOnly) {
  for (const FirstSquare position :
       {StartOnStoredSquare, StartOnPlayersChoice, StartOnRandomSquare}) {
    Begin(position);
    EXPECT_EQ(On(), Fresh);
  }
}

TEST_F(Menus, AreFreshInANewGame) {
  Begin();
  PlaySquares(game, Games::DeadEndAfter20);
  game.mnuFileNew_Click();
  EXPECT_EQ(On(), Fresh);
}

TEST_F(Menus, AreFreshAfterRestart) {
  for (const FirstSquare position : {StartOnStoredSquare, StartOnPlayersChoice}) {
    Begin(position);
    PlayTour(game, 5);
    window.answers = {PlayerSays::Yes};
    game.mnuFileRestart_Click();
    EXPECT_EQ(On(), Fresh);
  }
}

TEST_F(Menus, OfferNeitherRestartNorReplayOnThePlayersFirstSquare) {
  Begin(StartOnPlayersChoice);
  ClickOn("E4");
  EXPECT_EQ(On(), OneSquare);
}

TEST_F(Menus, OfferRestartAndReplayFromTheSecondSquare) {
  for (const FirstSquare position : {StartOnStoredSquare, StartOnPlayersChoice}) {
    Begin(position);
    PlayTour(game, 2);
    EXPECT_EQ(On(), Playing);
  }
}

TEST_F(Menus, OfferNothingToPlayOnWithAfterTheEnd) {
  Begin();
  PlaySquares(game, Games::DeadEndAfter20);
  EXPECT_EQ(On(), Over);
}

TEST_F(Menus, OfferRedoAfterUndo) {
  Begin();
  PlayTour(game, 5);
  TakeBack();
  EXPECT_EQ(On(), PlayingWithRedo);
}

TEST_F(Menus, OfferToPlayOnWhenTheEndIsUndone) {
  Begin();
  PlaySquares(game, Games::DeadEndAfter20);
  TakeBack();
  EXPECT_EQ(On(), PlayingWithRedo);
}

TEST_F(Menus, OfferAlmostNothingWhenOnlyTheAutomaticSquareIsLeft) {
  Begin();
  PlayTour(game, 3);
  TakeBack(2);
  EXPECT_EQ(On(), "Redo CommandHistory Autoplay Solve");
}

TEST_F(Menus, OfferUndoOfTheSquareThatThePlayerPicked) {
  Begin(StartOnPlayersChoice);
  PlayTour(game, 3);
  TakeBack(2);
  EXPECT_EQ(On(), "Undo Redo CommandHistory MoveHistory Save Autoplay Solve");
}

TEST_F(Menus, OfferAlmostNothingWhenThePlayersSquareIsUndone) {
  Begin(StartOnPlayersChoice);
  PlayTour(game, 3);
  TakeBack(3);
  EXPECT_EQ(On(), "Redo CommandHistory Autoplay Solve");
}

TEST_F(Menus, ComeBackWithRedo) {
  Begin(StartOnPlayersChoice);
  PlayTour(game, 3);
  TakeBack(3);
  MakeAgain();
  EXPECT_EQ(On(), "Undo Redo CommandHistory MoveHistory Save Autoplay Solve");
  MakeAgain();
  EXPECT_EQ(On(), PlayingWithRedo);
  MakeAgain();
  EXPECT_EQ(On(), Playing);
}

TEST_F(Menus, LoseRedoWithANewMove) {
  Begin();
  PlayTour(game, 5);
  TakeBack(3);
  ClickOn("E8");
  EXPECT_EQ(On(), Playing);
}

TEST_F(Menus, OfAnUnfinishedGameLetItGoOnAfterTheProgramsOwnMoves) {
  Begin();
  PlayTour(game, 5);
  SwitchMenus(window, MenuChange::FinishedGame);
  window.log.clear();
  game.GoOnOrFinish();
  EXPECT_EQ(TakeLog(), (Steps{"clock on", "mnuFileSave on", "mnuFileSaveReplay off",
                              "mnuFileAutoplay on", "mnuFileSolve on"}));
}

TEST_F(Menus, OfAFinishedGameLeaveItFinishedAfterTheProgramsOwnMoves) {
  Begin();
  PlaySquares(game, Games::DeadEndAfter20);
  window.log.clear();
  game.GoOnOrFinish();
  EXPECT_EQ(TakeLog(), (Steps{"mnuFileSave off", "mnuFileSaveReplay on", "mnuFileAutoplay off",
                              "mnuFileSolve off"}));
}
