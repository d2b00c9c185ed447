#include "storage/clsIniFile.h"

#include "storage/FileWriter.h"
#include "storage/PathName.h"
#include "storage/WrittenFile.h"

namespace {

constexpr qsizetype LargestFile = qsizetype{1024} * 1024;

// Does the work on a place while nobody else changes a file of its folder.
template <typename Work>
Stored WhileLocked(const QString& pathName, Wait wait, const Work& work) {
  if (IsNoPath(pathName)) return Stored::No;
  const FilePlace place = PlaceBehindLinks(pathName);
  const OpenFolder folder(place.folder);
  if (!folder.IsOpen()) return Stored::No;
  if (TakeLock(folder.Number(), wait) == FileLock::AnotherHasIt) return Stored::NotYet;
  // With other names it is written from other folders, too, and always stays the same file.
  const WrittenFile file(folder, place.name);
  const bool isShared = file.IsThere() && file.HasOtherNames();
  if (isShared && TakeLock(file.Number(), wait) == FileLock::AnotherHasIt) return Stored::NotYet;
  return work(folder, place);
}

// What failed may have been the very last step.
Stored Replace(const OpenFolder& folder, const QByteArray& name, const QString& pathName,
               const QByteArray& text) {
  if (!ReplaceFile(folder, name, text)) return Stored::Yes;
  const FileContent now = ReadIniText(pathName);
  return !now.error && now.bytes == text ? Stored::NotForSure : Stored::No;
}

Stored Change(const OpenFolder& folder, const QByteArray& name, const QString& pathName,
              const IniChange& change) {
  const FileContent content = ReadIniText(pathName);
  if (content.error && content.error != ProgramError::FileNotFound) return Stored::No;
  const QByteArray text = change(content.bytes);
  if (text == content.bytes) return folder.Sync() ? Stored::Yes : Stored::NotForSure;
  if (text.size() > LargestFile) return Stored::No;
  return Replace(folder, name, pathName, text);
}

QString PlaceText(const QString& pathName, const QString& section, const QString& key) {
  return "Ini File '" + pathName + "' Section '" + section + "' Key '" + key + "' Value";
}

}  // namespace

bool clsIniFile::ReadIniFileValue(const QString& strVvIniFilePathName,
                                  const QString& strVvSectionName, const QString& strVvKeyName,
                                  QString& strRvValue, QString& strRvErrorDescription) const {
  if (!IsOrdinaryFile(strVvIniFilePathName)) {
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
  return IniValues(ReadIniText(strVvIniFilePathName).bytes);
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
  const auto change = [&](const QByteArray& text) { return ReplaceIniValues(text, entries); };
  if (ChangeIniText(strVvIniFilePathName, change, Wait::AMoment) == Stored::Yes) return true;
  const IniEntry first = entries.empty() ? IniEntry() : entries.front();
  strRvErrorDescription = "Cannot Write " +
                          PlaceText(strVvIniFilePathName, first.section, first.key) + " '" +
                          first.value + "'";
  return false;
}

FileContent ReadIniText(const QString& pathName) {
  FileContent content = ReadFile(pathName, LargestFile + 1);
  if (content.bytes.size() > LargestFile) return {{}, ProgramError::Overflow};
  return content;
}

Stored ChangeIniText(const QString& pathName, const IniChange& change, Wait wait) {
  return WhileLocked(pathName, wait, [&](const OpenFolder& folder, const FilePlace& place) {
    return Change(folder, place.name, pathName, change);
  });
}

Stored ClearIniText(const QString& pathName, Wait wait) {
  return WhileLocked(pathName, wait, [](const OpenFolder& folder, const FilePlace& place) {
    return ClearFile(folder, place) ? Stored::No : Stored::Yes;
  });
}
