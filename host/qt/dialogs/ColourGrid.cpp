#include "host/qt/dialogs/ColourGrid.h"

#include "host/scene/Palette.h"
#include "host/ui/UiFrontEnd.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <array>

namespace desktop {
namespace {

constexpr int kField = 18; // pixels of a side
constexpr int kGap = 2;
constexpr int kColumns = 24;
constexpr int kFirstOfFan = 10; // below stand the named colours, from 250 on the greys
constexpr int kFirstGrey = 250;
constexpr int kRows = 10 + 2; // ten shades of each hue, and the two rows of named colours and greys

} // namespace

QString ColourName(int index) {
  if (index == UiFrontEnd::kColourByLayer) return QStringLiteral("ByLayer（随层）");
  if (index == UiFrontEnd::kColourByBlock) return QStringLiteral("ByBlock（随块）");
  static const std::array<QString, 8> names{QString(),
                                            QStringLiteral("红"),
                                            QStringLiteral("黄"),
                                            QStringLiteral("绿"),
                                            QStringLiteral("青"),
                                            QStringLiteral("蓝"),
                                            QStringLiteral("洋红"),
                                            QStringLiteral("白")};
  const QString number = QString::number(index);
  return index >= 1 && index <= 7 ? number + QLatin1Char(' ') + names[static_cast<std::size_t>(index)]
                                  : number;
}

ColourGrid::ColourGrid(int chosen, QWidget* parent) : QWidget(parent), m_chosen(chosen) {
  setObjectName(QStringLiteral("colourGrid"));
  setFocusPolicy(Qt::StrongFocus);
  setFixedSize(sizeHint());
}

QSize ColourGrid::sizeHint() const {
  return {kColumns * (kField + kGap) + kGap, kRows * (kField + kGap) + 3 * kGap};
}

QRect ColourGrid::place(int index) const {
  int row = 0;
  int column = 0;
  if (index < kFirstOfFan) {
    row = 0;
    column = index - 1;
  } else if (index >= kFirstGrey) {
    row = 1;
    column = index - kFirstGrey;
  } else {
    row = 2 + (index - kFirstOfFan) % 10;
    column = (index - kFirstOfFan) / 10;
  }
  return {kGap + column * (kField + kGap), kGap + row * (kField + kGap) + (row > 1 ? 2 * kGap : 0), kField,
          kField};
}

void ColourGrid::setChosen(int index) {
  m_chosen = index;
  update();
}

void ColourGrid::pick(int index) {
  if (index < 1 || index > 255) return;
  setChosen(index);
  if (picked) picked(index);
}

void ColourGrid::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  for (int index = 1; index <= 255; ++index) {
    const scene::Rgb rgb = scene::PaletteColor(index);
    const QRect field = place(index);
    painter.fillRect(field, QColor(rgb.red, rgb.green, rgb.blue));
    painter.setPen(QColor(150, 150, 150));
    painter.drawRect(field.adjusted(0, 0, -1, -1));
    if (index != m_chosen) continue;
    painter.setPen(QPen(Qt::black, 2));
    painter.drawRect(field.adjusted(0, 0, -1, -1));
    painter.setPen(Qt::white);
    painter.drawRect(field.adjusted(2, 2, -3, -3));
  }
}

void ColourGrid::mousePressEvent(QMouseEvent* event) {
  for (int index = 1; index <= 255; ++index)
    if (place(index).contains(event->position().toPoint())) pick(index);
}

void ColourGrid::mouseDoubleClickEvent(QMouseEvent* event) {
  mousePressEvent(event);
  if (taken) taken();
}

void ColourGrid::keyPressEvent(QKeyEvent* event) {
  const bool named = m_chosen < kFirstOfFan || m_chosen >= kFirstGrey;
  const int across = named ? 1 : 10;
  switch (event->key()) {
  case Qt::Key_Right:
    return pick(m_chosen + across);
  case Qt::Key_Left:
    return pick(m_chosen - across);
  case Qt::Key_Down:
    return pick(m_chosen < kFirstOfFan ? kFirstGrey : m_chosen >= kFirstGrey ? kFirstOfFan : m_chosen + 1);
  case Qt::Key_Up:
    return pick(m_chosen >= kFirstGrey ? 1 : m_chosen - 1);
  default:
    QWidget::keyPressEvent(event);
  }
}

} // namespace desktop
