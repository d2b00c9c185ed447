#include "storage/Settings.h"
#include "storage/clsIniFile.h"
#include "tests/storage/TestFiles.h"

namespace {

const WindowPlacement Somewhere{
    .Left = 150.0, .Top = -22.5, .Height = 9600.0, .Width = 1000000.0, .Maximised = true};

}  // namespace

TEST(ExitEntries, AreInTheirOrder) {
  EXPECT_EQ(KeysOf(ExitEntries(Settings(), Somewhere, false)),
            QStringList({"Previous Directory", "Preferences Previous Directory", "State", "Left",
                         "Top", "Height", "Width", "Show Time", "Show Score", "Solve Refresh"}));
}

TEST(ExitEntries, LeaveTheStateOfAMinimisedWindowAlone) {
  EXPECT_EQ(KeysOf(ExitEntries(Settings(), Somewhere, true)),
            QStringList({"Previous Directory", "Preferences Previous Directory", "Left", "Top",
                         "Height", "Width", "Show Time", "Show Score", "Solve Refresh"}));
}

TEST(ExitEntries, AreDecimalTexts) {
  Settings settings;
  settings.PreviousDirectory = "/a/";
  settings.PreferencesPreviousDirectory = "/b/";
  settings.ShowScore = false;
  settings.SolveRefreshRate = 32000;
  const auto values = ValuesOf(ExitEntries(settings, Somewhere, false));
  EXPECT_EQ(values.at("Settings/Previous Directory"), "/a/");
  EXPECT_EQ(values.at("Settings/Preferences Previous Directory"), "/b/");
  EXPECT_EQ(values.at("Settings/State"), "2");
  EXPECT_EQ(values.at("Settings/Left"), "150");
  EXPECT_EQ(values.at("Settings/Top"), "-22.5");
  EXPECT_EQ(values.at("Settings/Height"), "9600");
  EXPECT_EQ(values.at("Settings/Width"), "1000000");
  EXPECT_EQ(values.at("Settings/Show Time"), "1");
  EXPECT_EQ(values.at("Settings/Show Score"), "0");
  EXPECT_EQ(values.at("Settings/Solve Refresh"), "32000");
}

TEST(PreferencesEntries, AreInTheirOrder) {
  EXPECT_EQ(KeysOf(PreferencesEntries(Settings())),
            QStringList({"Starting Position",
                         "Starting X",
                         "Starting Y",
                         "Light Color",
                         "Dark Color",
                         "Visited Color",
                         "Knight Color",
                         "Light Image",
                         "Dark Image",
                         "Visited Image",
                         "Knight Image",
                         "Use Images",
                         "Image Positioning",
                         "Use Borders",
                         "Highlight Color",
                         "Highlight Image",
                         "Highlighting Method",
                         "Corner Distance",
                         "Chessboard Background Color",
                         "Chessboard Background Image",
                         "Show Solve Warnings",
                         "Preferences Previous Directory"}));
}

TEST(PreferencesEntries, AreInTheirSections) {
  const auto values = ValuesOf(PreferencesEntries(Settings()));
  EXPECT_EQ(values.at("Position/Starting Position"), "0");
  EXPECT_EQ(values.at("Chessboard/Light Color"), "-2147483626");
  EXPECT_EQ(values.at("Chessboard/Use Images"), "1");
  EXPECT_EQ(values.at("Chessboard/Use Borders"), "0");
  EXPECT_EQ(values.at("Highlight/Highlight Color"), "-2147483624");
  EXPECT_EQ(values.at("Highlight/Highlight Image"), "Wood Highlight.gif");
  EXPECT_EQ(values.at("Highlight/Highlighting Method"), "2");
  EXPECT_EQ(values.at("Settings/Show Solve Warnings"), "1");
}

TEST(SessionEntries, AreWhatTheReloadAfterThePreferencesWouldLose) {
  EXPECT_EQ(KeysOf(SessionEntries(Settings())),
            QStringList({"Previous Directory", "Show Time", "Show Score", "Solve Refresh"}));
}

TEST(ThePicturesOfScoresAndAbout, AreNeverWritten) {
  for (const auto& entries :
       {ExitEntries(Settings(), Somewhere, false), PreferencesEntries(Settings()),
        SessionEntries(Settings()), ChessboardEntries(Settings())}) {
    EXPECT_FALSE(KeysOf(entries).contains("Scores Image"));
    EXPECT_FALSE(KeysOf(entries).contains("About Image"));
  }
}

class WrittenSettings : public FolderTest {
 protected:
  void Write(const std::vector<IniEntry>& entries) const {
    QString error;
    EXPECT_TRUE(clsIniFile().WriteIniFileValues(PathOf("x.ini"), entries, error))
        << error.toStdString();
  }
  Settings Load() const {
    Settings settings;
    LoadSettings(clsIniFile().ReadIniFileValues(PathOf("x.ini")), "/p/", settings);
    return settings;
  }
};

TEST_F(WrittenSettings, AreReadBack) {
  Settings settings;
  settings.StartingPosition = FirstSquare::Random;
  settings.StartingY = 7;
  settings.KnightColor = 0x00FFFFFF;
  settings.LightImage = "/home/ann/caf\u00e9; \"a\".gif";
  settings.UseImages = false;
  settings.UseBorders = true;
  settings.CornerDistance = 1500;
  settings.ShowSolveWarnings = false;
  Write(PreferencesEntries(settings));
  const Settings loaded = Load();
  EXPECT_EQ(loaded.StartingPosition, FirstSquare::Random);
  EXPECT_EQ(loaded.StartingY, 7);
  EXPECT_EQ(loaded.KnightColor, 0x00FFFFFF);
  EXPECT_EQ(loaded.LightImage, settings.LightImage);
  EXPECT_FALSE(loaded.UseImages);
  EXPECT_TRUE(loaded.UseBorders);
  EXPECT_EQ(loaded.CornerDistance, 1500);
  EXPECT_FALSE(loaded.ShowSolveWarnings);
}

TEST_F(WrittenSettings, DoNotDriftOverTenStarts) {
  WindowPlacement placement{
      .Left = 1234.5, .Top = 7.25, .Height = 9601.0, .Width = 9603.0, .Maximised = false};
  for (int start = 0; start < 10; ++start) {
    Write(ExitEntries(Load(), placement, false));
    placement = WindowPlacementFrom(clsIniFile().ReadIniFileValues(PathOf("x.ini")));
  }
  EXPECT_EQ(placement.Left, 1234.5);
  EXPECT_EQ(placement.Top, 7.25);
  EXPECT_EQ(placement.Height, 9601.0);
  EXPECT_EQ(placement.Width, 9603.0);
}

TEST_F(WrittenSettings, TellAMaximisedWindowByTwoAndANormalOneByZero) {
  const auto stateOf = [](bool maximised) {
    return ValuesOf(ExitEntries(Settings(), {.Maximised = maximised}, false))["Settings/State"];
  };
  EXPECT_EQ(stateOf(true), "2");
  EXPECT_EQ(stateOf(false), "0");
}

TEST_F(WrittenSettings, KeepTheStoredStateWhenTheWindowIsMinimised) {
  Write(ExitEntries(Settings(), Somewhere, false));
  Write(ExitEntries(Settings(), {.Left = 30.0, .Maximised = false}, true));
  const WindowPlacement placement =
      WindowPlacementFrom(clsIniFile().ReadIniFileValues(PathOf("x.ini")));
  EXPECT_TRUE(placement.Maximised);
  EXPECT_EQ(placement.Left, 30.0);
}

class TheReplaysSettings : public WrittenSettings {
 protected:
  ReplaySettings Read(const QByteArray& lines) const {
    return ReplaySettingsFrom(IniValues("[Replay]\n" + lines));
  }
};

TEST_F(TheReplaysSettings, AreFiveTenthsAndAutomaticByDefault) {
  EXPECT_EQ(Read("").AdvanceSpeed, "5");
  EXPECT_FALSE(Read("").manual);
}

TEST_F(TheReplaysSettings, KeepTheTextOfASpeedFrom0To20) {
  for (const char* text : {"0", "20", "1.5", "7x", "fast"}) {
    EXPECT_EQ(Read(QByteArray("Advance Speed=") + text).AdvanceSpeed, text);
  }
}

TEST_F(TheReplaysSettings, RefuseASpeedBeyondThat) {
  for (const char* text : {"-1", "21", "20.5", "999999999999"}) {
    EXPECT_EQ(Read(QByteArray("Advance Speed=") + text).AdvanceSpeed, "5") << text;
  }
}

TEST_F(TheReplaysSettings, AreManualForEveryNumberButZero) {
  EXPECT_TRUE(Read("Advancement=1").manual);
  EXPECT_TRUE(Read("Advancement=2").manual);
  EXPECT_FALSE(Read("Advancement=0").manual);
  EXPECT_FALSE(Read("Advancement=yes").manual);
}

TEST_F(TheReplaysSettings, AreReadBack) {
  Write(ReplayEntries({.AdvanceSpeed = "12", .manual = true}));
  const ReplaySettings replay = ReplaySettingsFrom(clsIniFile().ReadIniFileValues(PathOf("x.ini")));
  EXPECT_EQ(replay.AdvanceSpeed, "12");
  EXPECT_TRUE(replay.manual);
}

TEST(DirectoryOf, EndsInASeparator) {
  EXPECT_EQ(DirectoryOf("/a/b c/x.knight"), "/a/b c/");
  EXPECT_EQ(DirectoryOf("/x.knight"), "/");
  EXPECT_EQ(DirectoryOf("x.knight"), "");
}
