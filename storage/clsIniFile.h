#pragma once

#include <functional>
#include <vector>

#include <QString>

#include "storage/FileLock.h"
#include "storage/FileReader.h"
#include "storage/IniText.h"

// What became of a change. NotForSure: the file has it, but the disk did not say that it will keep
// it; whatever is changed next, even nothing, asks the disk again. NotYet: another running copy of
// the program is changing the file, or one of the same folder.
enum class Stored { Yes, NotForSure, NotYet, No };

// Gives the text that a file is to have, from the one that it has now (empty when there is no
// file).
using IniChange = std::function<QByteArray(const QByteArray& text)>;

// The one class through which key/value files are read and written. It keeps nothing: each call
// reads the file afresh. Every operation returns false on failure and then gives a description of
// it, which is left untouched on success.
class clsIniFile {
 public:
  // An empty value counts as a missing one.
  [[nodiscard]] bool ReadIniFileValue(const QString& strVvIniFilePathName,
                                      const QString& strVvSectionName, const QString& strVvKeyName,
                                      QString& strRvValue, QString& strRvErrorDescription) const;

  // Every value of the file, for whoever wants many of them; none when it cannot be read.
  IniValues ReadIniFileValues(const QString& strVvIniFilePathName) const;

  // Makes the file, the section and the key as needed.
  [[nodiscard]] bool WriteIniFileValue(const QString& strVvIniFilePathName,
                                       const QString& strVvSectionName, const QString& strVvKeyName,
                                       const QString& strVvValue,
                                       QString& strRvErrorDescription) const;

  // All entries, in their order, in one replacement of the file: after a failure none is written.
  [[nodiscard]] bool WriteIniFileValues(const QString& strVvIniFilePathName,
                                        const std::vector<IniEntry>& entries,
                                        QString& strRvErrorDescription) const;
};

// What is below that class, for changes of another kind.

// The text of a key/value file. A file beyond any honest size is refused.
FileContent ReadIniText(const QString& pathName);

// Reads, changes and replaces the file in one go while other running copies of the program wait.
// The file is made if it does not exist, and left alone when nothing changes.
[[nodiscard]] Stored ChangeIniText(const QString& pathName, const IniChange& change, Wait wait);

// Clears the file away in the same manner.
[[nodiscard]] Stored ClearIniText(const QString& pathName, Wait wait);
