#include "host/qt/dialogs/PictureFile.h"

#include "host/afx/Paths.h"

#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>

namespace desktop {

QPixmap ReadPicture(const CString& file, const QSize& within, double ratio) {
  if (file.IsEmpty() || within.isEmpty()) return {};
  const QString path = QString::fromStdString(afx::NativePath(file));
  const QSize pixels = within * ratio;
  if (path.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive)) {
    QSvgRenderer svg(path);
    if (!svg.isValid()) return {};
    QPixmap pixmap(svg.defaultSize().scaled(pixels, Qt::KeepAspectRatio));
    pixmap.fill(Qt::white);
    QPainter painter(&pixmap);
    svg.render(&painter);
    painter.end();
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
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
