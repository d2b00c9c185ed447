#pragma once

#include <array>

#include "ui/application/Announcer.h"
#include "ui/commands/CommandContext.h"
#include "ui/widgets/SecondaryWindow.h"
#include "ui/windows/preferences/Choosers.h"
#include "ui/windows/preferences/PreferenceMenus.h"

class ChooserButton;
class PictureReader;
class PreviewBoard;
class QButtonGroup;
class QCheckBox;
class QGridLayout;
class QGroupBox;
class QLayout;
class Swatch;

// The preferences. The six choosers change the settings in memory; everything is stored and applied
// by OK only.
class frmPreferences : public SecondaryWindow {
  Q_OBJECT

 public:
  // All outlive the window. pictures: has read those of the board.
  frmPreferences(const CommandContext& context, PictureReader& pictures, QWidget* mainWindow);

  // owner: a chooser by its place among ChooserRows.
  void Chooser_Click(int owner);
  void Chooser_MouseUp(int owner);
  void mnuSystemColorsEntry_Click(int index);
  void mnuImageOptionsEntry_Click(int index);
  void pctGrid_Click();
  void chkUseImages_Click();
  void cmdOK_Click();
  void cmdCancel_Click();
  void cmdDefaultConfiguration_Click();
  void cmdClearScores_Click();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  struct Chooser {
    ChooserButton* button = nullptr;
    Swatch* swatch = nullptr;
  };

  void AddControls();
  QGroupBox* AddChessboardFrame();
  QGroupBox* AddHighlightFrame();
  QGroupBox* AddPositionFrame();
  QGroupBox* AddProgramFrame();
  QLayout* AddClosingButtons();
  void AddChooser(int owner, QGridLayout& layout, int row);

  void Form_Load();
  void ChooseColor(int owner);
  void ChooseImage(int owner);
  // A colour on the screen, or NoColor when the player cancelled.
  Color GetColors(Color color);
  // Empty when the player cancelled.
  QString GetImages();
  void SetColorOf(int owner, Color color);
  void LoadAndShowImages(bool show);
  void PositionImages();
  void NameSwatch(int owner);
  // What the player has chosen, as soon as the window has the keyboard again.
  void TellChoice(int owner);
  void TellChoiceLater();

  const CommandContext& context_;
  PictureReader& pictures_;
  Settings& settings_;
  std::array<Chooser, ChooserCount> choosers_;
  QCheckBox* chkUseImages_ = nullptr;
  QButtonGroup* optHighlight_ = nullptr;
  QButtonGroup* optPosition_ = nullptr;
  PreviewBoard* pctGrid_ = nullptr;
  PreferenceMenus menus_;
  int menuOwner_ = 0;
  QString choice_;  // still to be told
  Announcer announcer_;
};
