#include "host/qt/canvas/DrawingPicture.h"

#include "host/db/AcDbDatabase.h"
#include "host/ed/AcApDocument.h"
#include "host/ed/EntitySearch.h"
#include "host/qt/canvas/ScenePainter.h"
#include "host/scene/BuildScene.h"

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
  if (m_document) {
    const auto& undo = m_document->database()->undo();
    const bool undone = !undo.redoName().IsEmpty();
    if (undo.commandCount() != std::exchange(m_commands, undo.commandCount()) ||
        undone != std::exchange(m_undone, undone))
      m_changed = true;
  }
  if (!std::exchange(m_changed, false)) return false;
  m_scene = {};
  if (!m_document) return true;
  const OutlineMetrics metrics(m_outlines);
  scene::SceneOptions options;
  options.metrics = &metrics;
  auto& database = *m_document->database();
  m_scene = scene::BuildScene(database, ed::CurrentSpace(database), options);
  const auto& hidden = m_document->edit().hidden;
  std::erase_if(m_scene.groups, [&](const scene::Group& group) { return hidden.contains(group.entity); });
  return true;
}

void DrawingPicture::paint(QPainter& painter, const ViewMap& map, const CanvasColors& colors) {
  ScenePainter(painter, m_scene, map, colors.background, m_outlines).paint();
}

std::vector<AcDbObjectId> DrawingPicture::entitiesNear(const ge::Box2d& box) const {
  std::vector<AcDbObjectId> near;
  for (const scene::Group& group : m_scene.groups)
    if (group.unbounded || group.box.Overlaps(box)) near.push_back(group.entity);
  return near;
}

} // namespace desktop
