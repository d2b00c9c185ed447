#pragma once

#include <QFileIconProvider>

// The icons and kinds that a file dialog shows. The toolkit's own look into every file of a folder,
// and wait for ever where one of them never gives an answer; these go by the names alone.
class FileIcons : public QFileIconProvider {
 public:
  using QFileIconProvider::icon;
  QIcon icon(const QFileInfo& file) const override;
  QString type(const QFileInfo& file) const override;
};
