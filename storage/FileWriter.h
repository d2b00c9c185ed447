#pragma once

#include <optional>

#include <QByteArray>
#include <QString>

#include "storage/ErrorTable.h"
#include "storage/OpenFolder.h"
#include "storage/PathName.h"

// Every file that the program writes is written here. The file is replaced whole: after an error,
// or after the program was killed on the way, the old file is still there. What the file was
// otherwise is kept: its owner, group, permissions and attributes, and the links that lead to it.
// Where a new file in its place could not have all that, or its folder takes no new file, the old
// one is written over as soon as its new content is safe.
[[nodiscard]] std::optional<ProgramError> WriteFile(const QString& pathName,
                                                    const QByteArray& bytes);

// The same for a name in a folder.
[[nodiscard]] std::optional<ProgramError> ReplaceFile(const OpenFolder& folder,
                                                      const QByteArray& name,
                                                      const QByteArray& bytes);

// Removes the file, if there is one. One that a link led to, that has other names, or that its
// folder does not let go is emptied instead.
[[nodiscard]] std::optional<ProgramError> ClearFile(const OpenFolder& folder,
                                                    const FilePlace& place);
