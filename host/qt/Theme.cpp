#include "host/qt/Theme.h"

#include "host/qt/dialogs/TableColours.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPalette>
#include <QStyleFactory>

namespace desktop {
namespace {

// The first family that the system has; otherwise what Qt takes by itself.
QString FirstFamily(const QStringList& wanted) {
  const QStringList all = QFontDatabase::families();
  for (const QString& family : wanted)
    if (all.contains(family)) return family;
  return {};
}

} // namespace

CanvasColors DarkCanvas() {
  return {QColor(30, 34, 40),   QColor(240, 240, 240), QColor(70, 130, 220), QColor(80, 180, 100),
          QColor(90, 190, 255), QColor(255, 200, 60),  QColor(200, 200, 200)};
}

CanvasColors LightCanvas() {
  return {Qt::white,           Qt::black,           QColor(40, 90, 190), QColor(30, 140, 60),
          QColor(0, 110, 220), QColor(215, 110, 0), QColor(90, 90, 90)};
}

void ApplyTheme(QApplication& application) {
  if (auto* style = QStyleFactory::create(QStringLiteral("Fusion"))) QApplication::setStyle(style);
  const QString family =
      FirstFamily({QStringLiteral("Noto Sans CJK SC"), QStringLiteral("Source Han Sans SC"),
                   QStringLiteral("WenQuanYi Micro Hei"), QStringLiteral("Microsoft YaHei")});
  QFont font = QApplication::font();
  if (!family.isEmpty()) font.setFamily(family);
  font.setPixelSize(13);
  QApplication::setFont(font);
  QPalette palette(QColor(240, 241, 243));
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::AlternateBase, QColor(246, 247, 249));
  palette.setColor(QPalette::Highlight, QColor(42, 110, 190));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  QApplication::setPalette(palette);
  // Lists and trees show what is selected as tables do.
  palette.setColor(QPalette::Highlight, kFocusColour);
  palette.setColor(QPalette::HighlightedText, Qt::black);
  QApplication::setPalette(palette, "QAbstractItemView");
  application.setApplicationDisplayName(QString());
}

QString MonospaceFamily() {
  return FirstFamily({QStringLiteral("Noto Sans Mono CJK SC"), QStringLiteral("WenQuanYi Micro Hei Mono"),
                      QStringLiteral("DejaVu Sans Mono")});
}

} // namespace desktop
