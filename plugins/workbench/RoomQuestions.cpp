#include "plugins/workbench/RoomQuestions.h"

#include "host/db/AcDbExtents.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/AcDbPolyline.h"
#include "host/db/AcGiWorldDraw.h"
#include "host/ed/EdPrompts.h"
#include "plugins/workbench/Asking.h"

namespace workbench {
namespace {

using Corners = std::vector<AcGePoint3d>;

constexpr std::size_t kFewestCorners = 3;

// Points follow until Enter, which closes the outline.
std::optional<Corners> TraceFrom(const AcGePoint3d& first) {
  Corners corners{first};
  while (true) {
    ed::Question question{L"指定下一个角点或 [放弃(U)] <闭合>:", L"Undo", 0, corners.back()};
    question.preview = [corners](AcGiWorldDraw& draw, const AcGePoint3d& cursor) {
      Corners shown = corners;
      shown.push_back(cursor);
      shown.push_back(corners.front());
      draw.polyline(shown);
    };
    const auto next = ed::AskPoint(question);
    if (next.isCancelled()) return std::nullopt;
    if (next.isKeyword(L"Undo")) {
      if (corners.size() > 1)
        corners.pop_back();
      else
        Refuse(L"没有可放弃的角点。", L"下一个角点");
    } else if (next.hasValue()) {
      corners.push_back(next.point);
    } else if (corners.size() >= kFewestCorners) {
      return corners;
    } else {
      Refuse(L"轮廓至少要有 3 个角点。", L"下一个角点");
    }
  }
}

// The vertices of a polyline, whether it is closed or not; arcs become their chords.
std::optional<Corners> FromPolyline() {
  while (true) {
    const auto picked = ed::AskEntity({L"选择多段线:", {}, RSG_NONULL, {}});
    if (!picked.hasValue()) return std::nullopt;
    const AcDbObjectPointer<AcDbPolyline> polyline(picked.entity, AcDb::kForRead);
    Corners corners;
    for (unsigned int i = 0; polyline && i < polyline->numVerts(); ++i) {
      AcGePoint3d corner;
      if (polyline->getPointAt(i, corner) == Acad::eOk) corners.push_back(corner);
    }
    if (corners.size() >= kFewestCorners) return corners;
    Refuse(L"这不能作为房间轮廓。", L"至少有 3 个顶点的多段线");
  }
}

} // namespace

CString NextNumber(const CString& number) {
  CString next = number;
  for (int i = next.GetLength() - 1; i >= 0 && next[i] >= L'0' && next[i] <= L'9'; --i) {
    const bool carries = next[i] == L'9';
    next.SetAt(i, carries ? L'0' : static_cast<wchar_t>(next[i] + 1));
    if (!carries) return next;
    if (i == 0 || next[i - 1] < L'0' || next[i - 1] > L'9') {
      next.Insert(i, L"1");
      return next;
    }
  }
  return next;
}

std::optional<std::vector<AcGePoint3d>> AskOutline() {
  const auto first = ed::AskPoint({L"指定轮廓的第一个角点或 [选择多段线(S)] <无轮廓>:", L"Select", 0, {}});
  if (first.isCancelled()) return std::nullopt;
  if (first.isNone()) return Corners();
  return first.hasValue() ? TraceFrom(first.point) : FromPolyline();
}

AcGePoint3d MiddleOf(const std::vector<AcGePoint3d>& corners) {
  AcDbExtents box;
  for (const AcGePoint3d& corner : corners) box.addPoint(corner);
  return box.minPoint() + (box.maxPoint() - box.minPoint()) * 0.5;
}

} // namespace workbench
