#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include "core/Square.h"
#include "tests/ui/HostilePictures.h"
#include "tests/ui/PreferencesDesk.h"
#include "ui/board/BoardView.h"
#include "ui/widgets/pictures/PictureReader.h"
#include "ui/windows/animations/Canvas.h"

namespace {

const char* const Mark = ".gallopade-reading";
constexpr QColor LightColor(255, 0, 0);

// Looks whose pictures do harm, or did.
class HostileLooks : public PreferencesDesk {
 protected:
  void Put(const QString& name, const QByteArray& bytes) {
    QFile file(ProgramFile(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }

  // With the light squares in red, under the same picture as all the others.
  static QString Look(const QString& picture) {
    QString look("[Chessboard]\nLight Color=255\nUse Images=1\n");
    for (const char* name : {"Light", "Dark", "Visited", "Knight", "Chessboard Background"}) {
      look += QString("%1 Image=%2\n").arg(name, picture);
    }
    return look + QString("[Highlight]\nHighlight Image=%1\n").arg(picture);
  }

  QColor LightSquare() {
    BoardView& board = Window().Board();
    const QRect square = board.SquareRectangle(SquareIndex(7, 0));
    return board.grab(square).toImage().pixelColor(square.width() / 2, square.height() / 2);
  }

  static QByteArray Endless() {
    return ProgressiveJpeg(QSize(MaximumPictureSide, MaximumPictureSide), 150);
  }
};

}  // namespace

TEST_F(HostileLooks, ComeUpInColorsAfterAStartThatEndedAmongTheirPictures) {
  PictureFile("blue.png", Qt::blue);
  Put(Mark, "1");
  Open(Look("blue.png"));
  EXPECT_EQ(LightSquare(), LightColor);
  EXPECT_TRUE(InMemory().UseImages);
  EXPECT_EQ(InMemory().LightImage, "blue.png");

  Restart();
  EXPECT_EQ(LightSquare(), QColor(Qt::blue));
}

TEST_F(HostileLooks, AreTriedAgainWhenThePlayerWantsIt) {
  PictureFile("blue.png", Qt::blue);
  Put(Mark, "1");
  Open(Look("blue.png"));
  InPreferences([](frmPreferences& window) { Click(window, "cmdOK"); });
  EXPECT_EQ(LightSquare(), QColor(Qt::blue));
}

TEST_F(HostileLooks, StayInACopyThatRunsWhenAnotherDiesAmongTheirPictures) {
  PictureFile("blue.png", Qt::blue);
  Open(Look("blue.png"));
  Put(Mark, "1");
  InPreferences([](frmPreferences& window) { Click(window, "cmdOK"); });
  EXPECT_EQ(LightSquare(), QColor(Qt::blue));
  EXPECT_TRUE(QFile::exists(ProgramFile(Mark)));
}

TEST_F(HostileLooks, AreReadOnceForTheBoardAndThePreferences) {
  // Replaced behind the reader's back, without a trace.
  QFile file(PictureFile("picture.png", Qt::blue));
  const QDateTime changed = QFileInfo(file).lastModified();
  Open(Look("picture.png"));
  PictureFile("picture.png", Qt::red);
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  ASSERT_TRUE(file.setFileTime(changed, QFileDevice::FileModificationTime));
  file.close();
  InPreferences([](frmPreferences& window) {
    for (const ChooserRow& row : ChooserRows) {
      EXPECT_EQ(ColorOf(window, row.swatch), QColor(Qt::blue)) << row.part;
    }
  });
}

TEST_F(HostileLooks, LeaveNoMarkOnceTheirPicturesAreRead) {
  PictureFile("blue.png", Qt::blue);
  Open(Look("blue.png"));
  EXPECT_FALSE(QFile::exists(ProgramFile(Mark)));
}

TEST_F(HostileLooks, DoNotKeepTheProgramFromStarting) {
  Put("endless.jpg", Endless());
  Open(Look("endless.jpg"));
  EXPECT_EQ(LightSquare(), LightColor);
  ClickSquare(1, 2);
  EXPECT_EQ(State().MoveCount, 2);
}

TEST_F(HostileLooks, CanBeOpenedAndLeftAgain) {
  Put("endless.jpg", Endless());
  Put("endless.chessboard", Look("endless.jpg").toUtf8());
  PictureFile("blue.png", Qt::blue);
  Put("blue.chessboard", Look("blue.png").toUtf8());
  Open();
  ChooseFile(ProgramFile("endless.chessboard"));
  Choose("mnuEditChessboardOpen");
  EXPECT_EQ(LightSquare(), LightColor);
  EXPECT_EQ(Stored("Chessboard", "Light Image"), "endless.jpg");
  Restart();
  ChooseFile(ProgramFile("blue.chessboard"));
  Choose("mnuEditChessboardOpen");
  EXPECT_EQ(LightSquare(), QColor(Qt::blue));
}

TEST_F(HostileLooks, AreNotKeptWhenTheyAreChosen) {
  Put("endless.jpg", Endless());
  Open(Look("missing.gif"));
  InPreferences([this](frmPreferences& window) {
    ChooseFile(ProgramFile("endless.jpg"));
    Click(window, "cmdLight");
    EXPECT_EQ(InMemory().LightImage, "");
  });
}

TEST_F(HostileLooks, GiveAboutTheIcon) {
  const auto pictureOfAbout = [this] {
    QImage picture;
    WhenNextModalOpens([&](QWidget& modal) {
      picture = Child<Canvas>(modal, "picAboutImage").Picture().toImage();
      modal.close();
    });
    Choose("mnuHelpAbout");
    return picture;
  };
  Open("[Settings]\nAbout Image=endless.jpg\n");
  const QImage icon = pictureOfAbout();
  Put("endless.jpg", Endless());
  EXPECT_EQ(pictureOfAbout(), icon);
}

TEST_F(HostileLooks, LeaveTheScoresLegible) {
  for (const QByteArray& bytes : {Endless(), EmptyGif(QSize(MaximumPictureSide, 1)),
                                  EmptyGif(QSize(1, MaximumPictureSide))}) {
    Put("hostile", bytes);
    Open("[Settings]\nScores Image=hostile\n");
    WhenNextModalOpens([](QWidget& modal) {
      EXPECT_FALSE(modal.grab().isNull());
      modal.close();
    });
    Choose("mnuViewHighScores");
    EXPECT_TRUE(AllVisitsMade());
  }
}
