#pragma once

#include <cstdint>
#include <optional>

#include <QImage>

#include "storage/ScoreLists.h"
#include "ui/application/Announcer.h"
#include "ui/commands/CommandContext.h"
#include "ui/widgets/SecondaryWindow.h"

class CoverPicture;
class NameBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class ScoreTable;

// One score list: ten rows over a picture. A finished game that is offered to it is ranked in, and
// its player's name is asked for.
class frmScores : public SecondaryWindow {
  Q_OBJECT

 public:
  // The context outlives the window.
  frmScores(const CommandContext& context, QWidget* mainWindow);

  // Each reads and shows its list.
  void LoadHigh();
  void LoadLow();
  // Offers a finished game to the list that was loaded last; HighScore tells which one that is.
  void SendScore(std::int16_t TotalMoves, std::int32_t TotalTime, bool HighScore);
  // A click on a row, or beside the rows.
  void FixText(std::optional<int> row);

  void cmdNewGame_Click();
  void cmdReplay_Click();
  void cmdClose_Click();
  void txtHighScore_Change();
  // False when the text is no name: the player has then been told so and is back in the box.
  bool txtHighScore_Validate();

  // Saves the list if it has changed, under the name that has been entered so far.
  void KeepScore();

  // Every other way of closing ends here; it counts as Close.
  void done(int result) override;

  // After the window has been closed.
  ScoresAnswer Answer() const { return answer_; }

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void AddBackground();
  void AddNameBox();
  QWidget* AddBackgroundCorner(int height);
  QHBoxLayout* AddButtons();
  void Load(ScoreList list);
  void Insert(const FinishedGame& game, int place);
  void ShowRow(int row);
  void ShowNameBox();
  void FitNameBox();
  bool HoldsName() const;
  // Saves the list when it has changed. Stays open over a name that is refused.
  void Leave(ScoresAnswer answer);

  const CommandContext& context_;
  QImage picture_;
  CoverPicture* picBackground_ = nullptr;
  ScoreTable* table_ = nullptr;
  QLabel* lblMeasureWidth_ = nullptr;
  NameBox* txtHighScore_ = nullptr;
  QPushButton* cmdNewGame_ = nullptr;
  QPushButton* cmdReplay_ = nullptr;
  QPushButton* cmdClose_ = nullptr;

  ScoreList list_ = ScoreList::High;
  ScoreRows rows_;
  std::optional<FinishedGame> inserted_;  // the list has changed
  int editedRow_ = 0;                     // of the inserted game
  ScoresAnswer answer_ = ScoresAnswer::Close;
  Announcer announcer_;
};
