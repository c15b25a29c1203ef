#include "host/qt/dialogs/MessageIcons.h"

#include <QPainter>
#include <QPainterPath>

namespace desktop {
namespace {

constexpr int kSide = 36;

struct Sign {
  QColor color;
  QChar letter;
  bool triangle;
};

Sign SignOf(QMessageBox::Icon icon) {
  if (icon == QMessageBox::Warning) return {QColor(214, 132, 10), QLatin1Char('!'), true};
  if (icon == QMessageBox::Critical) return {QColor(180, 45, 35), QLatin1Char('!'), false};
  return {QColor(42, 110, 190), QLatin1Char(icon == QMessageBox::Question ? '?' : 'i'), false};
}

QPainterPath Shape(const Sign& sign) {
  constexpr double edge = 2;
  constexpr double far = kSide - edge;
  QPainterPath path;
  if (sign.triangle)
    path.addPolygon(QPolygonF({{kSide / 2.0, edge}, {far, far}, {edge, far}, {kSide / 2.0, edge}}));
  else
    path.addEllipse(QRectF(edge, edge, far - edge, far - edge));
  return path;
}

} // namespace

QPixmap MessageIcon(QMessageBox::Icon icon, double ratio) {
  if (icon == QMessageBox::NoIcon) return {};
  const Sign sign = SignOf(icon);
  QPixmap pixmap(QSize(kSide, kSide) * ratio);
  pixmap.setDevicePixelRatio(ratio);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillPath(Shape(sign), sign.color);
  QFont font = painter.font();
  font.setBold(true);
  font.setPixelSize(22);
  painter.setFont(font);
  painter.setPen(Qt::white);
  painter.drawText(QRectF(0, sign.triangle ? 4 : 0, kSide, kSide), Qt::AlignCenter, sign.letter);
  return pixmap;
}

} // namespace desktop
