#include "ui/windows/scores/frmScores.h"

#include <algorithm>

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QVBoxLayout>

#include "core/NumberText.h"
#include "ui/widgets/NamedControls.h"
#include "ui/widgets/WindowPlacing.h"
#include "ui/widgets/pictures/PictureReader.h"
#include "ui/windows/scores/CoverPicture.h"
#include "ui/windows/scores/NameBox.h"
#include "ui/windows/scores/ScoreTable.h"

namespace {

constexpr const char* NoName = "Enter Your Name";

// The picture is shown at half its size, the table within its frame.
constexpr QSize PictureSize(520, 390);
constexpr int FrameWidth = 40;
constexpr int CornerShare = 16;
constexpr int ButtonMargin = 10;
constexpr int ButtonPadding = 16;
constexpr int ButtonGap = 8;
// The box is wider than its text, and begins a little before the name under it.
constexpr int BoxMargin = 18;
constexpr int BoxIndent = 3;

constexpr std::size_t Index(int row) {
  return static_cast<std::size_t>(row);
}

QString RowNumber(int row) {
  return QString::fromStdString(NumberText(row + 1)) + ".";
}

// Large letters need a larger table; the picture then grows with it.
double ScaleFor(const QSize& table) {
  const QSize room = PictureSize - QSize(2 * FrameWidth, 2 * FrameWidth);
  return std::max({1.0, 1.0 * table.width() / room.width(), 1.0 * table.height() / room.height()});
}

}  // namespace

frmScores::frmScores(const CommandContext& context, QWidget* mainWindow)
    : SecondaryWindow(mainWindow, "frmScores"), context_(context) {
  QVBoxLayout* layout = AddColumn();
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  AddBackground();
  layout->addWidget(picBackground_);
  AddNameBox();
  layout->addLayout(AddButtons());
  PlaceDialog(*this, *mainWindow);
}

void frmScores::AddBackground() {
  picBackground_ = new CoverPicture(this);
  picBackground_->setObjectName("picBackground");
  const Globals& globals = context_.globals;
  picture_ = LoadPicture(globals.settings.ScoresImage, globals.ProgramDirectory);
  picBackground_->SetPicture(picture_);
  table_ = new ScoreTable(picBackground_);
  const double scale = ScaleFor(table_->sizeHint());
  picBackground_->setFixedSize(PictureSize * scale);
  const int frame = qRound(FrameWidth * scale);
  auto* layout = new QVBoxLayout(picBackground_);
  layout->setContentsMargins(frame, frame, frame, frame);
  layout->addWidget(table_);
}

// The buttons lie outside the picture; a corner of it, as high as they are, joins them to it.
QWidget* frmScores::AddBackgroundCorner(int height) {
  auto* imgBackgroundCorner = new CoverPicture(this);
  imgBackgroundCorner->setObjectName("imgBackgroundCorner");
  const int side = picture_.width() / CornerShare;
  imgBackgroundCorner->SetPicture(picture_.copy(0, picture_.height() - side, side, side));
  imgBackgroundCorner->setFixedSize(height, height);
  return imgBackgroundCorner;
}

void frmScores::AddNameBox() {
  lblMeasureWidth_ = AddLabel(table_, "lblMeasureWidth", QString());
  lblMeasureWidth_->hide();
  txtHighScore_ = new NameBox(table_);
  txtHighScore_->setObjectName("txtHighScore");
  txtHighScore_->setText(NoName);
  txtHighScore_->hide();
  connect(txtHighScore_, &NameBox::textChanged, this, &frmScores::txtHighScore_Change);
  connect(txtHighScore_, &NameBox::Entered, this, &frmScores::txtHighScore_Validate);
}

QHBoxLayout* frmScores::AddButtons() {
  auto* layout = new QHBoxLayout;
  layout->setContentsMargins(ButtonMargin, ButtonMargin, ButtonMargin, ButtonMargin);
  layout->setSpacing(ButtonGap);
  cmdNewGame_ = AddButton(this, "cmdNewGame", "&New Game", &frmScores::cmdNewGame_Click);
  cmdReplay_ = AddButton(this, "cmdReplay", "&View Replay", &frmScores::cmdReplay_Click);
  cmdClose_ = AddButton(this, "cmdClose", "&Close", &frmScores::cmdClose_Click);
  UseNoDefaultButton();
  layout->addWidget(AddBackgroundCorner(cmdClose_->sizeHint().height()));
  layout->addStretch();
  for (QPushButton* button : {cmdNewGame_, cmdReplay_, cmdClose_}) {
    button->setMinimumWidth(button->sizeHint().width() + ButtonPadding);
    layout->addWidget(button);
  }
  cmdNewGame_->hide();
  cmdReplay_->hide();
  cmdClose_->setFocus();
  return layout;
}

void frmScores::LoadHigh() {
  Load(ScoreList::High);
}

void frmScores::LoadLow() {
  Load(ScoreList::Low);
}

void frmScores::Load(ScoreList list) {
  list_ = list;
  setWindowTitle(ScoreSection(list));
  table_->setAccessibleName(windowTitle());
  rows_ = RowsFrom(context_.globals.ScoreFile.Values(), list);
  for (int row = 0; row < ScoreRowCount; ++row) {
    ShowRow(row);
    if (!rows_[Index(row)].name.isEmpty()) table_->At(row).lblNumbers->setText(RowNumber(row));
  }
  table_->ShowNoScoresYet(rows_[0].name.isEmpty());
}

void frmScores::ShowRow(int row) {
  const ScoreRow& score = rows_[Index(row)];
  const ScoreTable::Row& labels = table_->At(row);
  labels.lblNames->setText(score.name);
  labels.lblMoves->setText(score.moves);
  labels.lblTimes->setText(score.timeText);
}

void frmScores::SendScore(std::int16_t TotalMoves, std::int32_t TotalTime, bool HighScore) {
  cmdReplay_->show();
  cmdNewGame_->show();
  for (int row = 0; row < ScoreRowCount; ++row) table_->SetRed(row, false);
  txtHighScore_->hide();

  list_ = HighScore ? ScoreList::High : ScoreList::Low;
  const FinishedGame game{TotalMoves, TotalTime};
  const int place = InsertionPlace(list_, rows_, game);
  inserted_.reset();
  if (place < ScoreRowCount) {
    Insert(game, place);
  } else {
    cmdClose_->setAccessibleDescription("your game is not among the best");
  }
}

void frmScores::Insert(const FinishedGame& game, int place) {
  InsertScore(rows_, place, RowOf(game, QString()));
  for (int row = 0; row < ScoreRowCount; ++row) {
    ShowRow(row);
    if (!rows_[Index(row)].moves.isEmpty()) table_->At(row).lblNumbers->setText(RowNumber(row));
  }
  table_->ShowNoScoresYet(false);
  table_->SetRed(place, true);
  inserted_ = game;
  editedRow_ = place;
  txtHighScore_->setAccessibleName(QString("Rank %1, your name").arg(place + 1));
  // This text is no name, and not copied to the row.
  const QSignalBlocker silence(txtHighScore_);
  txtHighScore_->setText(NoName);
  ShowNameBox();
}

void frmScores::ShowNameBox() {
  txtHighScore_->show();
  FitNameBox();
  txtHighScore_->selectAll();
  txtHighScore_->setFocus();
}

void frmScores::FitNameBox() {
  lblMeasureWidth_->setText(txtHighScore_->text());
  const QRect place = table_->NamePlace(editedRow_);
  const int text = lblMeasureWidth_->sizeHint().width();
  const int width = std::max(text + BoxMargin, txtHighScore_->WidthAround(text));
  QRect box(0, 0, std::min(width, place.width() + 2 * BoxIndent),
            txtHighScore_->sizeHint().height());
  box.moveCenter(place.center());
  box.moveLeft(place.left() - BoxIndent);
  txtHighScore_->setGeometry(box);
}

// Only now do all labels have their places.
void frmScores::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  FitNameBox();
}

void frmScores::txtHighScore_Change() {
  table_->At(editedRow_).lblNames->setText(txtHighScore_->text());
  FitNameBox();
}

bool frmScores::HoldsName() const {
  return !txtHighScore_->text().isEmpty() && txtHighScore_->text() != NoName;
}

bool frmScores::txtHighScore_Validate() {
  const QString name = txtHighScore_->text().trimmed();
  if (!name.isEmpty() && name != NoName) {
    txtHighScore_->hide();
    cmdClose_->setFocus();
    announcer_.Say(table_->Line(editedRow_));
    return true;
  }
  context_.window.Tell("Aren't you forgetting something?", "Please enter your name.",
                       MessageIcon::Exclamation);
  ShowNameBox();
  return false;
}

void frmScores::FixText(std::optional<int> row) {
  if (!inserted_) return;
  if (row == editedRow_) {
    ShowNameBox();
  } else if (!txtHighScore_->isHidden()) {
    txtHighScore_Validate();
  }
}

void frmScores::mouseReleaseEvent(QMouseEvent* event) {
  const QWidget* clicked = childAt(event->position().toPoint());
  const bool isInside = clicked == picBackground_ || picBackground_->isAncestorOf(clicked);
  if (event->button() == Qt::LeftButton && isInside) FixText(table_->RowOf(clicked));
}

void frmScores::cmdNewGame_Click() {
  Leave(ScoresAnswer::NewGame);
}

void frmScores::cmdReplay_Click() {
  Leave(ScoresAnswer::Replay);
}

void frmScores::cmdClose_Click() {
  Leave(ScoresAnswer::Close);
}

void frmScores::done(int) {
  Leave(ScoresAnswer::Close);
}

void frmScores::Leave(ScoresAnswer answer) {
  const bool pending = !txtHighScore_->isHidden() && HoldsName();
  if (pending && !txtHighScore_Validate()) return;
  KeepScore();
  answer_ = answer;
  QDialog::done(Accepted);
}

void frmScores::KeepScore() {
  const QString name = HoldsName() ? txtHighScore_->text() : QString();
  if (inserted_) SaveScore(context_.globals.ScoreFile, list_, *inserted_, name);
  inserted_.reset();
}
