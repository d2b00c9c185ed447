#include "ui/windows/animations/frmAbout.h"

#include <algorithm>

#include <QApplication>
#include <QEvent>
#include <QFontInfo>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

#include "app/Globals.h"
#include "core/NumberText.h"
#include "ui/widgets/NamedControls.h"
#include "ui/widgets/WindowPlacing.h"
#include "ui/widgets/pictures/PictureReader.h"
#include "ui/windows/animations/Canvas.h"

namespace {

constexpr const char* Title = "Gallopade Nova";
constexpr const char* Initials = "PVX";
constexpr const char* BuildStamp = "050216-1945";
constexpr QPointF WordPlaces[] = {{100, 600}, {170, 1300}, {650, 2000}};

constexpr const char* Disclaimer =
    "This software and the files that come with it are provided \"as is\", without warranties of "
    "any kind, express or implied. Whoever uses them does so at their own risk.";
constexpr const char* Owner = "Made by the Gallopade Nova contributors. MIT licence.";

constexpr QSize PictureSize(300, 225);
// The widths with letters of the usual size; they grow and shrink with the letters.
constexpr int TextWidth = 300;
constexpr int SmallestTextWidth = 200;
constexpr double UsualPoints = 9;
constexpr int Gap = 16;
constexpr int BarAndFrame = 32;
constexpr int IconSide = 128;

QString VersionText() {
  const Version version = ProgramVersion();
  return "Version" + QString::fromStdString(NumberText(version.major)) + "." +
         QString::number(version.minor) + " (Build" +
         QString::fromStdString(NumberText(version.revision)) + ".32bit." + BuildStamp + ")";
}

double LetterScale() {
  return QFontInfo(QApplication::font()).pointSizeF() / UsualPoints;
}

// The texts are no wider than there is room beside the picture and a bar to scroll with.
int TextWidthOn(int screenWidth) {
  const int room = screenWidth - PictureSize.width() - 3 * Gap - BarAndFrame;
  return std::max(std::min(qRound(TextWidth * LetterScale()), room), SmallestTextWidth);
}

QFont Arial(int points) {
  QFont font("Arial");
  font.setPointSizeF(points * LetterScale());
  return font;
}

// Lines break between words only.
QFont ArialFor(const QString& text, int points, int width) {
  QFont font = Arial(points);
  for (const QString& word : text.split(' ')) {
    const int needed = QFontMetrics(font).horizontalAdvance(word);
    if (needed > width) font.setPointSizeF(font.pointSizeF() * width / needed);
  }
  return font;
}

// Of a colour part that is 256 only 255 fits.
int ColorPart(int step) {
  return std::min(step * 128, 255);
}

QFrame* NewLine(const char* name, QPalette::ColorRole role, QWidget* parent) {
  auto* line = new QFrame(parent);
  line->setObjectName(name);
  line->setFixedHeight(1);
  line->setAutoFillBackground(true);
  line->setBackgroundRole(role);
  return line;
}

}  // namespace

frmAbout::frmAbout(const Globals& globals, bool manyColors, QWidget* mainWindow)
    : SecondaryWindow(mainWindow, "frmAbout", QString("About ") + Title),
      globals_(globals),
      picAboutImage_(new Canvas(this)),
      ManyColors_(manyColors) {
  picAboutImage_->setObjectName("picAboutImage");
  picAboutImage_->setAccessibleName(QString("Picture of ") + Title);
  picAboutImage_->setFixedSize(PictureSize);
  picAboutImage_->installEventFilter(this);
  QPushButton* cmdOK = AddButton(this, "cmdOK", "OK", &frmAbout::cmdOK_Click);
  cmdOK->setDefault(true);
  cmdOK->setFocus();
  tmrAnimation_.setObjectName("tmrAnimation");
  tmrAnimation_.setInterval(DrawIntervalMilliseconds);
  connect(&tmrAnimation_, &QTimer::timeout, this, &frmAbout::Animate);

  auto* pictureAndTexts = new QHBoxLayout;
  pictureAndTexts->setSpacing(Gap);
  pictureAndTexts->addWidget(picAboutImage_, 0, Qt::AlignTop);
  pictureAndTexts->addLayout(AddTexts());
  QVBoxLayout* layout = AddColumn();
  layout->setContentsMargins(Gap, Gap, Gap, Gap);
  layout->setSpacing(Gap);
  layout->addLayout(pictureAndTexts);
  layout->addWidget(cmdOK, 0, Qt::AlignRight);
  Form_Load();
  PlaceDialog(*this, *mainWindow);
}

QVBoxLayout* frmAbout::AddTexts() {
  auto* layout = new QVBoxLayout;
  layout->addWidget(AddLabel("lblProgramTitle", Title, 20));
  lblVersion_ = AddLabel("lblVersion", QString(), 10);
  layout->addWidget(lblVersion_);
  layout->addSpacing(Gap / 2);
  layout->addWidget(AddLine());
  layout->addSpacing(Gap / 2);
  layout->addWidget(AddLabel("lblDisclaimer", Disclaimer, 9));
  layout->addStretch();
  layout->addWidget(AddLabel("lblOwner", Owner, 9));
  return layout;
}

QLabel* frmAbout::AddLabel(const char* name, const QString& text, int points) {
  QLabel* label = ::AddLabel(this, name, text);
  const int width = TextWidthOn(screen()->availableSize().width());
  label->setFont(ArialFor(text, points, width));
  label->setWordWrap(true);
  label->setFixedWidth(width);
  return label;
}

// Two lines side by side look engraved.
QWidget* frmAbout::AddLine() {
  auto* line = new QWidget(this);
  auto* layout = new QVBoxLayout(line);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(NewLine("fraLine", QPalette::Mid, line));
  layout->addWidget(NewLine("fraxpLine", QPalette::Light, line));
  return line;
}

void frmAbout::Form_Load() {
  ShowPicture();
  lblVersion_->setText(VersionText());
}

void frmAbout::ShowPicture() {
  picAboutImage_->Clear(palette().color(QPalette::Window), PictureOrIcon());
}

// Has the proportions of the picture box, and the picture in the middle of it.
QPixmap frmAbout::PictureOrIcon() const {
  QPixmap canvas(PictureSize * devicePixelRatioF());
  canvas.setDevicePixelRatio(devicePixelRatioF());
  canvas.fill(palette().color(QPalette::Window));
  const QRect all(QPoint(), PictureSize);
  QPainter painter(&canvas);
  const QImage picture = LoadPicture(globals_.settings.AboutImage, globals_.ProgramDirectory);
  if (picture.isNull()) {
    QRect middle(0, 0, IconSide, IconSide);
    middle.moveCenter(all.center());
    parentWidget()->windowIcon().paint(&painter, middle);
  } else {
    const QImage fitting =
        picture.scaled(canvas.size(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QRect place(QPoint(), fitting.size() / devicePixelRatioF());
    place.moveCenter(all.center());
    painter.drawImage(place, fitting);
  }
  return canvas;
}

void frmAbout::picAboutImage_DblClick() {
  if (AnimationRunning_) return;
  AnimationRunning_ = true;
  random_.Reseed();
  tmrAnimation_.start();
}

void frmAbout::Animate() {
  if (picAboutImage_->IsBlurred()) ShowPicture();
  DrawInitials();
  DrawTitle();
}

// The point still has the colour of what was drawn last.
void frmAbout::DrawInitials() {
  picAboutImage_->SetPoint(picAboutImage_->RandomPlace(random_), drawingColor_);
  drawingColor_ = NextColor();
  picAboutImage_->Print(Initials, CanvasFont(20, false, false), drawingColor_);
}

void frmAbout::DrawTitle() {
  drawingColor_ = ManyColors_ ? Qt::yellow : Qt::blue;
  const QStringList words = QString(Title).split(' ');
  for (qsizetype i = 0; i < words.size(); ++i) {
    picAboutImage_->SetPoint(WordPlaces[i], drawingColor_);
    picAboutImage_->Print(words[i], CanvasFont(37, false, false), drawingColor_);
  }
}

QColor frmAbout::NextColor() {
  if (!ManyColors_) return RandomPaletteColor(random_);
  const int red = ColorPart(random_.Below(3));
  const int green = ColorPart(random_.Below(2));
  const int blue = ColorPart(random_.Below(2));
  return {red, green, blue};
}

void frmAbout::cmdOK_Click() {
  accept();
}

void frmAbout::Form_Unload() {
  AnimationRunning_ = false;
  tmrAnimation_.stop();
}

void frmAbout::done(int result) {
  Form_Unload();
  QDialog::done(result);
}

bool frmAbout::eventFilter(QObject* watched, QEvent* event) {
  const bool doubleClick =
      watched == picAboutImage_ && event->type() == QEvent::MouseButtonDblClick;
  if (doubleClick) picAboutImage_DblClick();
  return doubleClick || QDialog::eventFilter(watched, event);
}

void frmAbout::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (AnimationRunning_) tmrAnimation_.start();
}

void frmAbout::hideEvent(QHideEvent* event) {
  tmrAnimation_.stop();
  QDialog::hideEvent(event);
}
