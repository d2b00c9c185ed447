#include <algorithm>

#include "storage/GameFile.h"
#include "tests/ui/CommandTest.h"
#include "ui/commands/GameFiles.h"

namespace {

constexpr const char* OpenQuestion =
    "Your current game is not finished. Do you want to open a game?";
constexpr const char* ReplayQuestion =
    "This game is over. Do you want to watch a replay of it instead?";
constexpr const char* NotOpened = "Your file could not be opened due to the following error:\n";
constexpr const char* NotSaved = "Your file was not saved due to the following error:\n";

class GameFiles : public CommandTest {
 protected:
  static QString DataFile(const char* name) { return QString(TEST_DATA_DIRECTORY) + name; }

  void Open(const QString& pathName, bool replaying = false) {
    LoadGame(context, {.Replaying = replaying, .NoCdlog = true, .NoCdlogFilename = pathName});
  }

  QString Game(const QByteArray& clock, const QByteArray& moves) {
    return FileWith("a.knight", clock + "\r\n" + moves);
  }

  bool Told(const std::string& text) const {
    const std::string line = Line("Sorry...", text, MessageIcon::Exclamation);
    return std::find(window.log.begin(), window.log.end(), line) != window.log.end();
  }

  // A playable new game, as at the start of the program.
  void ExpectFreshGame() {
    EXPECT_EQ(state.MoveCount, 1);
    EXPECT_FALSE(state.ApplyingMoves);
    EXPECT_FALSE(state.NoScoreGame);
    EXPECT_EQ(state.ElapsedHalfSeconds, 0);
    EXPECT_FALSE(window.IsMenuEnabled(MenuEntry::mnuFileSave));
    Click("B6");
    EXPECT_EQ(state.MoveCount, 2);
  }
};

}  // namespace

TEST_F(GameFiles, OpenAGameThatCanBePlayedOn) {
  Begin();
  Open(DataFile("beverley-first-40.knight"));
  EXPECT_EQ(state.MoveCount, 40);
  EXPECT_TRUE(window.IsClockEnabled());
  EXPECT_FALSE(window.IsMenuEnabled(MenuEntry::mnuFileSaveReplay));
  EXPECT_TRUE(window.IsMenuEnabled(MenuEntry::mnuFileSave));
  EXPECT_EQ(state.CursorX, state.KnightX);
  EXPECT_EQ(state.CursorY, state.KnightY);
  EXPECT_FALSE(state.ApplyingMoves);
  EXPECT_EQ(state.GameStartingPosition, FirstSquare::Stored);
}

TEST_F(GameFiles, OfferAReplayOfAFinishedGame) {
  Begin();
  window.answers = {PlayerSays::No};
  Open(DataFile("beverley-1848.knight"));
  EXPECT_EQ(state.MoveCount, 64);
  EXPECT_EQ(window.log.back(), Line("Game Over", ReplayQuestion, DefaultAnswer::Yes));
  EXPECT_TRUE(state.NoScoreGame);
  EXPECT_FALSE(window.IsClockEnabled());
  EXPECT_FALSE(window.IsMenuEnabled(MenuEntry::mnuFileSave));
  EXPECT_TRUE(window.IsMenuEnabled(MenuEntry::mnuFileSaveReplay));
  EXPECT_FALSE(window.IsMenuEnabled(MenuEntry::mnuFileAutoplay));
  EXPECT_FALSE(window.IsMenuEnabled(MenuEntry::mnuFileSolve));
}

TEST_F(GameFiles, ReplayAFinishedGameOnYes) {
  Begin();
  window.answers = {PlayerSays::Yes};
  windows.onShow = [this](const std::string&) { EXPECT_EQ(state.MoveCount, 1); };
  Open(DataFile("beverley-1848.knight"));
  EXPECT_EQ(TakeWindows(), Steps{"show frmReplay 64"});
}

TEST_F(GameFiles, ReplayWithoutAQuestionFromOpenReplay) {
  Begin();
  Open(DataFile("beverley-1848.knight"), true);
  EXPECT_EQ(TakeWindows(), Steps{"show frmReplay 64"});
}

TEST_F(GameFiles, ReplayAnUnfinishedGameFromOpenReplay) {
  Begin();
  Open(DataFile("beverley-first-40.knight"), true);
  EXPECT_EQ(TakeWindows(), Steps{"show frmReplay 40"});
}

TEST_F(GameFiles, AskBeforeAGameInProgressIsLost) {
  Begin();
  Click("B6");
  window.answers = {PlayerSays::No};
  dialogs.paths = {DataFile("beverley-first-40.knight")};
  LoadGame(context, {});
  EXPECT_EQ(window.log.back(), "clock on");
  EXPECT_EQ(state.MoveCount, 2);
  EXPECT_EQ(dialogs.paths.size(), 1U);
}

TEST_F(GameFiles, LeaveTheGameWhenNoFileIsChosen) {
  Begin();
  Click("B6");
  window.answers = {PlayerSays::Yes};
  TakeLog();
  LoadGame(context, {});
  EXPECT_EQ(TakeLog(), (Steps{"clock off", Line("Open Game?", OpenQuestion, DefaultAnswer::Yes),
                              "open " + globals.ProgramDirectory.toStdString() +
                                  "|Gallopade Nova Games (*.knight;*.kni)|*.knight;*.kni|All Files "
                                  "(*.*)|*.*",
                              "clock on"}));
  EXPECT_EQ(state.MoveCount, 2);
}

TEST_F(GameFiles, RememberTheDirectoryOfTheChosenFile) {
  Begin();
  dialogs.paths = {DataFile("beverley-first-40.knight")};
  LoadGame(context, {});
  EXPECT_EQ(globals.settings.PreviousDirectory, QString(TEST_DATA_DIRECTORY));
}

TEST_F(GameFiles, TakeTheClockAndTheMarkFromTheFirstLine) {
  Begin();
  Open(Game("20-", "0 0\r\n1 2\r\n-1 -1\r\n"));
  EXPECT_EQ(state.ElapsedHalfSeconds, 20);
  EXPECT_TRUE(state.NoScoreGame);
  window.answers = {PlayerSays::Yes};
  Open(Game("20", "0 0\r\n1 2\r\n-1 -1\r\n"));
  EXPECT_EQ(state.ElapsedHalfSeconds, 20);
  EXPECT_FALSE(state.NoScoreGame);
}

TEST_F(GameFiles, SetTheMenuOfAFreshGameForOneSquare) {
  Begin();
  Open(DataFile("beverley-first-40.knight"));
  window.answers = {PlayerSays::Yes};
  Open(Game("20", "3 3\r\n-1 -1\r\n"));
  EXPECT_EQ(state.MoveCount, 1);
  for (const MenuEntry entry :
       {MenuEntry::mnuEditUndo, MenuEntry::mnuEditRedo, MenuEntry::mnuEditHistory,
        MenuEntry::mnuViewHistory, MenuEntry::mnuFileRestart, MenuEntry::mnuViewReplay,
        MenuEntry::mnuFileSave, MenuEntry::mnuFileSaveReplay}) {
    EXPECT_FALSE(window.IsMenuEnabled(entry)) << static_cast<int>(entry);
  }
  EXPECT_TRUE(window.IsMenuEnabled(MenuEntry::mnuFileAutoplay));
  EXPECT_TRUE(window.IsMenuEnabled(MenuEntry::mnuFileSolve));
}

TEST_F(GameFiles, ApplyJumpsThatNoKnightCanMake) {
  Begin();
  Open(Game("0", "0 0\r\n7 7\r\n-1 -1\r\n"));
  EXPECT_EQ(state.MoveCount, 2);
  EXPECT_EQ(state.KnightX, 7);
}

TEST_F(GameFiles, ShowTheBoardFilling) {
  Begin();
  int yields = 0;
  window.onDoEvents = [&] {
    EXPECT_EQ(state.MoveCount, ++yields);
    EXPECT_TRUE(state.ApplyingMoves);
    EXPECT_TRUE(window.IsWorking());
  };
  Open(DataFile("beverley-first-40.knight"));
  EXPECT_EQ(yields, 40);
}

TEST_F(GameFiles, AreOpenedToTheEndWhenTheWindowIsAboutToClose) {
  Begin();
  window.onDoEvents = [&] { window.Guard().SetCloseRequested(true); };
  Open(DataFile("beverley-1848.knight"));
  EXPECT_EQ(state.MoveCount, 64);
  EXPECT_EQ(std::count(window.log.begin(), window.log.end(), "DoEvents"), 1);
}

TEST_F(GameFiles, AreNoReplayWhenTheWindowIsAboutToClose) {
  Begin();
  window.SetMenuEnabled(MenuEntry::mnuFileSaveReplay, true);
  window.onDoEvents = [&] { window.Guard().SetCloseRequested(true); };
  Open(DataFile("beverley-first-40.knight"), true);
  EXPECT_FALSE(window.IsMenuEnabled(MenuEntry::mnuFileSaveReplay));
  EXPECT_TRUE(window.IsClockEnabled());
}

TEST_F(GameFiles, NeitherStartTheClockNorEndTheGameWhileTheyAreRead) {
  Begin();
  window.onEndGame = [](const GameOverReport&) { ADD_FAILURE() << "the game was ended"; };
  window.onDoEvents = [this] { EXPECT_FALSE(window.IsClockEnabled()); };
  window.answers = {PlayerSays::No};
  Open(DataFile("beverley-1848.knight"));
}

TEST_F(GameFiles, MarkANewGameForWhoeverYielded) {
  Begin();
  const auto before = state.GameSerial;
  Open(DataFile("beverley-first-40.knight"));
  EXPECT_NE(state.GameSerial, before);
}

TEST_F(GameFiles, ReportAMissingFile) {
  Begin();
  Open(FilePath("nowhere.knight"));
  EXPECT_TRUE(Told(std::string(NotOpened) + "File not found (53)."));
  ExpectFreshGame();
}

TEST_F(GameFiles, RejectAFileWithAStrangeNegativeColumn) {
  Begin();
  Open(Game("0", "0 0\r\n-2 3\r\n"));
  EXPECT_TRUE(Told("This is not a Gallopade Nova Game File!"));
  ExpectFreshGame();
}

TEST_F(GameFiles, RejectAFileWithANegativeRow) {
  Begin();
  Open(Game("0", "0 0\r\n3 -7\r\n"));
  EXPECT_TRUE(Told("This is not a Gallopade Nova Game File!"));
  ExpectFreshGame();
}

TEST_F(GameFiles, ReportASquareOffTheBoard) {
  Begin();
  Open(Game("0", "0 0\r\n12 34\r\n"));
  EXPECT_TRUE(Told(std::string(NotOpened) + "Subscript out of range (9)."));
  ExpectFreshGame();
}

TEST_F(GameFiles, ReportAFileThatEndsTooEarly) {
  Begin();
  Open(Game("0", "0 0\r\n1 2\r\n"));
  EXPECT_TRUE(Told(std::string(NotOpened) + "Input past end of file (62)."));
  ExpectFreshGame();
}

TEST_F(GameFiles, ReportAFileWithoutMoves) {
  Begin();
  Open(Game("0", "-1 -1\r\n"));
  EXPECT_TRUE(Told(std::string(NotOpened) + "Subscript out of range (9)."));
  ExpectFreshGame();
}

TEST_F(GameFiles, ReportAnEmptyFile) {
  Begin();
  Open(FileWith("empty.knight", ""));
  EXPECT_TRUE(Told(std::string(NotOpened) + "Input past end of file (62)."));
  ExpectFreshGame();
}

TEST_F(GameFiles, AskNothingBeforeTheNewGameAfterAFailure) {
  Begin();
  Open(Game("0", "0 0\r\n1 2\r\n2 4\r\n9 9\r\n"));
  ExpectFreshGame();
}

TEST_F(GameFiles, SaveTheMovesMadeAndNotThoseToRedo) {
  Begin();
  for (const char* square : {"B6", "C8", "D6"}) Click(square);
  game.mnuEditUndo_Click();
  dialogs.paths = {FilePath("saved.knight")};
  mnuFileSave_Click(context);
  const QList<QByteArray> lines = BytesOf(FilePath("saved.knight")).split('\n');
  EXPECT_EQ(lines.size(), 66);
  EXPECT_EQ(lines[3], "2 0\r");
  EXPECT_EQ(lines[4], "-1 -1\r");
}

TEST_F(GameFiles, PauseTheClockWhileAFileIsChosen) {
  Begin();
  Click("B6");
  TakeLog();
  mnuFileSave_Click(context);
  const Steps steps = TakeLog();
  EXPECT_EQ(steps.front(), "clock off");
  EXPECT_EQ(steps.back(), "clock on");
}

TEST_F(GameFiles, ReportAGameThatCannotBeSaved) {
  Begin();
  Click("B6");
  dialogs.paths = {FilePath("nowhere/saved.knight")};
  mnuFileSave_Click(context);
  EXPECT_TRUE(Told(std::string(NotSaved) + "Path not found (76)."));
  EXPECT_EQ(state.MoveCount, 2);
}

TEST_F(GameFiles, NeverGetAnExtensionOfTheProgramsOwn) {
  Begin();
  Click("B6");
  dialogs.paths = {FilePath("plain")};
  mnuFileSave_Click(context);
  EXPECT_FALSE(BytesOf(FilePath("plain")).isEmpty());
}

TEST_F(GameFiles, ComeBackByteForByte) {
  Begin();
  PlayTour(game, 30);
  state.ElapsedHalfSeconds = 1234;
  dialogs.paths = {FilePath("first"), FilePath("second")};
  mnuFileSave_Click(context);
  window.answers = {PlayerSays::Yes};
  Open(FilePath("first"));
  mnuFileSave_Click(context);
  EXPECT_EQ(BytesOf(FilePath("first")), BytesOf(FilePath("second")));
}
