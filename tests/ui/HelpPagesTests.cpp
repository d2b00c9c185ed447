// The pages of the help as they are written.

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QUrl>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

#include "tests/ui/Desk.h"

namespace {

const QDir Pages(HELP_PAGES_DIRECTORY);
const QString ProjectFile = "GallopadeNova.qhp";

QByteArray ContentsOf(const QString& name) {
  QFile file(Pages.filePath(name));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList PageNames() {
  return Pages.entryList({"*.html"});
}

// What an XML file says: every value of some attributes, and the text of some elements.
QStringList Values(const QString& fileName, const QSet<QString>& attributes,
                   const QString& element = QString()) {
  QStringList values;
  QXmlStreamReader reader(ContentsOf(fileName));
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement) continue;
    const auto all = reader.attributes();
    for (const QXmlStreamAttribute& attribute : all) {
      if (attributes.contains(attribute.name().toString())) values << attribute.value().toString();
    }
    if (reader.name() == element) values << reader.readElementText();
  }
  EXPECT_FALSE(reader.hasError()) << fileName.toStdString() << ":" << reader.lineNumber() << ": "
                                  << reader.errorString().toStdString();
  return values;
}

void ExpectTarget(const QString& fileName, const QString& link) {
  SCOPED_TRACE(fileName.toStdString() + " -> " + link.toStdString());
  const QUrl url(link);
  EXPECT_TRUE(url.isRelative());
  const QString target = url.path().isEmpty() ? fileName : url.path();
  ASSERT_TRUE(Pages.exists(target));
  EXPECT_TRUE(!url.hasFragment() || Values(target, {"id"}).contains(url.fragment()));
}

QString PlainText(const QString& pageName) {
  QString text;
  QXmlStreamReader reader(ContentsOf(pageName));
  while (!reader.atEnd()) {
    if (reader.readNext() == QXmlStreamReader::Characters) text += reader.text();
  }
  return text.simplified();
}

}  // namespace

TEST(HelpPages, EveryLinkLeadsToAPlaceThatExists) {
  for (const QString& page : PageNames()) {
    for (const QString& link : Values(page, {"href", "src"})) ExpectTarget(page, link);
  }
}

TEST(HelpPages, EveryEntryOfTheContentsAndTheIndexLeadsToAPlaceThatExists) {
  for (const QString& link : Values(ProjectFile, {"ref"})) ExpectTarget(ProjectFile, link);
}

TEST(HelpPages, EveryPageIsInTheContentsAndInTheHelpFileWithItsPictures) {
  const QStringList files = Values(ProjectFile, {}, "file");
  const QStringList contents = Values(ProjectFile, {"ref"});
  for (const QString& page : PageNames()) {
    EXPECT_TRUE(files.contains(page)) << page.toStdString();
    EXPECT_TRUE(contents.contains(page)) << page.toStdString();
    for (const QString& picture : Values(page, {"src"})) {
      EXPECT_TRUE(files.contains(picture)) << picture.toStdString();
    }
  }
}

TEST(HelpPages, EveryPageHasATitle) {
  for (const QString& page : PageNames()) {
    const QStringList titles = Values(page, {}, "title");
    ASSERT_EQ(titles.size(), 1) << page.toStdString();
    EXPECT_FALSE(titles.first().isEmpty()) << page.toStdString();
  }
}

TEST(HelpPages, NoIndexEntryIsThereTwice) {
  QStringList names = Values(ProjectFile, {"name", "id"});
  EXPECT_EQ(names.removeDuplicates(), 0);
}

class HelpMenuPage : public Desk {};

TEST_F(HelpMenuPage, TellsOfEveryMenuEntry) {
  Open();
  const QString page = PlainText("menus.html");
  const auto actions = Window().findChildren<QAction*>(QRegularExpression("^mnu"));
  for (const QAction* action : actions) {
    const QString caption = action->text().section('\t', 0, 0).remove('&');
    EXPECT_TRUE(page.contains(caption)) << caption.toStdString();
  }
  EXPECT_GT(actions.size(), 20);
}
