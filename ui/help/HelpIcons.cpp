#include "ui/help/HelpIcons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace {

// The drawings have this many units a side.
constexpr double Side = 16;
constexpr double PenWidth = 1.6;

QPainterPath Lines(std::initializer_list<QPointF> points) {
  QPainterPath path(*points.begin());
  for (const QPointF* point = points.begin() + 1; point != points.end(); ++point) {
    path.lineTo(*point);
  }
  return path;
}

QPainterPath Lens() {
  QPainterPath path = Lines({{10.3, 10.3}, {14, 14}});
  path.addEllipse(QPointF(6.8, 6.8), 4.8, 4.8);
  path.addPath(Lines({{4.8, 6.8}, {8.8, 6.8}}));
  return path;
}

QPainterPath Drawing(HelpIcon icon) {
  QPainterPath path;
  switch (icon) {
    case HelpIcon::Back:
      path = Lines({{13.5, 8}, {2.5, 8}});
      path.addPath(Lines({{7, 3.5}, {2.5, 8}, {7, 12.5}}));
      break;
    case HelpIcon::Forward:
      path = Lines({{2.5, 8}, {13.5, 8}});
      path.addPath(Lines({{9, 3.5}, {13.5, 8}, {9, 12.5}}));
      break;
    case HelpIcon::Home:
      path = Lines({{1.8, 8.2}, {8, 2.5}, {14.2, 8.2}});
      path.addPath(Lines({{3.8, 7}, {3.8, 13.5}, {12.2, 13.5}, {12.2, 7}}));
      break;
    case HelpIcon::ZoomIn:
      path = Lens();
      path.addPath(Lines({{6.8, 4.8}, {6.8, 8.8}}));
      break;
    case HelpIcon::ZoomOut:
      path = Lens();
      break;
  }
  return path;
}

class DrawnIcon : public QIconEngine {
 public:
  explicit DrawnIcon(HelpIcon icon) : icon_(icon) {}

  void paint(QPainter* painter, const QRect& rectangle, QIcon::Mode mode, QIcon::State) override {
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const QColor color = QGuiApplication::palette().color(group, QPalette::ButtonText);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rectangle.topLeft());
    painter->scale(rectangle.width() / Side, rectangle.height() / Side);
    painter->setPen(QPen(color, PenWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPath(Drawing(icon_));
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, pixmap.rect(), mode, state);
    return pixmap;
  }

  QIconEngine* clone() const override { return new DrawnIcon(icon_); }

 private:
  const HelpIcon icon_;
};

}  // namespace

QIcon IconOf(HelpIcon icon) {
  return QIcon(new DrawnIcon(icon));
}
