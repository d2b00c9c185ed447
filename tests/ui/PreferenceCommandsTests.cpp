#include <QDir>

#include "tests/ui/CommandTest.h"
#include "ui/commands/Preferences.h"

namespace {

const std::string WidthQuestion =
    "input Frame Width|Enter the frame width (in pixels).\nValid numbers are between 0 and "
    "100\nThe default value is 16.|";

class PreferenceCommands : public CommandTest {
 protected:
  // The keys of the settings file in their order, each after its section.
  QStringList Keys() {
    QStringList keys;
    QString section;
    for (const QString& line : QString(BytesOf(globals.IniFile.PathName())).split("\r\n")) {
      if (line.startsWith('[')) section = line;
      if (line.contains('=')) keys << section + line.section('=', 0, 0);
    }
    return keys;
  }

  // The width in twips after these answers.
  int WidthAfter(std::initializer_list<QString> answers) {
    dialogs.inputs = answers;
    AskForFrameWidth(context);
    EXPECT_TRUE(dialogs.inputs.empty()) << "a question was not asked";
    return globals.settings.CornerDistance;
  }
};

}  // namespace

TEST_F(PreferenceCommands, ApplyAfterTheyAreStored) {
  Begin();
  window.onLoadGameSetup = [this] { EXPECT_TRUE(QFile::exists(globals.IniFile.PathName())); };
  ApplyPreferences(context);
  EXPECT_EQ(TakeLog(), (Steps{"LoadGameSetup", "RepaintWholeBoard", "Form_Resize"}));
}

TEST_F(PreferenceCommands, StoreTheirKeysInTheStatedOrder) {
  ApplyPreferences(context);
  EXPECT_EQ(Keys(), (QStringList{"[Position]Starting Position",
                                 "[Position]Starting X",
                                 "[Position]Starting Y",
                                 "[Chessboard]Light Color",
                                 "[Chessboard]Dark Color",
                                 "[Chessboard]Visited Color",
                                 "[Chessboard]Knight Color",
                                 "[Chessboard]Light Image",
                                 "[Chessboard]Dark Image",
                                 "[Chessboard]Visited Image",
                                 "[Chessboard]Knight Image",
                                 "[Chessboard]Use Images",
                                 "[Chessboard]Image Positioning",
                                 "[Chessboard]Use Borders",
                                 "[Chessboard]Corner Distance",
                                 "[Chessboard]Chessboard Background Color",
                                 "[Chessboard]Chessboard Background Image",
                                 "[Highlight]Highlight Color",
                                 "[Highlight]Highlight Image",
                                 "[Highlight]Highlighting Method",
                                 "[Settings]Show Solve Warnings",
                                 "[Settings]Preferences Previous Directory",
                                 "[Settings]Previous Directory",
                                 "[Settings]Show Time",
                                 "[Settings]Show Score",
                                 "[Settings]Solve Refresh"}));
}

TEST_F(PreferenceCommands, KeepWhatChangedOutsideThemSinceTheStart) {
  globals.settings.ShowTime = false;
  globals.settings.ShowScore = false;
  globals.settings.SolveRefreshRate = 77;
  globals.settings.PreviousDirectory = "/games/";
  ApplyPreferences(context);
  Settings reloaded;
  LoadSettings(globals.IniFile.Values(), globals.ProgramDirectory, reloaded);
  EXPECT_FALSE(reloaded.ShowTime);
  EXPECT_FALSE(reloaded.ShowScore);
  EXPECT_EQ(reloaded.SolveRefreshRate, 77);
  EXPECT_EQ(reloaded.PreviousDirectory, "/games/");
}

TEST_F(PreferenceCommands, LeaveForeignLinesAlone) {
  FileWith("GallopadeNova.ini", "; mine\r\n[Replay]\r\nAdvance Speed=7\r\n[Other]\r\nA=1\r\n");
  ApplyPreferences(context);
  EXPECT_TRUE(BytesOf(globals.IniFile.PathName())
                  .startsWith("; mine\r\n[Replay]\r\nAdvance Speed=7\r\n[Other]\r\nA=1\r\n"));
}

TEST_F(PreferenceCommands, ApplyEvenWhenTheyCannotBeStored) {
  Begin();
  QDir().mkpath(globals.IniFile.PathName());
  ApplyPreferences(context);
  EXPECT_EQ(TakeLog(), (Steps{"LoadGameSetup", "RepaintWholeBoard", "Form_Resize"}));
}

TEST_F(PreferenceCommands, AskBeforeTheDefaultsAreRestored) {
  FileWith("GallopadeNova.ini", "[Settings]\r\nShow Time=0\r\n");
  window.answers = {PlayerSays::No};
  EXPECT_FALSE(RestoreDefaultConfiguration(context));
  EXPECT_EQ(TakeLog(), Steps{Line("Gallopade Nova",
                                  "Are you sure you want to restore the default configuration?",
                                  DefaultAnswer::No)});
  EXPECT_FALSE(BytesOf(globals.IniFile.PathName()).isEmpty());
}

TEST_F(PreferenceCommands, RestoreTheDefaultsByDeletingTheSettingsFile) {
  FileWith("GallopadeNova.ini", "[Settings]\r\nShow Time=0\r\n");
  Begin();
  window.answers = {PlayerSays::Yes};
  window.onLoadGameSetup = [this] { EXPECT_FALSE(QFile::exists(globals.IniFile.PathName())); };
  EXPECT_TRUE(RestoreDefaultConfiguration(context));
  const Steps steps = TakeLog();
  EXPECT_EQ(Steps(steps.begin() + 1, steps.end()),
            (Steps{"LoadGameSetup", "RepaintWholeBoard", "Form_Resize"}));
}

TEST_F(PreferenceCommands, ShowTheCaptionOfTheDefaults) {
  Begin();
  globals.settings.ShowScore = false;
  game.DoCaption();
  window.answers = {PlayerSays::Yes};
  window.onLoadGameSetup = [this] { globals.settings.ShowScore = true; };
  RestoreDefaultConfiguration(context);
  EXPECT_EQ(window.Caption(), "Gallopade Nova: 1 - 0:00:00.0");
}

TEST_F(PreferenceCommands, AskBeforeTheScoresAreCleared) {
  FileWith("Scores.dat", "[High Scores]\r\n");
  window.answers = {PlayerSays::No};
  ClearScoreLists(context);
  EXPECT_EQ(TakeLog(),
            Steps{Line("Gallopade Nova", "Are you sure you want to clear the score lists?",
                       DefaultAnswer::No)});
  EXPECT_TRUE(QFile::exists(FilePath("Scores.dat")));
}

TEST_F(PreferenceCommands, ClearTheScoresByDeletingTheirFile) {
  FileWith("Scores.dat", "[High Scores]\r\n");
  window.answers = {PlayerSays::Yes};
  ClearScoreLists(context);
  EXPECT_FALSE(QFile::exists(FilePath("Scores.dat")));
}

TEST_F(PreferenceCommands, ClearScoresThatDoNotExistWithoutAWord) {
  window.answers = {PlayerSays::Yes};
  ClearScoreLists(context);
  EXPECT_EQ(TakeLog().size(), 1U);
}

TEST_F(PreferenceCommands, AskForTheFrameWidthInPixels) {
  globals.settings.CornerDistance = 450;
  AskForFrameWidth(context);
  EXPECT_EQ(TakeLog(), Steps{WidthQuestion + "30"});
}

TEST_F(PreferenceCommands, ShowAFrameWidthBetweenTwoPixelsSoThatItComesBack) {
  globals.settings.CornerDistance = 250;
  AskForFrameWidth(context);
  EXPECT_EQ(TakeLog(), Steps{WidthQuestion + "16.6667"});
  EXPECT_EQ(WidthAfter({"16.6667"}), 250);
}

TEST_F(PreferenceCommands, LeaveTheFrameWidthWhenTheBoxIsCancelled) {
  EXPECT_EQ(WidthAfter({}), 240);
}

TEST_F(PreferenceCommands, LeaveTheFrameWidthOnAnEmptyAnswer) {
  EXPECT_EQ(WidthAfter({""}), 240);
}

TEST_F(PreferenceCommands, TakeNoFrameAtAll) {
  EXPECT_EQ(WidthAfter({"0"}), 0);
}

TEST_F(PreferenceCommands, TakeTheWidestFrame) {
  EXPECT_EQ(WidthAfter({"100"}), 1500);
}

TEST_F(PreferenceCommands, AskAgainForOneTwipTooMany) {
  EXPECT_EQ(WidthAfter({"100.0667", "50"}), 750);
  EXPECT_EQ(TakeLog(), (Steps{WidthQuestion + "16", WidthQuestion + "16"}));
}

TEST_F(PreferenceCommands, AskAgainUntilTheWidthIsInItsRange) {
  EXPECT_EQ(WidthAfter({"-1", "101", "99999999999999999999", "20"}), 300);
}

TEST_F(PreferenceCommands, TakeAWidthThatIsNoNumberForNoFrame) {
  EXPECT_EQ(WidthAfter({"wide"}), 0);
}
