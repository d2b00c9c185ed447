#include <QAccessible>
#include <QTest>

#include "tests/ui/PreferencesDesk.h"
#include "ui/board/SystemColors.h"

namespace {

class PreferenceMenusTest : public PreferencesDesk {
 protected:
  // What the menu of a button shows, separators as "-".
  QStringList Shown(frmPreferences& window, const char* button) {
    QStringList shown;
    WhenPopupOpens([&](QMenu& menu) {
      for (const QAction* entry : menu.actions()) {
        if (entry->isVisible()) shown << (entry->isSeparator() ? "-" : entry->text());
      }
    });
    RightClick(window, button);
    return shown;
  }

  void PickFrom(frmPreferences& window, const char* button, int index) {
    WhenPopupOpens([index](QMenu& menu) { Pick(menu, index); });
    RightClick(window, button);
  }

  bool IsChecked(frmPreferences& window, const char* button, int index) {
    bool checked = false;
    WhenPopupOpens([&](QMenu& menu) { checked = Entry(menu, index).isChecked(); });
    RightClick(window, button);
    return checked;
  }

  // Whether releasing a key on a button opens its menu.
  bool Opens(frmPreferences& window, int key, Qt::KeyboardModifiers modifiers) {
    bool opened = false;
    QTimer::singleShot(0, &window, [&opened] {
      QWidget* popup = QApplication::activePopupWidget();
      opened = popup != nullptr;
      if (opened) popup->close();
    });
    QKeyEvent release(QEvent::KeyRelease, key, modifiers);
    QCoreApplication::sendEvent(&Child<QWidget>(window, "cmdLight"), &release);
    QCoreApplication::processEvents();
    return opened;
  }
};

const char* const ColorMode = "[Chessboard]\nUse Images=0\n";

const QStringList SystemColorCaptions{"Scroll Bar",
                                      "Desktop",
                                      "Active Window Title Bar",
                                      "Inactive Window Title Bar",
                                      "Menu Bar",
                                      "Window Background",
                                      "Window Frame",
                                      "Menu Text",
                                      "Window Text",
                                      "Title Bar Text",
                                      "Active Window Border",
                                      "Inactive Window Border",
                                      "Application Background",
                                      "Highlight",
                                      "Highlight Text",
                                      "3-D Face",
                                      "3-D Shadow",
                                      "Disabled Text",
                                      "Button Text",
                                      "Inactive Window Title Bar Text",
                                      "3-D Highlight",
                                      "3-D Dark Shadow",
                                      "3-D Light Shadow",
                                      "ToolTip Text",
                                      "ToolTip Background"};

}  // namespace

TEST_F(PreferenceMenusTest, OfferTheSystemColors) {
  Open(ColorMode);
  InPreferences([this](frmPreferences& window) {
    EXPECT_EQ(Shown(window, "cmdLight"),
              SystemColorCaptions + QStringList({"-", "&Borders", "-", "&Cancel"}));
  });
}

TEST_F(PreferenceMenusTest, OfferTheFrameWidthFromTheFrameButtonOnly) {
  Open(ColorMode);
  InPreferences([this](frmPreferences& window) {
    EXPECT_EQ(Shown(window, "cmdFrame"),
              SystemColorCaptions +
                  QStringList({"-", "Frame &Width...", "-", "&Borders", "-", "&Cancel"}));
    EXPECT_FALSE(Shown(window, "cmdHighlightColor").contains("Frame &Width..."));
  });
}

TEST_F(PreferenceMenusTest, OfferTheImageOptions) {
  Open();
  InPreferences([this](frmPreferences& window) {
    EXPECT_EQ(Shown(window, "cmdKnight"),
              (QStringList{"&Stretch Images", "C&enter Images", "-", "&Borders", "-", "&Cancel"}));
    EXPECT_EQ(Shown(window, "cmdFrame"),
              (QStringList{"&Stretch Images", "C&enter Images", "-", "Frame &Width...", "-",
                           "&Borders", "-", "&Cancel"}));
    EXPECT_EQ(Shown(window, "cmdKnight").size(), 6);
  });
}

TEST_F(PreferenceMenusTest, OpenJustBelowTheirButton) {
  Open();
  InPreferences([this](frmPreferences& window) {
    const auto& button = Child<QWidget>(window, "cmdLight");
    WhenPopupOpens([&](QMenu& menu) {
      EXPECT_EQ(menu.pos(), button.mapToGlobal(QPoint(0, button.height())));
    });
    RightClick(window, "cmdLight");
  });
}

TEST_F(PreferenceMenusTest, GiveASystemColorToTheButtonThatOpenedThem) {
  Open(ColorMode);
  InPreferences([this](frmPreferences& window) {
    PickFrom(window, "cmdDark", 1);
    EXPECT_EQ(InMemory().DarkColor, SystemColor(1));
    EXPECT_EQ(ColorOf(window, "picDark"), QColor(0x3A, 0x6E, 0xA5));
    EXPECT_EQ(ColorOf(window, "pctGrid(9)"), QColor(0x3A, 0x6E, 0xA5));
    PickFrom(window, "cmdFrame", 24);
    EXPECT_EQ(InMemory().ChessboardBackgroundColor, SystemColor(24));
    PickFrom(window, "cmdHighlightColor", 0);
    EXPECT_EQ(InMemory().HighlightColor, SystemColor(0));
  });
}

TEST_F(PreferenceMenusTest, CheckNoSystemColor) {
  Open(ColorMode);
  InPreferences([this](frmPreferences& window) {
    PickFrom(window, "cmdDark", 1);
    EXPECT_FALSE(IsChecked(window, "cmdDark", 1));
  });
}

TEST_F(PreferenceMenusTest, ChangeNothingOnCancel) {
  Open(ColorMode);
  InPreferences([this](frmPreferences& window) {
    WhenPopupOpens([](QMenu& menu) {
      const QAction* cancel = menu.actions().last();
      EXPECT_EQ(cancel->text(), "&Cancel");
      QTest::keyClick(&menu, Qt::Key_C);
    });
    RightClick(window, "cmdDark");
    EXPECT_EQ(InMemory().DarkColor, Settings().DarkColor);
  });
}

TEST_F(PreferenceMenusTest, StretchOrCenterTheImages) {
  PictureFile("Wood Light.gif", Qt::red);
  Open();
  InPreferences([this](frmPreferences& window) {
    EXPECT_TRUE(IsChecked(window, "cmdLight", PreferenceEntry::StretchImages));
    EXPECT_FALSE(IsChecked(window, "cmdLight", PreferenceEntry::CenterImages));
    PickFrom(window, "cmdLight", PreferenceEntry::CenterImages);
    EXPECT_EQ(InMemory().ImagePositioning, Positioning::Centred);
    EXPECT_FALSE(IsChecked(window, "cmdLight", PreferenceEntry::StretchImages));
    EXPECT_TRUE(IsChecked(window, "cmdLight", PreferenceEntry::CenterImages));
    PickFrom(window, "cmdLight", PreferenceEntry::StretchImages);
    EXPECT_EQ(InMemory().ImagePositioning, Positioning::Stretched);
  });
}

TEST_F(PreferenceMenusTest, PositionThePreviewsAtOnce) {
  PictureFile("Wood Light.gif", Qt::red);
  Open("[Chessboard]\nLight Color=65280\n");
  InPreferences([this](frmPreferences& window) {
    const auto corner = [&window] {
      return Child<QWidget>(window, "picLight").grab().toImage().pixelColor(8, 8);
    };
    EXPECT_EQ(corner(), QColor(Qt::red));
    PickFrom(window, "cmdLight", PreferenceEntry::CenterImages);
    EXPECT_EQ(corner(), QColor(Qt::green));
    EXPECT_EQ(ColorOf(window, "picLight"), QColor(Qt::red));
  });
}

TEST_F(PreferenceMenusTest, CheckTheBordersInBothMenus) {
  Open();
  InPreferences([this](frmPreferences& window) {
    PickFrom(window, "cmdLight", PreferenceEntry::Borders);
    EXPECT_TRUE(InMemory().UseBorders);
    EXPECT_TRUE(IsChecked(window, "cmdLight", PreferenceEntry::Borders));
    Click(window, "chkUseImages");
    EXPECT_TRUE(IsChecked(window, "cmdLight", PreferenceEntry::Borders));
    PickFrom(window, "cmdLight", PreferenceEntry::Borders);
    EXPECT_FALSE(InMemory().UseBorders);
    EXPECT_FALSE(IsChecked(window, "cmdLight", PreferenceEntry::Borders));
    Click(window, "chkUseImages");
    EXPECT_FALSE(IsChecked(window, "cmdLight", PreferenceEntry::Borders));
  });
}

TEST_F(PreferenceMenusTest, AskForTheFrameWidthInEitherMode) {
  Open();
  InPreferences([this](frmPreferences& window) {
    AnswerFrameWidth("50");
    PickFrom(window, "cmdFrame", PreferenceEntry::FrameWidth);
    EXPECT_EQ(InMemory().CornerDistance, 750);
    Click(window, "chkUseImages");
    AnswerFrameWidth("60");
    PickFrom(window, "cmdFrame", PreferenceEntry::FrameWidth);
    EXPECT_EQ(InMemory().CornerDistance, 900);
  });
}

TEST_F(PreferenceMenusTest, OpenOnReleasingAnyKeyWithShiftAlone) {
  Open();
  InPreferences([this](frmPreferences& window) {
    EXPECT_TRUE(Opens(window, Qt::Key_A, Qt::ShiftModifier));
    EXPECT_TRUE(Opens(window, Qt::Key_F10, Qt::ShiftModifier));
    EXPECT_TRUE(Opens(window, Qt::Key_6, Qt::ShiftModifier | Qt::KeypadModifier));
    EXPECT_FALSE(Opens(window, Qt::Key_A, Qt::ShiftModifier | Qt::ControlModifier));
    EXPECT_FALSE(Opens(window, Qt::Key_A, Qt::NoModifier));
  });
}

TEST_F(PreferenceMenusTest, StayClosedWhenShiftItselfIsReleased) {
  Open();
  InPreferences([this](frmPreferences& window) {
    // Without and with a screen reader that listens.
    EXPECT_FALSE(Opens(window, Qt::Key_Shift, Qt::ShiftModifier));
    EXPECT_FALSE(Opens(window, Qt::Key_Shift, Qt::NoModifier));
  });
}

TEST_F(PreferenceMenusTest, OpenWhenShiftComesUpBeforeTheKeyPressedWithIt) {
  Open();
  InPreferences([this](frmPreferences& window) {
    QTest::keyPress(&Child<QWidget>(window, "cmdLight"), Qt::Key_A, Qt::ShiftModifier);
    EXPECT_TRUE(Opens(window, Qt::Key_Shift, Qt::ShiftModifier));
    EXPECT_FALSE(Opens(window, Qt::Key_A, Qt::NoModifier));
  });
}

TEST_F(PreferenceMenusTest, OpenOnTheMenuKeyAndOnTheKeypadsPlus) {
  Open();
  InPreferences([this](frmPreferences& window) {
    EXPECT_TRUE(Opens(window, Qt::Key_Menu, Qt::NoModifier));
    EXPECT_TRUE(Opens(window, Qt::Key_Plus, Qt::KeypadModifier));
    EXPECT_FALSE(Opens(window, Qt::Key_Plus, Qt::NoModifier));
  });
}

TEST_F(PreferenceMenusTest, AreWorkedWithKeysAlone) {
  Open();
  InPreferences([this](frmPreferences& window) {
    WhenPopupOpens([](QMenu& menu) { QTest::keyClick(&menu, Qt::Key_B); });
    QTest::keyClick(&Child<QWidget>(window, "cmdVisited"), Qt::Key_Menu);
    EXPECT_TRUE(InMemory().UseBorders);
  });
}

TEST_F(PreferenceMenusTest, OpenWithoutPressingTheButton) {
  Open();
  InPreferences([this](frmPreferences& window) {
    WhenPopupOpens([](QMenu&) {});
    QTest::keyClick(&Child<QWidget>(window, "cmdLight"), Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_FALSE(Child<QAbstractButton>(window, "cmdLight").isDown());
  });
}

TEST_F(PreferenceMenusTest, AreFoundByAScreenReaderWhileTheyAreOpen) {
  Open();
  InPreferences([this](frmPreferences& window) {
    QAccessibleInterface& dialog = *QAccessible::queryAccessibleInterface(&window);
    const int before = dialog.childCount();
    WhenPopupOpens([&](QMenu& menu) {
      ASSERT_EQ(dialog.childCount(), before + 1);
      QAccessibleInterface* found = dialog.child(before);
      EXPECT_EQ(found->object(), &menu);
      EXPECT_EQ(found->text(QAccessible::Name), "Image Options");
      EXPECT_EQ(dialog.indexOfChild(found), before);
    });
    RightClick(window, "cmdLight");
    EXPECT_EQ(dialog.childCount(), before);
  });
}

TEST_F(PreferenceMenusTest, NamesASwatchByItsSystemColor) {
  Open("[Chessboard]\nUse Images=0\nLight Color=-2147483643\n");
  InPreferences([](frmPreferences& window) {
    EXPECT_EQ(Child<QWidget>(window, "picLight").accessibleName(),
              "Light color, Window Background");
  });
}
