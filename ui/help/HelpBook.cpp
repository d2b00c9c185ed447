#include "ui/help/HelpBook.h"

#include <QFileInfo>
#include <QHelpLink>

namespace {

constexpr const char* VirtualFolder = "help";

QUrl FirstOf(const QList<QHelpLink>& links) {
  return links.isEmpty() ? QUrl() : links.first().url;
}

}  // namespace

HelpBook::HelpBook(const QString& pathName) : engine_(directory_.filePath("collection.qhc")) {
  if (!QFileInfo::exists(pathName)) {
    error_ = "There is no such file.";
  } else {
    Open(QFileInfo(pathName).absoluteFilePath());
  }
}

void HelpBook::Open(const QString& pathName) {
  engine_.setReadOnly(false);
  engine_.setUsesFilterEngine(true);
  nameSpace_ = QHelpEngineCore::namespaceName(pathName);
  if (!engine_.setupData()) {
    error_ = engine_.error();
  } else if (nameSpace_.isEmpty() || !engine_.registerDocumentation(pathName)) {
    error_ = "It is damaged, or it is not a help file.";
  } else {
    engine_.setupData();
  }
}

QUrl HelpBook::PageOf(const QString& keyword) const {
  if (!error_.isEmpty() || keyword.isEmpty()) return {};
  const QUrl page = FirstOf(engine_.documentsForKeyword(keyword));
  return page.isEmpty() ? FirstOf(engine_.documentsForIdentifier(keyword)) : page;
}

QList<QUrl> HelpBook::Pages() {
  return engine_.files(nameSpace_, QString(), "html");
}

QUrl HelpBook::Resolved(const QUrl& link) const {
  return QUrl("qthelp://" + nameSpace_ + "/" + VirtualFolder + "/").resolved(link);
}

bool HelpBook::Has(const QUrl& page) const {
  return page.scheme() == "qthelp" && !Data(page).isEmpty();
}
