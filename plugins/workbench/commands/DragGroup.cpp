// WB_CZTD: copies of what is selected, composed into a group that follows the cursor, turns, and enters the
// drawing as one. The group shows each entity in the colour that the layer scheme gives its layer.
#include <numbers>

#include "host/db/AcDbObjectPointer.h"
#include "host/ed/AcEdJig.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/SelectionPrompt.h"
#include "host/ed/acutPrintf.h"
#include "plugin/tools/CZPMultiEntity.h"
#include "plugins/workbench/Asking.h"
#include "plugins/workbench/Commands.h"

namespace workbench {
namespace {

constexpr double kQuarterTurn = std::numbers::pi / 2;

class GroupJig : public AcEdJig {
 public:
  explicit GroupJig(CZPMultiEntity& group) : m_group(group) {
    setDispPrompt(L"\n指定插入点或 [旋转90度(R)/旋转角(A)]:");
  }

  // False for Escape and Enter.
  bool place() {
    while (true) {
      switch (drag()) {
      case kNormal:
      case kNoChange:
        return true;
      case kKW1:
        m_group.SetRotation(m_group.GetRotation(0) + kQuarterTurn, 0);
        break;
      case kKW2:
        if (!askAngle()) return false;
        break;
      case kCancel:
      case kNull:
        return false;
      default:
        break;
      }
    }
  }

  DragStatus sampler() override {
    setUserInputControls(kNullResponseAccepted | kAccept3dCoordinates);
    setKeywordList(L"R A");
    return acquirePoint(m_cursor);
  }
  bool update() override { return m_group.SetPosition(m_cursor, 0) == CZPMultiEntity::eOk; }
  AcDbEntity* entity() const override { return &m_group; }

 private:
  bool askAngle() {
    const auto angle = ed::AskAngle({L"旋转角 <0>:", {}, 0, m_group.GetPosition(0)});
    if (angle.isCancelled()) return false;
    m_group.SetRotation(angle.isNone() ? 0.0 : angle.real, 0);
    return true;
  }

  CZPMultiEntity& m_group;
  AcGePoint3d m_cursor;
};

// What can't be moved, since the host doesn't know what it is, stays out.
int Compose(CZPMultiEntity& group, const std::vector<AcDbObjectId>& ids) {
  int composed = 0;
  for (const AcDbObjectId& id : ids) {
    const AcDbObjectPointer<AcDbEntity> entity(id, AcDb::kForRead);
    AcDbEntity* copy = nullptr;
    if (!entity || entity->getTransformedCopy(AcGeMatrix3d::kIdentity, copy) != Acad::eOk) continue;
    group.AddEntityToGroup(copy, 0); // the group's from here on
    ++composed;
  }
  return composed;
}

} // namespace

void DragGroup() {
  const auto selected = ed::AskSelection({}, SelectionFilter(nullptr));
  if (selected.cancelled || selected.set.ids().empty()) return;
  CZPMultiEntity group;
  const int composed = Compose(group, selected.set.ids());
  const int left = static_cast<int>(selected.set.ids().size()) - composed;
  if (left > 0) acutPrintf(L"\n%d 个实体不能成组，未计入。\n", left);
  if (composed == 0) return;
  const auto base = ed::AskPoint({L"指定基点:", {}, RSG_NONULL, {}});
  if (!base.hasValue()) return;
  group.SetGroupOrigin(base.point, 0);
  if (!GroupJig(group).place()) return;
  if (group.AddtoCurrentSpace(0) != CZPMultiEntity::eOk) return Refuse(L"这一组实体不能加入图形。");
  AcArray<AcDbObjectId> ids;
  group.GetEntitysObjectID(ids, 0);
  acutPrintf(L"\n已加入 %d 个实体。\n", ids.length());
}

} // namespace workbench
