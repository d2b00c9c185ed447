#include "ui/windows/game/frmGame.h"

#include <utility>

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPixmapCache>
#include <QScopedValueRollback>
#include <QSessionManager>
#include <QTimer>

#include "storage/AttemptMark.h"
#include "storage/OwnFiles.h"
#include "storage/PathName.h"
#include "ui/application/AccessibleDialog.h"
#include "ui/application/AccessibleLineEdit.h"
#include "ui/application/DoEvents.h"
#include "ui/application/ReaderEvents.h"
#include "ui/board/BoardView.h"
#include "ui/commands/EndOfGame.h"
#include "ui/commands/GameFiles.h"
#include "ui/help/frmHelp.h"
#include "ui/windows/frmReplay.h"
#include "ui/windows/game/SidePanel.h"
#include "ui/windows/scores/frmScores.h"

namespace {

constexpr int CloseRetryMilliseconds = 100;
// Every dialog draws its icons anew, and Qt would keep ten megabytes of them.
constexpr int PixmapCacheKilobytes = 1024;

}  // namespace

frmGame::frmGame(Globals& globals, PicturePace::Clock clock)
    : globals_(globals),
      pictures_(globals.ProgramDirectory),
      game_(state_, globals.settings, *this),
      tmrTime_([this] { TickInSight(); }),
      pace_(std::move(clock)),
      board_(std::make_unique<BoardView>(state_, pace_)),
      menu_(*this),
      dialogs_(*this),
      windows_(*this),
      context_{game_, state_, *this, dialogs_, windows_, globals, pace_},
      helpKey_([this](const QString& topic) { GetHelp(topic); }),
      guard_([this](WorkGuard::Change change) { WorkChanged(change); }) {
  AccessibleDialog::Install();
  AccessibleLineEdit::Install();
  ReaderEvents::Install();
  QPixmapCache::setCacheLimit(PixmapCacheKilobytes);
  setObjectName("frmGame");
  setCentralWidget(board_.get());
}

// The help goes while signals still wait: its folder must not stay behind when one ends the
// program.
frmGame::~frmGame() {
  help_.reset();
}

void frmGame::Form_Load(const std::string& commandLine) {
  game_.Form_Load([this] { SetUp(); });
  outsideEnd_.emplace([this] { LeaveUnasked(); });
  connect(qApp, &QGuiApplication::commitDataRequest, this, &frmGame::CommitSession,
          Qt::DirectConnection);
  ShowWindow();
  // While the desktop makes room for the window; nothing of it is painted before.
  ReadFirstPictures();
  RestoreColors();
  if (const auto fileName = GameFileOf(commandLine)) {
    OpenGameFile(PathFromBytes(QByteArray::fromStdString(*fileName)));
  }
}

void frmGame::SetUp() {
  OpenSettingsAndPlaceWindow();
  CreateBoard();
  ReadSettings();
}

bool frmGame::Perform(const std::function<void()>& deed) {
  if (!PlayerMayAct()) return false;
  exitAgreed_ = false;
  board_->Announcer().BeginCommand();
  {
    const QScopedValueRollback performing(performing_, true);
    deed();
  }
  board_->Announcer().EndCommand();
  if (guard_.IsCloseRequested()) CloseAsRequested();
  return true;
}

void frmGame::GetHelp(const QString& helpTopic) {
  if (help_ == nullptr) {
    help_ = std::make_unique<frmHelp>(globals_.ProgramDirectory);
    help_->PlaceBesideGame(*this);
  }
  helpTopic.isEmpty() ? help_->ShowContents() : help_->ShowTopic(helpTopic);
}

void frmGame::SetMenuEnabled(MenuEntry entry, bool enabled) {
  menu_.Entry(entry).setEnabled(enabled);
}

bool frmGame::IsMenuEnabled(MenuEntry entry) const {
  return menu_.Entry(entry).isEnabled();
}

void frmGame::SetMenuChecked(MenuEntry entry, bool checked) {
  menu_.Entry(entry).setChecked(checked);
}

void frmGame::RestoreColors() {
  board_->Model().RestoreColors(state_, globals_.settings, -1, -1);
  board_->ShowChanges();
}

void frmGame::HighlightSquare(int index, bool forced) {
  board_->Model().HighlightSquare(state_, globals_.settings, index, forced);
  board_->ShowChanges();
}

void frmGame::SetCaption(const std::string& caption) {
  setWindowTitle(QString::fromStdString(caption));
}

// What has begun of a half second belongs to the game that it began in.
void frmGame::EnableClock(bool enabled) {
  if (std::exchange(clockOfGame_, state_.GameSerial) != state_.GameSerial) tmrTime_.BeginAnew();
  tmrTime_.SetEnabled(enabled);
}

bool frmGame::IsClockEnabled() const {
  return tmrTime_.IsEnabled();
}

bool frmGame::Ask(const std::string& title, const std::string& text, DefaultAnswer defaultAnswer) {
  pace_.Complete();
  return AskQuestion(*this, QString::fromStdString(title), QString::fromStdString(text),
                     defaultAnswer);
}

void frmGame::Tell(const std::string& title, const std::string& text, MessageIcon icon) {
  pace_.Complete();
  TellMessage(*this, QString::fromStdString(title), QString::fromStdString(text), icon);
}

void frmGame::EndGame(const GameOverReport& report) {
  pace_.Complete();
  ::EndGame(context_, report);
}

void frmGame::DoEvents() {
  ::DoEvents(pace_);
}

void frmGame::WorkChanged(WorkGuard::Change change) {
  if (change == WorkGuard::Change::Began) return;
  CatchUpOnResize();
  if (PlayerMayAct() && guard_.IsCloseRequested()) CloseAsRequested();
}

// The window closes in the normal way, but only when nothing else is going on in the event loop.
void frmGame::CloseAsRequested() {
  QTimer::singleShot(CloseRetryMilliseconds, this, [this] {
    if (!guard_.IsCloseRequested()) return;
    if (!PlayerMayAct() || QApplication::activeModalWidget() != nullptr) {
      CloseAsRequested();
    } else {
      close();
    }
  });
}

// The window manager cannot close it behind a dialog; nobody else shall either, since the dialog
// goes on with the game. A dialog that has just closed may lead to the next.
void frmGame::closeEvent(QCloseEvent* event) {
  if (QApplication::activeModalWidget() != nullptr) return event->ignore();
  guard_.SetCloseRequested(!PlayerMayAct());
  if (!PlayerMayAct()) pace_.Hurry();
  if (auto* panel = findChild<SidePanel*>()) panel->CloseDialog();
  event->setAccepted(PlayerMayAct() && MayExit());
  if (!event->isAccepted()) return;
  SaveSettings();
  // The program may go on for what is being printed.
  if (help_ != nullptr) help_->close();
}

// The shortcut of a disabled entry comes here. Who does not see the entry is told.
void frmGame::keyPressEvent(QKeyEvent* event) {
  const QAction* entry = menu_.DisabledEntryOf(QKeySequence(event->keyCombination()));
  if (entry != nullptr && PlayerMayAct()) board_->Announcer().Refuse(entry->iconText());
  QMainWindow::keyPressEvent(event);
}

bool frmGame::MayExit() {
  return exitAgreed_ || game_.Form_Unload();
}

// The session that is about to end closes the window later, if nobody has stopped it; or it does
// not.
void frmGame::CommitSession(QSessionManager& session) {
  if (isHidden()) return;
  if (game_.GameInProgress() && session.allowsInteraction()) {
    exitAgreed_ = game_.Form_Unload();
    session.release();
    if (!exitAgreed_) return session.cancel();
  }
  SaveSettings();
}

// Whoever ends the program from outside does not wait for another copy for ever. A closed window
// has saved its settings, and another copy may have been used since.
void frmGame::LeaveUnasked() {
  if (!isHidden()) SaveSettings();
  for (frmScores* scores : findChildren<frmScores*>()) scores->KeepScore();
  if (help_ != nullptr) help_->RemoveTemporaryFiles();
  FinishSaving(globals_, Wait::AMoment);
}

void frmGame::Exit() {
  close();
}

void frmGame::LoadGameSetup() {
  ReadSettings();
  LoadPictures();
}

void frmGame::ReadSettings() {
  Settings& settings = globals_.settings;
  LoadSettings(globals_.IniFile.Values(), globals_.ProgramDirectory, settings);
  SetMenuChecked(MenuEntry::mnuViewTime, settings.ShowTime);
  SetMenuChecked(MenuEntry::mnuViewScore, settings.ShowScore);
  board_->SetCornerDistance(settings.CornerDistance);
  board_->SetBackground(settings.ChessboardBackgroundColor, settings.UseImages);
}

// Pictures that once ended the program would end it at every start. Later they have been read
// already: a mark that is there then was left by another copy.
void frmGame::ReadFirstPictures() {
  if (!globals_.settings.UseImages) return;
  const AttemptMark mark(globals_.ProgramDirectory + ReadingMarkName);
  if (mark.WasCutShortBefore()) {
    board_->SetPictures({});
  } else {
    LoadPictures();
  }
}

void frmGame::LoadPictures() {
  if (globals_.settings.UseImages) {
    board_->SetPictures(LoadBoardPictures(globals_.settings, pictures_));
  }
}

void frmGame::OpenGameFile(const QString& fileName) {
  Perform([&] {
    LoadGame(context_, {.Replaying = false, .NoCdlog = true, .NoCdlogFilename = fileName});
  });
}

void frmGame::SaveSettings() {
  for (frmReplay* replay : findChildren<frmReplay*>()) replay->SaveSettings();
  globals_.IniFile.Change(ExitEntries(globals_.settings, Placement(), IsMinimised()));
}
