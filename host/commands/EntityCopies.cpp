#include "host/commands/EntityCopies.h"

#include "host/commands/EraseRange.h"
#include "host/db/AcDbIdMapping.h"
#include "host/db/FollowingEntity.h"
#include "host/ed/EdSession.h"

#include <algorithm>

namespace commands {
EntityCopies::EntityCopies(const std::vector<AcDbObjectId>& ids) {
  for (const auto& id : ids) {
    const AcDbObjectId space = id.object()->ownerId();
    auto found = std::find_if(m_originals.begin(), m_originals.end(),
                              [&](const Originals& group) { return group.space == space; });
    if (found == m_originals.end()) found = m_originals.insert(found, {space, {}});
    found->ids.push_back(id);
  }
}

std::vector<std::size_t> EntityCopies::ends() const {
  std::vector<std::size_t> ends;
  for (const Originals& group : m_originals)
    ends.push_back(AcDbBlockTableRecord::cast(group.space.object())->entities().size());
  return ends;
}

void EntityCopies::eraseFrom(const std::vector<std::size_t>& ends) {
  for (std::size_t group = 0; group < ends.size(); ++group) EraseRange(m_originals[group].space, ends[group]);
}

Acad::ErrorStatus EntityCopies::copyThrough(const Originals& originals, const AcGeMatrix3d& matrix) {
  AcDbDatabase& database = *originals.space.database();
  AcDbIdMapping map;
  auto status = database.deepCloneObjects(originals.ids, originals.space, map);
  for (const auto& pair : map.pairs())
    if (status == Acad::eOk && pair.isPrimary) status = entity::transformOrWrap(database, pair.value, matrix);
  return status;
}

bool EntityCopies::add(const std::vector<AcGeMatrix3d>& matrices) {
  Step step{ends(), 0};
  for (const AcGeMatrix3d& matrix : matrices) {
    for (const Originals& group : m_originals) {
      const auto status = copyThrough(group, matrix);
      step.count += static_cast<int>(group.ids.size());
      if (status == Acad::eOk) continue;
      eraseFrom(step.ends);
      EdSession::instance().refuse(CString(L"不能复制：") + acadErrorStatusText(status));
      return false;
    }
  }
  m_count += step.count;
  m_steps.push_back(std::move(step));
  return true;
}

bool EntityCopies::undo() {
  if (m_steps.empty()) return false;
  eraseFrom(m_steps.back().ends);
  m_count -= m_steps.back().count;
  m_steps.pop_back();
  return true;
}

} // namespace commands
