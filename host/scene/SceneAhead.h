// Makes the picture of a drawing while the drawing is still being read, by a thread of its own. What of it
// holds once all is read goes to the LiveScene of the space, which makes the rest.
#pragma once

#include "host/db/AcDbDatabaseReactor.h"
#include "host/db/EntityWatcher.h"
#include "host/scene/BuildScene.h"
#include "host/scene/DrawingVariables.h"
#include "host/scene/ScenePage.h"

#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <thread>

namespace scene {

class SceneBuilder;

class SceneAhead : public EntityWatcher, private AcDbDatabaseReactor {
 public:
  // Metrics that no other thread uses meanwhile; null for estimated ones.
  explicit SceneAhead(const TextMetrics* metrics = nullptr, std::size_t pageSize = kPageSize);
  ~SceneAhead() override;
  SceneAhead(const SceneAhead&) = delete;
  SceneAhead& operator=(const SceneAhead&) = delete;

  // The pages of the first entities of the space, some of them stale; none when they are of another one, or
  // the drawing was changed since it was read. They are given away once.
  std::vector<ScenePage> take(const AcDbDatabase& database, const AcDbObjectId& space);

  // Waits until all is made that was told of.
  void settle();

  std::size_t together() const override { return m_pageSize; }
  void entitiesRead(const AcDbBlockTableRecord& space, std::span<const AcDbObjectId> entities) override;
  void entitiesEnd() override;
  void groundChanged() override;

 private:
  void begin(const AcDbBlockTableRecord& space);
  void work();
  void forget();
  void goodbye(const AcDbDatabase*) override;

  SceneOptions m_options;
  std::size_t m_pageSize;
  AcDbDatabase* m_database = nullptr; // null for none that would be worth it
  AcDbObjectId m_space;
  DrawingVariables m_variables;
  bool m_begun = false;
  std::unique_ptr<SceneBuilder> m_builder; // the thread's own once it runs
  std::vector<ScenePage> m_pages;          // the same
  std::mutex m_mutex;                      // of what follows
  std::condition_variable m_changed;
  std::deque<std::vector<AcDbObjectId>> m_waiting;
  bool m_working = false;
  bool m_ended = false;
  std::jthread m_thread; // last: it uses the rest
};

} // namespace scene
