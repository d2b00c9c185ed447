#include "ui/commands/Preferences.h"

#include <cmath>
#include <vector>

#include "core/NumberText.h"
#include "core/Twips.h"
#include "storage/NumberParser.h"

namespace {

QString PixelText(int twips) {
  return QString::fromStdString(NumberText(static_cast<int>(PixelsFromTwips(twips))));
}

QString FrameWidthPrompt() {
  return "Enter the frame width (in pixels).\nValid numbers are between 0 and" +
         PixelText(MaximumCornerDistance) + "\nThe default value is" +
         PixelText(Settings().CornerDistance) + ".";
}

}  // namespace

void ApplyPreferences(const CommandContext& context) {
  Globals& globals = context.globals;
  std::vector<IniEntry> entries = PreferencesEntries(globals.settings);
  const std::vector<IniEntry> session = SessionEntries(globals.settings);
  entries.insert(entries.end(), session.begin(), session.end());
  globals.IniFile.Change(entries);
  context.window.LoadGameSetup();
  context.game.RepaintWholeBoard();
  context.window.Form_Resize();
}

bool RestoreDefaultConfiguration(const CommandContext& context) {
  if (!context.window.Ask("Gallopade Nova",
                          "Are you sure you want to restore the default configuration?",
                          DefaultAnswer::No)) {
    return false;
  }
  context.globals.IniFile.Clear();
  context.window.LoadGameSetup();
  context.game.RepaintWholeBoard();
  context.window.Form_Resize();
  context.game.DoCaption();
  return true;
}

void ClearScoreLists(const CommandContext& context) {
  if (context.window.Ask("Gallopade Nova", "Are you sure you want to clear the score lists?",
                         DefaultAnswer::No)) {
    context.globals.ScoreFile.Clear();
  }
}

void AskForFrameWidth(const CommandContext& context) {
  int& cornerDistance = context.globals.settings.CornerDistance;
  while (true) {
    const QString width = QString::number(PixelsFromTwips(cornerDistance));
    const auto answer = context.dialogs.InputBox("Frame Width", FrameWidthPrompt(), width);
    if (!answer || answer->isEmpty()) return;
    const double twips = std::round(TwipsFromPixels(LenientNumber(*answer)));
    if (twips >= 0 && twips <= MaximumCornerDistance) {
      cornerDistance = static_cast<int>(twips);
      return;
    }
  }
}
