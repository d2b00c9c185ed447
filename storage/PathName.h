#pragma once

#include <QByteArray>
#include <QString>

// To the system a file name is bytes. As a text it has a low surrogate, 0xDC00 + byte, for each
// byte that is no UTF-8; no valid text has one alone, so every name can be carried as a text.

QByteArray BytesOfPath(const QString& pathName);
QString PathFromBytes(const QByteArray& bytes);

// Where a file lies: the folder, "." for the caller's, and its name there.
struct FilePlace {
  QByteArray folder;
  QByteArray name;
  bool isLinked = false;  // a symbolic link led there
};

// The place of the file that a path stands for: the path's own, or the one that its symbolic links
// lead to, whether there is a file or not. Nothing is cleaned: ".." means what it means to the
// system, which follows the links before it first.
FilePlace PlaceBehindLinks(const QString& pathName);

// Empty, or more than the system can take.
bool IsNoPath(const QString& pathName);
