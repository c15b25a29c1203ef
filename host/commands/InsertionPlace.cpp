#include "host/commands/InsertionPlace.h"

#include "host/db/AcDbBlockReference.h"
#include "host/db/AcGiWorldDraw.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/EdSession.h"

#include <cmath>

namespace commands {
namespace {

class PlacePrompts {
 public:
  explicit PlacePrompts(const AcDbObjectId& block) : m_block(block) {}

  std::optional<InsertionPlace> ask() {
    if (!askPoint()) return std::nullopt;
    if (!m_scaled && !askScale()) return std::nullopt;
    if (!m_turned && !askRotation(m_place.point)) return std::nullopt;
    return m_place;
  }

 private:
  using Follow = void (*)(InsertionPlace& place, const AcGePoint3d& cursor);

  // A question that shows the block as it would be if the cursor were picked.
  ed::Question question(const wchar_t* prompt, const wchar_t* keywords, int flags, Follow follow) const {
    ed::Question asked{prompt, keywords, flags, {}};
    asked.preview = [block = m_block, place = m_place, follow](AcGiWorldDraw& draw,
                                                               const AcGePoint3d& cursor) {
      InsertionPlace there = place;
      follow(there, cursor);
      AcDbBlockReference reference(there.point, block);
      if (reference.setScaleFactors(there.scale) == Acad::eOk &&
          reference.setRotation(there.rotation) == Acad::eOk)
        reference.worldDraw(draw);
    };
    return asked;
  }

  // False for Escape, here and below.
  bool askPoint() {
    for (;;) {
      const auto point = ed::AskPoint(
          question(L"指定插入点或 [比例(S)/旋转(R)]:", L"Scale Rotate", RSG_NONULL,
                   [](InsertionPlace& place, const AcGePoint3d& cursor) { place.point = cursor; }));
      if (point.isCancelled()) return false;
      if (point.hasValue()) {
        m_place.point = point.point;
        return true;
      }
      if (!(point.isKeyword(L"Scale") ? askEvenScale() : askRotation(std::nullopt))) return false;
    }
  }

  static bool askFactor(const CString& prompt, double& factor) {
    const auto answer = ed::AskReal({prompt, {}, RSG_NOZERO, {}});
    if (answer.hasValue()) factor = answer.real;
    return !answer.isCancelled();
  }

  bool askEvenScale() {
    double factor = 1;
    if (!askFactor(L"指定 X、Y、Z 轴的比例因子 <1>:", factor)) return false;
    m_place.scale = {factor, factor, factor};
    m_scaled = true;
    return true;
  }

  bool askScale() {
    const auto x =
        ed::AskReal({L"输入 X 比例因子，或 [角点(C)/XYZ(XYZ)] <1>:", L"Corner XYZ", RSG_NOZERO, {}});
    if (x.isCancelled()) return false;
    if (x.isKeyword(L"Corner")) return askCorner();
    auto& scale = m_place.scale;
    if (x.isKeyword(L"XYZ")) {
      if (!askFactor(L"输入 X 比例因子 <1>:", scale.x)) return false;
    } else if (x.hasValue()) {
      scale.x = x.real;
    }
    scale.y = scale.x;
    if (!askFactor(L"输入 Y 比例因子 <同 X 比例因子>:", scale.y)) return false;
    scale.z = scale.x;
    return !x.isKeyword(L"XYZ") || askFactor(L"输入 Z 比例因子 <同 X 比例因子>:", scale.z);
  }

  // The box from the insertion point to the corner is what a unit of the block becomes.
  bool askCorner() {
    for (;;) {
      auto asked =
          question(L"指定对角点:", L"", RSG_NONULL, [](InsertionPlace& place, const AcGePoint3d& cursor) {
            place.scale = {cursor.x - place.point.x, cursor.y - place.point.y, cursor.x - place.point.x};
          });
      asked.base = m_place.point;
      const auto corner = ed::AskCorner(asked);
      if (!corner.hasValue()) return false;
      const AcGeVector3d size = corner.point - m_place.point;
      m_place.scale = {size.x, size.y, size.x};
      if (size.x != 0 && size.y != 0) return true;
      EdSession::instance().refuse(L"比例因子不能为零。", L"与插入点不在同一水平线或竖直线上的点");
    }
  }

  bool askRotation(const std::optional<AcGePoint3d>& from) {
    ed::Question asked{L"指定旋转角度（度） <0>:", {}, 0, from};
    if (from)
      asked.preview = question(L"", L"", 0, [](InsertionPlace& place, const AcGePoint3d& cursor) {
                        place.rotation = std::atan2(cursor.y - place.point.y, cursor.x - place.point.x);
                      }).preview;
    const auto angle = ed::AskAngle(asked);
    if (angle.hasValue()) m_place.rotation = angle.real;
    m_turned = true;
    return !angle.isCancelled();
  }

  AcDbObjectId m_block;
  InsertionPlace m_place;
  bool m_scaled = false;
  bool m_turned = false;
};

} // namespace

std::optional<InsertionPlace> AskInsertionPlace(const AcDbObjectId& block) {
  return PlacePrompts(block).ask();
}

} // namespace commands
