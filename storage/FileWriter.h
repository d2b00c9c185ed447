#pragma once

#include <optional>

#include <QByteArray>
#include <QString>

#include "storage/ErrorTable.h"
#include "storage/FolderLock.h"

// Every file that the program writes is written here. The file is replaced whole: after an error,
// or after the program was killed on the way, the old file is still there. Permissions are kept,
// and a symbolic link goes on pointing at its file.
std::optional<ProgramError> WriteFile(const QString& pathName, const QByteArray& bytes);

// The file that a path stands for: itself, or what its symbolic links lead to, there or not.
QString FileBehindLinks(const QString& pathName);

// The same for a file behind links, by who has its folder locked already.
std::optional<ProgramError> ReplaceFile(const FolderLock& lock, const QString& fileName,
                                        const QByteArray& bytes);
