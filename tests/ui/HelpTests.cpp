// The help window on the real help file.

#include <memory>

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QScreen>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>
#include <QWindow>
#include <gtest/gtest.h>

#include "tests/ui/Contrast.h"
#include "tests/ui/Desk.h"
#include "ui/application/DialogModality.h"
#include "ui/help/HelpPage.h"
#include "ui/help/frmHelp.h"
#include "ui/widgets/WindowPlacing.h"

namespace {

constexpr const char* WindowsWithAPage[] = {
    "frmGame",        "frmSolve", "frmReplay",   "frmHistory", "frmScores",
    "frmPreferences", "frmAbout", "frmGameOver", "frmWin",     "frmHelp",
};

class Help : public testing::Test {
 protected:
  Help() : help(HELP_FILE_DIRECTORY) {}

  QTextBrowser& Page() { return Child<QTextBrowser>(help, "helpPage"); }
  QString PageName() { return Page().source().fileName(); }
  QAction& Button(const char* name) {
    auto* action = help.findChild<QAction*>(name);
    if (action == nullptr) throw std::runtime_error(std::string("no button named ") + name);
    return *action;
  }
  QStringList SearchFor(const QString& words) {
    Child<QLineEdit>(help, "searchField").setText(words);
    auto& results = Child<QListWidget>(help, "searchResults");
    QStringList titles;
    for (int row = 0; row < results.count(); ++row) titles << results.item(row)->text();
    return titles;
  }

  void ExpectLegibleLinks() {
    constexpr double SmallText = 4.5;
    int links = 0;
    for (QTextBlock block = Page().document()->begin(); block.isValid(); block = block.next()) {
      for (const QTextLayout::FormatRange& range : block.textFormats()) {
        if (!range.format.isAnchor()) continue;
        const QColor color = range.format.foreground().color();
        EXPECT_GE(Contrast(color, Page().palette().color(QPalette::Base)), SmallText);
        ++links;
      }
    }
    EXPECT_GT(links, 0);
  }

  frmHelp help;
};

class HelpBesideADialog : public Help {
 protected:
  void OpenDialog() {
    game.show();
    dialog = std::make_unique<QDialog>(&game);
    dialog->setModal(true);
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
  }

  DialogModality modality;
  QWidget game;
  std::unique_ptr<QDialog> dialog;
};

}  // namespace

TEST_F(Help, OpensAtItsContents) {
  help.ShowContents();
  EXPECT_TRUE(help.isVisible());
  EXPECT_EQ(help.windowTitle(), "Gallopade Nova Help");
  EXPECT_EQ(PageName(), "welcome.html");
  EXPECT_TRUE(Page().toPlainText().startsWith("Welcome to Gallopade Nova"));
}

TEST_F(Help, OpensAtHowToPlay) {
  help.ShowTopic("How to Play");
  EXPECT_EQ(PageName(), "howtoplay.html");
  EXPECT_TRUE(Page().toPlainText().contains("Visit all 64 squares"));
}

TEST_F(Help, HasAPageForEveryWindow) {
  for (const char* window : WindowsWithAPage) {
    help.ShowContents();
    help.ShowTopic(window);
    EXPECT_NE(PageName(), "welcome.html") << window;
  }
}

TEST_F(Help, TellsKeywordsApartByCaseAndFallsBackToTheContents) {
  help.ShowTopic("How to Play");
  help.ShowTopic("HOW TO PLAY");
  EXPECT_EQ(PageName(), "welcome.html");
}

TEST_F(Help, ShowsTheTreeOfContents) {
  auto& tree = Child<QTreeView>(help, "helpContents");
  EXPECT_TRUE(QTest::qWaitFor([&] { return tree.model()->rowCount() > 5; }));
  EXPECT_EQ(tree.model()->index(0, 0).data().toString(), "Welcome to Gallopade Nova");
}

TEST_F(Help, MarksThePageThatIsShownInTheTreeOfContents) {
  auto& tree = Child<QTreeView>(help, "helpContents");
  ASSERT_TRUE(QTest::qWaitFor([&] { return tree.model()->rowCount() > 5; }));
  const auto marked = [&] { return tree.currentIndex().data().toString(); };
  help.ShowTopic("How to Play");
  EXPECT_EQ(marked(), "How to Play");
  help.ShowContents();
  EXPECT_EQ(marked(), "Welcome to Gallopade Nova");
  Page().setSource(QUrl("rules.html"));
  EXPECT_EQ(marked(), "The rules");
  Button("helpBack").trigger();
  EXPECT_EQ(marked(), "Welcome to Gallopade Nova");
}

TEST_F(Help, KeepsAPlaceWithinAPageMarkedThatWasChosenInTheTreeOfContents) {
  auto& tree = Child<QTreeView>(help, "helpContents");
  ASSERT_TRUE(QTest::qWaitFor([&] { return tree.model()->rowCount() > 5; }));
  help.ShowContents();
  const QModelIndex menus = tree.model()->index(2, 0);
  const QModelIndex edit = tree.model()->index(1, 0, menus);
  ASSERT_EQ(edit.data().toString(), "Edit");
  tree.scrollTo(edit);
  QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(edit).center());
  EXPECT_EQ(Page().source().fragment(), "edit");
  EXPECT_EQ(tree.currentIndex(), edit);
}

TEST_F(Help, ShowsItsLinksLegiblyAlsoWhenTheDesktopTurnsDark) {
  const QPalette usual = QApplication::palette();
  help.ShowContents();
  ExpectLegibleLinks();
  QPalette dark = usual;
  dark.setColor(QPalette::Base, QColor(20, 22, 24));
  dark.setColor(QPalette::Text, QColor(252, 252, 252));
  QApplication::setPalette(dark);
  QCoreApplication::processEvents();
  ExpectLegibleLinks();
  QApplication::setPalette(usual);
}

TEST_F(Help, FollowsALinkAndGoesBackAndForward) {
  help.ShowContents();
  EXPECT_FALSE(Button("helpBack").isEnabled());
  Page().setSource(QUrl("preferences.html#frame"));
  EXPECT_EQ(Page().source().fragment(), "frame");
  Button("helpBack").trigger();
  EXPECT_EQ(PageName(), "welcome.html");
  Button("helpForward").trigger();
  EXPECT_EQ(PageName(), "preferences.html");
  Button("helpHome").trigger();
  EXPECT_EQ(PageName(), "welcome.html");
}

TEST_F(Help, OpensNothingOutsideOfItself) {
  help.ShowContents();
  for (const char* link : {"https://example.org/", "file:///etc/hostname", "no-such-page.html"}) {
    Page().setSource(QUrl(link));
    EXPECT_EQ(PageName(), "welcome.html") << link;
  }
}

TEST_F(Help, KeepsItsPlaceItsPageAndItsZoomWhenClosed) {
  help.ShowTopic("How to Play");
  Button("helpZoomIn").trigger();
  help.move(40, 50);
  const QRect place = help.geometry();
  const qreal size = Page().font().pointSizeF();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&help));
  QTest::keyClick(&help, Qt::Key_Escape);
  EXPECT_FALSE(help.isVisible());
  help.show();
  EXPECT_EQ(help.geometry(), place);
  EXPECT_EQ(PageName(), "howtoplay.html");
  EXPECT_EQ(Page().font().pointSizeF(), size);
}

TEST_F(Help, LeadsIntoTheFieldOfATabByItsLetter) {
  help.ShowContents();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&help));
  const auto type = [this](Qt::Key letter) {
    QTest::keyClick(help.windowHandle(), letter, Qt::AltModifier);
    QCoreApplication::processEvents();
    return QApplication::focusWidget() != nullptr ? QApplication::focusWidget()->objectName()
                                                  : QString();
  };
  EXPECT_EQ(type(Qt::Key_S), "searchField");
  EXPECT_EQ(type(Qt::Key_I), "indexFilter");
  Page().setFocus();
  EXPECT_EQ(type(Qt::Key_I), "indexFilter");
}

TEST_F(Help, ShowsItsTabsWholeInLargeLetters) {
  QFont large = help.font();
  large.setPointSize(20);
  help.setFont(large);
  help.resize(500, 400);
  help.ShowContents();
  const auto& bar = *Child<QTabWidget>(help, "helpSide").tabBar();
  EXPECT_GE(bar.width(), bar.sizeHint().width());
}

TEST_F(Help, HasAnIconForEachButton) {
  for (const char* name : {"helpBack", "helpForward", "helpHome", "helpZoomIn", "helpZoomOut"}) {
    const QImage image = Button(name).icon().pixmap(16, 16).toImage();
    int drawn = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) drawn += image.pixelColor(x, y).alpha() > 0 ? 1 : 0;
    }
    EXPECT_GT(drawn, 16) << name;
  }
}

TEST_F(Help, OpensBesideTheGameWhereThereIsRoom) {
  QWidget game;
  const QRect screen = game.screen()->availableGeometry();
  game.setGeometry(screen.left() + 5, screen.top() + 5, 100, 100);
  help.resize(300, 300);
  PlaceBesideWindow(help, game, 200);
  EXPECT_GT(help.x(), game.geometry().right());
  game.setGeometry(screen.left() + screen.width() - 250, screen.top() + 5, 240, 240);
  PlaceBesideWindow(help, game, 200);
  EXPECT_LE(help.x() + help.width(), game.x());
}

TEST_F(Help, ZoomsWithinReason) {
  for (int i = 0; i < 100; ++i) Button("helpZoomIn").trigger();
  EXPECT_LE(Page().font().pointSizeF(), 40);
  for (int i = 0; i < 100; ++i) Button("helpZoomOut").trigger();
  EXPECT_GE(Page().font().pointSizeF(), 6);
}

TEST_F(Help, NarrowsItsIndexAndOpensAnEntry) {
  auto& filter = Child<QLineEdit>(help, "indexFilter");
  auto& list = Child<QListView>(help, "indexList");
  ASSERT_TRUE(QTest::qWaitFor([&] { return list.model()->rowCount() > 50; }));
  const int all = list.model()->rowCount();
  filter.setText("warnsd");
  ASSERT_EQ(list.model()->rowCount(), 1);
  QTest::keyClick(&filter, Qt::Key_Return);
  EXPECT_EQ(PageName(), "tips.html");
  filter.clear();
  EXPECT_EQ(list.model()->rowCount(), all);
}

TEST_F(Help, FindsThePagesThatHaveAllTheWords) {
  EXPECT_TRUE(SearchFor("caliphs").contains("A thousand years of tours"));
  EXPECT_EQ(SearchFor("keyboard").first(), "The keyboard");
  EXPECT_TRUE(SearchFor("caliphs printer").isEmpty());
  EXPECT_TRUE(SearchFor("  ").isEmpty());
}

TEST_F(Help, OpensAPageThatWasFoundAtTheWord) {
  SearchFor("caliphs");
  QTest::keyClick(&Child<QLineEdit>(help, "searchField"), Qt::Key_Return);
  EXPECT_EQ(PageName(), "tour-history.html");
  EXPECT_EQ(Page().textCursor().selectedText(), "caliphs");
}

TEST_F(Help, NamesEveryControlForAScreenReader) {
  help.ShowContents();
  for (const char* name : {"helpPage", "helpContents", "helpSide", "indexFilter", "indexList",
                           "searchField", "searchResults"}) {
    EXPECT_FALSE(Child<QWidget>(help, name).accessibleName().isEmpty()) << name;
  }
}

TEST_F(HelpBesideADialog, CanBeOpenedAndUsed) {
  OpenDialog();
  help.ShowTopic("How to Play");
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&help));
  QTest::keyClick(help.windowHandle(), Qt::Key_Home, Qt::AltModifier);
  EXPECT_EQ(PageName(), "welcome.html");
}

TEST_F(HelpBesideADialog, StaysUsableWhenTheDialogOpensLater) {
  help.ShowTopic("How to Play");
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&help));
  OpenDialog();
  help.activateWindow();
  QTest::keyClick(help.windowHandle(), Qt::Key_Home, Qt::AltModifier);
  EXPECT_EQ(PageName(), "welcome.html");
}

TEST_F(HelpBesideADialog, StaysOpenWhenTheDialogCloses) {
  OpenDialog();
  help.ShowTopic("How to Play");
  dialog.reset();
  EXPECT_TRUE(help.isVisible());
  EXPECT_EQ(help.windowHandle()->transientParent(), nullptr);
}

TEST_F(HelpBesideADialog, LeavesTheGameToTheDialog) {
  QLineEdit field(&game);
  OpenDialog();
  help.ShowTopic("How to Play");
  QTest::keyClick(game.windowHandle(), Qt::Key_A);
  EXPECT_EQ(QGuiApplication::modalWindow(), dialog->windowHandle());
  EXPECT_TRUE(field.text().isEmpty());
}
