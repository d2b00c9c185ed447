#include "tests/support/RecordingWindow.h"

namespace {

// In the order of MenuEntry.
constexpr std::array<const char*, MenuEntryCount> MenuEntryNames{
    "mnuFileSave",       "mnuFileRestart", "mnuFileSolve", "mnuFileAutoplay",
    "mnuFileSaveReplay", "mnuEditUndo",    "mnuEditRedo",  "mnuEditHistory",
    "mnuViewReplay",     "mnuViewHistory", "mnuViewScore", "mnuViewTime",
};

}  // namespace

std::string Line(MenuEntry entry, const std::string& change) {
  return std::string(MenuEntryNames[static_cast<std::size_t>(entry)]) + " " + change;
}

std::string Line(const std::string& title, const std::string& text, DefaultAnswer defaultAnswer) {
  const std::string line = "ask " + title + "|" + text;
  return defaultAnswer == DefaultAnswer::No ? line + "|default No" : line;
}

std::string Line(const std::string& title, const std::string& text, MessageIcon icon) {
  return "tell " + title + "|" + text +
         (icon == MessageIcon::Exclamation ? "|exclamation" : "|information");
}

std::string Line(const GameOverReport& report) {
  return "EndGame " + report.buttonCaption + "|" + report.message + "|" +
         std::to_string(report.moveCount) + "|" + std::to_string(report.elapsedHalfSeconds);
}
