#include "ui/help/HelpBook.h"

#include <unistd.h>

#include <QFileInfo>
#include <QHelpLink>

#include "storage/PathName.h"

namespace {

constexpr const char* VirtualFolder = "help";
constexpr const char* NotAHelpFile = "It is damaged, or it is not a help file.";

QUrl FirstOf(const QList<QHelpLink>& links) {
  return links.isEmpty() ? QUrl() : links.first().url;
}

}  // namespace

HelpBook::HelpBook(const QString& pathName) : engine_(directory_.filePath("collection.qhc")) {
  const QFileInfo file(NamedInText(pathName));
  if (!file.exists()) {
    error_ = "There is no such file.";
  } else if (!file.isFile()) {
    // To open a pipe would mean to wait for a writer.
    error_ = NotAHelpFile;
  } else {
    Open(file.absoluteFilePath());
  }
}

// The name of the program's folder may be no text, which Qt needs to open the file. A link to it
// has one that is.
QString HelpBook::NamedInText(const QString& pathName) const {
  const QString link = directory_.filePath("book.qch");
  const QByteArray path = BytesOfPath(pathName);
  return symlink(path.constData(), BytesOfPath(link).constData()) == 0 ? link : pathName;
}

void HelpBook::Open(const QString& pathName) {
  engine_.setReadOnly(false);
  engine_.setUsesFilterEngine(true);
  nameSpace_ = QHelpEngineCore::namespaceName(pathName);
  if (!engine_.setupData()) {
    error_ = engine_.error();
  } else if (nameSpace_.isEmpty() || !engine_.registerDocumentation(pathName)) {
    error_ = NotAHelpFile;
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
