#pragma once

#include <optional>

#include <QByteArray>
#include <QString>

#include "storage/ErrorTable.h"

// Every file that the program writes is written here. The file is replaced whole: after an error,
// or after the program was killed on the way, the old file is still there. Permissions are kept,
// and a symbolic link goes on pointing at its file.
std::optional<ProgramError> WriteFile(const QString& pathName, const QByteArray& bytes);
