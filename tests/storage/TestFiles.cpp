#include "tests/storage/TestFiles.h"

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <iterator>
#include <ostream>
#include <sched.h>
#include <string>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>

void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}

void PrintTo(const QByteArray& bytes, std::ostream* out) {
  *out << testing::PrintToString(bytes.toStdString());
}

void PrintTo(ProgramError error, std::ostream* out) {
  *out << ErrorText(error).toStdString();
}

QByteArray ContentOf(const QString& pathName) {
  QFile file(pathName);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no such file)");
}

QString FolderTest::Put(const QString& name, const QByteArray& content) const {
  QFile file(PathOf(name));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  EXPECT_EQ(file.write(content), content.size());
  return PathOf(name);
}

QStringList FolderTest::Names() const {
  return QDir(Folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                  QDir::NoDotAndDotDot);
}

std::map<QString, QString> ValuesOf(const std::vector<IniEntry>& entries) {
  std::map<QString, QString> values;
  for (const IniEntry& entry : entries) values[entry.section + "/" + entry.key] = entry.value;
  return values;
}

QStringList KeysOf(const std::vector<IniEntry>& entries) {
  QStringList keys;
  for (const IniEntry& entry : entries) keys += entry.key;
  return keys;
}

ScoreRows ScoresIn(const QString& pathName, ScoreList list) {
  return RowsFrom(KeptFile(pathName).Values(), list);
}

bool Enter(const QString& pathName, ScoreList list, const FinishedGame& game, const QString& name) {
  KeptFile file(pathName);
  SaveScore(file, list, game, name);
  file.Save(Wait::AMoment);
  return file.IsSaved();
}

namespace {

constexpr int NotAllowedCode = 77;

[[noreturn]] void RunChild(const std::function<bool()>& enter, const std::function<void()>& body) {
  if (!enter()) _exit(NotAllowedCode);
  body();
  // In the normal way, so that what the body covered is counted.
  std::exit(testing::Test::HasFailure() ? 1 : 0);
}

}  // namespace

Apart RunApart(const std::function<bool()>& enter, const std::function<void()>& body) {
  std::fflush(nullptr);
  const pid_t child = fork();
  if (child == 0) RunChild(enter, body);
  int status = 0;
  waitpid(child, &status, 0);
  if (!WIFEXITED(status)) return Apart::Failed;
  if (WEXITSTATUS(status) == NotAllowedCode) return Apart::NotAllowed;
  return WEXITSTATUS(status) == 0 ? Apart::Passed : Apart::Failed;
}

bool GiveAway(const QString& pathName, unsigned owner, unsigned group) {
  return chown(QFile::encodeName(pathName).constData(), owner, group) == 0;
}

bool BecomeOrdinaryUser() {
  if (geteuid() != 0) return true;
  return setgid(Nobody) == 0 && setuid(Nobody) == 0;
}

namespace {

bool Write(const char* pathName, const std::string& text) {
  const int file = open(pathName, O_WRONLY | O_CLOEXEC);
  if (file < 0) return false;
  const bool isWritten = write(file, text.data(), text.size()) == std::ssize(text);
  return close(file) == 0 && isWritten;
}

// A line of /proc/self/uid_map or gid_map: the account stays itself.
std::string ToItself(unsigned account) {
  return std::to_string(account) + " " + std::to_string(account) + " 1";
}

// Mounts that no other process sees. An account without the right to mount gets it in a user
// namespace; without maps nothing there belongs to anybody, and no file can be opened.
bool LeaveForOwnMounts() {
  if (geteuid() == 0) return unshare(CLONE_NEWNS) == 0;
  const unsigned user = geteuid();
  const unsigned group = getegid();
  return unshare(CLONE_NEWNS | CLONE_NEWUSER) == 0 && Write("/proc/self/setgroups", "deny") &&
         Write("/proc/self/uid_map", ToItself(user)) &&
         Write("/proc/self/gid_map", ToItself(group));
}

bool TakeMountsApart() {
  return LeaveForOwnMounts() && mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

}  // namespace

std::function<bool()> MountSmallDisk(const QString& folder, int kilobytes) {
  return [folder, kilobytes] {
    const std::string size = "size=" + std::to_string(kilobytes) + "k";
    return TakeMountsApart() &&
           mount("small", QFile::encodeName(folder).constData(), "tmpfs", 0, size.c_str()) == 0;
  };
}

std::function<bool()> MountOnItself(const QString& file) {
  return [path = QFile::encodeName(file)] {
    return TakeMountsApart() &&
           mount(path.constData(), path.constData(), nullptr, MS_BIND, nullptr) == 0;
  };
}

int CountFrom(const char* variable, int usual) {
  bool isNumber = false;
  const int count = qEnvironmentVariableIntValue(variable, &isNumber);
  return isNumber ? count : usual;
}
