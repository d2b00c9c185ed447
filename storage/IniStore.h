#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "storage/ErrorTable.h"
#include "storage/FileReader.h"
#include "storage/IniText.h"

// The text of a key/value file. A file beyond any honest size is refused.
FileContent ReadIniStore(const QString& pathName);

// Gives the entries to write, from the text that the file has now (empty when there is no file).
using IniChange = std::function<std::vector<IniEntry>(const QByteArray& text)>;

// Reads, changes and replaces the file in one go while other running copies of the program wait.
// The file is made if it does not exist, and left alone when there is nothing to write.
std::optional<ProgramError> UpdateIniStore(const QString& pathName, const IniChange& change);
