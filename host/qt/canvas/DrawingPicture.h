// The picture of the current drawing: what of it changed since it was painted, and where its entities are.
#pragma once

#include "host/qt/canvas/TextOutlines.h"
#include "host/scene/LiveScene.h"
#include "host/scene/SceneAhead.h"

#include <deque>
#include <unordered_set>
#include <vector>

class AcApDocument;

namespace desktop {

class DrawingPicture {
 public:
  DrawingPicture();

  // Null for none. The document must be taken away before it is destroyed.
  void setDocument(AcApDocument* document);
  AcApDocument* document() const { return m_document; }
  // Makes the picture of a drawing that is being read, for the document that comes of it; null where no
  // processor is free for that.
  EntityWatcher* ahead() { return threads() > 1 ? &m_ahead : nullptr; }
  // All of it is to be made anew.
  void invalidate() { m_scene.invalidate(); }
  // Looks at what changed since the last time.
  scene::LiveScene::Change update();

  // The picture comes in pieces, which are painted in their order.
  std::size_t pageCount() const { return m_scene.pageCount(); }
  const scene::Scene& page(std::size_t index) const { return m_scene.page(index); }
  ge::Box2d box() const { return m_scene.box(); }
  // Those whose box overlaps this one, which may be more than what is there.
  std::vector<AcDbObjectId> entitiesNear(const ge::Box2d& box) const;
  // Entities that are left out.
  const std::unordered_set<AcDbObjectId>& hidden() const { return m_hidden; }
  TextOutlines& outlines() { return m_workers.front().outlines; }
  // For each of so many threads its own.
  std::size_t threads() const { return m_workers.size(); }
  TextOutlines& outlines(std::size_t thread) { return m_workers[thread].outlines; }

 private:
  struct Worker {
    TextOutlines outlines;
    OutlineMetrics metrics{outlines};
  };

  AcApDocument* m_document = nullptr;
  std::deque<Worker> m_workers; // one for each thread; the first is the window's own
  std::vector<scene::SceneOptions> m_options;
  Worker m_reading; // for the thread beside that which reads
  scene::SceneAhead m_ahead;
  scene::LiveScene m_scene;
  std::unordered_set<AcDbObjectId> m_hidden;
};

} // namespace desktop
