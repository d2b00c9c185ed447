#include <algorithm>
#include <random>

#include "storage/FileWriter.h"
#include "storage/GameFile.h"
#include "tests/storage/TestFiles.h"

namespace {

GameState GameOf(const std::vector<MoveRow>& moves, std::int32_t elapsedHalfSeconds) {
  GameState state;
  state.MoveCount = static_cast<std::int16_t>(moves.size());
  std::copy(moves.begin(), moves.end(), state.MoveList.begin());
  state.ElapsedHalfSeconds = elapsedHalfSeconds;
  return state;
}

// A knight that jumps at random until it is stuck or has had enough.
std::vector<MoveRow> ChanceGame(std::mt19937& random) {
  std::vector<MoveRow> moves = {
      {static_cast<std::int16_t>(random() % 8U), static_cast<std::int16_t>(random() % 8U)}};
  for (unsigned tries = random() % 2000U; tries > 0 && moves.size() < SquareCount; --tries) {
    const Offset jump = KnightMoveOffsets[random() % 8U];
    const MoveRow next{static_cast<std::int16_t>(moves.back().x + jump.dx),
                       static_cast<std::int16_t>(moves.back().y + jump.dy)};
    const bool isFree = std::find(moves.begin(), moves.end(), next) == moves.end();
    if (IsSquare(next.x, next.y) && isFree) moves.push_back(next);
  }
  return moves;
}

}  // namespace

TEST(ASavedGame, HasItsClockAndItsMovesAndEmptySlots) {
  EXPECT_EQ(FormatGame(GameOf({{0, 0}, {1, 2}, {3, 5}}, 1234)),
            "1234\r\n0 0\r\n1 2\r\n3 5\r\n" + QByteArray("-1 -1\r\n").repeated(61));
}

TEST(ASavedGame, IsMarkedWhenItMayNotBeScored) {
  GameState state = GameOf({{0, 0}}, 1234);
  state.NoScoreGame = true;
  EXPECT_TRUE(FormatGame(state).startsWith("1234-\r\n"));
}

TEST(ASavedGame, Has65Lines) {
  for (const int moves : {0, 1, 10, 63, 64}) {
    const GameState state = GameOf(std::vector<MoveRow>(static_cast<std::size_t>(moves)), 0);
    EXPECT_EQ(FormatGame(state).count("\r\n"), 65);
    EXPECT_EQ(FormatGame(state).count("-1 -1\r\n"), 64 - moves);
  }
}

TEST(ASavedGame, LeavesOutTheMovesThatCouldBeRedone) {
  GameState state = GameOf({{0, 0}, {1, 2}, {3, 5}}, 7);
  state.MoveCount = 2;
  EXPECT_EQ(FormatGame(state), FormatGame(GameOf({{0, 0}, {1, 2}}, 7)));
}

TEST(ASavedGame, IsReadBack) {
  const std::vector<MoveRow> moves = {{7, 0}, {5, 1}, {6, 3}};
  const GameFile file = ParseGame(FormatGame(GameOf(moves, 99)));
  EXPECT_EQ(file.failure, std::nullopt);
  EXPECT_EQ(file.moves, moves);
  EXPECT_EQ(file.elapsedHalfSeconds, 99);
  EXPECT_FALSE(file.noScoreGame);
}

TEST(ASavedGame, IsTheSameByteForByteAfterItWasLoadedAndSavedAgain) {
  std::mt19937 random(64);
  for (int game = 0; game < 2000; ++game) {
    GameState state = GameOf(ChanceGame(random), static_cast<std::int32_t>(random() >> 1U));
    state.NoScoreGame = random() % 2U == 0;
    const QByteArray text = FormatGame(state);
    const GameFile file = ParseGame(text);
    ASSERT_EQ(file.failure, std::nullopt);
    GameState loaded = GameOf(file.moves, file.elapsedHalfSeconds);
    loaded.NoScoreGame = file.noScoreGame;
    ASSERT_EQ(FormatGame(loaded), text);
  }
}

class AGameFile : public FolderTest {};

TEST_F(AGameFile, IsReadFromDisk) {
  const GameFile file = ReadGameFile(TEST_DATA_DIRECTORY "beverley-1848.knight");
  EXPECT_EQ(file.failure, std::nullopt);
  EXPECT_EQ(file.moves.size(), 64U);
  EXPECT_EQ(file.elapsedHalfSeconds, 754);
  EXPECT_FALSE(file.noScoreGame);
}

TEST_F(AGameFile, MayEndBeforeTheBoardIsFull) {
  const GameFile file = ReadGameFile(TEST_DATA_DIRECTORY "beverley-first-40.knight");
  EXPECT_EQ(file.failure, std::nullopt);
  EXPECT_EQ(file.moves.size(), 40U);
}

TEST_F(AGameFile, IsSavedAgainAsItWas) {
  for (const QString name : {"beverley-1848.knight", "beverley-first-40.knight"}) {
    const GameFile file = ReadGameFile(TEST_DATA_DIRECTORY + name);
    GameState state = GameOf(file.moves, file.elapsedHalfSeconds);
    state.NoScoreGame = file.noScoreGame;
    EXPECT_EQ(WriteFile(PathOf(name), FormatGame(state)), std::nullopt);
    EXPECT_EQ(ContentOf(PathOf(name)), ContentOf(TEST_DATA_DIRECTORY + name));
  }
}

TEST_F(AGameFile, IsAnErrorWhenItIsNotThere) {
  const GameFile file = ReadGameFile(PathOf("x.knight"));
  ASSERT_TRUE(file.failure);
  EXPECT_EQ(file.failure->error, ProgramError::FileNotFound);
  EXPECT_FALSE(file.hasClock);
}

TEST_F(AGameFile, IsAnErrorWhenItIsAFolder) {
  const GameFile file = ReadGameFile(Folder());
  ASSERT_TRUE(file.failure);
  EXPECT_EQ(file.failure->error, ProgramError::PathFileAccess);
}

TEST_F(AGameFile, IsReadUpToABoundOnly) {
  const QByteArray game = FormatGame(GameOf({{0, 0}, {1, 2}}, 5));
  const GameFile file = ReadGameFile(Put("x", game + QByteArray(10000000, 'x')));
  EXPECT_EQ(file.failure, std::nullopt);
  EXPECT_EQ(file.moves.size(), 2U);
}
