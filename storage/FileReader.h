#pragma once

#include <optional>

#include <QByteArray>
#include <QString>

#include "storage/ErrorTable.h"

struct FileContent {
  QByteArray bytes;  // empty after an error
  std::optional<ProgramError> error = std::nullopt;
};

// The first maximumBytes of an ordinary file. Anything else (a folder, a pipe, a device) is an
// error and is not even opened, since a pipe would keep its reader waiting.
FileContent ReadFile(const QString& pathName, qint64 maximumBytes);

// Whether there is such a file, readable or not.
bool IsOrdinaryFile(const QString& pathName);
