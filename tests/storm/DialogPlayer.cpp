#include <algorithm>

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QScrollBar>
#include <QTest>

#include "tests/storm/Hand.h"

namespace {

constexpr Qt::Key DialogKeys[] = {Qt::Key_Tab,   Qt::Key_Backtab, Qt::Key_Left,  Qt::Key_Right,
                                  Qt::Key_Up,    Qt::Key_Down,    Qt::Key_Home,  Qt::Key_End,
                                  Qt::Key_Space, Qt::Key_Return,  Qt::Key_Enter, Qt::Key_PageDown,
                                  Qt::Key_A,     Qt::Key_S,       Qt::Key_F1,    Qt::Key_Plus};

constexpr const char* FrameWidths[] = {"0", "16", "100", "101", "-5", "", "wide", "1e9", "7.5"};

constexpr const char* PlayerNames[] = {"Ann",
                                       "",
                                       "  ",
                                       "Enter Your Name",
                                       "B=C; [D]",
                                       "\"Eve\"",
                                       "Zo\u00eb \u2658",
                                       "a name that is far too long for its box",
                                       "<b>bold</b>",
                                       "' quoted '"};

std::string NameOf(const QObject& object) {
  return object.objectName().toStdString();
}

template <typename Widget>
QList<Widget*> UsableChildren(const QWidget& window) {
  QList<Widget*> usable;
  for (Widget* child : window.findChildren<Widget*>()) {
    if (child->isVisible() && child->isEnabled() && child->window() == &window) usable += child;
  }
  return usable;
}

void CloseBox(const Hand& hand, QWidget& dialog) {
  if (hand.chance.OneIn(2)) {
    hand.journal.Note("close " + NameOf(dialog));
    dialog.close();
  } else {
    hand.journal.Note("Escape in " + NameOf(dialog));
    QTest::keyClick(&dialog, Qt::Key_Escape);
  }
}

void AnswerMessage(const Hand& hand, QMessageBox& box) {
  const auto buttons = box.buttons();
  const bool leaving = box.windowTitle() == "Exit?";
  QAbstractButton* button =
      leaving && !hand.chance.OneIn(5) ? box.button(QMessageBox::No) : hand.chance.Pick(buttons);
  hand.journal.Note(box.windowTitle().toStdString() + " " + button->text().toStdString());
  button->click();
}

FileKind KindOf(const QFileDialog& dialog) {
  const QString filters = dialog.nameFilters().join(' ');
  if (filters.contains("Games")) return FileKind::Game;
  if (filters.contains("Chessboards")) return FileKind::Chessboard;
  if (filters.contains("Rich Text")) return FileKind::MoveList;
  return FileKind::Picture;
}

void AnswerFileDialog(const Hand& hand, QFileDialog& dialog) {
  if (hand.chance.OneIn(4)) return CloseBox(hand, dialog);
  const bool saving = dialog.acceptMode() == QFileDialog::AcceptSave;
  const FileKind kind = KindOf(dialog);
  const QStringList names =
      saving ? ProgramFolder::NamesToSave(kind) : ProgramFolder::NamesToOpen(kind);
  const QString name = hand.chance.Pick(names);
  hand.journal.Note((saving ? "save " : "open ") + name.left(40).toStdString());
  auto* edit = dialog.findChild<QLineEdit*>("fileNameEdit");
  edit->setText(hand.folder.Path(name));
  QTest::keyClick(edit, Qt::Key_Return);
}

void AnswerColorDialog(const Hand& hand, QColorDialog& dialog) {
  if (hand.chance.OneIn(4)) return CloseBox(hand, dialog);
  hand.journal.Note("a colour");
  dialog.setCurrentColor(QColor::fromRgb(static_cast<QRgb>(hand.chance.Below(1 << 24))));
  QTest::keyClick(&dialog, Qt::Key_Return);
}

void AnswerInputBox(const Hand& hand, QInputDialog& dialog) {
  const QString text = hand.chance.Pick(FrameWidths);
  hand.journal.Note("answer " + text.toStdString());
  dialog.setTextValue(text);
  if (hand.chance.OneIn(4)) {
    dialog.reject();
  } else {
    dialog.accept();
  }
}

bool IsWayOut(const QAbstractButton& button) {
  static const QStringList names{"cmdClose", "cmdOK", "cmdCancel", "cmdScoresReplay"};
  return names.contains(button.objectName());
}

void UseButton(const Hand& hand, QWidget& window) {
  const auto buttons = UsableChildren<QAbstractButton>(window);
  if (buttons.isEmpty()) return;
  QAbstractButton* button = hand.chance.Pick(buttons);
  // Otherwise most visits would be short.
  if (IsWayOut(*button) && !hand.chance.OneIn(4)) button = hand.chance.Pick(buttons);
  hand.journal.Note(NameOf(window) + " " + NameOf(*button));
  if (hand.chance.OneIn(5)) {
    ClickAt(hand, *button, Qt::RightButton);
  } else {
    button->click();
  }
}

void UseScrollBar(const Hand& hand, QWidget& window) {
  const auto bars = UsableChildren<QScrollBar>(window);
  if (bars.isEmpty()) return;
  QScrollBar* bar = hand.chance.Pick(bars);
  const int value = bar->minimum() + hand.chance.Below(bar->maximum() - bar->minimum() + 1);
  hand.journal.Note(NameOf(window) + " " + NameOf(*bar) + " to " + std::to_string(value));
  bar->setValue(value);
}

void UseList(const Hand& hand, QWidget& window) {
  const auto lists = UsableChildren<QListWidget>(window);
  if (lists.isEmpty() || lists.first()->count() == 0) return;
  const int row = hand.chance.Below(lists.first()->count());
  hand.journal.Note(NameOf(window) + " row " + std::to_string(row));
  lists.first()->setCurrentRow(row);
}

void UseTextBox(const Hand& hand, QWidget& window) {
  const auto boxes = UsableChildren<QLineEdit>(window);
  if (boxes.isEmpty()) return;
  const QString text = QString::fromUtf8(hand.chance.Pick(PlayerNames));
  hand.journal.Note(NameOf(window) + " type " + text.toStdString());
  boxes.first()->setText(text);
  if (hand.chance.OneIn(2)) QTest::keyClick(boxes.first(), Qt::Key_Return);
}

void ClickAnything(const Hand& hand, QWidget& window) {
  const auto children = UsableChildren<QWidget>(window);
  if (children.isEmpty()) return;
  QWidget* child = hand.chance.Pick(children);
  hand.journal.Note(NameOf(window) + " click " + NameOf(*child));
  const QPoint middle = child->rect().center();
  if (hand.chance.OneIn(3)) {
    QTest::mouseDClick(child, Qt::LeftButton, Qt::NoModifier, middle);
  } else {
    ClickAt(hand, *child, hand.chance.OneIn(6) ? Qt::RightButton : Qt::LeftButton);
  }
}

QPoint PointIn(const Hand& hand, const QWidget& widget) {
  return {hand.chance.Below(std::max(widget.width(), 1)),
          hand.chance.Below(std::max(widget.height(), 1))};
}

void DragAnything(const Hand& hand, QWidget& window) {
  const auto children = UsableChildren<QWidget>(window);
  if (children.isEmpty()) return;
  const QPointer<QWidget> child = hand.chance.Pick(children);
  hand.journal.Note(NameOf(window) + " drag in " + NameOf(*child));
  QTest::mousePress(child, Qt::LeftButton, Qt::NoModifier, PointIn(hand, *child));
  for (int i = 0; i < 3 && child != nullptr; ++i) QTest::mouseMove(child, PointIn(hand, *child));
  if (child == nullptr) return;
  QTest::mouseRelease(child, Qt::LeftButton, Qt::NoModifier, PointIn(hand, *child));
}

// A screen reader reaches the menu of a window behind a dialog; nothing may come of it.
void ChooseBehindDialog(const Hand& hand) {
  const auto actions = hand.window.findChildren<QAction*>();
  QAction* action = hand.chance.Pick(actions);
  if (!action->objectName().startsWith("mnu") || action->menu() != nullptr) return;
  hand.journal.Note("behind the dialog: " + NameOf(*action));
  const int moves = hand.window.State().MoveCount;
  const auto serial = hand.window.State().GameSerial;
  action->trigger();
  if (hand.window.State().MoveCount != moves || hand.window.State().GameSerial != serial) {
    hand.journal.Fail("a menu behind a dialog has changed the game");
  }
}

void CloseBehindDialog(const Hand& hand) {
  hand.journal.Note("close the main window behind the dialog");
  if (hand.window.close()) hand.journal.Fail("the main window has closed behind a dialog");
}

// Closes what is on top, which takes the request for itself.
void QuitBehindDialog(const Hand& hand) {
  hand.journal.Note("quit behind the dialog");
  QApplication::closeAllWindows();
}

void UseDialog(const Hand& hand, QWidget& dialog) {
  const int what = hand.chance.Below(100);
  if (what < 60) {
    UseAnyControl(hand, dialog);
  } else if (what < 65) {
    DragAnything(hand, dialog);
  } else if (what < 80) {
    PressAnyKey(hand, dialog);
  } else if (what < 83) {
    ChooseBehindDialog(hand);
  } else if (what < 84) {
    hand.chance.OneIn(3) ? QuitBehindDialog(hand) : CloseBehindDialog(hand);
  } else if (what < 98) {
    ClickAnything(hand, dialog);
  } else {
    CloseBox(hand, dialog);
  }
}

}  // namespace

void ClickAt(const Hand&, QWidget& widget, Qt::MouseButton button) {
  QTest::mouseClick(&widget, button, Qt::NoModifier, widget.rect().center());
}

void PressAnyKey(const Hand& hand, QWidget& window) {
  QWidget* target = window.focusWidget() != nullptr ? window.focusWidget() : &window;
  const Qt::Key key = hand.chance.Pick(DialogKeys);
  const Qt::KeyboardModifier modifier =
      hand.chance.OneIn(6) ? Qt::AltModifier
                           : (hand.chance.OneIn(6) ? Qt::ShiftModifier : Qt::NoModifier);
  hand.journal.Note(NameOf(window) + " key " +
                    QKeySequence(key | modifier).toString().toStdString());
  QTest::keyClick(target, key, modifier);
}

void UseAnyControl(const Hand& hand, QWidget& window) {
  switch (hand.chance.Below(8)) {
    case 0:
      return UseScrollBar(hand, window);
    case 1:
      return UseList(hand, window);
    case 2:
      return UseTextBox(hand, window);
    default:
      return UseButton(hand, window);
  }
}

void ActOnDialog(const Hand& hand, QWidget& dialog) {
  if (hand.chance.OneIn(20)) return CloseBox(hand, dialog);
  if (auto* box = qobject_cast<QMessageBox*>(&dialog)) return AnswerMessage(hand, *box);
  if (auto* files = qobject_cast<QFileDialog*>(&dialog)) return AnswerFileDialog(hand, *files);
  if (auto* colors = qobject_cast<QColorDialog*>(&dialog)) return AnswerColorDialog(hand, *colors);
  if (auto* input = qobject_cast<QInputDialog*>(&dialog)) return AnswerInputBox(hand, *input);
  UseDialog(hand, dialog);
}

void ActOnHelp(const Hand& hand, QWidget& help) {
  if (hand.chance.OneIn(4)) return CloseBox(hand, help);
  if (hand.chance.OneIn(2)) return PressAnyKey(hand, help);
  UseAnyControl(hand, help);
}

void ActOnPopup(const Hand& hand, QWidget& popup) {
  auto* menu = qobject_cast<QMenu*>(&popup);
  const auto entries = popup.actions();
  if (menu == nullptr || entries.isEmpty() || hand.chance.OneIn(3)) {
    hand.journal.Note("Escape in the menu");
    QTest::keyClick(&popup, Qt::Key_Escape);
    return;
  }
  QAction* entry = hand.chance.Pick(entries);
  hand.journal.Note("menu entry " + NameOf(*entry));
  QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(entry).center());
}

void LeaveDialog(const Hand& hand, QWidget& dialog) {
  hand.journal.Note("leave " + NameOf(dialog) + " " + dialog.windowTitle().toStdString());
  auto* box = qobject_cast<QMessageBox*>(&dialog);
  if (box != nullptr && box->button(QMessageBox::Yes) != nullptr) {
    const bool stay = box->windowTitle() != "Exit?";
    box->button(stay ? QMessageBox::No : QMessageBox::Yes)->click();
    return;
  }
  for (QLineEdit* name : dialog.findChildren<QLineEdit*>("txtHighScore")) name->clear();
  dialog.close();
}
