// The picture of the current drawing: what of it changed since it was painted, and where its entities are.
#pragma once

#include "host/db/AcDbDatabaseReactor.h"
#include "host/db/AcDbObjectId.h"
#include "host/qt/Theme.h"
#include "host/qt/canvas/TextOutlines.h"
#include "host/qt/canvas/ViewMap.h"
#include "host/scene/Scene.h"

#include <vector>

class AcApDocument;
class QPainter;

namespace desktop {

class DrawingPicture : private AcDbDatabaseReactor {
 public:
  DrawingPicture() = default;
  ~DrawingPicture() override;
  DrawingPicture(const DrawingPicture&) = delete;
  DrawingPicture& operator=(const DrawingPicture&) = delete;

  // Null for none. The document must be taken away before it is destroyed.
  void setDocument(AcApDocument* document);
  AcApDocument* document() const { return m_document; }
  // All of it is to be made anew.
  void invalidate();
  // Looks at what changed since the last time. Whether the picture is another one now.
  bool update();

  void paint(QPainter& painter, const ViewMap& map, const CanvasColors& colors);
  // Those whose box overlaps this one, which may be more than what is there.
  std::vector<AcDbObjectId> entitiesNear(const ge::Box2d& box) const;
  const scene::Scene& scene() const { return m_scene; }
  TextOutlines& outlines() { return m_outlines; }

 private:
  void objectAppended(const AcDbDatabase*, const AcDbObject*) override { m_changed = true; }
  void objectModified(const AcDbDatabase*, const AcDbObject*) override { m_changed = true; }
  void objectErased(const AcDbDatabase*, const AcDbObject*, bool) override { m_changed = true; }

  AcApDocument* m_document = nullptr;
  TextOutlines m_outlines;
  scene::Scene m_scene;
  bool m_changed = true;
  std::size_t m_commands = 0; // of the undo history, which tells nobody what it brings back
  bool m_undone = false;
};

} // namespace desktop
