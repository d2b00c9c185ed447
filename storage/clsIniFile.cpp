#include "storage/clsIniFile.h"

#include <QFileInfo>

#include "storage/IniStore.h"

namespace {

QString PlaceText(const QString& pathName, const QString& section, const QString& key) {
  return "Ini File '" + pathName + "' Section '" + section + "' Key '" + key + "' Value";
}

}  // namespace

bool clsIniFile::ReadIniFileValue(const QString& strVvIniFilePathName,
                                  const QString& strVvSectionName, const QString& strVvKeyName,
                                  QString& strRvValue, QString& strRvErrorDescription) const {
  if (!QFileInfo(strVvIniFilePathName).isFile()) {
    strRvErrorDescription = "Ini File '" + strVvIniFilePathName + "' Is Missing";
    return false;
  }
  strRvValue = ReadIniFileValues(strVvIniFilePathName).Value(strVvSectionName, strVvKeyName);
  const qsizetype count = strRvValue.size();
  if (count > 0) return true;
  const QString place = PlaceText(strVvIniFilePathName, strVvSectionName, strVvKeyName);
  strRvErrorDescription = strRvValue.isEmpty() ? place + " Is Missing" : "Cannot Read " + place;
  return false;
}

IniValues clsIniFile::ReadIniFileValues(const QString& strVvIniFilePathName) const {
  return IniValues(ReadIniStore(strVvIniFilePathName).bytes);
}

bool clsIniFile::WriteIniFileValue(const QString& strVvIniFilePathName,
                                   const QString& strVvSectionName, const QString& strVvKeyName,
                                   const QString& strVvValue,
                                   QString& strRvErrorDescription) const {
  return WriteIniFileValues(strVvIniFilePathName, {{strVvSectionName, strVvKeyName, strVvValue}},
                            strRvErrorDescription);
}

bool clsIniFile::WriteIniFileValues(const QString& strVvIniFilePathName,
                                    const std::vector<IniEntry>& entries,
                                    QString& strRvErrorDescription) const {
  const auto error =
      UpdateIniStore(strVvIniFilePathName, [&entries](const QByteArray&) { return entries; });
  if (!error) return true;
  const IniEntry first = entries.empty() ? IniEntry() : entries.front();
  strRvErrorDescription = "Cannot Write " +
                          PlaceText(strVvIniFilePathName, first.section, first.key) + " '" +
                          first.value + "'";
  return false;
}
