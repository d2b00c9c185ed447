// Keys that are held and clicks that are doubled while windows come and go.

#include <QAbstractButton>
#include <QDialog>
#include <QMouseEvent>
#include <QStyleHints>
#include <QTest>
#include <QWindow>

#include "tests/ui/EndgameDesk.h"

namespace {

constexpr quint32 ScanCode = 36;
constexpr quint64 Noon = 1000000;  // in milliseconds
constexpr auto DoubleClick = [] {
  return static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
};

enum class Mark { None, Repeat };

struct Key {
  Qt::Key key = Qt::Key_Return;
  Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

// As the X server tells of a key.
void Send(const QWidget& window, QEvent::Type type, Key key, quint64 time, Mark mark) {
  QKeyEvent event(type, key.key, key.modifiers, ScanCode, 0, 0, QString(), mark == Mark::Repeat);
  event.setTimestamp(time);
  QCoreApplication::sendEvent(window.windowHandle(), &event);
}

void PressDown(const QWidget& window, Key key, quint64 time) {
  Send(window, QEvent::KeyPress, key, time, Mark::None);
}

void Release(const QWidget& window, Key key, quint64 time) {
  Send(window, QEvent::KeyRelease, key, time, Mark::None);
}

void Repeat(const QWidget& window, Key key, quint64 time, Mark mark = Mark::Repeat) {
  Send(window, QEvent::KeyRelease, key, time, mark);
  Send(window, QEvent::KeyPress, key, time, mark);
}

void SendMouse(const QWidget& window, QEvent::Type type, QPoint place, quint64 time) {
  const bool isUp = type == QEvent::MouseButtonRelease;
  QMouseEvent event(type, window.mapFromGlobal(place), place, Qt::LeftButton,
                    isUp ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
  event.setTimestamp(time);
  QCoreApplication::sendEvent(window.windowHandle(), &event);
}

void Click(const QWidget& window, QPoint place, quint64 time) {
  SendMouse(window, QEvent::MouseButtonPress, place, time);
  SendMouse(window, QEvent::MouseButtonRelease, place, time);
}

QPoint MiddleOf(const QWidget& widget) {
  return widget.mapToGlobal(widget.rect().center());
}

QAbstractButton& ButtonOf(QWidget& box, QMessageBox::StandardButton button) {
  return *dynamic_cast<QMessageBox&>(box).button(button);
}

class LeftoverInputTest : public EndgameDesk {
 protected:
  // A game of three squares, so that New asks.
  void OpenGameInProgress() {
    Open();
    PlayOnBoard("B6 C8");
    ASSERT_EQ(State().MoveCount, 3);
  }

  // Presses a key in the main window; the question of New then opens while it is down.
  void InQuestionOpenedBy(Key key, const Visit& visit) {
    OpenGameInProgress();
    WhenNextModalOpens(visit);
    PressDown(Window(), key, Noon);
    Choose("mnuFileNew");
  }
};

}  // namespace

TEST_F(LeftoverInputTest, AHeldKeyAnswersNothingUntilItHasBeenReleased) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Escape}) {
    InQuestionOpenedBy({key}, [key](QWidget& question) {
      Repeat(question, {key}, Noon + 100);
      EXPECT_TRUE(question.isVisible());
      Release(question, {key}, Noon + 200);
      PressDown(question, {key}, Noon + 300);
      EXPECT_FALSE(question.isVisible());
    });
  }
}

TEST_F(LeftoverInputTest, ARepeatThatIsNotMarkedAnswersNothing) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Escape}) {
    InQuestionOpenedBy({key}, [key](QWidget& question) {
      for (const Mark mark : {Mark::None, Mark::Repeat, Mark::None}) {
        Repeat(question, {key}, Noon + 100, mark);
      }
      EXPECT_TRUE(question.isVisible());
      PressDown(question, {key}, Noon + 300);
      EXPECT_FALSE(question.isVisible());
    });
  }
}

TEST_F(LeftoverInputTest, AKeyWhoseReleaseNobodySawAnswersWhenItIsPressedAgain) {
  InQuestionOpenedBy({}, [](QWidget& question) {
    PressDown(question, {}, Noon + 300);
    EXPECT_FALSE(question.isVisible());
  });
}

TEST_F(LeftoverInputTest, AKeyThatWasHeldBeforeTheProgramStartedAnswersNothing) {
  OpenGameInProgress();
  WhenNextModalOpens([](QWidget& question) {
    Repeat(question, {}, Noon);
    EXPECT_TRUE(question.isVisible());
    question.close();
  });
  Choose("mnuFileNew");
}

TEST_F(LeftoverInputTest, AHeldLetterAnswersNothing) {
  InQuestionOpenedBy({Qt::Key_N}, [](QWidget& question) {
    Repeat(question, {Qt::Key_N}, Noon + 100);
    EXPECT_TRUE(question.isVisible());
    PressDown(question, {Qt::Key_N}, Noon + 200);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !question.isVisible(); }));
  });
}

TEST_F(LeftoverInputTest, AHeldEscapeClosesOnlyOneWindow) {
  Open();
  WhenNextModalOpens([this](QWidget& preferences) {
    WhenNextModalOpens([](QWidget& chooser) { PressDown(chooser, {Qt::Key_Escape}, Noon); });
    Press(preferences, "cmdHighlightColor");
    Repeat(preferences, {Qt::Key_Escape}, Noon + 100);
    EXPECT_TRUE(preferences.isVisible());
    PressDown(preferences, {Qt::Key_Escape}, Noon + 200);
    EXPECT_FALSE(preferences.isVisible());
  });
  Choose("mnuPrefs");
}

TEST_F(LeftoverInputTest, AHeldReturnPressesAButtonOnce) {
  Open("[Replay]\nAdvancement=1\n");
  PlayOnBoard("B6 C8 D6 E8");
  WhenNextModalOpens([this](QWidget& replay) {
    Child<QWidget>(replay, "cmdAdvancePause").setFocus();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
      const int before = State().MoveCount;
      PressDown(replay, {key}, Noon);
      for (const Mark mark : {Mark::Repeat, Mark::None}) Repeat(replay, {key}, Noon + 100, mark);
      Release(replay, {key}, Noon + 200);
      EXPECT_EQ(State().MoveCount, before + 1);
    }
    WhenNextModalOpens([](QWidget& question) { question.close(); });
    replay.close();
  });
  Choose("mnuViewReplay");
}

TEST_F(LeftoverInputTest, ABlankIsRepeatedInAName) {
  Open();
  SubmitAGame([](frmScores& scores) {
    NameBox& box = BoxOf(scores);
    box.setText("A");
    box.setCursorPosition(1);
    const auto blank = [&](bool repeat) {
      QKeyEvent event(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, ScanCode, 0, 0, " ", repeat);
      QCoreApplication::sendEvent(scores.windowHandle(), &event);
    };
    blank(false);
    blank(true);
    EXPECT_EQ(box.text(), "A  ");
    scores.close();
  });
}

TEST_F(LeftoverInputTest, AHeldArrowLeadsOnInTheMenuThatItOpened) {
  Open();
  PressDown(Window(), {Qt::Key_Down}, Noon);
  auto& menu = Child<QMenu>(Window(), "mnuView");
  menu.popup(Window().pos());
  menu.setActiveAction(&MenuItem("mnuViewScore"));
  Repeat(menu, {Qt::Key_Down}, Noon + 100);
  EXPECT_EQ(menu.activeAction(), &MenuItem("mnuViewTime"));
  menu.close();
}

TEST_F(LeftoverInputTest, TheLetterThatOpenedAMenuChoosesNothingInIt) {
  Open();
  PressDown(Window(), {Qt::Key_T}, Noon);
  auto& menu = Child<QMenu>(Window(), "mnuView");
  menu.popup(Window().pos());
  Repeat(menu, {Qt::Key_T}, Noon + 100);
  EXPECT_TRUE(menu.isVisible());
  EXPECT_TRUE(MenuItem("mnuViewTime").isChecked());
  menu.close();
}

TEST_F(LeftoverInputTest, TheSecondPressOfADoubleClickIsNotForTheWindowThatOpened) {
  OpenGameInProgress();
  WhenNextModalOpens([](QWidget& question) {
    QAbstractButton& yes = ButtonOf(question, QMessageBox::Yes);
    SendMouse(question, QEvent::MouseButtonRelease, MiddleOf(yes), Noon);
    question.hide();
    question.show();
    SendMouse(question, QEvent::MouseButtonPress, MiddleOf(yes), Noon + DoubleClick() - 1);
    SendMouse(question, QEvent::MouseButtonDblClick, MiddleOf(yes), Noon + DoubleClick() - 1);
    SendMouse(question, QEvent::MouseButtonRelease, MiddleOf(yes), Noon + 2 * DoubleClick());
    EXPECT_TRUE(question.isVisible());
    Click(question, MiddleOf(yes), Noon + 2 * DoubleClick());
    EXPECT_FALSE(question.isVisible());
  });
  Choose("mnuFileNew");
}
