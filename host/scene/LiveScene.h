// The picture of a space that stays true while its drawing is edited. It comes in pages of some hundred or
// thousand entities, in the order of painting; a change makes only the pages of what was changed anew, and
// all of them where it is one that others depend on, such as of a layer or a block. All pages together are
// what BuildScene makes of the space.
#pragma once

#include "host/db/AcDbDatabaseReactor.h"
#include "host/scene/BuildScene.h"
#include "host/scene/DrawingVariables.h"
#include "host/scene/ScenePage.h"

#include <span>
#include <unordered_set>
#include <vector>

class AcDbBlockTableRecord;

namespace scene {

class SceneAhead;

class LiveScene : private AcDbDatabaseReactor {
 public:
  // What of the picture is another one.
  struct Change {
    bool any = false;
    bool all = false; // box tells nothing
    ge::Box2d box;    // around what was drawn before and is drawn now
  };

  // How many entities a page has at most.
  explicit LiveScene(std::size_t pageSize = kPageSize) : m_pageSize(pageSize) {}
  ~LiveScene() override;
  LiveScene(const LiveScene&) = delete;
  LiveScene& operator=(const LiveScene&) = delete;

  // Null for none. The drawing must be taken away before it is destroyed. ahead: has perhaps made some of the
  // picture while the drawing was read.
  void show(AcDbDatabase* database, const AcDbObjectId& space, SceneAhead* ahead = nullptr);
  // All of it is to be made anew.
  void invalidate() { m_all = true; }
  // Makes anew what has changed. One set of options for each thread that may work on it, with text metrics
  // that no other uses; entities of plug-ins are asked to draw themselves by the calling thread alone.
  Change update(std::span<const SceneOptions> workers);

  std::size_t pageCount() const { return m_pages.size(); }
  const Scene& page(std::size_t index) const { return m_pages[index].scene; }
  ge::Box2d box() const;
  // Pages that were ever made, for those who want to know what an edit costs.
  std::size_t pagesMade() const { return m_made; }

 private:
  void note(const AcDbObject& object);
  void noteMember(const AcDbObject& object);
  void checkVariables();
  void repage(const std::vector<AcDbObjectId>& order);
  void markTouched();
  void addTouchedBoxes(Change& change) const;
  void makeStale(std::span<const SceneOptions> workers);

  void objectAppended(const AcDbDatabase*, const AcDbObject* object) override { noteMember(*object); }
  void objectUnAppended(const AcDbDatabase*, const AcDbObject* object) override { noteMember(*object); }
  void objectReAppended(const AcDbDatabase*, const AcDbObject* object) override { noteMember(*object); }
  void objectErased(const AcDbDatabase*, const AcDbObject* object, bool) override { noteMember(*object); }
  void objectModified(const AcDbDatabase*, const AcDbObject* object) override { note(*object); }
  void proxyResurrectionCompleted(const AcDbDatabase*, const wchar_t*,
                                  const std::vector<AcDbObjectId>&) override {
    m_all = true;
  }
  void goodbye(const AcDbDatabase*) override { m_database = nullptr; }

  AcDbDatabase* m_database = nullptr;
  AcDbObjectId m_space;
  DrawingVariables m_variables;
  std::vector<ScenePage> m_pages;
  std::unordered_set<AcDbObjectId> m_touched; // entities of the space
  bool m_all = true;
  bool m_order = false; // entities came or went
  bool m_any = false;
  std::size_t m_pageSize;
  std::size_t m_made = 0;
};

} // namespace scene
