#pragma once

#include <string>

#include <QHash>
#include <QStringList>
#include <QTemporaryDir>

#include "tests/storm/Chance.h"

enum class FileKind { Game, Chessboard, Picture, MoveList };

// A program directory with everything that a random player may find in one: pictures and help, good
// and broken games and chessboards, settings and scores of any kind. It knows afterwards whether a
// file has come to harm.
class ProgramFolder {
 public:
  explicit ProgramFolder(Chance& chance);

  QString Path(const QString& name) const { return directory_.filePath(name); }
  // With "/" at the end.
  QString Name() const { return directory_.path() + "/"; }

  // Names that a player may type where a file of a kind is to be opened or saved.
  static QStringList NamesToOpen(FileKind kind);
  static QStringList NamesToSave(FileKind kind);

  // What is wrong with a file that has changed since the last look; empty when all are well.
  std::string Complaint();

 private:
  struct Stamp {
    qint64 inode = 0;
    qint64 changed = 0;
    qint64 size = 0;
    friend bool operator==(const Stamp&, const Stamp&) = default;
  };

  void PlantProgramFiles(bool realPictures);
  void PlantGames();
  void PlantChessboards();
  void PlantSettings(Chance& chance);
  void PlantScores(Chance& chance);
  void Plant(const QString& name, const QByteArray& content);
  static Stamp StampOf(const QString& path);
  std::string ComplaintAbout(const QString& name, const QByteArray& content) const;

  QTemporaryDir directory_;
  QHash<QString, QByteArray> planted_;
  QHash<QString, Stamp> seen_;
  Stamp stampOfFolder_;
};
