#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <gtest/gtest.h>

#include "ui/application/HelpKey.h"

namespace {

class F1 : public testing::Test {
 protected:
  void OpenDialog(QWidget& dialog) {
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
  }

  QStringList topics;
  HelpKey key{[this](const QString& topic) { topics << topic; }};
};

}  // namespace

TEST_F(F1, InADialogAsksForItsPage) {
  QDialog dialog;
  dialog.setObjectName("frmSolve");
  QLineEdit field(&dialog);
  OpenDialog(dialog);
  QTest::keyClick(&field, Qt::Key_F1);
  EXPECT_EQ(topics, QStringList("frmSolve"));
}

TEST_F(F1, InAMessageAsksForThePageOfTheWindowBelow) {
  QDialog dialog;
  dialog.setObjectName("frmPreferences");
  QMessageBox message(&dialog);
  OpenDialog(message);
  QTest::keyClick(&message, Qt::Key_F1);
  EXPECT_EQ(topics, QStringList("frmPreferences"));
}

TEST_F(F1, InADialogWithoutAPageAsksForTheContents) {
  QDialog dialog;
  OpenDialog(dialog);
  QTest::keyClick(&dialog, Qt::Key_F1);
  EXPECT_EQ(topics, QStringList(QString()));
}

TEST_F(F1, IsLeftAloneWhenNoDialogIsOpen) {
  QWidget window;
  window.setObjectName("frmGame");
  window.show();
  QTest::keyClick(&window, Qt::Key_F1);
  EXPECT_TRUE(topics.isEmpty());
}
