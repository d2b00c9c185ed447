#include <QDir>

#include "storage/ChessboardFile.h"
#include "storage/clsIniFile.h"
#include "tests/storage/TestFiles.h"

class AChessboardFile : public FolderTest {
 protected:
  void Load(const QByteArray& text) { LoadChessboard(IniValues(text), settings_); }

  Settings settings_;
};

TEST_F(AChessboardFile, HasSixteenKeysInTheirOrder) {
  EXPECT_EQ(KeysOf(ChessboardEntries(settings_)),
            QStringList({"Light Color", "Dark Color", "Visited Color", "Knight Color",
                         "Light Image", "Dark Image", "Visited Image", "Knight Image", "Use Images",
                         "Image Positioning", "Use Borders", "Highlight Color", "Highlight Image",
                         "Chessboard Background Color", "Chessboard Background Image",
                         "Corner Distance"}));
}

TEST_F(AChessboardFile, IsWrittenByteForByte) {
  settings_.LightColor = 16777215;
  settings_.UseBorders = true;
  EXPECT_EQ(SaveChessboard(PathOf("x"), settings_), std::nullopt);
  EXPECT_EQ(ContentOf(PathOf("x")),
            "[Chessboard]\r\n"
            "Light Color=16777215\r\n"
            "Dark Color=-2147483632\r\n"
            "Visited Color=-2147483627\r\n"
            "Knight Color=-2147483635\r\n"
            "Light Image=Wood Light.gif\r\n"
            "Dark Image=Wood Dark.gif\r\n"
            "Visited Image=Wood Visited.gif\r\n"
            "Knight Image=Wood Knight.gif\r\n"
            "Use Images=1\r\n"
            "Image Positioning=0\r\n"
            "Use Borders=1\r\n"
            "Chessboard Background Color=-2147483633\r\n"
            "Chessboard Background Image=Wood Chessboard.gif\r\n"
            "Corner Distance=240\r\n"
            "[Highlight]\r\n"
            "Highlight Color=-2147483624\r\n"
            "Highlight Image=Wood Highlight.gif\r\n");
}

TEST_F(AChessboardFile, ReplacesAnOldOneEntirely) {
  const QString path = Put("x", "[Other]\nKey=1\n" + QByteArray(5000, ';'));
  EXPECT_EQ(SaveChessboard(path, settings_), std::nullopt);
  EXPECT_TRUE(ContentOf(path).startsWith("[Chessboard]\r\nLight Color="));
  EXPECT_FALSE(ContentOf(path).contains("Other"));
}

TEST_F(AChessboardFile, IsReadBackAsItWasSaved) {
  settings_.KnightColor = 255;
  settings_.HighlightColor = SystemColor(3);
  settings_.DarkImage = "/looks/a dark one.gif";
  settings_.UseImages = false;
  settings_.UseBorders = true;
  settings_.ImagePositioning = Positioning::Centred;
  settings_.CornerDistance = 0;
  EXPECT_EQ(SaveChessboard(PathOf("x"), settings_), std::nullopt);
  Settings loaded;
  LoadChessboard(clsIniFile().ReadIniFileValues(PathOf("x")), loaded);
  EXPECT_EQ(ValuesOf(ChessboardEntries(loaded)), ValuesOf(ChessboardEntries(settings_)));
}

TEST_F(AChessboardFile, TakesTheDefaultOfACornerDistanceOutOfRange) {
  settings_.CornerDistance = 77;
  Load("[Chessboard]\nCorner Distance=2000\n");
  EXPECT_EQ(settings_.CornerDistance, 240);
  settings_.CornerDistance = 77;
  Load("[Chessboard]\nCorner Distance=-1\n");
  EXPECT_EQ(settings_.CornerDistance, 240);
}

TEST_F(AChessboardFile, ResetsColorsAndImagesThatItDoesNotHave) {
  settings_.LightColor = 1;
  settings_.HighlightColor = 2;
  settings_.ChessboardBackgroundColor = 3;
  settings_.KnightImage = "mine.gif";
  settings_.CornerDistance = 77;
  Load("");
  EXPECT_EQ(ValuesOf(ChessboardEntries(settings_)), ValuesOf(ChessboardEntries(Settings())));
}

TEST_F(AChessboardFile, KeepsThreeSettingsThatItDoesNotHave) {
  settings_.UseImages = false;
  settings_.UseBorders = true;
  settings_.ImagePositioning = Positioning::Centred;
  Load("[Chessboard]\nUse Images=\nLight Color=5\n");
  EXPECT_FALSE(settings_.UseImages);
  EXPECT_TRUE(settings_.UseBorders);
  EXPECT_EQ(settings_.ImagePositioning, Positioning::Centred);
}

TEST_F(AChessboardFile, Takes1ForTrueAndAllElseForFalseOfThoseThree) {
  Load("[Chessboard]\nUse Images=1\nUse Borders=1\nImage Positioning=1\n");
  EXPECT_TRUE(settings_.UseImages);
  EXPECT_TRUE(settings_.UseBorders);
  EXPECT_EQ(settings_.ImagePositioning, Positioning::Centred);
  Load("[Chessboard]\nUse Images=yes\nUse Borders=2\nImage Positioning=7\n");
  EXPECT_FALSE(settings_.UseImages);
  EXPECT_FALSE(settings_.UseBorders);
  EXPECT_EQ(settings_.ImagePositioning, Positioning::Stretched);
}

TEST_F(AChessboardFile, LeavesTheOtherSettingsAlone) {
  settings_.HighlightingMethod = Highlighting::CursorPosition;
  settings_.StartingX = 5;
  settings_.ShowTime = false;
  settings_.PreviousDirectory = "/a/";
  Load("[Highlight]\nHighlighting Method=0\n[Position]\nStarting X=2\n[Settings]\nShow Time=1\n");
  EXPECT_EQ(settings_.HighlightingMethod, Highlighting::CursorPosition);
  EXPECT_EQ(settings_.StartingX, 5);
  EXPECT_FALSE(settings_.ShowTime);
  EXPECT_EQ(settings_.PreviousDirectory, "/a/");
}

TEST_F(AChessboardFile, ResetsTheLookWhenItCannotBeRead) {
  settings_.LightColor = 1;
  settings_.UseBorders = true;
  LoadChessboard(clsIniFile().ReadIniFileValues(PathOf("missing")), settings_);
  EXPECT_EQ(settings_.LightColor, SystemColor(0x16));
  EXPECT_TRUE(settings_.UseBorders);
}

TEST_F(AChessboardFile, IsNotSavedWhereAFolderHasItsName) {
  ASSERT_TRUE(QDir(Folder()).mkdir("x"));
  EXPECT_EQ(SaveChessboard(PathOf("x"), settings_), ProgramError::PathFileAccess);
}
