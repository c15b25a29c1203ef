#include "host/ed/SelectionPrompt.h"

#include "host/db/AcDbEntity.h"
#include "host/ed/AcApDocManager.h"
#include "host/ed/EdFrontEnd.h"
#include "host/ed/EdLineParser.h"
#include "host/ed/EdPrompts.h"
#include "host/ed/EdSession.h"
#include "host/ed/EntitySearch.h"
#include "host/ed/SystemVariables.h"
#include "host/ed/acutPrintf.h"

namespace ed {
namespace {

constexpr wchar_t kExpected[] =
    L"all、w x1,y1 x2,y2、c x1,y1 x2,y2、l、p、点 x,y、#句柄，空行结束，或 *cancel*（取消）";

// What one line selects. cancelled: a corner was answered with Escape.
struct Picked {
  std::vector<AcDbObjectId> ids;
  CString problem; // why the line selects nothing that it names; empty otherwise
  bool cancelled = false;
};

AcDbObjectId entityOf(const AcDbDatabase& database, const AcDbHandle& handle) {
  AcDbObjectId id;
  database.getAcDbObjectId(id, false, handle);
  const auto* entity = AcDbEntity::cast(id.object());
  return entity && !entity->isErased() ? id : AcDbObjectId();
}

bool askCorners(SelectionLine& line) {
  const auto first = AskPoint({L"指定第一个角点:", {}, RSG_NONULL, {}});
  if (!first.hasValue()) return false;
  const auto second = AskCorner({L"指定对角点:", {}, RSG_NONULL, first.point});
  if (!second.hasValue()) return false;
  line.first = first.point;
  line.second = second.point;
  return true;
}

Picked pick(SelectionLine line, AcApDocument& document) {
  using Kind = SelectionLine::Kind;
  Picked picked;
  const auto& database = *document.database();
  switch (line.kind) {
  case Kind::all:
    picked.ids = DrawnEntities(database);
    break;
  case Kind::window:
  case Kind::crossing: {
    if (!line.corners && !askCorners(line)) {
      picked.cancelled = true;
      break;
    }
    const auto box = ge::Box2d::FromCorners({line.first.x, line.first.y}, {line.second.x, line.second.y});
    picked.ids = EntitiesInWindow(database, box, line.kind == Kind::crossing);
    break;
  }
  case Kind::last:
    if (const auto id = LastEntity(database); !id.isNull()) picked.ids.push_back(id);
    break;
  case Kind::previous:
    picked.ids = document.edit().previousSelection;
    if (picked.ids.empty()) picked.problem = L"没有上一个选择集。";
    break;
  case Kind::point: {
    auto* frontEnd = EdSession::instance().frontEnd();
    const auto id = EntityAt(database, line.first, frontEnd ? frontEnd->pickAperture() : std::nullopt);
    if (id.isNull())
      picked.problem = L"该点处没有实体。";
    else
      picked.ids.push_back(id);
    document.edit().lastPoint = line.first;
    break;
  }
  case Kind::handle:
    if (const auto id = entityOf(database, line.handle); !id.isNull())
      picked.ids.push_back(id);
    else
      picked.problem = L"图形中没有句柄为 " + line.handle.ascii() + L" 的实体。";
    break;
  case Kind::end:
    break;
  }
  return picked;
}

bool takesPickFirst(const SelectionQuestion& question) {
  return question.usePickFirst && EdSession::instance().commandUsesPickSet() &&
         SystemVariables::integer(L"PICKFIRST") == 1;
}

} // namespace

std::vector<AcDbObjectId> Filtered(const std::vector<AcDbObjectId>& ids, const SelectionFilter& filter) {
  std::vector<AcDbObjectId> taken;
  for (const auto& id : ids) {
    const auto* entity = AcDbEntity::cast(id.object());
    if (entity && !entity->isErased() && filter.takes(*entity)) taken.push_back(id);
  }
  return taken;
}

SelectionAnswer AskSelection(const SelectionQuestion& question, const SelectionFilter& filter) {
  SelectionAnswer answer;
  auto& session = EdSession::instance();
  auto* document = curDoc();
  if (!document) {
    answer.cancelled = true;
    return answer;
  }
  if (takesPickFirst(question) && !document->edit().pickFirst.empty()) {
    answer.set = SelectionSet(Filtered(std::exchange(document->edit().pickFirst, {}), filter));
    if (!answer.set.ids().empty()) {
      acutPrintf(L"\n使用先选择的 %d 个对象。\n", static_cast<int>(answer.set.ids().size()));
      document->edit().previousSelection = answer.set.ids();
      return answer;
    }
  }
  CString prompt = question.prompt;
  prompt.TrimLeft(L"\n");
  EdPromptScope asking(session.prompts(), {EdPromptState::Wants::selection, prompt, {}, {}, {}, {}});
  asking.state().selected = &answer.set.ids();
  while (true) {
    const auto line = session.input().read(prompt);
    if (!line) PrintInputEnd(prompt);
    if (!line || IsCancelLine(line->text)) {
      PrintCancelled();
      answer.cancelled = true;
      break;
    }
    session.noteInput(false);
    const auto parsed = ParseSelection(line->text, document->edit().lastPoint);
    if (!parsed) {
      session.refuse(L"“" + Excerpt(line->text) + L"”不是选择方式。", kExpected);
      continue;
    }
    if (parsed->kind == SelectionLine::Kind::end) break;
    const auto picked = pick(*parsed, *document);
    if (picked.cancelled) {
      answer.cancelled = true;
      break;
    }
    if (!picked.problem.IsEmpty()) {
      session.refuse(picked.problem, kExpected);
      continue;
    }
    const auto fitting = Filtered(picked.ids, filter);
    int added = 0;
    for (const auto& id : fitting) added += answer.set.add(id) ? 1 : 0;
    acutPrintf(L"\n找到 %d 个，共 %d 个。\n", added, static_cast<int>(answer.set.ids().size()));
    if (const auto left = picked.ids.size() - fitting.size(); left > 0)
      acutPrintf(L"%d 个不合条件，未选。\n", static_cast<int>(left));
    if (question.single && !answer.set.ids().empty()) break;
  }
  session.noteInput(answer.cancelled);
  if (!answer.cancelled && !answer.set.ids().empty()) document->edit().previousSelection = answer.set.ids();
  return answer;
}

} // namespace ed
