#include "plugin/tools/ZPKwCl.h"

#include "host/ed/ArxDbgRbList.h"
#include "host/ed/ArxDbgSelSet.h"
#include "host/ed/acutPrintf.h"
#include "host/ge/Curve.h"
#include "plugin/base/Tolerance.h"
#include "plugin/tools/crossings/JointGroups.h"
#include "plugin/tools/crossings/Joints.h"
#include "plugin/tools/crossings/PipeIndex.h"
#include "plugin/tools/crossings/SymbolKeys.h"

namespace {

constexpr double kUsualRadius = 50.0;
constexpr int kOperator = -4; // group codes of a selection filter
constexpr int kLayer = 8;
constexpr int kExtendedData = -3;
constexpr int kApplication = 1001;
constexpr const wchar_t* kPipes = L"line,LWPOLYLINE,ARC";

CString Joined(const CStringArray& names) {
  CString joined;
  for (int i = 0; i < names.GetSize(); ++i) joined += (i > 0 ? L"," : L"") + names[i];
  return joined;
}

// Pipes, and symbols of earlier runs.
resbuf* BuildFilter(const CStringArray& layers) {
  if (layers.GetSize() == 0)
    return acutBuildList(kOperator, L"<or", RTDXF0, kPipes, kOperator, L"<and", RTDXF0, L"INSERT",
                         kExtendedData, kApplication, crossings::kMarkKey, kOperator, L"and>", kOperator,
                         L"or>", RTNONE);
  return acutBuildList(kOperator, L"<or", kOperator, L"<and", RTDXF0, kPipes, kLayer, Joined(layers),
                       kOperator, L"and>", kOperator, L"<and", RTDXF0, L"INSERT", kExtendedData, kApplication,
                       crossings::kMarkKey, kOperator, L"and>", kOperator, L"or>", RTNONE);
}

// Below the tolerance a circle could not be told from its centre.
bool IsRadius(double radius) {
  return ZP::Greater(radius, 0.0) &&
         ge::Curve::Circle({}, AcGeVector3d::kZAxis, radius).Status() == ge::CurveStatus::kOk;
}

} // namespace

ZPKwCl::ZPKwCl() : ZPKwCl(true, kUsualRadius) {}

ZPKwCl::ZPKwCl(bool arcOuch, double radius) : m_bArcOuch(arcOuch), m_dRadius(radius) {}

ZPKwCl::~ZPKwCl() = default;

void ZPKwCl::SetFiltrationLayer(const CStringArray& layers) {
  m_layers.Copy(layers);
}

void ZPKwCl::Go() {
  const ArxDbgRbList filter(BuildFilter(m_layers));
  ArxDbgSelSet selection;
  if (selection.userSelect(L"\n请选择干管:", filter) != ArxDbgSelSet::kSelected) return;
  AcDbObjectIdArray ids;
  selection.asArray(ids);
  m_bCreated = false;
  AddKw(ids);
  if (!m_bCreated) acutPrintf(L"\n没有符合生成扣弯条件的管线!");
}

void ZPKwCl::AddKw(AcDbObjectIdArray ids) {
  if (!IsRadius(m_dRadius)) return;
  CheckPipecoil(ids);
  m_ids.append(ids);
  // Joints stay where they were found, while the curves change from one to the next.
  const auto joints = crossings::FindJoints(m_ids);
  crossings::PipeIndex index(m_ids);
  for (const AcGePoint3d& point : joints) {
    const crossings::JointGroups groups = crossings::GroupsAt(point, m_ids, index);
    if (groups.lower.isEmpty()) continue;
    const int before = m_ids.length();
    CreateKwEnt(groups.upper, groups.lower, point, groups.minElevation, groups.maxElevation);
    for (const auto& id : groups.upper) index.Refresh(id);
    for (const auto& id : groups.lower) index.Refresh(id);
    for (int i = before; i < m_ids.length(); ++i) index.Append(m_ids[i]);
  }
}
