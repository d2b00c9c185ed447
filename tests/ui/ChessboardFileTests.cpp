#include <sys/stat.h>

#include "storage/ChessboardFile.h"
#include "tests/ui/CommandTest.h"
#include "ui/commands/ChessboardFiles.h"

namespace {

const std::string Filter =
    "|Gallopade Nova Chessboards (*.chessboard;*.che)|*.chessboard;*.che|All Files (*.*)|*.*";

// A file with every key, in the order in which they are written.
const QByteArray CompleteLook =
    "[Chessboard]\r\nLight Color=1\r\nDark Color=2\r\nVisited Color=3\r\nKnight Color=4\r\n"
    "Light Image=l.gif\r\nDark Image=d.gif\r\nVisited Image=v.gif\r\nKnight Image=k.gif\r\n"
    "Use Images=0\r\nImage Positioning=1\r\nUse Borders=1\r\nChessboard Background Color=-5\r\n"
    "Chessboard Background Image=b.gif\r\nCorner Distance=300\r\n"
    "[Highlight]\r\nHighlight Color=6\r\nHighlight Image=h.gif\r\n";

class ChessboardFiles : public CommandTest {
 protected:
  ChessboardFiles() { globals.settings.PreferencesPreviousDirectory = "/looks/"; }

  void Open(const QString& pathName) {
    dialogs.paths = {pathName};
    mnuEditChessboardOpen_Click(context);
  }

  void Save(const QString& pathName) {
    dialogs.paths = {pathName};
    mnuEditChessboardSave_Click(context);
  }

  // What the program reads back at its next start.
  Settings Stored() {
    Settings stored;
    LoadSettings(globals.IniFile.Values(), globals.ProgramDirectory, stored);
    return stored;
  }

  const Settings& settings = globals.settings;
};

}  // namespace

TEST_F(ChessboardFiles, HoldTheSixteenKeysInTheirOrder) {
  LoadChessboard(IniValues(CompleteLook), globals.settings);
  Save(FilePath("saved.chessboard"));
  EXPECT_EQ(BytesOf(FilePath("saved.chessboard")), CompleteLook);
}

TEST_F(ChessboardFiles, ReplaceAnOldFileEntirely) {
  Save(FileWith("old.chessboard", "[Chessboard]\r\nForeign=1\r\n[Position]\r\nStarting X=5\r\n"));
  const QByteArray bytes = BytesOf(FilePath("old.chessboard"));
  EXPECT_FALSE(bytes.contains("Foreign"));
  EXPECT_FALSE(bytes.contains("Position]"));
  EXPECT_TRUE(bytes.contains("Corner Distance=240"));
}

TEST_F(ChessboardFiles, AreNotWrittenWhenTheDialogIsCancelled) {
  Begin();
  mnuEditChessboardSave_Click(context);
  EXPECT_EQ(TakeLog(), (Steps{"clock off", "save /looks/" + Filter, "clock off"}));
  EXPECT_EQ(settings.PreferencesPreviousDirectory, "/looks/");
}

TEST_F(ChessboardFiles, RememberTheDirectoryTheyAreSavedIn) {
  Save(FilePath("a.chessboard"));
  EXPECT_EQ(settings.PreferencesPreviousDirectory, globals.ProgramDirectory);
}

TEST_F(ChessboardFiles, AreSavedWithoutAWordWhenTheyCannotBeWritten) {
  Begin();
  Save(FilePath("nowhere/a.chessboard"));
  EXPECT_EQ(TakeLog(), (Steps{"clock off", "save /looks/" + Filter, "clock off"}));
}

TEST_F(ChessboardFiles, PauseTheClockWhileTheyAreChosen) {
  Begin();
  Click("B6");
  TakeLog();
  mnuEditChessboardOpen_Click(context);
  EXPECT_EQ(TakeLog(), (Steps{"clock off", "open /looks/" + Filter, "clock on"}));
  mnuEditChessboardSave_Click(context);
  EXPECT_EQ(TakeLog(), (Steps{"clock off", "save /looks/" + Filter, "clock on"}));
}

TEST_F(ChessboardFiles, ReloadAndRepaintWhenTheyAreOpened) {
  Begin();
  Open(FileWith("a.chessboard", CompleteLook));
  EXPECT_EQ(TakeLog(),
            (Steps{"clock off", "open /looks/" + Filter, "LoadPictures", "LoadGameSetup",
                   "HighlightSquare 0", "RepaintWholeBoard", "Form_Resize", "clock off"}));
}

TEST_F(ChessboardFiles, AreNamedByTheSettingsOnlyAfterTheirPicturesHaveBeenRead) {
  bool isStored = true;
  QString imageToRead;
  window.onLoadPictures = [&] {
    isStored = QFile::exists(FilePath("GallopadeNova.ini"));
    imageToRead = settings.KnightImage;
  };
  Open(FileWith("a.chessboard", CompleteLook));
  EXPECT_FALSE(isStored);
  EXPECT_EQ(imageToRead, "k.gif");
  EXPECT_EQ(Stored().KnightImage, "k.gif");
}

TEST_F(ChessboardFiles, StoreTheWholeLookInTheSettingsFile) {
  Open(FileWith("a.chessboard", CompleteLook));
  const Settings stored = Stored();
  EXPECT_EQ(stored.LightColor, 1);
  EXPECT_EQ(stored.DarkColor, 2);
  EXPECT_EQ(stored.VisitedColor, 3);
  EXPECT_EQ(stored.KnightColor, 4);
  EXPECT_EQ(stored.HighlightColor, 6);
  EXPECT_EQ(stored.ChessboardBackgroundColor, -5);
  EXPECT_EQ(stored.LightImage, "l.gif");
  EXPECT_EQ(stored.DarkImage, "d.gif");
  EXPECT_EQ(stored.VisitedImage, "v.gif");
  EXPECT_EQ(stored.KnightImage, "k.gif");
  EXPECT_EQ(stored.HighlightImage, "h.gif");
  EXPECT_EQ(stored.ChessboardBackgroundImage, "b.gif");
  EXPECT_FALSE(stored.UseImages);
  EXPECT_TRUE(stored.UseBorders);
  EXPECT_EQ(stored.ImagePositioning, Positioning::Centred);
  EXPECT_EQ(stored.CornerDistance, 300);
}

TEST_F(ChessboardFiles, BringTheRestOfTheSettingsFileUpToDate) {
  globals.settings.PreviousDirectory = "/games/";
  globals.settings.ShowTime = false;
  globals.settings.ShowScore = false;
  globals.settings.SolveRefreshRate = 5;
  window.placement = {.Left = 150, .Top = 300, .Height = 4500, .Width = 4200, .Maximised = true};
  Open(FileWith("a.chessboard", CompleteLook));
  const QByteArray stored = BytesOf(globals.IniFile.PathName());
  const QByteArray directory = globals.ProgramDirectory.toUtf8();
  EXPECT_TRUE(
      stored.endsWith("[Settings]\r\nPrevious Directory=/games/\r\n"
                      "Preferences Previous Directory=" +
                      directory +
                      "\r\n"
                      "State=2\r\nLeft=150\r\nTop=300\r\nHeight=4500\r\nWidth=4200\r\n"
                      "Show Time=0\r\nShow Score=0\r\nSolve Refresh=5\r\n"))
      << stored.toStdString();
}

TEST_F(ChessboardFiles, LeaveTheStoredWindowStateWhenMinimised) {
  FileWith("GallopadeNova.ini", "[Settings]\r\nState=2\r\n");
  window.minimised = true;
  Open(FileWith("a.chessboard", CompleteLook));
  EXPECT_TRUE(BytesOf(globals.IniFile.PathName()).contains("State=2\r\n"));
}

TEST_F(ChessboardFiles, LeaveHighlightingAndStartingPositionAlone) {
  globals.settings.HighlightingMethod = Highlighting::CursorPosition;
  globals.settings.StartingPosition = FirstSquare::Random;
  Open(FileWith("a.chessboard",
                CompleteLook + "Highlighting Method=0\r\n[Position]\r\nStarting Position=1\r\n"));
  EXPECT_EQ(settings.HighlightingMethod, Highlighting::CursorPosition);
  EXPECT_EQ(settings.StartingPosition, FirstSquare::Random);
}

TEST_F(ChessboardFiles, GiveAFrameThatIsTooWideTheDefaultWidth) {
  Open(FileWith("a.chessboard", "[Chessboard]\r\nCorner Distance=2000\r\n"));
  EXPECT_EQ(settings.CornerDistance, 240);
}

TEST_F(ChessboardFiles, KeepTheBordersWhenTheyDoNotSay) {
  globals.settings.UseBorders = true;
  Open(FileWith("a.chessboard", "[Chessboard]\r\nLight Color=1\r\n"));
  EXPECT_TRUE(settings.UseBorders);
}

TEST_F(ChessboardFiles, TakeAnythingButOneForNo) {
  globals.settings.UseBorders = true;
  globals.settings.ImagePositioning = Positioning::Centred;
  Open(FileWith("a.chessboard",
                "[Chessboard]\r\nUse Images=yes\r\nUse Borders=2\r\nImage Positioning=-1\r\n"));
  EXPECT_FALSE(settings.UseImages);
  EXPECT_FALSE(settings.UseBorders);
  EXPECT_EQ(settings.ImagePositioning, Positioning::Stretched);
}

TEST_F(ChessboardFiles, WithoutAnyKeyGiveTheDefaultsButForTheThreeChoices) {
  LoadChessboard(IniValues(CompleteLook), globals.settings);
  Open(FileWith("empty.chessboard", ""));
  const Settings defaults;
  EXPECT_EQ(settings.LightColor, defaults.LightColor);
  EXPECT_EQ(settings.HighlightColor, defaults.HighlightColor);
  EXPECT_EQ(settings.ChessboardBackgroundColor, defaults.ChessboardBackgroundColor);
  EXPECT_EQ(settings.KnightImage, "Wood Knight.gif");
  EXPECT_EQ(settings.CornerDistance, 240);
  EXPECT_FALSE(settings.UseImages);
  EXPECT_TRUE(settings.UseBorders);
  EXPECT_EQ(settings.ImagePositioning, Positioning::Centred);
}

TEST_F(ChessboardFiles, GiveTheDefaultsWithoutAWordWhenTheyAreNoFiles) {
  ASSERT_EQ(mkfifo(FilePath("pipe").toLocal8Bit(), 0600), 0);
  for (const char* name : {"missing", "pipe", "."}) {
    globals.settings.LightColor = 1;
    Open(FilePath(name));
    EXPECT_EQ(settings.LightColor, Settings().LightColor) << name;
  }
}

TEST_F(ChessboardFiles, AreNotBelievedWhenEveryKeyIsHostile) {
  QByteArray hostile = CompleteLook;
  hostile.replace("=", "=99999999999999999999\x01\xFF../../[x]\r\n;=");
  Open(FileWith("hostile.chessboard", hostile));
  EXPECT_EQ(settings.LightColor, 2147483647);
  EXPECT_EQ(settings.CornerDistance, 240);
  EXPECT_FALSE(settings.UseImages);
  EXPECT_FALSE(settings.UseBorders);
  EXPECT_EQ(settings.ImagePositioning, Positioning::Stretched);
}

TEST_F(ChessboardFiles, AreNotBelievedWhenTheyAreNoText) {
  QByteArray noise;
  for (int i = 0; i < 100000; ++i) noise.append(static_cast<char>(i * 7919 >> 3));
  Open(FileWith("noise.chessboard", noise));
  EXPECT_EQ(settings.LightColor, Settings().LightColor);
  EXPECT_EQ(settings.CornerDistance, 240);
}
