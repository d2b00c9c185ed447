// Saves one thing in the way the program does: saver KIND FILE [again]. Ends with 0 when it was
// saved and with 1 when it was not, which is all that a player is told. With "again", what the
// program keeps when it could not be saved is tried a second time, as at the end of the program.

#include <functional>
#include <map>
#include <string>

#include "core/GameState.h"
#include "storage/ChessboardFile.h"
#include "storage/FileWriter.h"
#include "storage/GameFile.h"
#include "storage/MoveListExport.h"
#include "storage/ScoreLists.h"
#include "storage/Settings.h"

namespace {

enum class Tries { One, Two };

bool IsSaved(KeptFile& file, Tries tries) {
  if (tries == Tries::Two) file.Save(Wait::AsLongAsItTakes);
  return file.IsSaved();
}

bool SaveSettings(const QString& pathName, Tries tries) {
  KeptFile file(pathName);
  file.Change({{"Settings", "State", "2"}, {"Settings", "Solve Refresh", "250"}});
  return IsSaved(file, tries);
}

bool SaveAScore(const QString& pathName, Tries tries) {
  KeptFile file(pathName);
  SaveScore(file, ScoreList::High, {40, 100}, "Ann");
  return IsSaved(file, tries);
}

bool SaveMoves(const QString& pathName, Tries) {
  return !WriteFile(pathName, ExportedMoveList({"1.\tA8", "2.\tB6"}, pathName, " 1.0"));
}

const std::map<std::string, std::function<bool(const QString&, Tries)>> Kinds = {
    {"chessboard", [](const QString& path, Tries) { return !SaveChessboard(path, Settings()); }},
    {"game", [](const QString& path, Tries) { return !WriteFile(path, FormatGame(GameState())); }},
    {"moves", SaveMoves},
    {"scores", SaveAScore},
    {"settings", SaveSettings},
};

}  // namespace

int main(int argumentCount, char* arguments[]) {
  if (argumentCount < 3) return 2;
  const auto kind = Kinds.find(arguments[1]);
  if (kind == Kinds.end()) return 2;
  const Tries tries = argumentCount > 3 ? Tries::Two : Tries::One;
  return kind->second(QString::fromUtf8(arguments[2]), tries) ? 0 : 1;
}
