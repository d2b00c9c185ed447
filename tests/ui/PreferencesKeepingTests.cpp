#include <QTest>

#include "tests/ui/PreferencesDesk.h"
#include "ui/board/BoardView.h"
#include "ui/board/SystemColors.h"

namespace {

class PreferencesKeeping : public PreferencesDesk {
 protected:
  // Does something in the preferences, says OK and starts the program again.
  void KeepAndRestart(const Work& work) {
    InPreferences([&](frmPreferences& window) {
      work(window);
      Click(window, "cmdOK");
    });
    Restart();
  }

  QColor SquareColor(int x, int y) {
    BoardView& board = Window().Board();
    const QImage seen = board.grab().toImage();
    return seen.pixelColor(board.SquareRectangle(SquareIndex(x, y)).center());
  }
};

const char* const ColorMode = "[Chessboard]\nUse Images=0\n";

}  // namespace

TEST_F(PreferencesKeeping, KeepsTheColors) {
  Open(ColorMode);
  KeepAndRestart([this](frmPreferences& window) {
    int red = 1;
    for (const char* button :
         {"cmdLight", "cmdDark", "cmdVisited", "cmdKnight", "cmdHighlightColor", "cmdFrame"}) {
      ChooseColor(QColor(red++, 0, 0));
      Click(window, button);
    }
  });
  EXPECT_EQ(InMemory().LightColor, 1);
  EXPECT_EQ(InMemory().DarkColor, 2);
  EXPECT_EQ(InMemory().VisitedColor, 3);
  EXPECT_EQ(InMemory().KnightColor, 4);
  EXPECT_EQ(InMemory().HighlightColor, 5);
  EXPECT_EQ(InMemory().ChessboardBackgroundColor, 6);
}

TEST_F(PreferencesKeeping, KeepsTheImages) {
  Open();
  const QString picture = PictureFile("mine.bmp", Qt::red);
  KeepAndRestart([&](frmPreferences& window) {
    for (const char* button :
         {"cmdLight", "cmdDark", "cmdVisited", "cmdKnight", "cmdHighlightColor", "cmdFrame"}) {
      ChooseFile(picture);
      Click(window, button);
    }
  });
  EXPECT_EQ(InMemory().LightImage, picture);
  EXPECT_EQ(InMemory().DarkImage, picture);
  EXPECT_EQ(InMemory().VisitedImage, picture);
  EXPECT_EQ(InMemory().KnightImage, picture);
  EXPECT_EQ(InMemory().HighlightImage, picture);
  EXPECT_EQ(InMemory().ChessboardBackgroundImage, picture);
  EXPECT_EQ(SquareColor(3, 4), QColor(Qt::red));
}

TEST_F(PreferencesKeeping, KeepsWhetherImagesAreUsed) {
  Open();
  KeepAndRestart([](frmPreferences& window) { Click(window, "chkUseImages"); });
  EXPECT_FALSE(InMemory().UseImages);
}

TEST_F(PreferencesKeeping, KeepsTheHighlighting) {
  Open();
  for (const int method : {0, 1, 2}) {
    KeepAndRestart([method](frmPreferences& window) {
      Click(window, QString("optHighlight(%1)").arg(method).toLatin1());
    });
    EXPECT_EQ(InMemory().HighlightingMethod, static_cast<Highlighting>(method));
  }
}

TEST_F(PreferencesKeeping, KeepsTheStartingPosition) {
  Open();
  for (const int position : {2, 1, 0}) {
    KeepAndRestart([position](frmPreferences& window) {
      Click(window, QString("optPosition(%1)").arg(position).toLatin1());
    });
    EXPECT_EQ(InMemory().StartingPosition, static_cast<FirstSquare>(position));
  }
}

TEST_F(PreferencesKeeping, KeepsTheStartingSquareAndBeginsThere) {
  Open();
  KeepAndRestart(
      [](frmPreferences& window) { QTest::mouseClick(&Cell(window, 5, 6), Qt::LeftButton); });
  EXPECT_EQ(InMemory().StartingX, 5);
  EXPECT_EQ(InMemory().StartingY, 6);
  EXPECT_EQ(State().KnightX, 5);
  EXPECT_EQ(State().KnightY, 6);
}

TEST_F(PreferencesKeeping, KeepsBordersPositioningAndFrameWidth) {
  Open();
  KeepAndRestart([this](frmPreferences& window) {
    WhenPopupOpens([](QMenu& menu) { Pick(menu, PreferenceEntry::Borders); });
    RightClick(window, "cmdLight");
    WhenPopupOpens([](QMenu& menu) { Pick(menu, PreferenceEntry::CenterImages); });
    RightClick(window, "cmdLight");
    AnswerFrameWidth("40");
    WhenPopupOpens([](QMenu& menu) { Pick(menu, PreferenceEntry::FrameWidth); });
    RightClick(window, "cmdFrame");
  });
  EXPECT_TRUE(InMemory().UseBorders);
  EXPECT_EQ(InMemory().ImagePositioning, Positioning::Centred);
  EXPECT_EQ(InMemory().CornerDistance, 600);
  EXPECT_EQ(Window().Board().SquareRectangle(0).topLeft(), QPoint(40, 40));
}

TEST_F(PreferencesKeeping, KeepsTheFolderOfThePictures) {
  Open();
  ASSERT_TRUE(QDir(globals.ProgramDirectory).mkdir("mine"));
  const QString picture = PictureFile("mine/a.bmp", Qt::red);
  KeepAndRestart([&](frmPreferences& window) {
    ChooseFile(picture);
    Click(window, "cmdLight");
  });
  EXPECT_EQ(InMemory().PreferencesPreviousDirectory, globals.ProgramDirectory + "mine/");
}

TEST_F(PreferencesKeeping, ShowsTheNewLookAtOnce) {
  Open(ColorMode);
  InPreferences([this](frmPreferences& window) {
    ChooseColor(QColor(200, 100, 50));
    Click(window, "cmdLight");
    Click(window, "cmdOK");
  });
  EXPECT_EQ(SquareColor(0, 1), QColor(200, 100, 50));
}

TEST_F(PreferencesKeeping, ShowsNewPicturesOfAnUnchangedColorAtOnce) {
  Open();
  const QString picture = PictureFile("mine.bmp", Qt::red);
  InPreferences([&](frmPreferences& window) {
    ChooseFile(picture);
    Click(window, "cmdLight");
    Click(window, "cmdOK");
  });
  EXPECT_EQ(SquareColor(0, 1), QColor(Qt::red));
}

TEST_F(PreferencesKeeping, LeavesTheCursorWhereItWas) {
  Open();
  PressKey(Qt::Key_Right);
  const auto x = State().CursorX;
  const auto y = State().CursorY;
  InPreferences([](frmPreferences& window) { Click(window, "cmdOK"); });
  EXPECT_EQ(State().CursorX, x);
  EXPECT_EQ(State().CursorY, y);
}

TEST_F(PreferencesKeeping, LosesNoViewOption) {
  Open();
  Choose("mnuViewScore");
  Choose("mnuViewTime");
  InPreferences([](frmPreferences& window) { Click(window, "cmdOK"); });
  EXPECT_FALSE(InMemory().ShowScore);
  EXPECT_FALSE(InMemory().ShowTime);
  EXPECT_EQ(Stored("Settings", "Show Score"), "0");
}

TEST_F(PreferencesKeeping, WritesNothingOnCancel) {
  Open("[Chessboard]\nUse Images=0\n");
  const QByteArray before = Contents("GallopadeNova.ini");
  InPreferences([this](frmPreferences& window) {
    ChooseColor(Qt::red);
    Click(window, "cmdLight");
    Click(window, "optPosition(2)");
    Click(window, "cmdCancel");
  });
  EXPECT_EQ(Contents("GallopadeNova.ini"), before);
}

TEST_F(PreferencesKeeping, WritesNothingOnEscape) {
  Open();
  InPreferences([](frmPreferences& window) {
    Click(window, "optHighlight(0)");
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
  });
  EXPECT_FALSE(QFile::exists(ProgramFile("GallopadeNova.ini")));
}

TEST_F(PreferencesKeeping, KeepsChosenColorsInMemoryOnCancelUntilTheNextStart) {
  Open(ColorMode);
  InPreferences([this](frmPreferences& window) {
    ChooseColor(Qt::red);
    Click(window, "cmdLight");
    Click(window, "chkUseImages");
    Click(window, "optHighlight(0)");
    Click(window, "cmdCancel");
  });
  EXPECT_EQ(InMemory().LightColor, 255);
  EXPECT_FALSE(InMemory().UseImages);
  EXPECT_EQ(InMemory().HighlightingMethod, Highlighting::ValidMovesOnly);
  Restart();
  EXPECT_EQ(InMemory().LightColor, Settings().LightColor);
}

TEST_F(PreferencesKeeping, RestoresTheDefaultsInTheDialogToo) {
  Open(
      "[Chessboard]\nUse Images=0\nLight Color=255\nCorner Distance=600\n"
      "[Position]\nStarting Position=1\nStarting X=4\n[Highlight]\nHighlighting Method=0\n");
  InPreferences([this](frmPreferences& window) {
    Answer("Gallopade Nova", "Are you sure you want to restore the default configuration?",
           QMessageBox::Yes);
    Click(window, "cmdDefaultConfiguration");
    EXPECT_FALSE(QFile::exists(ProgramFile("GallopadeNova.ini")));
    EXPECT_EQ(CaptionOf(window, "cmdLight"), "&Light Image...");
    EXPECT_TRUE(Child<QAbstractButton>(window, "chkUseImages").isChecked());
    EXPECT_TRUE(Child<QAbstractButton>(window, "optPosition(0)").isChecked());
    EXPECT_TRUE(Child<QAbstractButton>(window, "optHighlight(2)").isChecked());
    EXPECT_EQ(SelectedSquare(window), "A8");
    EXPECT_EQ(ColorOf(window, "pctGrid(1)"), ResolveColor(Settings().LightColor, window.palette()));
  });
  EXPECT_EQ(Window().Board().SquareRectangle(0).topLeft(), QPoint(16, 16));
  EXPECT_EQ(SquareColor(0, 1), ResolveColor(Settings().LightColor, Window().palette()));
}

TEST_F(PreferencesKeeping, LeavesEverythingWhenTheDefaultsAreNotWanted) {
  Open("[Chessboard]\nLight Color=255\n");
  InPreferences([this](frmPreferences& window) {
    Answer("Gallopade Nova", "Are you sure you want to restore the default configuration?",
           QMessageBox::No);
    Click(window, "cmdDefaultConfiguration");
  });
  EXPECT_EQ(Stored("Chessboard", "Light Color"), "255");
}

TEST_F(PreferencesKeeping, ClearsTheScores) {
  Open();
  QFile file(ProgramFile("Scores.dat"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.close();
  InPreferences([this](frmPreferences& window) {
    Answer("Gallopade Nova", "Are you sure you want to clear the score lists?", QMessageBox::Yes);
    Click(window, "cmdClearScores");
  });
  EXPECT_FALSE(QFile::exists(ProgramFile("Scores.dat")));
}

TEST_F(PreferencesKeeping, RestsTheClockWhileItIsOpen) {
  Open();
  ClickSquare(1, 2);
  ASSERT_TRUE(Window().IsClockEnabled());
  InPreferences([this](frmPreferences& window) {
    EXPECT_FALSE(Window().IsClockEnabled());
    Click(window, "cmdOK");
  });
  EXPECT_TRUE(Window().IsClockEnabled());
}

TEST_F(PreferencesKeeping, StartsNoClockOfAGameThatHasNotBegun) {
  Open();
  InPreferences([](frmPreferences& window) { Click(window, "cmdOK"); });
  EXPECT_FALSE(Window().IsClockEnabled());
}
