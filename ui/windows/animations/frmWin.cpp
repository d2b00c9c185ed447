#include "ui/windows/animations/frmWin.h"

#include <cmath>

#include <QFontMetricsF>
#include <QVBoxLayout>

#include "core/Twips.h"
#include "ui/widgets/NamedControls.h"
#include "ui/widgets/WindowPlacing.h"
#include "ui/windows/animations/Canvas.h"

namespace {

constexpr const char* Text = "You Win!";
constexpr QPointF TitlePlace(200, 1000);
constexpr int OpeningPasses = 1001;

QFont TitleFont() {
  return CanvasFont(80, true, true);
}

// The title lies in the middle, whatever font the system has for it.
QSize SizeAroundTitle() {
  const QFontMetricsF metrics(TitleFont());
  const QPointF place = TitlePlace / TwipsPerPixel;
  const double width = 2 * place.x() + metrics.horizontalAdvance(Text);
  const double height = 2 * place.y() + metrics.height();
  return {static_cast<int>(std::ceil(width)), static_cast<int>(std::ceil(height))};
}

}  // namespace

frmWin::frmWin(bool manyColors, QWidget* mainWindow)
    : SecondaryWindow(mainWindow, "frmWin", Text),
      picWin_(new Canvas(this)),
      manyColors_(manyColors) {
  picWin_->setObjectName("picWin");
  picWin_->setAccessibleName(Text);
  picWin_->setFixedSize(SizeAroundTitle());
  QPushButton* cmdOK = AddButton(this, "cmdOK", "OK", &frmWin::cmdOK_Click);
  cmdOK->setDefault(true);
  cmdOK->setFocus();

  QVBoxLayout* layout = AddColumn();
  layout->addWidget(picWin_);
  layout->addWidget(cmdOK, 0, Qt::AlignHCenter);
  tmrDraw_.setObjectName("tmrDraw");
  tmrDraw_.setInterval(DrawIntervalMilliseconds);
  connect(&tmrDraw_, &QTimer::timeout, this, &frmWin::tmrDraw_Timer);
  PlaceDialog(*this, *mainWindow);
  Form_Load();
}

// The window opens already full.
void frmWin::Form_Load() {
  running_ = true;
  random_.Reseed();
  picWin_->Clear(Qt::black);
  for (int pass = 0; pass < OpeningPasses; ++pass) DrawSmallText();
  DrawTitle();
}

void frmWin::Form_Unload() {
  running_ = false;
  tmrDraw_.stop();
}

void frmWin::tmrDraw_Timer() {
  if (picWin_->IsBlurred()) Form_Load();
  DrawSmallText();
  DrawTitle();
}

// The point still has the colour of what was drawn last.
void frmWin::DrawSmallText() {
  picWin_->SetPoint(picWin_->RandomPlace(random_), drawingColor_);
  drawingColor_ = NextColor();
  picWin_->Print(Text, CanvasFont(20, true, false), drawingColor_);
}

void frmWin::DrawTitle() {
  picWin_->SetPoint(TitlePlace, drawingColor_);
  drawingColor_ = manyColors_ ? Qt::yellow : Qt::blue;
  picWin_->Print(Text, TitleFont(), drawingColor_);
}

QColor frmWin::NextColor() {
  if (!manyColors_) return RandomPaletteColor(random_);
  const auto bright = [this] { return 255 - random_.Below(196); };
  const int red = bright();
  const int green = bright();
  const int blue = bright();
  return {red, green, blue};
}

void frmWin::cmdOK_Click() {
  accept();
}

void frmWin::done(int result) {
  Form_Unload();
  QDialog::done(result);
}

void frmWin::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (running_) tmrDraw_.start();
}

void frmWin::hideEvent(QHideEvent* event) {
  tmrDraw_.stop();
  QDialog::hideEvent(event);
}
