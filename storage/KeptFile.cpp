#include "storage/KeptFile.h"

namespace {

// What is left to be written when the file has everything, but the disk may not.
QByteArray NoChange(const QByteArray& text) {
  return text;
}

}  // namespace

QByteArray KeptFile::WithChanges(QByteArray text) const {
  for (const IniChange& change : unsaved_) text = change(text);
  return text;
}

IniValues KeptFile::Values() const {
  return IniValues(WithChanges(ReadIniText(pathName_).bytes));
}

void KeptFile::Change(const IniChange& change) {
  unsaved_.push_back(change);
  Save(Wait::Not);
}

void KeptFile::Change(const std::vector<IniEntry>& entries) {
  Change([entries](const QByteArray& text) { return ReplaceIniValues(text, entries); });
}

void KeptFile::Clear() {
  unsaved_.clear();
  if (ClearIniText(pathName_, Wait::Not) == Stored::Yes) return;
  Change([](const QByteArray&) { return QByteArray(); });
}

void KeptFile::Save(Wait wait) {
  if (IsSaved()) return;
  const auto change = [this](const QByteArray& text) { return WithChanges(text); };
  const Stored stored = ChangeIniText(pathName_, change, wait);
  if (stored == Stored::Yes) unsaved_.clear();
  if (stored == Stored::NotForSure) unsaved_ = {NoChange};
  if (stored == Stored::NotYet) onWaiting();
}
