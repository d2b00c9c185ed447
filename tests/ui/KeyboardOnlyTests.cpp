// Every window, used by keyboard alone.

#include <map>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>

#include "tests/ui/Desk.h"

namespace {

constexpr int FurtherWindows = 3;
constexpr int MostTabStops = 200;
constexpr int FocusFrame = 4;  // pixels around a control in which its focus may show

struct WindowCase {
  const char* title;
  const char* entry;      // none: the window that the last square of the tour opens
  int windowsBefore = 0;  // which are left by their default button
};

void PrintTo(const WindowCase& window, std::ostream* stream) {
  *stream << window.title;
}

QByteArray BeginningOfTour(int moves) {
  QFile tour(TEST_DATA_DIRECTORY "beverley-1848.knight");
  EXPECT_TRUE(tour.open(QIODevice::ReadOnly));
  const QList<QByteArray> lines = tour.readAll().split('\n');
  QByteArray game = "20\r\n";
  for (int line = 1; line <= SquareCount; ++line) {
    game += line <= moves ? lines[line].trimmed() + "\r\n" : QByteArray("-1 -1\r\n");
  }
  return game;
}

class KeyboardOnly : public Desk, public testing::WithParamInterface<WindowCase> {
 protected:
  void InTheWindow(const Visit& check) {
    const WindowCase& opened = GetParam();
    OpenGame(opened.entry == nullptr ? SquareCount - 1 : 50);
    for (int before = 0; before < opened.windowsBefore; ++before) {
      WhenNextModalOpens([](QWidget& modal) { QTest::keyClick(&modal, Qt::Key_Return); });
    }
    bool checked = false;
    WhenNextModalOpens([&](QWidget& modal) {
      EXPECT_EQ(modal.windowTitle(), opened.title);
      EXPECT_TRUE(QTest::qWaitForWindowActive(&modal));
      check(modal);
      checked = true;
      QTest::keyClick(modal.focusWidget(), Qt::Key_Escape);
      EXPECT_FALSE(modal.isVisible());
    });
    for (int i = 0; i < FurtherWindows; ++i) {
      WhenNextModalOpens([](QWidget& modal) { modal.close(); });
    }
    opened.entry == nullptr ? ClickSquare(2, 7) : Choose(opened.entry);
    EXPECT_TRUE(checked);
  }

  static QList<QWidget*> TabStops(QWidget& window) {
    QList<QWidget*> stops;
    while (!stops.contains(window.focusWidget()) && stops.size() < MostTabStops) {
      stops += window.focusWidget();
      QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    }
    return stops;
  }

 private:
  void OpenGame(int moves) {
    const QString name = ProgramFile("tour.knight");
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(BeginningOfTour(moves));
    file.close();
    Open("[Replay]\nAdvancement=1\n", name);  // a replay that stands still
  }
};

bool IsControl(const QWidget& widget) {
  const auto* area = qobject_cast<QAbstractScrollArea*>(widget.parentWidget()->parentWidget());
  if (area != nullptr) return false;  // a bar or a viewport is part of its area
  return qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
         qobject_cast<const QAbstractItemView*>(&widget) != nullptr ||
         qobject_cast<const QLineEdit*>(&widget) != nullptr ||
         qobject_cast<const QScrollBar*>(&widget) != nullptr;
}

QList<QWidget*> EnabledControls(const QWidget& window) {
  QList<QWidget*> controls;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (widget->isVisible() && widget->isEnabled() && IsControl(*widget)) controls += widget;
  }
  return controls;
}

// Options of which one is chosen are one stop; the arrow keys lead from one to the next.
const QWidget* StopOf(const QWidget* control) {
  const auto* button = qobject_cast<const QAbstractButton*>(control);
  const bool option = button != nullptr && (button->autoExclusive() || button->group() != nullptr);
  return option ? control->parentWidget() : control;
}

std::string Describe(const QWidget* widget) {
  return (widget->objectName() + " (" + widget->metaObject()->className() + ")").toStdString();
}

QString TextWithMnemonic(const QWidget& widget) {
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text();
  const auto* label = qobject_cast<const QLabel*>(&widget);
  return label != nullptr && label->buddy() != nullptr ? label->text() : QString();
}

void Differ(const QStringList& texts) {
  std::map<QString, QString> owners;
  for (const QString& text : texts) {
    const QString mnemonic = QKeySequence::mnemonic(text).toString();
    if (mnemonic.isEmpty()) continue;
    const auto [owner, isNew] = owners.emplace(mnemonic, text);
    EXPECT_TRUE(isNew) << owner->second.toStdString() << " and " << text.toStdString();
  }
}

QImage Surroundings(const QWidget& control) {
  QWidget* window = control.window();
  const QRect place(control.mapTo(window, QPoint()), control.size());
  return window->grab(place.adjusted(-FocusFrame, -FocusFrame, FocusFrame, FocusFrame)).toImage();
}

}  // namespace

TEST_P(KeyboardOnly, FindsNoMnemonicTwice) {
  InTheWindow([](QWidget& window) {
    QStringList texts;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
      if (widget->isVisible()) texts += TextWithMnemonic(*widget);
    }
    Differ(texts);
  });
}

TEST_P(KeyboardOnly, ReachesEveryControl) {
  InTheWindow([](QWidget& window) {
    QList<const QWidget*> reached;
    for (const QWidget* stop : TabStops(window)) reached += StopOf(stop);
    for (const QWidget* control : EnabledControls(window)) {
      EXPECT_TRUE(reached.contains(StopOf(control))) << Describe(control);
    }
  });
}

TEST_P(KeyboardOnly, StopsOnlyAtWhatCanBeSeen) {
  InTheWindow([](QWidget& window) {
    for (const QWidget* stop : TabStops(window)) {
      EXPECT_TRUE(stop->isVisible() && !stop->visibleRegion().isEmpty()) << Describe(stop);
    }
  });
}

TEST_P(KeyboardOnly, StopsAtTheChosenOption) {
  InTheWindow([](QWidget& window) {
    for (const QWidget* stop : TabStops(window)) {
      const auto* option = qobject_cast<const QRadioButton*>(stop);
      EXPECT_TRUE(option == nullptr || option->isChecked()) << Describe(stop);
    }
  });
}

TEST_P(KeyboardOnly, SeesWhereTheFocusIs) {
  InTheWindow([](QWidget& window) {
    const auto stops = TabStops(window).size();
    for (int step = 0; stops > 1 && step < stops; ++step) {
      QApplication::setActiveWindow(&window);
      const QWidget& stop = *window.focusWidget();
      const QImage focused = Surroundings(stop);
      QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
      EXPECT_NE(focused, Surroundings(stop)) << Describe(&stop);
    }
  });
}

INSTANTIATE_TEST_SUITE_P(
    Windows, KeyboardOnly,
    testing::Values(WindowCase{"High Scores", "mnuViewHighScores"},
                    WindowCase{"Low Scores", "mnuViewLowScores"},
                    WindowCase{"About Gallopade Nova", "mnuHelpAbout"},
                    WindowCase{"Preferences", "mnuPrefs"}, WindowCase{"Replay", "mnuViewReplay"},
                    WindowCase{"Move History", "mnuViewHistory"},
                    WindowCase{"Command History", "mnuEditHistory"},
                    WindowCase{"Solve", "mnuFileSolve"}, WindowCase{"You Win!", nullptr},
                    WindowCase{"Game Over...", nullptr, 1}, WindowCase{"High Scores", nullptr, 2}));

class KeyboardInTheMainWindow : public Desk {};

TEST_F(KeyboardInTheMainWindow, FindsNoMnemonicTwiceInAMenu) {
  Open();
  QStringList menus;
  for (const QAction* menu : Window().menuBar()->actions()) menus += menu->text();
  Differ(menus);
  for (const QMenu* menu : Window().menuBar()->findChildren<QMenu*>()) {
    QStringList entries;
    for (const QAction* entry : menu->actions()) entries += entry->text();
    Differ(entries);
  }
}

TEST_F(KeyboardInTheMainWindow, HasTheKeyboardOnTheBoardAfterADialog) {
  Open();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&Window()));
  WhenNextModalOpens([](QWidget& modal) { QTest::keyClick(&modal, Qt::Key_Escape); });
  Choose("mnuHelpAbout");
  QCoreApplication::processEvents();
  EXPECT_EQ(Window().focusWidget()->objectName(), "pctGrid");
}
