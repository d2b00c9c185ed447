#pragma once

#include <vector>

#include <QString>

#include "storage/IniText.h"

// The one class through which key/value files are read and written. It keeps nothing: each call
// reads the file afresh. Every operation returns false on failure and then gives a description of
// it, which is left untouched on success.
class clsIniFile {
 public:
  // An empty value counts as a missing one.
  bool ReadIniFileValue(const QString& strVvIniFilePathName, const QString& strVvSectionName,
                        const QString& strVvKeyName, QString& strRvValue,
                        QString& strRvErrorDescription) const;

  // Every value of the file, for whoever wants many of them; none when it cannot be read.
  IniValues ReadIniFileValues(const QString& strVvIniFilePathName) const;

  // Makes the file, the section and the key as needed.
  bool WriteIniFileValue(const QString& strVvIniFilePathName, const QString& strVvSectionName,
                         const QString& strVvKeyName, const QString& strVvValue,
                         QString& strRvErrorDescription) const;

  // All entries, in their order, in one replacement of the file: after a failure none is written.
  bool WriteIniFileValues(const QString& strVvIniFilePathName, const std::vector<IniEntry>& entries,
                          QString& strRvErrorDescription) const;
};
