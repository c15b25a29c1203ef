// TEXT: lines of text, each an entity of its own, one below the other.
#include "host/commands/AppendEntity.h"
#include "host/commands/CommandFunctions.h"
#include "host/commands/NumberText.h"
#include "host/db/AcDbObjectPointer.h"
#include "host/db/AcDbText.h"
#include "host/db/AcDbTextStyleTable.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/EdSession.h"
#include "host/ed/SystemVariables.h"

#include <cmath>

namespace commands {
namespace {

constexpr double kLineSpacing = 5.0 / 3.0; // of the height, from base line to base line

AcDbObjectId styleNamed(const CString& name) {
  AcDbObjectPointer<AcDbTextStyleTable> styles(curDoc()->database()->textStyleTableId(), AcDb::kForRead);
  AcDbObjectId id;
  if (styles) styles->getAt(name, id);
  return id;
}

CString currentStyleName() {
  SystemVariables::Value value;
  SystemVariables::get(L"TEXTSTYLE", value);
  return std::get<CString>(value);
}

double currentHeight() {
  SystemVariables::Value value;
  SystemVariables::get(L"TEXTSIZE", value);
  return std::get<double>(value);
}

// Makes another style current. False for Escape.
bool askStyle() {
  while (true) {
    const auto name = ed::AskText({L"输入样式名 <" + currentStyleName() + L">:", {}, 0, {}});
    if (!name.hasValue()) return name.isNone();
    if (SystemVariables::set(L"TEXTSTYLE", CString(name.text).Trim()) == SystemVariables::Result::ok &&
        !styleNamed(currentStyleName()).isNull())
      return true;
    EdSession::instance().refuse(L"没有文字样式“" + name.text + L"”。", L"已有的文字样式名");
  }
}

struct Start {
  AcGePoint3d point;
  bool given = false;
};

Start askStart() {
  while (true) {
    const auto start = ed::AskPoint({L"指定文字的起点或 [样式(S)]:", L"Style", RSG_NONULL, {}});
    if (start.hasValue()) return {start.point, true};
    if (!start.isKeyword(L"Style") || !askStyle()) return {};
  }
}

struct Look {
  AcDbObjectId style;
  double height = 0;
  double widthFactor = 1;
  double rotation = 0;
};

// Height and rotation, with those of the last text as defaults. Nothing for Escape.
std::optional<Look> askLook(const AcGePoint3d& at) {
  Look look;
  look.style = styleNamed(currentStyleName());
  if (const auto* style = AcDbTextStyleTableRecord::cast(look.style.object())) {
    look.height = style->textSize();
    look.widthFactor = style->xScale();
  }
  if (look.height == 0) { // the style doesn't fix it
    look.height = currentHeight();
    const auto height =
        ed::AskDistance({L"指定高度 <" + NumberText(look.height) + L">:", {}, RSG_NOZERO | RSG_NONEG, at});
    if (height.isCancelled()) return std::nullopt;
    if (height.hasValue()) look.height = height.real;
    SystemVariables::set(L"TEXTSIZE", look.height);
  }
  const auto rotation = ed::AskAngle({L"指定文字的旋转角度 <0>:", {}, 0, at});
  if (rotation.isCancelled()) return std::nullopt;
  if (rotation.hasValue()) look.rotation = rotation.real;
  return look;
}

} // namespace

void Text() {
  const auto start = askStart();
  if (!start.given) return;
  const auto look = askLook(start.point);
  if (!look) return;
  AcGePoint3d at = start.point;
  const double spacing = look->height * kLineSpacing;
  while (true) {
    const auto line = ed::AskText({L"输入文字:", {}, 0, {}});
    if (!line.hasValue()) return;
    auto text = std::make_unique<AcDbText>();
    text->setTextString(line.text);
    text->setPosition(at);
    text->setHeight(look->height);
    text->setRotation(look->rotation);
    text->setWidthFactor(look->widthFactor);
    if (!look->style.isNull()) text->setTextStyle(look->style);
    if (AppendEntity(std::move(text)).isNull()) return;
    at += AcGeVector3d(std::sin(look->rotation), -std::cos(look->rotation), 0) * spacing;
  }
}

} // namespace commands
