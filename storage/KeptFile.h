#pragma once

#include <functional>
#include <utility>
#include <vector>

#include <QString>

#include "storage/clsIniFile.h"

// One of the program's own key/value files. A change that cannot be written counts as made for as
// long as the program runs, and is written with the next one that can: the player goes on with what
// was chosen, and what comes from another copy meanwhile is kept. Nothing here waits unless it is
// told to.
class KeptFile {
 public:
  KeptFile() = default;
  explicit KeptFile(QString pathName) : pathName_(std::move(pathName)) {}

  const QString& PathName() const { return pathName_; }

  // Read afresh, with what is still to be written.
  IniValues Values() const;

  void Change(const IniChange& change);
  void Change(const std::vector<IniEntry>& entries);
  void Clear();

  // Tries again to write what is left to be written.
  void Save(Wait wait);
  // Nothing is left to be written.
  bool IsSaved() const { return unsaved_.empty(); }

  // Called when a change has to wait for another copy: someone should call Save soon.
  std::function<void()> onWaiting = [] {};

 private:
  QByteArray WithChanges(QByteArray text) const;

  QString pathName_;
  std::vector<IniChange> unsaved_;
};
