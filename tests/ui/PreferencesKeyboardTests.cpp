#include <QTest>

#include "tests/ui/PreferencesDesk.h"

namespace {

class PreferencesKeyboard : public PreferencesDesk {
 protected:
  // Releases a key on the selected square of the preview board.
  static void ReleaseKey(QWidget& window, Qt::Key key,
                         Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* focus = window.focusWidget();
    QTest::keyClick(focus, key, modifiers);
  }

  // Puts the selection on a square by its stored coordinates, and the focus on it.
  void OnSquare(int x, int y, const Work& work) {
    Open(QString("[Position]\nStarting Position=2\nStarting X=%1\nStarting Y=%2\n").arg(x).arg(y));
    InPreferences([&](frmPreferences& window) {
      Cell(window, x, y).setFocus();
      work(window);
    });
  }

  static void AllKeysLeadTo(QWidget& window, const std::string& square,
                            std::initializer_list<Qt::Key> keys) {
    for (const Qt::Key key : keys) ReleaseKey(window, key);
    EXPECT_EQ(SelectedSquare(window), square);
  }
};

bool IsOn(QWidget& window, const char* option) {
  return Child<QAbstractButton>(window, option).isChecked();
}

}  // namespace

TEST_F(PreferencesKeyboard, MovesTheStartingSquareWithTheArrows) {
  OnSquare(3, 3, [](frmPreferences& window) {
    AllKeysLeadTo(window, "E5", {Qt::Key_Right});
    AllKeysLeadTo(window, "D5", {Qt::Key_Left});
    AllKeysLeadTo(window, "D4", {Qt::Key_Down});
    AllKeysLeadTo(window, "D5", {Qt::Key_Up});
  });
}

TEST_F(PreferencesKeyboard, MovesTheStartingSquareWithTheKeypad) {
  OnSquare(3, 3, [](frmPreferences& window) {
    ReleaseKey(window, Qt::Key_6, Qt::KeypadModifier);
    EXPECT_EQ(SelectedSquare(window), "E5");
    ReleaseKey(window, Qt::Key_4, Qt::KeypadModifier);
    EXPECT_EQ(SelectedSquare(window), "D5");
    ReleaseKey(window, Qt::Key_2, Qt::KeypadModifier);
    EXPECT_EQ(SelectedSquare(window), "D4");
    ReleaseKey(window, Qt::Key_8, Qt::KeypadModifier);
    EXPECT_EQ(SelectedSquare(window), "D5");
  });
}

TEST_F(PreferencesKeyboard, LeavesTheDigitsOfTheMainKeyboardAlone) {
  OnSquare(3, 3, [](frmPreferences& window) { AllKeysLeadTo(window, "D5", {Qt::Key_6}); });
}

TEST_F(PreferencesKeyboard, MovesTheStartingSquareToTheEdges) {
  OnSquare(3, 3, [](frmPreferences& window) {
    AllKeysLeadTo(window, "H5", {Qt::Key_End});
    AllKeysLeadTo(window, "H8", {Qt::Key_PageUp});
    AllKeysLeadTo(window, "A8", {Qt::Key_Home});
    AllKeysLeadTo(window, "A1", {Qt::Key_PageDown});
  });
}

TEST_F(PreferencesKeyboard, KeepsTheStartingSquareOnTheBoard) {
  OnSquare(0, 0, [](frmPreferences& window) {
    AllKeysLeadTo(window, "A8", {Qt::Key_Left, Qt::Key_Up, Qt::Key_Home, Qt::Key_PageUp});
    EXPECT_TRUE(IsOn(window, "optPosition(2)"));
  });
}

TEST_F(PreferencesKeyboard, StartsThereWhenTheSquareMoved) {
  OnSquare(0, 0, [](frmPreferences& window) {
    ReleaseKey(window, Qt::Key_Right);
    EXPECT_TRUE(IsOn(window, "optPosition(0)"));
  });
}

TEST_F(PreferencesKeyboard, StartsThereWhenTheSelectedSquareIsClicked) {
  OnSquare(0, 0, [](frmPreferences& window) {
    QTest::mouseClick(&Cell(window, 0, 0), Qt::LeftButton);
    EXPECT_TRUE(IsOn(window, "optPosition(0)"));
  });
}

TEST_F(PreferencesKeyboard, StartsThereWhenAScreenReaderTogglesASquare) {
  OnSquare(0, 0, [](frmPreferences& window) {
    Cell(window, 7, 7).toggle();
    EXPECT_EQ(SelectedSquare(window), "H1");
    EXPECT_TRUE(IsOn(window, "optPosition(0)"));
  });
}

TEST_F(PreferencesKeyboard, MovesOnceForAKeyThatIsHeldDown) {
  OnSquare(0, 0, [](frmPreferences& window) {
    QWidget* square = window.focusWidget();
    for (const bool repeat : {true, true, false}) {
      QKeyEvent release(QEvent::KeyRelease, Qt::Key_Right, Qt::NoModifier, QString(), repeat);
      QCoreApplication::sendEvent(square, &release);
    }
    EXPECT_EQ(SelectedSquare(window), "B8");
  });
}

TEST_F(PreferencesKeyboard, IsOneStopOfTheTabKey) {
  Open("[Position]\nStarting X=4\nStarting Y=4\n");
  InPreferences([](frmPreferences& window) {
    int stops = 0;
    for (int index = 0; index < SquareCount; ++index) {
      const QWidget& cell = Cell(window, ColumnOf(index), RowOf(index));
      if (cell.focusPolicy() & Qt::TabFocus) ++stops;
    }
    EXPECT_EQ(stops, 1);
  });
}

TEST_F(PreferencesKeyboard, ReachesEveryControlWithTheTabKey) {
  Open();
  InPreferences([](frmPreferences& window) {
    QStringList visited;
    Child<QWidget>(window, "cmdLight").setFocus();
    do {
      visited << window.focusWidget()->objectName();
      QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
    } while (!visited.contains(window.focusWidget()->objectName()) && visited.size() < 100);
    EXPECT_EQ(visited.join(' ').toStdString(),
              "cmdLight cmdDark cmdVisited cmdKnight cmdFrame chkUseImages cmdHighlightColor "
              "optHighlight(2) pctGrid(0) optPosition(0) cmdDefaultConfiguration cmdClearScores "
              "cmdOK cmdCancel");
  });
}

TEST_F(PreferencesKeyboard, ChangesEverythingWithoutAMouse) {
  Open();
  InPreferences([this](frmPreferences& window) {
    const auto press = [&window](Qt::Key letter) {
      QTest::keyClick(window.windowHandle(), letter, Qt::AltModifier);
    };
    press(Qt::Key_I);
    press(Qt::Key_P);
    press(Qt::Key_R);
    ChooseColor(Qt::red);
    press(Qt::Key_V);
    QTest::keyClick(window.windowHandle(), Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
  });
  EXPECT_EQ(Stored("Chessboard", "Use Images"), "0");
  EXPECT_EQ(Stored("Chessboard", "Visited Color"), "255");
  EXPECT_EQ(Stored("Highlight", "Highlighting Method"), "1");
  EXPECT_EQ(Stored("Position", "Starting Position"), "2");
}

TEST_F(PreferencesKeyboard, ActsOnALetterBeforeTheNextKey) {
  Open();
  InPreferences([](frmPreferences& window) {
    QTest::keyClick(window.windowHandle(), Qt::Key_N, Qt::AltModifier);
    EXPECT_TRUE(IsOn(window, "optHighlight(0)"));
    EXPECT_EQ(window.focusWidget()->objectName(), "optHighlight(0)");
  });
}
