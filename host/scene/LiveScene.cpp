#include "host/scene/LiveScene.h"

#include "host/db/AcDbBlockTable.h"
#include "host/db/AcDbDatabase.h"
#include "host/db/AcDbEntity.h"
#include "host/db/AcDbHeader.h"
#include "host/db/AcDbXrecord.h"
#include "host/scene/DrawOrder.h"
#include "host/scene/ReferredDrawings.h"
#include "host/scene/SceneAhead.h"
#include "host/scene/SceneBuilder.h"

#include <algorithm>
#include <atomic>
#include <thread>

namespace scene {
namespace {

// Fewer are made sooner than threads begin.
constexpr std::size_t kPagesWorthThreads = 4;

// An entity of a block, or the one that a sub-entity belongs to.
AcDbObjectId wholeOf(const AcDbEntity& entity) {
  AcDbObjectId whole = entity.objectId();
  AcDbObjectId owner = entity.ownerId();
  constexpr int kDeepest = 8; // a drawing may be wrong
  for (int i = 0; i < kDeepest; ++i) {
    const auto* above = AcDbEntity::cast(owner.object());
    if (!above) break;
    whole = owner;
    owner = above->ownerId();
  }
  return whole;
}

} // namespace

LiveScene::~LiveScene() {
  show(nullptr, {});
}

void LiveScene::show(AcDbDatabase* database, const AcDbObjectId& space, SceneAhead* ahead) {
  if (m_database) m_database->removeReactor(this);
  m_database = database;
  m_space = space;
  if (m_database) m_database->addReactor(this);
  m_pages.clear();
  if (ahead && m_database) m_pages = ahead->take(*m_database, space);
  m_all = m_pages.empty();
  if (m_all) return;
  m_variables = VariablesOf(*m_database);
  m_order = m_any = true;
}

// An object came or went.
void LiveScene::noteMember(const AcDbObject& object) {
  m_order = true;
  note(object);
}

void LiveScene::note(const AcDbObject& object) {
  m_any = true;
  if (m_all) return;
  if (const auto* entity = AcDbEntity::cast(&object)) {
    const AcDbObjectId whole = wholeOf(*entity);
    if (whole.object()->ownerId() == m_space)
      m_touched.insert(whole);
    else
      m_all = true; // in a block that others may show
  } else if (object.objectId() == m_space) {
    m_order = true;
  } else if (!AcDbXrecord::cast(&object) && !AcDbHeader::cast(&object)) { // see checkVariables
    m_all = true; // what a layer, a style, a dictionary is used for is known to painters alone
  }
}

void LiveScene::checkVariables() {
  const DrawingVariables now = VariablesOf(*m_database);
  if (now != m_variables) m_all = true;
  m_variables = now;
}

LiveScene::Change LiveScene::update(std::span<const SceneOptions> workers) {
  Change change;
  if (!m_database) {
    change.any = change.all = !m_pages.empty() || m_all;
    m_pages.clear();
    m_all = false;
    return change;
  }
  checkVariables();
  change.all = m_all;
  change.any = m_all || m_any;
  if (!change.any) return change;
  if (m_all) m_pages.clear();
  addTouchedBoxes(change);
  if (m_all || m_order) {
    DrawOrder order;
    const auto* space = AcDbBlockTableRecord::cast(m_space.object());
    if (space) repage(order.of(*space));
  }
  markTouched();
  makeStale(workers);
  addTouchedBoxes(change);
  m_touched.clear();
  m_all = m_order = m_any = false;
  return change;
}

// Pages at the beginning and at the end that have the entities they should stay; between them there are new
// ones.
void LiveScene::repage(const std::vector<AcDbObjectId>& order) {
  std::size_t front = 0;
  std::size_t begin = 0;
  for (; front < m_pages.size(); begin += m_pages[front++].entities.size()) {
    const auto& ids = m_pages[front].entities;
    // A last page that isn't full takes what was added behind it.
    const bool grows =
        front + 1 == m_pages.size() && ids.size() < m_pageSize && begin + ids.size() < order.size();
    if (grows || begin + ids.size() > order.size() ||
        !std::equal(ids.begin(), ids.end(), order.begin() + static_cast<std::ptrdiff_t>(begin)))
      break;
  }
  std::size_t back = m_pages.size();
  std::size_t end = order.size();
  for (; back > front; end -= m_pages[--back].entities.size()) {
    const auto& ids = m_pages[back - 1].entities;
    const bool grows = back == m_pages.size() && ids.size() < m_pageSize;
    if (grows || end < begin + ids.size() ||
        !std::equal(ids.begin(), ids.end(), order.begin() + static_cast<std::ptrdiff_t>(end - ids.size())))
      break;
  }
  std::vector<ScenePage> fresh;
  for (std::size_t at = begin; at < end; at += m_pageSize) {
    const auto from = order.begin() + static_cast<std::ptrdiff_t>(at);
    fresh.emplace_back().entities.assign(from,
                                         from + static_cast<std::ptrdiff_t>(std::min(m_pageSize, end - at)));
  }
  const auto first = m_pages.begin() + static_cast<std::ptrdiff_t>(front);
  m_pages.erase(first, m_pages.begin() + static_cast<std::ptrdiff_t>(back));
  m_pages.insert(m_pages.begin() + static_cast<std::ptrdiff_t>(front), std::make_move_iterator(fresh.begin()),
                 std::make_move_iterator(fresh.end()));
}

void LiveScene::markTouched() {
  for (ScenePage& page : m_pages) {
    // What plug-ins draw may depend on anything.
    page.stale |= page.scene.asksPlugIns;
    if (page.stale || m_touched.empty()) continue;
    page.stale = std::any_of(page.entities.begin(), page.entities.end(),
                             [this](const AcDbObjectId& id) { return m_touched.contains(id); });
  }
}

void LiveScene::addTouchedBoxes(Change& change) const {
  if (change.all) return;
  for (const ScenePage& page : m_pages) {
    for (const Group& group : page.scene.groups) {
      if (!page.scene.asksPlugIns && !m_touched.contains(group.entity)) continue;
      change.all |= group.unbounded;
      change.box.Add(group.box);
    }
  }
}

void LiveScene::makeStale(std::span<const SceneOptions> workers) {
  std::vector<ScenePage*> stale;
  for (ScenePage& page : m_pages)
    if (page.stale) stale.push_back(&page);
  m_made += stale.size();
  std::atomic<std::size_t> next = 0;
  // All pages together keep to the limit of one picture.
  std::atomic<std::size_t> points = 0;
  for (const ScenePage& page : m_pages)
    if (!page.stale) points += page.scene.points.size();
  const auto make = [&](ScenePage& page, SceneBuilder& builder, const SceneOptions& options) {
    builder.setPointLimit(options.limits.points - std::min(options.limits.points, points.load()));
    for (const AcDbObjectId& id : page.entities) builder.addTopLevel(id);
    page.scene = builder.finish();
    page.stale = page.scene.asksPlugIns && !options.asksPlugIns;
    if (!page.stale) points += page.scene.points.size();
  };
  const auto work = [&](const SceneOptions& options) {
    SceneBuilder builder(*m_database, options);
    for (std::size_t i = next++; i < stale.size(); i = next++) make(*stale[i], builder, options);
  };
  std::vector<std::jthread> threads;
  if (stale.size() >= kPagesWorthThreads && workers.size() > 1 && !RefersToOthers(*m_database)) {
    // Records that are made when they are asked for are made now: nobody writes while all read.
    for (const AcDbStub& stub : m_database->stubs())
      if (stub.object) stub.object->record();
    for (SceneOptions options : workers.subspan(1)) {
      options.asksPlugIns = false;
      threads.emplace_back(work, options);
    }
  }
  work(workers.front());
  threads.clear();
  stale.erase(std::remove_if(stale.begin(), stale.end(), [](const ScenePage* page) { return !page->stale; }),
              stale.end());
  next = 0;
  if (!stale.empty()) work(workers.front());
}

ge::Box2d LiveScene::box() const {
  ge::Box2d box;
  for (const ScenePage& page : m_pages) box.Add(page.scene.box);
  return box;
}

} // namespace scene
