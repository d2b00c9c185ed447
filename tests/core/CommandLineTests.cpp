#include <algorithm>

#include "tests/support/GameTest.h"

namespace {

class CommandLine : public GameTest {
 protected:
  // The steps after the board has been drawn.
  Steps StepsFor(const std::string& commandLine) {
    state = GameState{};
    game.Form_Load(commandLine);
    const Steps steps = TakeLog();
    const auto drawn = std::find(steps.rbegin(), steps.rend(), "RestoreColors -1 -1");
    return Steps(drawn.base(), steps.end());
  }
};

}  // namespace

TEST_F(CommandLine, OpensAGameFileInAWindowThatIsShownFirst) {
  EXPECT_EQ(StepsFor("tour.knight"), (Steps{"ShowWindow", "OpenGameFile tour.knight"}));
}

TEST_F(CommandLine, OpensTheSameFileInQuotes) {
  EXPECT_EQ(StepsFor("\"my games/tour.knight\""),
            (Steps{"ShowWindow", "OpenGameFile my games/tour.knight"}));
}

TEST_F(CommandLine, OpensANameWithBlanks) {
  EXPECT_EQ(StepsFor("my best tour.knight"),
            (Steps{"ShowWindow", "OpenGameFile my best tour.knight"}));
}

TEST_F(CommandLine, OpensTheShortestNames) {
  EXPECT_EQ(StepsFor("a.knight"), (Steps{"ShowWindow", "OpenGameFile a.knight"}));
  EXPECT_EQ(StepsFor("\"knight\""), (Steps{"ShowWindow", "OpenGameFile knight"}));
}

TEST_F(CommandLine, IsIgnoredWhenItIsTooShort) {
  EXPECT_EQ(StepsFor(""), Steps{});
  EXPECT_EQ(StepsFor(".knight"), Steps{});
  EXPECT_EQ(StepsFor("knight\""), Steps{});
}

TEST_F(CommandLine, IsIgnoredWithAnyOtherEnding) {
  for (const std::string text : {"tour.KNIGHT", "tour.Knight", "tour.kni", "tour.knight ",
                                 "tourknight", "'tour.knight'", "tour.knight.txt"}) {
    EXPECT_EQ(StepsFor(text), Steps{"ShowWindow"}) << text;
  }
}
