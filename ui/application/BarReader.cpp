#include "ui/application/BarReader.h"

#include <memory>

#include "ui/application/ReaderCursor.h"
#include "ui/widgets/ScrollBar.h"

void LeadReadersTo(ScrollBar& bar, const std::function<QString()>& value) {
  const auto tell = [&bar, value, reader = std::make_shared<ReaderCursor>(bar)] {
    reader->LeadTo(bar.rect(), bar.accessibleName() + " scroll bar, " + value());
  };
  // Told later, after the name of the window.
  QObject::connect(&bar, &ScrollBar::Asked, &bar, tell, Qt::QueuedConnection);
}
