#include "ui/support/DoEvents.h"

#include <QCoreApplication>

void DoEvents() {
  QCoreApplication::processEvents();
}
