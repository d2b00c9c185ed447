#include "storage/Settings.h"
#include "storage/clsIniFile.h"
#include "tests/storage/TestFiles.h"

class LoadedSettings : public FolderTest {
 protected:
  // The settings that a file with these lines in a section gives.
  Settings Load(const QByteArray& section, const QByteArray& lines) const {
    return LoadFrom(Put("x.ini", '[' + section + "]\n" + lines));
  }
  Settings LoadFrom(const QString& pathName) const {
    Settings settings;
    LoadSettings(clsIniFile().ReadIniFileValues(pathName), "/games/nova/", settings);
    return settings;
  }
};

TEST_F(LoadedSettings, AreTheDefaultsWithoutAFile) {
  const Settings settings = LoadFrom(PathOf("x.ini"));
  EXPECT_TRUE(settings.ShowTime);
  EXPECT_TRUE(settings.ShowScore);
  EXPECT_TRUE(settings.ShowSolveWarnings);
  EXPECT_EQ(settings.SolveRefreshRate, 1000);
  EXPECT_EQ(settings.CornerDistance, 240);
  EXPECT_TRUE(settings.UseImages);
  EXPECT_FALSE(settings.UseBorders);
  EXPECT_EQ(settings.ImagePositioning, Positioning::Stretched);
  EXPECT_EQ(settings.HighlightingMethod, Highlighting::ValidMovesOnly);
  EXPECT_EQ(settings.StartingPosition, FirstSquare::Stored);
  EXPECT_EQ(settings.StartingX, 0);
  EXPECT_EQ(settings.StartingY, 0);
}

TEST_F(LoadedSettings, HaveTheSystemColorsByDefault) {
  const Settings settings = LoadFrom(PathOf("x.ini"));
  EXPECT_EQ(settings.LightColor, -2147483626);
  EXPECT_EQ(settings.DarkColor, -2147483632);
  EXPECT_EQ(settings.VisitedColor, -2147483627);
  EXPECT_EQ(settings.KnightColor, -2147483635);
  EXPECT_EQ(settings.HighlightColor, -2147483624);
  EXPECT_EQ(settings.ChessboardBackgroundColor, -2147483633);
}

TEST_F(LoadedSettings, HaveTheWoodenPicturesByDefault) {
  const Settings settings = LoadFrom(PathOf("x.ini"));
  EXPECT_EQ(settings.LightImage, "Wood Light.gif");
  EXPECT_EQ(settings.DarkImage, "Wood Dark.gif");
  EXPECT_EQ(settings.VisitedImage, "Wood Visited.gif");
  EXPECT_EQ(settings.KnightImage, "Wood Knight.gif");
  EXPECT_EQ(settings.HighlightImage, "Wood Highlight.gif");
  EXPECT_EQ(settings.ChessboardBackgroundImage, "Wood Chessboard.gif");
  EXPECT_EQ(settings.ScoresImage, "Scores.gif");
  EXPECT_EQ(settings.AboutImage, "About.gif");
}

TEST_F(LoadedSettings, BeginInTheProgramDirectory) {
  EXPECT_EQ(LoadFrom(PathOf("x.ini")).PreviousDirectory, "/games/nova/");
  EXPECT_EQ(LoadFrom(PathOf("x.ini")).PreferencesPreviousDirectory, "/games/nova/");
  EXPECT_EQ(Load("Settings", "Previous Directory=\n").PreviousDirectory, "/games/nova/");
}

TEST_F(LoadedSettings, TakeDirectoriesAsTheyStand) {
  EXPECT_EQ(Load("Settings", "Previous Directory=/a b\n").PreviousDirectory, "/a b");
  EXPECT_EQ(Load("Settings", "Previous Directory=/a b/\n").PreviousDirectory, "/a b/");
}

TEST_F(LoadedSettings, ForgetWhatWasInMemory) {
  Settings settings;
  settings.LightColor = 5;
  settings.LightImage = "mine.gif";
  settings.UseImages = false;
  LoadSettings(clsIniFile().ReadIniFileValues(PathOf("x.ini")), "/p/", settings);
  EXPECT_EQ(settings.LightColor, SystemColor(0x16));
  EXPECT_EQ(settings.LightImage, "Wood Light.gif");
  EXPECT_TRUE(settings.UseImages);
}

TEST_F(LoadedSettings, KeepASolveRefreshFrom1To32000) {
  const auto rate = [this](const QByteArray& text) {
    return Load("Settings", "Solve Refresh=" + text).SolveRefreshRate;
  };
  EXPECT_EQ(rate("1"), 1);
  EXPECT_EQ(rate("32000"), 32000);
  for (const char* text : {"0", "-1", "32001", "32767", "65537", "99999999999", "many"}) {
    EXPECT_EQ(rate(text), 1000) << text;
  }
}

TEST_F(LoadedSettings, KeepACornerDistanceFrom0To1500) {
  const auto distance = [this](const QByteArray& text) {
    return Load("Chessboard", "Corner Distance=" + text).CornerDistance;
  };
  EXPECT_EQ(distance("0"), 0);
  EXPECT_EQ(distance("1500"), 1500);
  EXPECT_EQ(distance("wide"), 0);
  for (const char* text : {"-1", "1501", "2000", "99999999999"}) {
    EXPECT_EQ(distance(text), 240) << text;
  }
}

TEST_F(LoadedSettings, TakeEveryNumberButZeroForShowingTheTime) {
  for (const char* text : {"1", "2", "5", "-1", "0.5", "7 days"}) {
    EXPECT_TRUE(Load("Settings", QByteArray("Show Time=") + text).ShowTime) << text;
  }
  for (const char* text : {"0", "0.0", "true", "yes", "-"}) {
    EXPECT_FALSE(Load("Settings", QByteArray("Show Time=") + text).ShowTime) << text;
  }
}

TEST_F(LoadedSettings, ReadShowScoreAndShowSolveWarningsAsNumbersToo) {
  EXPECT_TRUE(Load("Settings", "Show Score=-1").ShowScore);
  EXPECT_FALSE(Load("Settings", "Show Score=no").ShowScore);
  EXPECT_TRUE(Load("Settings", "Show Solve Warnings=2").ShowSolveWarnings);
  EXPECT_FALSE(Load("Settings", "Show Solve Warnings=0").ShowSolveWarnings);
}

TEST_F(LoadedSettings, TakeOnlyTheText1ForUsingImagesAndBorders) {
  EXPECT_TRUE(Load("Chessboard", "Use Borders= \"1\" ").UseBorders);
  for (const char* text : {"yes", "true", "2", "-1", "01", "1.0", "1 "}) {
    const QByteArray quoted = QByteArray("=\"") + text + '"';
    EXPECT_FALSE(Load("Chessboard", "Use Images" + quoted).UseImages) << text;
    EXPECT_FALSE(Load("Chessboard", "Use Borders" + quoted).UseBorders) << text;
  }
}

TEST_F(LoadedSettings, ReadEachChoiceByItsNumber) {
  const auto startingPosition = [&](const QByteArray& number) {
    return Load("Position", "Starting Position=" + number).StartingPosition;
  };
  EXPECT_EQ(startingPosition("0"), FirstSquare::Stored);
  EXPECT_EQ(startingPosition("1"), FirstSquare::PlayersChoice);
  EXPECT_EQ(startingPosition("2"), FirstSquare::Random);
  const auto positioning = [&](const QByteArray& number) {
    return Load("Chessboard", "Image Positioning=" + number).ImagePositioning;
  };
  EXPECT_EQ(positioning("0"), Positioning::Stretched);
  EXPECT_EQ(positioning("1"), Positioning::Centred);
  const auto highlighting = [&](const QByteArray& number) {
    return Load("Highlight", "Highlighting Method=" + number).HighlightingMethod;
  };
  EXPECT_EQ(highlighting("0"), Highlighting::None);
  EXPECT_EQ(highlighting("1"), Highlighting::CursorPosition);
  EXPECT_EQ(highlighting("2"), Highlighting::ValidMovesOnly);
}

TEST_F(LoadedSettings, UseOtherIntegersAsTheyStand) {
  EXPECT_EQ(Load("Position", "Starting Position=7").StartingPosition, static_cast<FirstSquare>(7));
  EXPECT_EQ(Load("Position", "Starting X=-3").StartingX, -3);
  EXPECT_EQ(Load("Position", "Starting Y=99").StartingY, 99);
  EXPECT_EQ(Load("Chessboard", "Image Positioning=5").ImagePositioning,
            static_cast<Positioning>(5));
  EXPECT_EQ(Load("Highlight", "Highlighting Method=-1").HighlightingMethod,
            static_cast<Highlighting>(-1));
}

TEST_F(LoadedSettings, SaturateNumbersBeyondTheirSize) {
  EXPECT_EQ(Load("Position", "Starting X=99999").StartingX, 32767);
  EXPECT_EQ(Load("Chessboard", "Light Color=99999999999").LightColor, 2147483647);
  EXPECT_EQ(Load("Chessboard", "Light Color=-99999999999").LightColor, -2147483648LL);
}

TEST_F(LoadedSettings, FindEachKeyInItsOwnSectionOnly) {
  EXPECT_EQ(Load("Settings", "Corner Distance=100").CornerDistance, 240);
  EXPECT_EQ(Load("Chessboard", "Highlight Color=3").HighlightColor, SystemColor(0x18));
  EXPECT_EQ(Load("Highlight", "Highlight Color=3").HighlightColor, 3);
}

TEST_F(LoadedSettings, GoOnPastABadOne) {
  const Settings settings = Load("Chessboard", "Light Color=\nDark Color=x\nVisited Color=255\n");
  EXPECT_EQ(settings.LightColor, SystemColor(0x16));
  EXPECT_EQ(settings.DarkColor, 0);
  EXPECT_EQ(settings.VisitedColor, 255);
}

class WindowPlacementFile : public FolderTest {
 protected:
  WindowPlacement Read(const QByteArray& lines) const {
    return WindowPlacementFrom(IniValues("[Settings]\n" + lines));
  }
};

TEST_F(WindowPlacementFile, HasOnlyWhatIsPresent) {
  const WindowPlacement placement = Read("Top=-150\nWidth=9600.5\nHeight=\n");
  EXPECT_EQ(placement.Left, std::nullopt);
  EXPECT_EQ(placement.Top, -150.0);
  EXPECT_EQ(placement.Height, std::nullopt);
  EXPECT_EQ(placement.Width, 9600.5);
}

TEST_F(WindowPlacementFile, IsThatOfANormalWindowUnlessItSaysMore) {
  EXPECT_FALSE(Read("").Maximised);
  EXPECT_TRUE(Read("State=2\n").Maximised);
}

TEST_F(WindowPlacementFile, ReadsWhatIsNoNumberAsZero) {
  EXPECT_EQ(Read("Left=left\n").Left, 0.0);
}
