#include "host/qt/dialogs/ButtonIcons.h"

#include <QPainter>
#include <QPixmap>

namespace desktop {
namespace {

constexpr int kSide = 64; // pixels of the original

void DrawArrow(QPainter& painter, double turn) {
  painter.translate(kSide / 2.0, kSide / 2.0);
  painter.rotate(turn);
  painter.drawLine(0, 22, 0, -20);
  painter.drawLine(0, -22, -16, -6);
  painter.drawLine(0, -22, 16, -6);
}

} // namespace

QIcon ButtonIcon(CButton::Image image) {
  QPixmap pixmap(kSide, kSide);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  const auto color = image == CButton::Image::add      ? QColor(30, 130, 60)
                     : image == CButton::Image::remove ? QColor(180, 45, 35)
                                                       : QColor(60, 70, 85);
  painter.setPen(QPen(color, 9, Qt::SolidLine, Qt::RoundCap));
  switch (image) {
  case CButton::Image::none:
    return {};
  case CButton::Image::add:
    painter.drawLine(kSide / 2, 12, kSide / 2, kSide - 12);
    painter.drawLine(12, kSide / 2, kSide - 12, kSide / 2);
    break;
  case CButton::Image::remove:
    painter.drawLine(12, kSide / 2, kSide - 12, kSide / 2);
    break;
  case CButton::Image::up:
    DrawArrow(painter, 0);
    break;
  case CButton::Image::right:
    DrawArrow(painter, 90);
    break;
  case CButton::Image::down:
    DrawArrow(painter, 180);
    break;
  case CButton::Image::left:
    DrawArrow(painter, 270);
    break;
  }
  return QIcon(pixmap);
}

} // namespace desktop
