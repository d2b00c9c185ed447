#pragma once

#include <functional>
#include <iosfwd>
#include <map>
#include <string>
#include <vector>

#include <QByteArray>
#include <QDir>
#include <QString>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "storage/ErrorTable.h"
#include "storage/IniText.h"
#include "storage/ScoreLists.h"

void PrintTo(const QString& text, std::ostream* out);
void PrintTo(const QByteArray& bytes, std::ostream* out);
void PrintTo(ProgramError error, std::ostream* out);

QByteArray ContentOf(const QString& pathName);

// A test with a folder of its own that is gone afterwards.
class FolderTest : public testing::Test {
 protected:
  explicit FolderTest(const QString& place = QDir::tempPath())
      : folder_(place + "/gallopade-XXXXXX") {}

  QString Folder() const { return folder_.path(); }
  QString PathOf(const QString& name) const { return folder_.filePath(name); }
  // Makes a file; gives its path.
  QString Put(const QString& name, const QByteArray& content) const;
  // The names of all that is in the folder, hidden files too.
  QStringList Names() const;

 private:
  QTemporaryDir folder_;
};

// What is written under each "section/key" of a list of entries, and the keys in their order.
std::map<QString, QString> ValuesOf(const std::vector<IniEntry>& entries);
QStringList KeysOf(const std::vector<IniEntry>& entries);

// The rows of a list of a file, and entering a game into one: false when it could not be written.
ScoreRows ScoresIn(const QString& pathName, ScoreList list);
bool Enter(const QString& pathName, ScoreList list, const FinishedGame& game, const QString& name);

enum class Apart { Passed, Failed, NotAllowed };

// Runs a part of a test in a process of its own, so that what it does to itself on entering ends
// with it. Expectations in the body are printed; NotAllowed when entering failed.
Apart RunApart(const std::function<bool()>& enter, const std::function<void()>& body);

constexpr unsigned Stranger = 12345;
constexpr unsigned Nobody = 65534;
// False where this user may not give files away.
bool GiveAway(const QString& pathName, unsigned owner, unsigned group);

// To enter with: an account that permissions bind; root becomes nobody.
bool BecomeOrdinaryUser();
// To enter with: the folder becomes an empty disk of its own with so little room.
std::function<bool()> MountSmallDisk(const QString& folder, int kilobytes);
// To enter with: no other file can take the name of this one.
std::function<bool()> MountOnItself(const QString& file);

// The number in an environment variable, for tests that can be run longer than usual.
int CountFrom(const char* variable, int usual);
