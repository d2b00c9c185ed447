#pragma once

#include <QByteArray>
#include <QString>

#include "storage/SystemCalls.h"

// A mark on the disk for as long as something is tried that may end the whole program, so that the
// next copy can tell and leave it be. It costs no waiting for the disk; where it cannot be made
// there is none.
class AttemptMark {
 public:
  explicit AttemptMark(const QString& pathName);
  ~AttemptMark();
  AttemptMark(const AttemptMark&) = delete;
  AttemptMark& operator=(const AttemptMark&) = delete;

  // Whether the process that tried it before ended in the middle of it. Told once.
  bool WasCutShortBefore() const { return wasCutShortBefore_; }

 private:
  QByteArray name_;
  Descriptor file_;
  bool wasCutShortBefore_ = false;
};
