#include "ui/windows/preferences/frmPreferences.h"

#include <cstdint>
#include <utility>

#include <QButtonGroup>
#include <QCheckBox>

#include "ui/board/SystemColors.h"
#include "ui/commands/Preferences.h"
#include "ui/widgets/WindowPlacing.h"
#include "ui/widgets/pictures/PictureReader.h"
#include "ui/windows/preferences/ChooserButton.h"
#include "ui/windows/preferences/PreviewBoard.h"
#include "ui/windows/preferences/Swatch.h"

namespace {

constexpr Color NoColor = -1;

constexpr const char* ImageFilter =
    "All Readable Images|*.bmp; *.dib; *.rle; *.jpg; *.jpeg; *.gif; *.ico; *.cur|"
    "Web Images (*.jpg;*.jpeg;*.gif)|*.jpg; *.jpeg; *.gif|"
    "Icons (*.ico;*.cur)|*.ico; *.cur|"
    "Windows Images (*.bmp;*.dib;*.rle)|*.bmp; *.dib; *.rle|"
    "All Files (*.*)|*.*";

// The options stand in the order of the numbers. Values that files may hold and no option has act
// like one of the options.
int OptionOf(Highlighting method) {
  const bool highlights =
      method == Highlighting::CursorPosition || method == Highlighting::ValidMovesOnly;
  return static_cast<int>(highlights ? method : Highlighting::None);
}

int OptionOf(FirstSquare position) {
  const bool isRandom = position != FirstSquare::Stored && position != FirstSquare::PlayersChoice;
  return static_cast<int>(isRandom ? FirstSquare::Random : position);
}

int StartingSquare(const GameOptions& options) {
  const auto onBoard = [](int coordinate) {
    return coordinate >= 0 && coordinate < BoardSide ? coordinate : 0;
  };
  return SquareIndex(onBoard(options.StartingX), onBoard(options.StartingY));
}

}  // namespace

frmPreferences::frmPreferences(const CommandContext& context, PictureReader& pictures,
                               QWidget* mainWindow)
    : SecondaryWindow(mainWindow, "frmPreferences", "Preferences"),
      context_(context),
      pictures_(pictures),
      settings_(context.globals.settings),
      menus_(this) {
  AddControls();
  Form_Load();
  PlaceDialog(*this, *mainWindow);
}

void frmPreferences::Form_Load() {
  for (int owner = 0; owner < ChooserCount; ++owner) {
    SetColorOf(owner, settings_.*ChooserRows[owner].color);
  }
  chkUseImages_->setChecked(settings_.UseImages);
  chkUseImages_Click();
  LoadAndShowImages(settings_.UseImages);
  optPosition_->button(OptionOf(settings_.StartingPosition))->setChecked(true);
  optHighlight_->button(OptionOf(settings_.HighlightingMethod))->setChecked(true);
  pctGrid_->SetupLittleChessboard(StartingSquare(settings_));
  menus_.ShowLook(settings_);
}

// In the order in which the board has them, they are there already.
void frmPreferences::LoadAndShowImages(bool show) {
  QStringList names;
  for (const ChooserRow& row : ChooserRows) names << settings_.*row.image;
  const std::vector<QImage> images =
      show ? pictures_.Read(names) : std::vector<QImage>(std::size(ChooserRows));
  for (std::size_t owner = 0; owner < images.size(); ++owner) {
    choosers_[owner].swatch->Image().SetPicture(images[owner]);
    NameSwatch(static_cast<int>(owner));
  }
  PositionImages();
}

void frmPreferences::PositionImages() {
  for (const Chooser& chooser : choosers_) {
    chooser.swatch->Image().SetPositioning(settings_.ImagePositioning);
  }
}

void frmPreferences::chkUseImages_Click() {
  const QString subject = chkUseImages_->isChecked() ? "Image" : "Color";
  for (int owner = 0; owner < ChooserCount; ++owner) {
    choosers_[owner].button->setText(QString("&%1 %2...").arg(ChooserRows[owner].part, subject));
  }
}

void frmPreferences::Chooser_Click(int owner) {
  if (chkUseImages_->isChecked()) {
    ChooseImage(owner);
  } else {
    ChooseColor(owner);
  }
}

void frmPreferences::ChooseColor(int owner) {
  const Color color = GetColors(settings_.*ChooserRows[owner].color);
  if (color == NoColor) return;
  SetColorOf(owner, color);
  TellChoice(owner);
}

Color frmPreferences::GetColors(Color color) {
  const auto chosen = context_.dialogs.ChooseColor(ResolveColor(color, palette()));
  return chosen ? StoredColor(*chosen) : NoColor;
}

void frmPreferences::SetColorOf(int owner, Color color) {
  settings_.*ChooserRows[owner].color = color;
  choosers_[owner].swatch->SetColor(color);
  NameSwatch(owner);
  pctGrid_->ReColorChessboard();
}

// A picture that cannot be loaded is not kept: the default one will take its place.
void frmPreferences::ChooseImage(int owner) {
  const QString fileName = GetImages();
  if (fileName.isEmpty()) return;
  const QImage picture = LoadPicture(fileName, context_.globals.ProgramDirectory);
  settings_.*ChooserRows[owner].image = picture.isNull() ? QString() : fileName;
  choosers_[owner].swatch->Image().SetPicture(picture);
  NameSwatch(owner);
  PositionImages();
  TellChoice(owner);
}

// After what it shows, which those hear who do not see it.
void frmPreferences::NameSwatch(int owner) {
  const ChooserRow& row = ChooserRows[owner];
  Swatch& swatch = *choosers_[owner].swatch;
  const QString picture = settings_.*row.image;
  swatch.setAccessibleName(
      swatch.Image().HasPicture()
          ? QString("%1 image, %2").arg(row.part, picture.section('/', -1))
          : QString("%1 color, %2").arg(row.part, ColorWords(settings_.*row.color)));
}

// With the keyboard a swatch tells by itself what it shows.
void frmPreferences::TellChoice(int owner) {
  const Swatch& swatch = *choosers_[owner].swatch;
  if (focusWidget() == &swatch) return;
  choice_ = swatch.accessibleName();
  if (isActiveWindow()) TellChoiceLater();
}

// After the name of the window and of what has the keyboard.
void frmPreferences::TellChoiceLater() {
  const auto tell = [this] {
    if (!choice_.isEmpty()) announcer_.Say(std::exchange(choice_, QString()));
  };
  QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

void frmPreferences::changeEvent(QEvent* event) {
  SecondaryWindow::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) TellChoiceLater();
}

QString frmPreferences::GetImages() {
  QString& directory = settings_.PreferencesPreviousDirectory;
  QString fileName = context_.dialogs.OpenFile(
      {.directory = directory, .filter = ImageFilter, .mustExist = false});
  if (!fileName.isEmpty()) directory = DirectoryOf(fileName);
  return fileName;
}

void frmPreferences::Chooser_MouseUp(int owner) {
  menuOwner_ = owner;
  const QWidget* button = choosers_[owner].button;
  const QPoint below = button->mapToGlobal(QPoint(0, button->height()));
  const bool isFrame = owner == FrameChooser;
  if (chkUseImages_->isChecked()) {
    const auto index = menus_.PopUpImageOptions(below, isFrame);
    if (index) mnuImageOptionsEntry_Click(*index);
  } else {
    const auto index = menus_.PopUpSystemColors(below, isFrame);
    if (index) mnuSystemColorsEntry_Click(*index);
  }
}

void frmPreferences::mnuSystemColorsEntry_Click(int index) {
  if (index < SystemColorCount) {
    SetColorOf(menuOwner_, SystemColor(index));
    TellChoice(menuOwner_);
  } else {
    mnuImageOptionsEntry_Click(index);
  }
}

void frmPreferences::mnuImageOptionsEntry_Click(int index) {
  switch (index) {
    case PreferenceEntry::StretchImages:
      settings_.ImagePositioning = Positioning::Stretched;
      break;
    case PreferenceEntry::CenterImages:
      settings_.ImagePositioning = Positioning::Centred;
      break;
    case PreferenceEntry::Borders:
      settings_.UseBorders = !settings_.UseBorders;
      break;
    case PreferenceEntry::FrameWidth:
      AskForFrameWidth(context_);
      break;
    default:
      break;
  }
  menus_.ShowLook(settings_);
  PositionImages();
}

// Picking a square means starting there.
void frmPreferences::pctGrid_Click() {
  optPosition_->button(0)->setChecked(true);
}

void frmPreferences::cmdOK_Click() {
  settings_.StartingPosition = static_cast<FirstSquare>(optPosition_->checkedId());
  settings_.HighlightingMethod = static_cast<Highlighting>(optHighlight_->checkedId());
  settings_.StartingX = static_cast<std::int16_t>(pctGrid_->SelectedX());
  settings_.StartingY = static_cast<std::int16_t>(pctGrid_->SelectedY());
  settings_.UseImages = chkUseImages_->isChecked();
  ApplyPreferences(context_);
  accept();
}

void frmPreferences::cmdCancel_Click() {
  reject();
}

void frmPreferences::cmdDefaultConfiguration_Click() {
  if (RestoreDefaultConfiguration(context_)) Form_Load();
}

void frmPreferences::cmdClearScores_Click() {
  ClearScoreLists(context_);
}
