#include "app/Process.h"

#include <array>
#include <climits>
#include <csignal>
#include <unistd.h>

#include <QCoreApplication>

#include "storage/PathName.h"

namespace {

// Qt does not know a program whose path is no text.
QString PathOfProgram() {
  std::array<char, PATH_MAX> path{};
  const ssize_t length = readlink("/proc/self/exe", path.data(), path.size());
  if (length <= 0) return QCoreApplication::applicationFilePath();
  return PathFromBytes(QByteArray(path.data(), length));
}

}  // namespace

// A handler, since a signal that is ignored stays so in what is started.
void TakeSizeLimitAsError() {
  struct sigaction action {};
  action.sa_handler = [](int) {};
  action.sa_flags = SA_RESTART;
  sigaction(SIGXFSZ, &action, nullptr);
}

QString FolderOfProgram() {
  const QString path = PathOfProgram();
  return path.left(path.lastIndexOf('/') + 1);
}
