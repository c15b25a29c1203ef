// WB_HZGG: mains from point to point. Each segment is a line of its own, since each may have its own diameter
// and elevation.
#include "host/db/AcDbLine.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/acutPrintf.h"
#include "plugin/pipes/attributes/CZPMainPipe.h"
#include "plugins/workbench/Asking.h"
#include "plugins/workbench/Commands.h"
#include "plugins/workbench/LayerPlacing.h"
#include "plugins/workbench/NewPipe.h"
#include "plugins/workbench/PipeQuestions.h"

#include <vector>

namespace workbench {
namespace {

constexpr const wchar_t* kUsualLayers[] = {L"采暖供水干管", L"采暖回水干管", L"采暖供水支管", L"采暖回水支管",
                                           L"供水干管",     L"回水干管",     L"冷凝水干管",   nullptr};
constexpr double kMillimetresInAMetre = 1000;

constexpr PipePresets kPresets{L"干管", kUsualLayers, 50};

struct MainPipe : NewPipe {
  double elevation = 0; // m
};

bool AskDiameterOf(MainPipe& pipe) {
  const auto diameter = AskDiameter(*pipe.material, pipe.diameter.dbNominal);
  if (diameter) pipe.diameter = *diameter;
  return diameter.has_value();
}

bool AskElevationOf(MainPipe& pipe) {
  const auto elevation = AskNumber(L"相对标高(m)", pipe.elevation, kElevations);
  if (elevation) pipe.elevation = *elevation;
  return elevation.has_value();
}

AcDbObjectId AppendMainPipe(const AcGePoint3d& from, const AcGePoint3d& to, const MainPipe& pipe) {
  const auto id = AppendOnLayer(std::make_unique<AcDbLine>(from, to), pipe.layer);
  if (id.isNull()) return id;
  CZPMainPipe attributes(id);
  WriteNewPipe(attributes, pipe);
  attributes.SetElevation(pipe.elevation);
  return id;
}

class Run {
 public:
  Run(MainPipe& pipe, const AcGePoint3d& start) : m_pipe(pipe), m_points{OnPlan(start)} {}

  // False for Escape.
  bool draw() {
    while (true) {
      const auto next = ed::AskPoint(
          {L"指定下一点或 [管径(D)/标高(E)/放弃(U)]:", L"管径,D 标高,E 放弃,U", 0, m_points.back()});
      if (next.isCancelled()) return false;
      if (next.isNone()) return true;
      if (next.isKeyword(L"管径")) {
        if (!AskDiameterOf(m_pipe)) return false;
      } else if (next.isKeyword(L"标高")) {
        if (!AskElevationOf(m_pipe)) return false;
      } else if (next.isKeyword(L"放弃")) {
        takeBack();
      } else {
        add(OnPlan(next.point));
      }
    }
  }
  void tell() const {
    double length = 0;
    for (std::size_t i = 1; i < m_points.size(); ++i) length += m_points[i].distanceTo(m_points[i - 1]);
    acutPrintf(L"\n已绘制干管 %d 段，共 %s m。\n", static_cast<int>(m_pipes.size()),
               NumberText(length / kMillimetresInAMetre));
  }

 private:
  void add(const AcGePoint3d& point) {
    if (point.isEqualTo(m_points.back())) return Refuse(L"这一段没有长度。", L"另一个点");
    const auto id = AppendMainPipe(m_points.back(), point, m_pipe);
    if (id.isNull()) return;
    m_pipes.push_back(id);
    m_points.push_back(point);
  }
  void takeBack() {
    if (m_pipes.empty()) return Refuse(L"没有可放弃的管段。", L"下一点");
    AcDbObjectPointer<AcDbLine> last(m_pipes.back(), AcDb::kForWrite);
    if (last) last->erase();
    m_pipes.pop_back();
    m_points.pop_back();
    curDoc()->edit().lastPoint = m_points.back();
  }

  MainPipe& m_pipe;
  std::vector<AcGePoint3d> m_points;
  std::vector<AcDbObjectId> m_pipes;
};

} // namespace

void DrawMainPipe() {
  MainPipe pipe;
  pipe.elevation = Remembered(L"干管\\标高", 3);
  if (!AskNewPipe(kPresets, pipe) || !AskElevationOf(pipe)) return;
  const auto start = ed::AskPoint({L"指定起点:", {}, RSG_NONULL, {}});
  if (!start.hasValue()) return;
  Run run(pipe, start.point);
  if (!run.draw()) return;
  run.tell();
  RememberNewPipe(kPresets, pipe);
  Remember(L"干管\\标高", pipe.elevation);
}

} // namespace workbench
