#include "storage/GameFile.h"

#include <algorithm>
#include <limits>

#include "storage/FileReader.h"
#include "storage/IniText.h"
#include "storage/NumberParser.h"

namespace {

// 65 lines never need more.
constexpr qint64 LongestGame = qint64{64} * 1024;

class LineReader {
 public:
  explicit LineReader(QByteArrayView text) : text_(text), next_(BeginOf(text)) {}

  // Nothing at the end of the text.
  std::optional<QByteArrayView> Next() {
    if (next_ >= text_.size()) return std::nullopt;
    const TextLine line = LineAt(text_, next_);
    next_ = line.next;
    return text_.sliced(line.begin, line.end - line.begin);
  }

 private:
  QByteArrayView text_;
  qsizetype next_;
};

void Fail(GameFile& file, ProgramError error) {
  file.failure = GameFileFailure{error};
}

std::int64_t NumberOf(QByteArrayView bytes) {
  return LenientInt64(QString::fromLatin1(bytes));
}

void ReadClock(const std::optional<QByteArrayView>& line, GameFile& file) {
  if (!line) return Fail(file, ProgramError::InputPastEnd);
  using Limits = std::numeric_limits<std::int32_t>;
  const std::int64_t number = NumberOf(*line);
  // One tick is taken off before the clock ticks once, and it is that number which must fit: the
  // lowest does not, and one beyond the highest does, at which the clock stands still.
  if (number <= Limits::min() || number - 1 > Limits::max()) {
    return Fail(file, ProgramError::Overflow);
  }
  file.hasClock = true;
  file.elapsedHalfSeconds =
      static_cast<std::int32_t>(std::min<std::int64_t>(number, Limits::max()));
  file.noScoreGame = line->endsWith('-');
}

// False when no further move is to be read.
bool ReadMove(const std::optional<QByteArrayView>& line, GameFile& file) {
  if (!line) {
    Fail(file, ProgramError::InputPastEnd);
    return false;
  }
  const qsizetype width = std::min<qsizetype>(line->size(), 2);
  const std::int64_t x = NumberOf(line->first(width));
  const std::int64_t y = NumberOf(line->last(width));
  if (x < 0 || y < 0) {
    if (x != -1) file.failure = GameFileFailure();
    return false;
  }
  if (x >= BoardSide || y >= BoardSide) {
    Fail(file, ProgramError::SubscriptOutOfRange);
    return false;
  }
  file.moves.push_back({static_cast<std::int16_t>(x), static_cast<std::int16_t>(y)});
  return file.moves.size() < SquareCount;
}

}  // namespace

QString FailureText(const GameFileFailure& failure) {
  if (!failure.error) return "This is not a Gallopade Nova Game File!";
  return "Your file could not be opened due to the following error:\n" + ErrorText(*failure.error);
}

GameFile ReadGameFile(const QString& pathName) {
  const FileContent content = ReadFile(pathName, LongestGame);
  if (!content.error) return ParseGame(content.bytes);
  GameFile file;
  Fail(file, *content.error);
  return file;
}

GameFile ParseGame(const QByteArray& text) {
  GameFile file;
  LineReader lines(text);
  ReadClock(lines.Next(), file);
  if (file.failure) return file;
  while (ReadMove(lines.Next(), file)) {
  }
  // Without a last move there is nothing to tell whether the game is over.
  if (!file.failure && file.moves.empty()) Fail(file, ProgramError::SubscriptOutOfRange);
  return file;
}

QByteArray FormatGame(const GameState& state) {
  QByteArray text = QByteArray::number(state.ElapsedHalfSeconds);
  if (state.NoScoreGame) text += '-';
  text += "\r\n";
  for (std::size_t slot = 0; slot < SquareCount; ++slot) {
    const bool isMade = slot < static_cast<std::size_t>(state.MoveCount);
    const MoveRow move = isMade ? state.MoveList[slot] : EmptyMove;
    text += QByteArray::number(move.x) + ' ' + QByteArray::number(move.y) + "\r\n";
  }
  return text;
}
