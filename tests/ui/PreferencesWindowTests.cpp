#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QScreen>
#include <QTest>

#include "tests/ui/PreferencesDesk.h"
#include "ui/application/MessageBoxes.h"
#include "ui/board/BoardView.h"
#include "ui/board/SystemColors.h"

namespace {

using PreferencesWindow = PreferencesDesk;

const char* const ColorMode = "[Chessboard]\nUse Images=0\n";

QString TitleOf(QWidget& window, const char* frame) {
  return Child<QGroupBox>(window, frame).title();
}

void ShowsItsButtons(QWidget& modal) {
  auto& dialog = dynamic_cast<QDialog&>(modal);
  const auto* buttons = dialog.findChild<QDialogButtonBox*>();
  EXPECT_TRUE(dialog.screen()->availableGeometry().contains(dialog.frameGeometry()));
  EXPECT_TRUE(dialog.rect().contains(QRect(buttons->mapTo(&dialog, QPoint()), buttons->size())));
  dialog.reject();
}

}  // namespace

TEST_F(PreferencesWindow, HasItsCaptions) {
  Open();
  InPreferences([](frmPreferences& window) {
    EXPECT_EQ(window.windowTitle(), "Preferences");
    EXPECT_EQ(TitleOf(window, "fraChessboard"), "Chessboard:");
    EXPECT_EQ(TitleOf(window, "fraHighlight"), "Highlight:");
    EXPECT_EQ(TitleOf(window, "fraPosition"), "Starting Position:");
    EXPECT_EQ(TitleOf(window, "fraProgram"), "Program:");
    EXPECT_EQ(CaptionOf(window, "chkUseImages"), "Use &Images");
    EXPECT_EQ(CaptionOf(window, "optHighlight(0)"), "&None");
    EXPECT_EQ(CaptionOf(window, "optHighlight(1)"), "Cursor &Position");
    EXPECT_EQ(CaptionOf(window, "optHighlight(2)"), "Valid &Moves Only");
    EXPECT_EQ(CaptionOf(window, "optPosition(0)"), "&Above Position");
    EXPECT_EQ(CaptionOf(window, "optPosition(1)"), "&Chosen Positon");
    EXPECT_EQ(CaptionOf(window, "optPosition(2)"), "&Random Positon");
    EXPECT_EQ(CaptionOf(window, "cmdDefaultConfiguration"), "Defa&ult Configuration");
    EXPECT_EQ(CaptionOf(window, "cmdClearScores"), "Clear &Score Lists");
    EXPECT_EQ(CaptionOf(window, "cmdOK"), "OK");
    EXPECT_EQ(CaptionOf(window, "cmdCancel"), "Cancel");
  });
}

TEST_F(PreferencesWindow, SpeaksOfColorsOrOfImages) {
  Open();
  InPreferences([](frmPreferences& window) {
    const auto captions = [&window] {
      QStringList texts;
      for (const char* button :
           {"cmdLight", "cmdDark", "cmdVisited", "cmdKnight", "cmdHighlightColor", "cmdFrame"}) {
        texts << CaptionOf(window, button);
      }
      return texts;
    };
    const QStringList images{"&Light Image...",  "&Dark Image...",      "&Visited Image...",
                             "&Knight Image...", "&Highlight Image...", "&Frame Image..."};
    const QStringList colors{"&Light Color...",  "&Dark Color...",      "&Visited Color...",
                             "&Knight Color...", "&Highlight Color...", "&Frame Color..."};
    EXPECT_EQ(captions(), images);
    Click(window, "chkUseImages");
    EXPECT_EQ(captions(), colors);
    Click(window, "chkUseImages");
    EXPECT_EQ(captions(), images);
  });
}

TEST_F(PreferencesWindow, KeepsItsSizeWithEitherCaption) {
  Open();
  InPreferences([](frmPreferences& window) {
    const QSize before = window.size();
    Click(window, "chkUseImages");
    QCoreApplication::processEvents();
    EXPECT_EQ(window.size(), before);
  });
}

TEST_F(PreferencesWindow, OpensWithTheSettings) {
  Open(
      "[Position]\nStarting Position=1\nStarting X=3\nStarting Y=4\n"
      "[Chessboard]\nUse Images=0\nLight Color=255\nDark Color=65280\nVisited Color=16711680\n"
      "Knight Color=65535\nChessboard Background Color=16711935\n"
      "[Highlight]\nHighlight Color=16776960\nHighlighting Method=1\n");
  InPreferences([](frmPreferences& window) {
    EXPECT_FALSE(Child<QCheckBox>(window, "chkUseImages").isChecked());
    EXPECT_TRUE(Child<QRadioButton>(window, "optPosition(1)").isChecked());
    EXPECT_TRUE(Child<QRadioButton>(window, "optHighlight(1)").isChecked());
    EXPECT_EQ(SelectedSquare(window), "D4");
    EXPECT_EQ(ColorOf(window, "picLight"), QColor(255, 0, 0));
    EXPECT_EQ(ColorOf(window, "picDark"), QColor(0, 255, 0));
    EXPECT_EQ(ColorOf(window, "picVisited"), QColor(0, 0, 255));
    EXPECT_EQ(ColorOf(window, "picKnight"), QColor(255, 255, 0));
    EXPECT_EQ(ColorOf(window, "picFrame"), QColor(255, 0, 255));
    EXPECT_EQ(ColorOf(window, "picHighlightColor"), QColor(0, 255, 255));
    EXPECT_EQ(ColorOf(window, "pctGrid(1)"), QColor(255, 0, 0));
    EXPECT_EQ(ColorOf(window, "pctGrid(0)"), QColor(0, 255, 0));
    EXPECT_EQ(ColorOf(window, "pctGrid(28)"), QColor(255, 255, 0));
  });
}

TEST_F(PreferencesWindow, TakesStrangeSettingsForTheOptionThatActsLikeThem) {
  Open(
      "[Position]\nStarting Position=-7\nStarting X=9\nStarting Y=-1\n"
      "[Highlight]\nHighlighting Method=50\n");
  InPreferences([](frmPreferences& window) {
    EXPECT_TRUE(Child<QRadioButton>(window, "optPosition(2)").isChecked());
    EXPECT_TRUE(Child<QRadioButton>(window, "optHighlight(0)").isChecked());
    EXPECT_EQ(SelectedSquare(window), "A8");
  });
}

TEST_F(PreferencesWindow, ShowsThePicturesOfTheSettings) {
  PictureFile("Wood Light.gif", Qt::red);
  PictureFile("Wood Highlight.gif", Qt::green);
  PictureFile("Wood Chessboard.gif", Qt::blue);
  Open();
  InPreferences([](frmPreferences& window) {
    EXPECT_EQ(ColorOf(window, "picLight"), QColor(Qt::red));
    EXPECT_EQ(ColorOf(window, "picHighlightColor"), QColor(Qt::green));
    EXPECT_EQ(ColorOf(window, "picFrame"), QColor(Qt::blue));
    EXPECT_FALSE(Child<QWidget>(window, "imgDark").isVisible());
  });
}

TEST_F(PreferencesWindow, ShowsNoPicturesWhenColorsAreUsed) {
  PictureFile("Wood Light.gif", Qt::red);
  Open(ColorMode);
  InPreferences([](frmPreferences& window) {
    EXPECT_FALSE(Child<QWidget>(window, "imgLight").isVisible());
    Click(window, "chkUseImages");
    EXPECT_FALSE(Child<QWidget>(window, "imgLight").isVisible());
  });
}

TEST_F(PreferencesWindow, KeepsThePreviewsWhenTheyAreNoLongerUsed) {
  PictureFile("Wood Light.gif", Qt::red);
  Open();
  InPreferences([](frmPreferences& window) {
    Click(window, "chkUseImages");
    EXPECT_EQ(ColorOf(window, "picLight"), QColor(Qt::red));
  });
}

TEST_F(PreferencesWindow, StretchesThePictureOverTheWholeSwatch) {
  PictureFile("Wood Light.gif", Qt::red);
  Open("[Chessboard]\nLight Color=65280\n");
  InPreferences(
      [](frmPreferences& window) { EXPECT_EQ(EdgeColorOf(window, "picLight"), QColor(Qt::red)); });
}

TEST_F(PreferencesWindow, ShowsTheColorAroundASmallPictureInTheMiddle) {
  PictureFile("Wood Light.gif", Qt::red);
  Open("[Chessboard]\nLight Color=65280\nImage Positioning=1\n");
  InPreferences([](frmPreferences& window) {
    EXPECT_EQ(ColorOf(window, "picLight"), QColor(Qt::red));
    EXPECT_EQ(EdgeColorOf(window, "picLight"), QColor(Qt::green));
  });
}

TEST_F(PreferencesWindow, ChoosesColors) {
  Open(ColorMode);
  InPreferences([this](frmPreferences& window) {
    ChooseColor(QColor(1, 2, 3));
    Click(window, "cmdLight");
    EXPECT_EQ(InMemory().LightColor, 0x030201);
    EXPECT_EQ(ColorOf(window, "picLight"), QColor(1, 2, 3));
    EXPECT_EQ(ColorOf(window, "pctGrid(1)"), QColor(1, 2, 3));
    ChooseColor(QColor(4, 5, 6));
    Click(window, "cmdDark");
    EXPECT_EQ(ColorOf(window, "pctGrid(9)"), QColor(4, 5, 6));
    ChooseColor(QColor(7, 8, 9));
    Click(window, "cmdKnight");
    EXPECT_EQ(ColorOf(window, "pctGrid(0)"), QColor(7, 8, 9));
    ChooseColor(QColor(10, 11, 12));
    Click(window, "cmdVisited");
    EXPECT_EQ(InMemory().VisitedColor, 0x0C0B0A);
    ChooseColor(QColor(13, 14, 15));
    Click(window, "cmdHighlightColor");
    EXPECT_EQ(InMemory().HighlightColor, 0x0F0E0D);
    ChooseColor(QColor(16, 17, 18));
    Click(window, "cmdFrame");
    EXPECT_EQ(InMemory().ChessboardBackgroundColor, 0x121110);
  });
}

TEST_F(PreferencesWindow, StartsTheColorDialogFromTheGivenColor) {
  Open("[Chessboard]\nUse Images=0\nDark Color=197121\n");
  InPreferences([this](frmPreferences& window) {
    WhenNextModalOpens([](QWidget& modal) {
      auto& dialog = dynamic_cast<QDialog&>(modal);
      EXPECT_EQ(dialog.property("currentColor").value<QColor>(), QColor(1, 2, 3));
      dialog.reject();
    });
    Click(window, "cmdDark");
    EXPECT_EQ(InMemory().DarkColor, 197121);
  });
}

TEST_F(PreferencesWindow, ChoosesImages) {
  Open();
  const QString picture = PictureFile("mine.bmp", Qt::red);
  InPreferences([&](frmPreferences& window) {
    ChooseFile(picture);
    Click(window, "cmdDark");
    EXPECT_EQ(InMemory().DarkImage, picture);
    EXPECT_EQ(ColorOf(window, "picDark"), QColor(Qt::red));
    EXPECT_EQ(InMemory().PreferencesPreviousDirectory, globals.ProgramDirectory);
  });
}

TEST_F(PreferencesWindow, LooksForImagesOfEveryReadableKindWhereTheLastOneWas) {
  Open();
  ASSERT_TRUE(QDir(globals.ProgramDirectory).mkdir("mine"));
  globals.settings.PreferencesPreviousDirectory = ProgramFile("mine/");
  InPreferences([this](frmPreferences& window) {
    WhenNextModalOpens([this](QWidget& modal) {
      auto& dialog = dynamic_cast<QFileDialog&>(modal);
      EXPECT_EQ(dialog.directory().path(), ProgramFile("mine"));
      EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "");
      const QString readable = "*.bmp *.dib *.rle *.jpg *.jpeg *.gif *.ico *.cur";
      EXPECT_EQ(dialog.nameFilters(),
                (QStringList{"All Readable Images (" + readable + ")",
                             "Web Images (*.jpg;*.jpeg;*.gif) (*.jpg *.jpeg *.gif)",
                             "Icons (*.ico;*.cur) (*.ico *.cur)",
                             "Windows Images (*.bmp;*.dib;*.rle) (*.bmp *.dib *.rle)",
                             "All Files (*.*) (*)"}));
      dialog.close();
    });
    Click(window, "cmdLight");
  });
}

TEST_F(PreferencesWindow, ClearsAnImageThatCannotBeLoaded) {
  PictureFile("Wood Dark.gif", Qt::red);
  Open();
  QFile file(ProgramFile("broken.gif"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("GIF89a");
  file.close();
  InPreferences([this](frmPreferences& window) {
    ChooseFile(ProgramFile("broken.gif"));
    Click(window, "cmdDark");
    EXPECT_EQ(InMemory().DarkImage, "");
    EXPECT_FALSE(Child<QWidget>(window, "imgDark").isVisible());
  });
}

TEST_F(PreferencesWindow, ClearsAnImageThatIsNotThere) {
  Open();
  InPreferences([this](frmPreferences& window) {
    ChooseFile(ProgramFile("missing.gif"));
    Click(window, "cmdDark");
    EXPECT_EQ(InMemory().DarkImage, "");
  });
}

TEST_F(PreferencesWindow, LeavesTheImageWhenNoFileIsChosen) {
  Open();
  InPreferences([this](frmPreferences& window) {
    CancelNextWindow();
    Click(window, "cmdKnight");
    EXPECT_EQ(InMemory().KnightImage, "Wood Knight.gif");
  });
}

TEST_F(PreferencesWindow, FollowsTheDesktopsColorsWhileItIsOpen) {
  Open(ColorMode);
  InPreferences([](frmPreferences& window) {
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(0x80, 0x20, 0x20)));
    QCoreApplication::processEvents();
    const Settings defaults;
    EXPECT_EQ(ColorOf(window, "picLight"),
              ResolveColor(defaults.LightColor, QApplication::palette()));
    EXPECT_EQ(ColorOf(window, "pctGrid(9)"),
              ResolveColor(defaults.DarkColor, QApplication::palette()));
    QApplication::setPalette(before);
  });
}

TEST_F(PreferencesWindow, NamesASwatchByTheColorThatItShows) {
  Open("[Chessboard]\nUse Images=0\nLight Color=255\n");
  InPreferences([](frmPreferences& window) {
    EXPECT_EQ(Child<QWidget>(window, "picLight").accessibleName(),
              "Light color, red 255, green 0, blue 0");
  });
}

TEST_F(PreferencesWindow, NamesASwatchByThePictureThatItShows) {
  PictureFile("Wood Light.gif", Qt::red);
  Open();
  InPreferences([](frmPreferences& window) {
    EXPECT_EQ(Child<QWidget>(window, "picLight").accessibleName(), "Light image, Wood Light.gif");
  });
}

TEST_F(PreferencesWindow, GivesEveryControlAName) {
  Open();
  InPreferences([](frmPreferences& window) {
    for (const QWidget* child : window.findChildren<QWidget*>()) {
      if (child->focusPolicy() == Qt::NoFocus) continue;
      const QAccessibleInterface* control =
          QAccessible::queryAccessibleInterface(const_cast<QWidget*>(child));
      EXPECT_FALSE(control->text(QAccessible::Name).isEmpty()) << child->objectName().toStdString();
    }
  });
}

TEST_F(PreferencesWindow, HasNoTwoControlsOnOneKey) {
  Open();
  InPreferences([](frmPreferences& window) {
    QString keys;
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
      const QString key = QKeySequence::mnemonic(button->text()).toString();
      if (key.isEmpty()) continue;
      EXPECT_FALSE(keys.contains(key)) << key.toStdString();
      keys += key + " ";
    }
  });
}

TEST_F(PreferencesWindow, KeepsTheButtonsOfItsDialogsInSightInLargeLetters) {
  Open();
  const QFont usual = QApplication::font();
  QFont large = usual;
  large.setPointSize(36);
  QApplication::setFont(large);
  for (int dialogs = 0; dialogs < 2; ++dialogs) WhenNextModalOpens(ShowsItsButtons);
  ::ChooseColor(Window(), Qt::red);
  ::InputBox(Window(), "Frame Width", "Enter the frame width (in pixels).", "16");
  QApplication::setFont(usual);
  EXPECT_TRUE(AllVisitsMade());
}
