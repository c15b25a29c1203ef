#include "host/qt/canvas/DrawingPicture.h"

#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbEntity.h"
#include "host/ed/AcApDocument.h"
#include "host/ed/EntitySearch.h"
#include "host/qt/canvas/WorldPainter.h"

#include <QPainter>

#include <utility>

namespace desktop {

DrawingPicture::~DrawingPicture() {
  setDocument(nullptr);
}

void DrawingPicture::setDocument(AcApDocument* document) {
  if (document == m_document) return;
  if (m_document) m_document->database()->removeReactor(this);
  m_document = document;
  if (m_document) m_document->database()->addReactor(this);
  invalidate();
}

void DrawingPicture::invalidate() {
  m_changed = true;
}

bool DrawingPicture::update() {
  if (!m_document) return std::exchange(m_changed, false);
  const auto& undo = m_document->database()->undo();
  const bool undone = !undo.redoName().IsEmpty();
  if (undo.commandCount() != std::exchange(m_commands, undo.commandCount()) ||
      undone != std::exchange(m_undone, undone))
    m_changed = true;
  return std::exchange(m_changed, false);
}

void DrawingPicture::paint(QPainter& painter, const ViewMap& map, const CanvasColors& colors) {
  if (!m_document) return;
  painter.setPen(QPen(colors.foreground, 0));
  WorldPainter draw(painter, map, m_outlines);
  for (const auto& id : ed::DrawnEntities(*m_document->database()))
    if (const auto* entity = AcDbEntity::cast(id.object())) entity->worldDraw(draw);
}

std::vector<AcDbObjectId> DrawingPicture::entitiesNear(const ge::Box2d& box) const {
  if (!m_document) return {};
  constexpr bool crossing = true;
  return ed::EntitiesInWindow(*m_document->database(), box, crossing);
}

} // namespace desktop
