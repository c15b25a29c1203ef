#include "host/qt/dialogs/PictureFile.h"

#include "host/afx/Paths.h"

#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>

namespace desktop {

namespace {

QPixmap PaintSvg(QSvgRenderer& svg, const QSize& pixels, double ratio, const QColor& ground) {
  if (!svg.isValid()) return {};
  QPixmap pixmap(svg.defaultSize().scaled(pixels, Qt::KeepAspectRatio));
  pixmap.fill(ground);
  QPainter painter(&pixmap);
  svg.render(&painter);
  painter.end();
  pixmap.setDevicePixelRatio(ratio);
  return pixmap;
}

} // namespace

QPixmap ReadPicture(const CString& picture, const QSize& within, double ratio) {
  if (picture.IsEmpty() || within.isEmpty()) return {};
  const QSize pixels = within * ratio;
  if (picture.View().starts_with(L"<svg")) {
    QSvgRenderer svg(QByteArray::fromStdString(picture.ToUtf8()));
    return PaintSvg(svg, pixels, ratio, Qt::transparent);
  }
  const QString path = QString::fromStdString(afx::NativePath(picture));
  if (path.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive)) {
    QSvgRenderer svg(path);
    return PaintSvg(svg, pixels, ratio, Qt::white);
  }
  QImageReader reader(path);
  reader.setDecideFormatFromContent(true);
  const QImage image = reader.read();
  if (image.isNull()) return {};
  QPixmap pixmap = QPixmap::fromImage(image.scaled(pixels, Qt::KeepAspectRatio, Qt::SmoothTransformation));
  pixmap.setDevicePixelRatio(ratio);
  return pixmap;
}

} // namespace desktop
