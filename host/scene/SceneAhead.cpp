#include "host/scene/SceneAhead.h"

#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbSymbolTable.h"
#include "host/scene/ReferredDrawings.h"
#include "host/scene/SceneBuilder.h"

#include <algorithm>
#include <array>

namespace scene {
namespace {

// Whether the tables' records are as they will be: those of a file without handles are not, before all is
// read. A record that the file lacks has nothing but its name and defaults.
bool isFinished(const AcDbDatabase& database) {
  constexpr std::array kTables{"LAYER", "LTYPE", "STYLE"};
  return std::all_of(kTables.begin(), kTables.end(), [&](const char* name) {
    const auto& records = database.tableOf(name)->records();
    return std::all_of(records.begin(), records.end(), [](const AcDbObjectId& id) {
      return !id.handle().isNull() || id.object()->isImplicit();
    });
  });
}

} // namespace

SceneAhead::SceneAhead(const TextMetrics* metrics, std::size_t pageSize) : m_pageSize(pageSize) {
  m_options.metrics = metrics;
  m_options.asksPlugIns = false;
  m_options.whileReading = true;
}

SceneAhead::~SceneAhead() {
  entitiesEnd();
  forget();
}

void SceneAhead::begin(const AcDbBlockTableRecord& space) {
  forget();
  m_begun = true;
  m_ended = false;
  AcDbDatabase& database = *space.database();
  if (!isFinished(database) || RefersToOthers(database)) return;
  m_database = &database;
  m_space = space.objectId();
  m_variables = VariablesOf(database);
  // Here, where nobody else writes.
  m_builder = std::make_unique<SceneBuilder>(database, m_options);
  m_thread = std::jthread([this] { work(); });
}

void SceneAhead::entitiesRead(const AcDbBlockTableRecord& space, std::span<const AcDbObjectId> entities) {
  if (!m_begun) begin(space);
  if (!m_database) return;
  {
    const std::lock_guard lock(m_mutex);
    m_waiting.emplace_back(entities.begin(), entities.end());
  }
  m_changed.notify_all();
}

void SceneAhead::settle() {
  std::unique_lock lock(m_mutex);
  m_changed.wait(lock, [this] { return m_waiting.empty() && !m_working; });
}

void SceneAhead::work() {
  std::size_t points = 0;
  for (;;) {
    ScenePage page;
    {
      std::unique_lock lock(m_mutex);
      m_working = false;
      m_changed.notify_all();
      m_changed.wait(lock, [this] { return m_ended || !m_waiting.empty(); });
      if (m_ended) return;
      m_working = true;
      page.entities = std::move(m_waiting.front());
      m_waiting.pop_front();
    }
    m_builder->setPointLimit(m_options.limits.points - std::min(m_options.limits.points, points));
    for (const AcDbObjectId& id : page.entities) m_builder->addTopLevel(id);
    page.scene = m_builder->finish();
    page.stale = page.scene.asksPlugIns || page.scene.isProvisional;
    points += page.scene.points.size();
    m_pages.push_back(std::move(page));
  }
}

// What still waits is made sooner by all threads together.
void SceneAhead::entitiesEnd() {
  m_begun = false;
  if (!m_thread.joinable()) return;
  {
    const std::lock_guard lock(m_mutex);
    m_ended = true;
    m_waiting.clear();
  }
  m_changed.notify_all();
  m_thread.join();
  m_builder.reset();
  m_database->addReactor(this);
}

void SceneAhead::groundChanged() {
  forget();
}

void SceneAhead::goodbye(const AcDbDatabase*) {
  m_database = nullptr;
  m_pages.clear();
}

void SceneAhead::forget() {
  if (m_database) m_database->removeReactor(this);
  goodbye(m_database);
}

std::vector<ScenePage> SceneAhead::take(const AcDbDatabase& database, const AcDbObjectId& space) {
  std::vector<ScenePage> pages;
  if (&database == m_database && space == m_space && !database.isModified() &&
      VariablesOf(database) == m_variables)
    pages = std::move(m_pages);
  forget();
  return pages;
}

} // namespace scene
