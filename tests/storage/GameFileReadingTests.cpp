#include <random>

#include "storage/GameFile.h"
#include "tests/storage/TestFiles.h"

namespace {

using Moves = std::vector<MoveRow>;

// What a game text with this one move line after two good ones gives.
GameFile WithLine(const QByteArray& line) {
  return ParseGame("20\r\n0 0\r\n1 2\r\n" + line + "\r\n-1 -1\r\n");
}

bool IsNotAGame(const GameFile& file) {
  return file.failure && !file.failure->error;
}

std::optional<ProgramError> ErrorOf(const GameFile& file) {
  return file.failure ? file.failure->error : std::nullopt;
}

QByteArray GameWithClock(const QByteArray& clock) {
  return clock + "\r\n0 0\r\n-1 -1\r\n";
}

}  // namespace

TEST(TheClockLine, GivesTheHalfSeconds) {
  const GameFile file = ParseGame(GameWithClock("20"));
  EXPECT_TRUE(file.hasClock);
  EXPECT_EQ(file.elapsedHalfSeconds, 20);
  EXPECT_FALSE(file.noScoreGame);
}

TEST(TheClockLine, MarksAGameWithoutScoreByItsLastCharacter) {
  const GameFile file = ParseGame(GameWithClock("20-"));
  EXPECT_EQ(file.elapsedHalfSeconds, 20);
  EXPECT_TRUE(file.noScoreGame);
  EXPECT_FALSE(ParseGame(GameWithClock("20- ")).noScoreGame);
  EXPECT_TRUE(ParseGame(GameWithClock("-")).noScoreGame);
}

TEST(TheClockLine, IsReadLeniently) {
  EXPECT_EQ(ParseGame(GameWithClock(" 20x7")).elapsedHalfSeconds, 20);
  EXPECT_EQ(ParseGame(GameWithClock("")).elapsedHalfSeconds, 0);
  EXPECT_EQ(ParseGame(GameWithClock("soon")).elapsedHalfSeconds, 0);
  EXPECT_EQ(ParseGame(GameWithClock("-5")).elapsedHalfSeconds, -5);
}

TEST(TheClockLine, MayStandBehindAByteOrderMark) {
  const GameFile file = ParseGame("\xEF\xBB\xBF" + GameWithClock("20-"));
  EXPECT_EQ(file.elapsedHalfSeconds, 20);
  EXPECT_TRUE(file.noScoreGame);
  EXPECT_EQ(file.moves.size(), 1U);
}

TEST(TheClockLine, OverflowsBeyond32Bits) {
  EXPECT_EQ(ParseGame(GameWithClock("2147483647")).elapsedHalfSeconds, 2147483647);
  EXPECT_EQ(ParseGame(GameWithClock("-2147483647")).elapsedHalfSeconds, -2147483647);
  EXPECT_EQ(ParseGame(GameWithClock("2147483648")).elapsedHalfSeconds, 2147483647);
  for (const char* clock : {"2147483649", "-2147483648", "-2147483649", "99999999999999999999"}) {
    const GameFile file = ParseGame(GameWithClock(clock));
    EXPECT_EQ(ErrorOf(file), ProgramError::Overflow) << clock;
    EXPECT_FALSE(file.hasClock) << clock;
    EXPECT_TRUE(file.moves.empty()) << clock;
  }
}

TEST(TheClockLine, IsMissedInAnEmptyFile) {
  const GameFile file = ParseGame("");
  EXPECT_EQ(ErrorOf(file), ProgramError::InputPastEnd);
  EXPECT_FALSE(file.hasClock);
}

TEST(TheMoveLines, AreReadUpToTheEndMark) {
  EXPECT_EQ(WithLine("3 5").moves, Moves({{0, 0}, {1, 2}, {3, 5}}));
  EXPECT_EQ(WithLine("3 5").failure, std::nullopt);
}

TEST(TheMoveLines, EndInEveryKindOfLineEnd) {
  const Moves moves = {{0, 0}, {7, 7}};
  EXPECT_EQ(ParseGame("1\n0 0\n7 7\n-1 -1\n").moves, moves);
  EXPECT_EQ(ParseGame("1\r0 0\r7 7\r-1 -1").moves, moves);
  EXPECT_EQ(ParseGame("1\r\n0 0\n7 7\r-1 -1").moves, moves);
}

TEST(TheMoveLines, GiveTheirFirstTwoAndLastTwoCharacters) {
  EXPECT_EQ(WithLine("3,5").moves.back(), (MoveRow{3, 0}));
  EXPECT_EQ(WithLine(" 3 and 5").moves.back(), (MoveRow{3, 5}));
  EXPECT_EQ(WithLine("35").failure->error, ProgramError::SubscriptOutOfRange);
  EXPECT_EQ(WithLine("3").moves.back(), (MoveRow{3, 3}));
  EXPECT_EQ(WithLine("").moves.back(), (MoveRow{0, 0}));
  EXPECT_EQ(WithLine("x").moves.back(), (MoveRow{0, 0}));
}

TEST(TheMoveLines, NeedNotBeLegal) {
  EXPECT_EQ(ParseGame("1\n0 0\n0 0\n7 7\n-1 -1\n").moves, Moves({{0, 0}, {0, 0}, {7, 7}}));
}

TEST(TheMoveLines, EndWhereTheColumnIsMinusOneWhateverTheRow) {
  for (const char* line : {"-1 -1", "-1 5", "-1 -7", "-1", "-1x99"}) {
    const GameFile file = WithLine(line);
    EXPECT_EQ(file.failure, std::nullopt) << line;
    EXPECT_EQ(file.moves.size(), 2U) << line;
  }
}

TEST(TheMoveLines, WithAnotherNegativeNumberAreOfNoGame) {
  for (const char* line : {"-2 -2", "-2 5", "3 -7", "0 -1", "-9", "12 -7"}) {
    EXPECT_TRUE(IsNotAGame(WithLine(line))) << line;
  }
}

TEST(TheMoveLines, BeyondTheBoardAreAnError) {
  for (const char* line : {"12 34", "8 0", "0 8", "8 8", "99 1", "0 12"}) {
    EXPECT_EQ(ErrorOf(WithLine(line)), ProgramError::SubscriptOutOfRange) << line;
  }
}

TEST(TheMoveLines, BeforeABadOneAreKept) {
  EXPECT_EQ(WithLine("-2 5").moves, Moves({{0, 0}, {1, 2}}));
  EXPECT_EQ(WithLine("8 8").moves, Moves({{0, 0}, {1, 2}}));
  EXPECT_TRUE(WithLine("8 8").hasClock);
}

TEST(TheMoveLines, MayNotEndBeforeTheirEndMark) {
  const GameFile file = ParseGame("20\r\n0 0\r\n1 2\r\n");
  EXPECT_EQ(ErrorOf(file), ProgramError::InputPastEnd);
  EXPECT_EQ(file.moves.size(), 2U);
}

TEST(TheMoveLines, AreMissedAfterTheClock) {
  const GameFile file = ParseGame("20-\r\n");
  EXPECT_EQ(ErrorOf(file), ProgramError::InputPastEnd);
  EXPECT_TRUE(file.hasClock);
  EXPECT_TRUE(file.noScoreGame);
}

TEST(TheMoveLines, MayNotBeNone) {
  const GameFile file = ParseGame("20\r\n" + QByteArray("-1 -1\r\n").repeated(64));
  EXPECT_EQ(ErrorOf(file), ProgramError::SubscriptOutOfRange);
}

TEST(TheMoveLines, AreAtMost64AndNeedNoEndMarkThen) {
  const GameFile file = ParseGame("20\r\n" + QByteArray("0 0\r\n").repeated(64));
  EXPECT_EQ(file.failure, std::nullopt);
  EXPECT_EQ(file.moves.size(), 64U);
  const GameFile longer = ParseGame("20\r\n" + QByteArray("0 0\r\n").repeated(64) + "-9 -9\r\n");
  EXPECT_EQ(longer.failure, std::nullopt);
  EXPECT_EQ(longer.moves.size(), 64U);
}

TEST(TheMoveLines, StayOnTheBoardWhateverTheFileHolds) {
  std::mt19937 random(1848);
  const QByteArray bytes = QByteArray("0123456789- .x\r\n\n\n\n\0\xFF", 21);
  for (int test = 0; test < 20000; ++test) {
    QByteArray text;
    for (unsigned length = random() % 300U; length > 0; --length) {
      text += bytes[static_cast<qsizetype>(random() % static_cast<unsigned>(bytes.size()))];
    }
    const GameFile file = ParseGame(text);
    ASSERT_LE(file.moves.size(), 64U);
    for (const MoveRow& move : file.moves) ASSERT_TRUE(IsSquare(move.x, move.y));
    ASSERT_TRUE(file.failure || !file.moves.empty());
  }
}

TEST(TheFailureText, TellsThePlayerWhatWentWrong) {
  EXPECT_EQ(FailureText({}), "This is not a Gallopade Nova Game File!");
  EXPECT_EQ(FailureText({ProgramError::FileNotFound}),
            "Your file could not be opened due to the following error:\nFile not found (53).");
}
