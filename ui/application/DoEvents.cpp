#include "ui/application/DoEvents.h"

#include <QCoreApplication>

void DoEvents() {
  QCoreApplication::processEvents();
}
