#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include <QElapsedTimer>
#include <QMainWindow>
#include <QPoint>
#include <QRect>
#include <QSize>

#include "core/Game.h"
#include "ui/application/ButtonKeys.h"
#include "ui/application/DialogModality.h"
#include "ui/application/FocusReturn.h"
#include "ui/application/HelpKey.h"
#include "ui/application/InputWatch.h"
#include "ui/application/LateAltKey.h"
#include "ui/application/LeftoverInput.h"
#include "ui/application/OutsideEnd.h"
#include "ui/commands/CommandContext.h"
#include "ui/commands/MainWindow.h"
#include "ui/widgets/pictures/PictureReader.h"
#include "ui/windows/game/GameMenu.h"
#include "ui/windows/game/HalfSecondTimer.h"
#include "ui/windows/game/LateSaving.h"
#include "ui/windows/game/ScreenDialogs.h"
#include "ui/windows/game/ScreenWindows.h"

class BoardView;
class QSessionManager;
class frmHelp;

// The main window: it owns the live game, forwards what the player does to the game and to the
// commands, and shows what the game asks for.
class frmGame : public QMainWindow, public MainWindow {
  Q_OBJECT

 public:
  // globals outlives the window and holds the program directory. clock: what the pictures keep time
  // by.
  explicit frmGame(Globals& globals, PicturePace::Clock clock = PicturePace::SteadyTime);
  ~frmGame() override;

  // Start-up; shows the window.
  // commandLine: the arguments, joined by one blank each.
  void Form_Load(const std::string& commandLine);

  // False while work is going on that the player must not disturb, or something that he has chosen
  // is not over: a dialog that has just closed is yet to be acted on.
  bool PlayerMayAct() const { return !guard_.IsWorking() && !performing_; }
  // Does what the player asks for; false, and nothing done, when he may not act.
  bool Perform(const std::function<void()>& deed);
  bool IsHandActing() const { return inputWatch_.IsHandActing(); }
  const CommandContext& Context() const { return context_; }
  const GameState& State() const { return state_; }
  BoardView& Board() { return *board_; }
  // What read the pictures of the board.
  PictureReader& Pictures() { return pictures_; }
  // Maximised, full-screen or in a tile: then it does not choose its size.
  bool HasGivenShape() const;

  // For a dialog that wants room beside the board: the window was moved there from this place, if
  // it was, and is still at home in it until it comes back.
  void StandAsideFrom(std::optional<QPoint> place) { home_ = place; }
  void ComeBack();

  // Opens the help at a keyword, or at its contents when the topic is empty.
  void GetHelp(const QString& helpTopic);

  void OpenGameFile(const QString& fileName);

  // --- what the game asks of its window ---
  void SetMenuEnabled(MenuEntry entry, bool enabled) override;
  bool IsMenuEnabled(MenuEntry entry) const override;
  void SetMenuChecked(MenuEntry entry, bool checked) override;
  void RestoreColors() override;
  void HighlightSquare(int index, bool forced) override;
  void SetCaption(const std::string& caption) override;
  void EnableClock(bool enabled) override;
  bool IsClockEnabled() const override;
  bool Ask(const std::string& title, const std::string& text, DefaultAnswer defaultAnswer) override;
  void Tell(const std::string& title, const std::string& text, MessageIcon icon) override;
  void EndGame(const GameOverReport& report) override;
  void DoEvents() override;
  WorkGuard& Guard() override { return guard_; }

  // --- what commands ask of it ---
  void LoadGameSetup() override;
  void LoadPictures() override;
  void Form_Resize() override;
  void CatchUpOnResize() override;
  bool IsMinimised() const override;
  WindowPlacement Placement() const override;
  void Exit() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void moveEvent(QMoveEvent* event) override;

 private:
  void SetUp();
  void ReadSettings();
  void ReadFirstPictures();
  void OpenSettingsAndPlaceWindow();
  void CreateBoard();
  void ShowWindow();
  bool MayExit();
  void CommitSession(QSessionManager& session);
  void SaveSettings();
  void LeaveUnasked();
  void WorkChanged(WorkGuard::Change change);
  void CloseAsRequested();
  bool IsClockResting() const;
  bool CanBeSeen() const;
  bool HasSidePanel() const;
  void TickInSight();
  bool IsNormal() const;
  QRect NormalBounds() const;
  bool SnapToMinimumHeight();
  void MakeInnerAreaSquare();
  void FindOutWhetherTiled();
  void ApplyPlacement(const WindowPlacement& placement);
  void SettleInFrame();

  Globals& globals_;
  PictureReader pictures_;
  GameState state_;
  Game game_;
  HalfSecondTimer tmrTime_;
  std::uint32_t clockOfGame_ = 0;  // the serial number of the game that it counted for
  PicturePace pace_;
  std::unique_ptr<BoardView> board_;  // gone before what it shows
  GameMenu menu_;
  ScreenDialogs dialogs_;
  ScreenWindows windows_;
  CommandContext context_;
  std::optional<LateSaving> lateSaving_;  // once the files have their names
  std::unique_ptr<frmHelp> help_;         // made on first use
  DialogModality dialogModality_;
  HelpKey helpKey_;
  ButtonKeys buttonKeys_;
  FocusReturn focusReturn_;
  InputWatch inputWatch_;
  LateAltKey lateAltKey_;
  WorkGuard guard_;
  LeftoverInput leftoverInput_;
  bool performing_ = false;
  bool resizePending_ = false;
  bool exitAgreed_ = false;  // the player has done nothing since he agreed to the session's end
  QRect placedBounds_;       // where the window was put before it was shown
  // The stored place, until the window has settled there with its frame.
  std::optional<WindowPlacement> unsettled_;
  // From the corner of the window manager's frame to the window's own; known once the window has
  // been seen in its normal state.
  std::optional<QPoint> decoration_;
  QElapsedTimer sinceShown_;
  std::optional<QPoint> home_;  // while the window stands aside
  bool tiled_ = false;          // was given a size as soon as it was shown, and keeps to such sizes
  QSize sizeBeforeSquaring_;    // the size that was last asked to change, invalid when it did
  std::optional<OutsideEnd> outsideEnd_;  // from when the settings have been read
};
