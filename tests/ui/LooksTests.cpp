#include <array>

#include <QApplication>
#include <QDir>
#include <QTest>

#include "core/Square.h"
#include "core/Twips.h"
#include "tests/ui/Contrast.h"
#include "tests/ui/PreferencesDesk.h"
#include "ui/board/BoardView.h"
#include "ui/board/SystemColors.h"
#include "ui/widgets/pictures/PictureReader.h"

namespace {

// One picture of each state of a square, as they are seen on the board.
using States = std::array<QImage, 5>;
constexpr const char* StateNames[] = {"light", "dark", "visited", "knight", "highlight"};

// The looks that come with the program.
class Looks : public PreferencesDesk {
 protected:
  Looks() {
    for (const char* folder : {"images", "looks"}) {
      const QDir assets(QString(ASSETS_DIRECTORY) + folder);
      for (const QString& name : assets.entryList({"*.gif", "*.chessboard"}, QDir::Files)) {
        EXPECT_TRUE(QFile::copy(assets.filePath(name), ProgramFile(name)));
      }
    }
  }

  static QStringList Names() {
    return QDir(QString(ASSETS_DIRECTORY) + "looks").entryList({"*.chessboard"}, QDir::Files);
  }

  void OpenLook(const QString& name) {
    ChooseFile(ProgramFile(name));
    Choose("mnuEditChessboardOpen");
    EXPECT_TRUE(AllVisitsMade());
  }

  QImage Square(int x, int y) {
    BoardView& board = Window().Board();
    return board.grab(board.SquareRectangle(SquareIndex(x, y))).toImage();
  }

  void PointAt(int x, int y) {
    BoardView& board = Window().Board();
    QTest::mouseMove(&board, board.SquareRectangle(SquareIndex(x, y)).center());
  }

  // A8 is visited, the knight is on B6, and the pointer is on C4.
  States ShowEveryState() {
    if (State().MoveCount == 1) ClickSquare(1, 2);
    PointAt(7, 7);
    PointAt(2, 4);
    return {Square(5, 6), Square(6, 6), Square(0, 0), Square(1, 2), Square(2, 4)};
  }
};

// The share of the square, place by place, where the two stand 3:1 apart or more.
double ShareApart(const QImage& one, const QImage& other) {
  const QImage fitting = other.scaled(one.size());
  int apart = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      if (Contrast(one.pixelColor(x, y), fitting.pixelColor(x, y)) >= 3.0) ++apart;
    }
  }
  return 1.0 * apart / (one.width() * one.height());
}

}  // namespace

TEST_F(Looks, AreAtLeastFiveAndOneOfThemHasBorders) {
  EXPECT_GE(Names().size(), 5);
  Open();
  bool bordered = false;
  for (const QString& name : Names()) {
    OpenLook(name);
    bordered |= InMemory().UseBorders;
  }
  EXPECT_TRUE(bordered);
}

TEST_F(Looks, AreStoredAsTheyAreWritten) {
  Open();
  for (const QString& name : Names()) {
    OpenLook(name);
    int keys = 0;
    QString section;
    for (const QString& line : QString(Contents(name)).split("\n")) {
      const QString text = line.trimmed();
      if (text.startsWith('[')) section = text.mid(1, text.size() - 2);
      if (!text.contains('=')) continue;
      EXPECT_EQ(Stored(section, text.section('=', 0, 0)), text.section('=', 1))
          << name.toStdString() << " " << text.toStdString();
      ++keys;
    }
    EXPECT_EQ(keys, 16) << name.toStdString();
  }
}

TEST_F(Looks, HaveAllTheirPictures) {
  Open();
  for (const QString& name : Names()) {
    OpenLook(name);
    const Settings& look = InMemory();
    for (const QString& picture :
         {look.LightImage, look.DarkImage, look.VisitedImage, look.KnightImage, look.HighlightImage,
          look.ChessboardBackgroundImage}) {
      EXPECT_FALSE(LoadPicture(picture, globals.ProgramDirectory).isNull())
          << name.toStdString() << " " << picture.toStdString();
    }
  }
}

TEST_F(Looks, AreSeenAtOnceAndTellEveryStateApart) {
  Open();
  QList<QImage> knights;
  for (const QString& name : Names()) {
    OpenLook(name);
    const States states = ShowEveryState();
    for (std::size_t i = 0; i < states.size(); ++i) {
      for (std::size_t j = 0; j < i; ++j) {
        EXPECT_NE(states[i], states[j].scaled(states[i].size()))
            << name.toStdString() << ": " << StateNames[i] << " and " << StateNames[j];
      }
    }
    EXPECT_FALSE(knights.contains(states[3])) << name.toStdString();
    knights << states[3];
  }
}

TEST_F(Looks, LeaveTheGameAsItIs) {
  Open();
  ClickSquare(1, 2);
  OpenLook("Night.chessboard");
  EXPECT_EQ(State().MoveCount, 2);
  EXPECT_TRUE(Window().IsClockEnabled());
}

TEST_F(Looks, AreKeptForTheNextStart) {
  Open();
  OpenLook("Inlay.chessboard");
  Restart();
  EXPECT_EQ(InMemory().LightImage, "Inlay Light.gif");
  EXPECT_EQ(Window().Board().SquareRectangle(0).topLeft(), QPoint(24, 24));
}

TEST_F(Looks, ComeBackFromAFileThatAPlayerSaved) {
  Open();
  OpenLook("Tournament.chessboard");
  ChooseFile(ProgramFile("mine.che"));
  Choose("mnuEditChessboardSave");
  OpenLook("Wood.chessboard");
  OpenLook("mine.che");
  EXPECT_EQ(InMemory().LightImage, "Tournament Light.gif");
}

TEST_F(Looks, OfHighContrastKeepEveryStateThreeToOneApart) {
  Open();
  OpenLook("High Contrast.chessboard");
  for (const int side : {40, 76}) {
    const int difference = side * BoardSide + 32 - Window().Board().height();
    Window().resize(Window().size() + QSize(difference, difference));
    QCoreApplication::processEvents();
    const States states = ShowEveryState();
    EXPECT_EQ(states[0].width(), side);
    for (std::size_t i = 0; i < states.size(); ++i) {
      for (std::size_t j = 0; j < i; ++j) {
        EXPECT_GE(ShareApart(states[i], states[j]), 0.25)
            << StateNames[i] << " and " << StateNames[j] << " at " << side << " pixels";
      }
    }
  }
}

TEST_F(Looks, FromAFileThatIsNotThereAreTheDefaults) {
  Open("[Chessboard]\nLight Color=255\nUse Borders=1\n");
  OpenLook("missing.chessboard");
  EXPECT_EQ(InMemory().LightColor, Settings().LightColor);
  EXPECT_TRUE(InMemory().UseBorders);
}

TEST_F(Looks, InTheDesktopsColorsFollowTheDesktop) {
  Open("[Chessboard]\nUse Images=0\n");
  const QPalette usual = QApplication::palette();
  for (const QColor& button : {QColor(0xEF, 0xEF, 0xEF), QColor(0x35, 0x35, 0x35)}) {
    QApplication::setPalette(QPalette(button));
    QCoreApplication::processEvents();
    const States states = ShowEveryState();
    const Color colors[] = {InMemory().LightColor, InMemory().DarkColor, InMemory().VisitedColor,
                            InMemory().KnightColor, InMemory().HighlightColor};
    for (std::size_t i = 0; i < states.size(); ++i) {
      EXPECT_EQ(states[i].pixelColor(5, 5), ResolveColor(colors[i], QApplication::palette()))
          << StateNames[i] << " " << button.name().toStdString();
    }
  }
  QApplication::setPalette(usual);
}

TEST_F(Looks, CentrePicturesFromTheStartOn) {
  Open("[Chessboard]\nImage Positioning=1\nLight Image=Wood Light.gif\n");
  const BoardCell& cell = Window().Board().Model().Cell(SquareIndex(5, 6));
  EXPECT_DOUBLE_EQ(cell.imageWidth, TwipsFromPixels(256));
  EXPECT_LT(cell.imageLeft, 0);
  EXPECT_DOUBLE_EQ(cell.imageLeft, cell.imageTop);
}
