#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include <QByteArray>
#include <QString>

#include "core/GameState.h"
#include "storage/ErrorTable.h"

// Why a game file could not be opened: an error, or none when it is not a game file at all.
struct GameFileFailure {
  std::optional<ProgramError> error = std::nullopt;
};

// What the player is told.
QString FailureText(const GameFileFailure& failure);

// What a game file says up to its end, or up to the failure that ends the reading. The caller
// applies the clock and the moves before it deals with the failure.
struct GameFile {
  bool hasClock = false;  // the clock and noScoreGame could be read
  std::int32_t elapsedHalfSeconds = 0;
  bool noScoreGame = false;
  std::vector<MoveRow> moves = {};  // squares of the board, at most 64; perhaps not knight's moves
  std::optional<GameFileFailure> failure = std::nullopt;
};

// Reads the file at once, so that it is closed again before its first move is applied.
GameFile ReadGameFile(const QString& pathName);
GameFile ParseGame(const QByteArray& text);

// 65 lines: the clock, marked when the game may not be scored, and 64 moves. Moves that could be
// redone are left out.
QByteArray FormatGame(const GameState& state);
