#include "ui/commands/GameFiles.h"

#include "core/Menus.h"
#include "storage/FileWriter.h"
#include "storage/GameFile.h"
#include "storage/Settings.h"
#include "ui/commands/Replay.h"

namespace {

constexpr const char* GameFilter =
    "Gallopade Nova Games (*.knight;*.kni)|*.knight;*.kni|All Files (*.*)|*.*";

// Empty when the player cancelled.
QString ChooseGame(const CommandContext& context) {
  QString& directory = context.globals.settings.PreviousDirectory;
  QString fileName = context.dialogs.OpenFile({directory, GameFilter});
  if (!fileName.isEmpty()) directory = DirectoryOf(fileName);
  return fileName;
}

// The board is seen filling.
void OpenSavedGame(const CommandContext& context, const GameFile& file) {
  const WatchedWork walk(context.pace, static_cast<int>(file.moves.size()));
  context.game.OpenSavedGame(
      {.elapsedHalfSeconds = file.hasClock ? std::optional(file.elapsedHalfSeconds) : std::nullopt,
       .noScoreGame = file.noScoreGame,
       .moves = file.moves});
}

// The game that was to be opened is lost half-way, so a new one begins without a question.
void ReportFailure(const CommandContext& context, const GameFileFailure& failure) {
  context.window.Tell("Sorry...", FailureText(failure).toStdString(), MessageIcon::Exclamation);
  context.game.StartNewGame();
}

bool WantsReplay(const CommandContext& context, bool replaying, bool over) {
  if (replaying || !over) return replaying;
  return context.window.Ask("Game Over",
                            "This game is over. Do you want to watch a replay of it instead?");
}

// Who asked to close the window while the game was opened is shown no replay.
void GoOnWithLoadedGame(const CommandContext& context, bool replaying) {
  if (context.state.MoveCount == 1) SwitchMenus(context.window, MenuChange::FreshGame);
  const bool isClosing = context.window.Guard().IsCloseRequested();
  const bool over = context.game.CheckIfGameOver(context.state.KnightX, context.state.KnightY);
  if (over) {
    context.game.ExcludeFromScores();
    SwitchMenus(context.window, MenuChange::FinishedGame);
  } else if (!replaying || isClosing) {
    SwitchMenus(context.window, MenuChange::UnfinishedGameOpened);
    context.window.EnableClock(true);
  }
  if (!isClosing && WantsReplay(context, replaying, over)) mnuViewReplay_Click(context);
}

}  // namespace

void LoadGame(const CommandContext& context, const LoadRequest& request) {
  const bool wasRunning = context.game.DoTiming();
  const bool mayLoad =
      !context.game.GameInProgress() ||
      context.window.Ask("Open Game?",
                         "Your current game is not finished. Do you want to open a game?");
  const QString fileName = !mayLoad          ? QString()
                           : request.NoCdlog ? request.NoCdlogFilename
                                             : ChooseGame(context);
  if (fileName.isEmpty()) {
    context.window.EnableClock(wasRunning);
    return;
  }
  const GameFile file = ReadGameFile(fileName);
  OpenSavedGame(context, file);
  if (file.failure) {
    ReportFailure(context, *file.failure);
  } else {
    GoOnWithLoadedGame(context, request.Replaying);
  }
}

void mnuFileOpen_Click(const CommandContext& context) {
  LoadGame(context, {.Replaying = false});
}

void mnuFileOpenReplay_Click(const CommandContext& context) {
  LoadGame(context, {.Replaying = true});
}

void mnuFileSave_Click(const CommandContext& context) {
  const ClockPause pause(context);
  QString& directory = context.globals.settings.PreviousDirectory;
  const QString fileName = context.dialogs.SaveFile({directory, GameFilter});
  if (fileName.isEmpty()) return;
  directory = DirectoryOf(fileName);
  if (const auto error = WriteFile(fileName, FormatGame(context.state))) {
    const QString text =
        "Your file was not saved due to the following error:\n" + ErrorText(*error);
    context.window.Tell("Sorry...", text.toStdString(), MessageIcon::Exclamation);
  }
}

void mnuFileSaveReplay_Click(const CommandContext& context) {
  mnuFileSave_Click(context);
}
