#include "host/qt/canvas/DrawingPicture.h"

#include "host/db/AcDbDatabase.h"
#include "host/ed/AcApDocument.h"
#include "host/ed/EntitySearch.h"

#include <algorithm>
#include <thread>

namespace desktop {
namespace {

constexpr unsigned kMostThreads = 8; // of more the memory is the bound

} // namespace

DrawingPicture::DrawingPicture() : m_ahead(&m_reading.metrics) {
  const unsigned threads = std::clamp(std::thread::hardware_concurrency(), 1U, kMostThreads);
  for (unsigned i = 0; i < threads; ++i) {
    m_options.emplace_back().metrics = &m_workers.emplace_back().metrics;
  }
}

void DrawingPicture::setDocument(AcApDocument* document) {
  if (document == m_document) return;
  m_document = document;
  AcDbDatabase* database = document ? document->database() : nullptr;
  m_scene.show(database, database ? ed::CurrentSpace(*database) : AcDbObjectId(), &m_ahead);
}

scene::LiveScene::Change DrawingPicture::update() {
  auto change = m_scene.update(m_options);
  const auto hidden = m_document ? m_document->edit().hidden : decltype(m_hidden)();
  if (hidden != m_hidden) change.any = change.all = true;
  m_hidden = hidden;
  return change;
}

std::vector<AcDbObjectId> DrawingPicture::entitiesNear(const ge::Box2d& box) const {
  std::vector<AcDbObjectId> near;
  for (std::size_t i = 0; i < m_scene.pageCount(); ++i)
    for (const scene::Group& group : m_scene.page(i).groups)
      if ((group.unbounded || group.box.Overlaps(box)) && !m_hidden.contains(group.entity))
        near.push_back(group.entity);
  return near;
}

} // namespace desktop
