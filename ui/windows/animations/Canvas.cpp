#include "ui/windows/animations/Canvas.h"

#include <array>
#include <cmath>

#include <QFontMetricsF>
#include <QPainter>
#include <QScreen>

#include "core/Twips.h"

namespace {

constexpr double TwipsPerPoint = 20;
constexpr int DepthOfPalette = 8;
constexpr double PointPixels = 1;

constexpr std::array<QRgb, 7> Palette{
    0xFF00FF00,  // green
    0xFF00FFFF,  // cyan
    0xFFFFFF00,  // yellow
    0xFFFFFFFF,  // white
    0xFFFF00FF,  // magenta
    0xFFC0C0C0,  // silver
    0xFFFF0000,  // red
};

}  // namespace

bool HasManyColors(const QScreen& screen) {
  return screen.depth() > DepthOfPalette;
}

QColor RandomPaletteColor(Random& random) {
  return Palette[static_cast<std::size_t>(random.Below(static_cast<int>(Palette.size())))];
}

QFont CanvasFont(int points, bool bold, bool italic) {
  QFont font("Times New Roman");
  font.setStyleHint(QFont::Serif);
  font.setPixelSize(static_cast<int>(std::lround(points * TwipsPerPoint / TwipsPerPixel)));
  font.setBold(bold);
  font.setItalic(italic);
  return font;
}

Canvas::Canvas(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void Canvas::Clear(const QColor& color, const QPixmap& picture) {
  picture_ = QPixmap(size() * devicePixelRatioF());
  picture_.setDevicePixelRatio(devicePixelRatioF());
  picture_.fill(color);
  if (!picture.isNull()) {
    QPainter painter(&picture_);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(rect(), picture);
  }
  update();
}

bool Canvas::IsBlurred() const {
  return picture_.devicePixelRatio() != devicePixelRatioF();
}

double Canvas::ScaleWidth() const {
  return width() * TwipsPerPixel;
}

double Canvas::ScaleHeight() const {
  return height() * TwipsPerPixel;
}

QPointF Canvas::RandomPlace(Random& random) const {
  const double x = (ScaleWidth() + 400) * random.Next() - 400;
  const double y = (ScaleHeight() + 200) * random.Next() - 200;
  return {x, y};
}

void Canvas::SetPoint(const QPointF& place, const QColor& color) {
  textPosition_ = place / TwipsPerPixel;
  QPainter painter(&picture_);
  painter.fillRect(QRectF(textPosition_, QSizeF(PointPixels, PointPixels)), color);
  update();
}

void Canvas::Print(const QString& text, const QFont& font, const QColor& color) {
  QPainter painter(&picture_);
  painter.setFont(font);
  painter.setPen(color);
  painter.drawText(textPosition_ + QPointF(0, QFontMetricsF(font).ascent()), text);
  update();
}

void Canvas::paintEvent(QPaintEvent*) {
  QPainter(this).drawPixmap(0, 0, picture_);
}
