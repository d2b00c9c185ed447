// Saves one thing in the way the program does: saver KIND FILE. Ends with 0 when it was saved and
// with 1 when it was not, which is all that a player is told.

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

bool SaveSettings(const QString& pathName) {
  KeptFile file(pathName);
  file.Change({{"Settings", "State", "2"}, {"Settings", "Solve Refresh", "250"}});
  return file.IsSaved();
}

bool SaveAScore(const QString& pathName) {
  KeptFile file(pathName);
  SaveScore(file, ScoreList::High, {40, 100}, "Ann");
  return file.IsSaved();
}

bool SaveMoves(const QString& pathName) {
  return !WriteFile(pathName, ExportedMoveList({"1.\tA8", "2.\tB6"}, pathName, " 1.0"));
}

const std::map<std::string, std::function<bool(const QString&)>> Kinds = {
    {"chessboard", [](const QString& path) { return !SaveChessboard(path, Settings()); }},
    {"game", [](const QString& path) { return !WriteFile(path, FormatGame(GameState())); }},
    {"moves", SaveMoves},
    {"scores", SaveAScore},
    {"settings", SaveSettings},
};

}  // namespace

int main(int argumentCount, char* arguments[]) {
  if (argumentCount != 3) return 2;
  const auto kind = Kinds.find(arguments[1]);
  if (kind == Kinds.end()) return 2;
  return kind->second(QString::fromUtf8(arguments[2])) ? 0 : 1;
}
