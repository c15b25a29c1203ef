#include "host/qt/canvas/Aim.h"

#include "host/afx/Numbers.h"
#include "host/ed/EdPromptState.h"
#include "host/ed/SystemVariables.h"

#include <cmath>

namespace desktop {

bool WantsPoint(const EdPromptState& prompt) {
  using Wants = EdPromptState::Wants;
  return prompt.wants == Wants::point || prompt.wants == Wants::corner || prompt.wants == Wants::distance;
}

Aim TakeAim(const EdPromptState& prompt, const AcGePoint3d& cursor, std::span<const AcDbObjectId> near,
            double aperture) {
  Aim aim{cursor, std::nullopt};
  if (!WantsPoint(prompt)) return aim;
  aim.snap = ed::SnapTo(near, cursor, aperture, SystemVariables::integer(L"OSMODE"));
  if (aim.snap) {
    aim.point = aim.snap->point;
  } else if (prompt.base && prompt.wants != EdPromptState::Wants::corner &&
             SystemVariables::integer(L"ORTHOMODE") != 0) {
    const bool across = std::fabs(cursor.x - prompt.base->x) >= std::fabs(cursor.y - prompt.base->y);
    (across ? aim.point.y : aim.point.x) = across ? prompt.base->y : prompt.base->x;
  }
  return aim;
}

CString PointLine(const AcGePoint3d& point) {
  std::string text(afx::ShortestDouble(point.x));
  text.append(1, ',').append(afx::ShortestDouble(point.y));
  if (point.z != 0) text.append(1, ',').append(afx::ShortestDouble(point.z));
  return CString::FromUtf8(text);
}

} // namespace desktop
