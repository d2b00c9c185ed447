#include "tests/ui/PreferencesDesk.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include "core/Square.h"

void PreferencesDesk::InPreferences(const Work& work) {
  WhenNextModalOpens([work](QWidget& modal) {
    auto* window = qobject_cast<frmPreferences*>(&modal);
    ASSERT_NE(window, nullptr) << modal.windowTitle().toStdString();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    work(*window);
    if (window->isVisible()) window->reject();
  });
  Choose("mnuPrefs");
  EXPECT_TRUE(AllVisitsMade());
}

void PreferencesDesk::Restart() {
  ASSERT_TRUE(Close());
  globals.settings = Settings();
  Open();
}

void PreferencesDesk::ChooseColor(const QColor& color) {
  WhenNextModalOpens([color](QWidget& modal) {
    auto& dialog = dynamic_cast<QColorDialog&>(modal);
    dialog.setCurrentColor(color);
    dialog.accept();
  });
}

void PreferencesDesk::ChooseFile(const QString& pathName) {
  WhenNextModalOpens([pathName](QWidget& modal) {
    auto& dialog = dynamic_cast<QFileDialog&>(modal);
    auto& name = Child<QLineEdit>(dialog, "fileNameEdit");
    name.setText(pathName);
    QTest::keyClick(&name, Qt::Key_Return);
    if (dialog.isVisible()) dialog.reject();
  });
}

void PreferencesDesk::AnswerFrameWidth(const QString& answer) {
  WhenNextModalOpens([answer](QWidget& modal) {
    auto& dialog = dynamic_cast<QInputDialog&>(modal);
    EXPECT_EQ(dialog.windowTitle(), "Frame Width");
    dialog.setTextValue(answer);
    dialog.accept();
  });
}

void PreferencesDesk::CancelNextWindow() {
  WhenNextModalOpens([](QWidget& modal) { dynamic_cast<QDialog&>(modal).reject(); });
}

void PreferencesDesk::WhenPopupOpens(const MenuWork& work) {
  QTimer::singleShot(0, &popupVisitor_, [work] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr) << "no popup menu opened";
    work(*menu);
    menu->close();
  });
}

QString PreferencesDesk::PictureFile(const QString& name, const QColor& color) {
  QImage picture(32, 32, QImage::Format_RGB32);
  picture.fill(color);
  EXPECT_TRUE(picture.save(ProgramFile(name), "BMP"));
  return ProgramFile(name);
}

QString PreferencesDesk::Stored(const QString& section, const QString& key) const {
  return clsIniFile().ReadIniFileValues(globals.IniFile.PathName()).Value(section, key);
}

// Near its left end, where options have their circle.
void Click(QWidget& window, const char* button) {
  auto& control = Child<QAbstractButton>(window, button);
  QTest::mouseClick(&control, Qt::LeftButton, Qt::NoModifier, QPoint(8, control.height() / 2));
}

void RightClick(QWidget& window, const char* button) {
  QTest::mouseClick(&Child<QAbstractButton>(window, button), Qt::RightButton);
}

QString CaptionOf(QWidget& window, const char* button) {
  return Child<QAbstractButton>(window, button).text();
}

QColor ColorOf(QWidget& window, const char* widget) {
  const QImage seen = Child<QWidget>(window, widget).grab().toImage();
  return seen.pixelColor(seen.rect().center());
}

QColor EdgeColorOf(QWidget& window, const char* widget) {
  return Child<QWidget>(window, widget).grab().toImage().pixelColor(2, 2);
}

QAbstractButton& Cell(QWidget& window, int x, int y) {
  const auto name = QString("pctGrid(%1)").arg(SquareIndex(x, y)).toLatin1();
  return Child<QAbstractButton>(window, name);
}

std::string SelectedSquare(QWidget& window) {
  std::string selected;
  for (int index = 0; index < SquareCount; ++index) {
    const int x = ColumnOf(index);
    const int y = RowOf(index);
    if (Cell(window, x, y).isChecked()) selected += SquareName(x, y);
  }
  return selected;
}

QAction& Entry(const QMenu& menu, int index) {
  for (QAction* entry : menu.actions()) {
    if (entry->data().toInt() == index) return *entry;
  }
  throw std::runtime_error("no menu entry " + std::to_string(index));
}

void Pick(QMenu& menu, int index) {
  QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier,
                    menu.actionGeometry(&Entry(menu, index)).center());
}
