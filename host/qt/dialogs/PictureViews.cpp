// Pictures from files, and small pictures of drawings.
#include "host/db/AcDbDatabase.h"
#include "host/ed/EntitySearch.h"
#include "host/qt/Theme.h"
#include "host/qt/canvas/ScenePainter.h"
#include "host/qt/dialogs/ControlViews.h"
#include "host/qt/dialogs/PictureFile.h"
#include "host/scene/BuildScene.h"
#include "host/ui/CDrawingPreview.h"
#include "host/ui/CPictureBox.h"

#include <QFrame>
#include <QPainter>

#include <algorithm>

namespace desktop {
namespace {

// A framed white field that is painted by whoever owns it.
class Field : public QFrame {
 public:
  std::function<void(QPainter&, const QRect&)> painted;
  Field() {
    setFrameShape(QFrame::StyledPanel);
    setMinimumSize(140, 110);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QFrame::paintEvent(event);
    QPainter painter(this);
    painter.setClipRect(contentsRect());
    if (painted) painted(painter, contentsRect().adjusted(4, 4, -4, -4));
  }
};

class PictureView : public ControlView {
 public:
  PictureView(CPictureBox& control, FormContext& context)
      : ControlView(control, context), m_picture(control), m_field(new Field) {
    m_field->painted = [this](QPainter& painter, const QRect& place) {
      const QPixmap pixmap = ReadPicture(m_picture.GetPicture(), place.size(), m_field->devicePixelRatioF());
      if (pixmap.isNull()) return;
      const QSizeF size = pixmap.deviceIndependentSize();
      painter.drawPixmap(QPointF(place.x() + (place.width() - size.width()) / 2,
                                 place.y() + (place.height() - size.height()) / 2),
                         pixmap);
    };
    setWidget(m_field);
  }

 private:
  void sync(const UiChange&) override { m_field->update(); }
  CPictureBox& m_picture;
  Field* m_field;
};

class PreviewView : public ControlView {
 public:
  PreviewView(CDrawingPreview& control, FormContext& context)
      : ControlView(control, context), m_preview(control), m_field(new Field) {
    m_field->painted = [this](QPainter& painter, const QRect& place) { paint(painter, place); };
    setWidget(m_field);
  }

 private:
  void sync(const UiChange& change) override {
    if (change.kind == UiChange::Kind::content) {
      m_scene = {};
      if (AcDbDatabase* drawing = m_preview.GetDrawing()) {
        const OutlineMetrics metrics(m_outlines);
        scene::SceneOptions options;
        options.metrics = &metrics;
        m_scene = scene::BuildScene(*drawing, ed::CurrentSpace(*drawing), options);
      }
    }
    m_field->update();
  }
  void paint(QPainter& painter, const QRect& place) {
    if (m_scene.box.IsEmpty() || place.isEmpty()) return;
    constexpr int margin = 4; // pixels that keep the outermost lines off the frame
    const double ratio = m_field->devicePixelRatioF();
    const QSize pixels = (QSizeF(place.size()) * ratio).toSize();
    const double width = m_scene.box.maxX - m_scene.box.minX;
    const double height = m_scene.box.maxY - m_scene.box.minY;
    const double units = std::max(width / std::max(pixels.width() - 2 * margin, 1),
                                  height / std::max(pixels.height() - 2 * margin, 1));
    const ViewMap map{
        pixels, {m_scene.box.minX + width / 2, m_scene.box.minY + height / 2}, units > 0 ? units : 1};
    QImage image(pixels, QImage::Format_RGB32);
    image.fill(LightCanvas().background);
    ScenePainter(image, image.rect(), map, LightCanvas().background, m_outlines).paint(m_scene);
    image.setDevicePixelRatio(ratio);
    painter.drawImage(place.topLeft(), image);
  }

  CDrawingPreview& m_preview;
  Field* m_field;
  TextOutlines m_outlines;
  scene::Scene m_scene;
};

} // namespace

ControlViewPtr MakePictureView(CPictureBox& control, FormContext& context) {
  return std::make_unique<PictureView>(control, context);
}
ControlViewPtr MakePreviewView(CDrawingPreview& control, FormContext& context) {
  return std::make_unique<PreviewView>(control, context);
}

} // namespace desktop
