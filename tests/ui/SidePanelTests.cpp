// The panel that stands in for a window beside the board, and the main window's own shape.

#include <QMenuBar>
#include <QScreen>
#include <QTest>

#include "core/Twips.h"
#include "tests/support/Games.h"
#include "tests/ui/Desk.h"
#include "ui/board/BoardView.h"
#include "ui/windows/frmSolve.h"
#include "ui/windows/game/SidePanel.h"

namespace {

class BesidePanel : public Desk {
 protected:
  BesidePanel() { Open(); }

  // The panel with a dialog in it, as long as the work goes on.
  void WithPanel(const std::function<void(frmSolve& dialog, SidePanel& panel)>& work) {
    frmSolve dialog(Window().Context(), &Window());
    SidePanel panel(dialog, Window());
    dialog.show();
    QCoreApplication::processEvents();
    work(dialog, panel);
  }

  QRect BoardInWindow() {
    const QRect squares =
        Window().Board().SquareRectangle(0) | Window().Board().SquareRectangle(63);
    return {Window().Board().mapTo(&Window(), squares.topLeft()), squares.size()};
  }
};

class WindowShape : public Desk {
 protected:
  void Resize(const QSize& size) {
    Window().resize(size);
    QCoreApplication::processEvents();
  }
};

}  // namespace

TEST_F(BesidePanel, TheBoardIsWhole) {
  WithPanel([&](frmSolve&, SidePanel& panel) {
    EXPECT_LT(BoardInWindow().right(), panel.x());
    EXPECT_TRUE(Window().rect().contains(BoardInWindow()));
  });
}

TEST_F(BesidePanel, NothingLeavesTheWindow) {
  const int width = Window().width();
  WithPanel([&](frmSolve&, SidePanel& panel) {
    EXPECT_EQ(Window().width(), width);
    EXPECT_TRUE(Window().rect().contains(panel.geometry()));
  });
}

TEST_F(BesidePanel, TheDialogHasTheKeyboardAndTheMenusRest) {
  WithPanel([&](frmSolve& dialog, SidePanel&) {
    ASSERT_NE(Window().focusWidget(), nullptr);
    EXPECT_TRUE(dialog.isAncestorOf(Window().focusWidget()));
    EXPECT_FALSE(Window().menuBar()->isEnabled());
  });
  EXPECT_TRUE(Window().menuBar()->isEnabled());
  EXPECT_TRUE(Window().Board().hasFocus());
}

TEST_F(BesidePanel, TheWindowsCloseBoxClosesTheDialog) {
  WithPanel([&](frmSolve& dialog, SidePanel&) {
    Window().Perform([&] { EXPECT_FALSE(Close()); });
    EXPECT_FALSE(dialog.isVisible());
  });
}

TEST_F(BesidePanel, ThePanelsCloseBoxClosesTheDialog) {
  WithPanel([&](frmSolve& dialog, SidePanel& panel) {
    panel.close();
    EXPECT_FALSE(dialog.isVisible());
  });
}

TEST_F(WindowShape, IsSquareInsideAfterEveryResize) {
  Open();
  for (const QSize& size : {QSize(500, 400), QSize(300, 500), QSize(700, 300)}) {
    Resize(size);
    EXPECT_EQ(Window().Board().width(), Window().Board().height()) << size.width();
    EXPECT_EQ(Window().height(), size.height());
  }
}

TEST_F(WindowShape, SnapsBackToItsSmallestHeight) {
  Open();
  Resize({300, 100});
  EXPECT_EQ(Window().height(), qRound(PixelsFromTwips(MinimumInnerHeightTwips)));
}

TEST_F(WindowShape, IsInsideTheScreenThatItsStoredBoundsAreTooLargeFor) {
  Open("[Settings]\r\nLeft=9000\r\nTop=3000\r\nHeight=90000\r\nWidth=90000\r\n");
  EXPECT_TRUE(Window().screen()->availableGeometry().contains(Window().frameGeometry()));
  EXPECT_EQ(Window().Board().width(), Window().Board().height());
}

TEST_F(WindowShape, KeepsTheWholeBoardInSightWhereItIsHigherThanWide) {
  Open();
  Window().Board().resize(300, 500);
  Window().Board().LayOut(globals.settings);
  EXPECT_TRUE(Window().Board().rect().contains(Window().Board().SquareRectangle(63)));
}
