#include "host/ed/acedSelection.h"

#include "host/ed/AcApDocManager.h"
#include "host/ed/EdSession.h"
#include "host/ed/EntitySearch.h"
#include "host/ed/SelectionPrompt.h"

namespace {

AcGePoint2d cornerOf(const void* point) {
  const auto* p = static_cast<const double*>(point);
  return {p[0], p[1]};
}

// A mode in one spelling: without "_", in capitals.
CString modeName(const wchar_t* mode) {
  CString name = mode;
  name.MakeUpper();
  name.Remove(L'_');
  return name;
}

bool isAsking(const CString& mode) {
  return mode.IsEmpty() || mode.View().starts_with(L':') || mode.View().starts_with(L'+');
}

int ask(const CString& mode, const void* prompts, const SelectionFilter& filter, SelectionSet& set) {
  ed::SelectionQuestion question;
  question.single = mode.Find(L":S") >= 0;
  if (mode.Find(L":$") >= 0) {
    const auto* texts = static_cast<const wchar_t* const*>(prompts);
    if (!texts || !texts[0]) return RTREJ;
    question.prompt = texts[0];
  }
  auto answer = ed::AskSelection(question, filter);
  if (answer.cancelled) return RTCAN;
  set = std::move(answer.set);
  return RTNORM;
}

} // namespace

int acedSSGet(const wchar_t* mode, const void* first, const void* second, const resbuf* chain, ads_name set) {
  ads_name_clear(set);
  auto* document = curDoc();
  if (!document) return RTERROR;
  const SelectionFilter filter(chain);
  if (!filter.isValid()) return RTREJ;
  const auto& database = *document->database();
  const CString name = modeName(mode);
  SelectionSet selected;
  if (isAsking(name)) {
    if (const int status = ask(name, first, filter, selected); status != RTNORM) return status;
  } else {
    std::vector<AcDbObjectId> ids;
    if (name == L"X") {
      ids = ed::AllEntities(database);
    } else if (name == L"A") {
      ids = ed::DrawnEntities(database);
    } else if (name == L"P") {
      ids = document->edit().previousSelection;
    } else if (name == L"I") {
      ids = document->edit().pickFirst;
    } else if (name == L"L") {
      if (const auto id = ed::LastEntity(database); !id.isNull()) ids.push_back(id);
    } else if ((name == L"W" || name == L"C") && first && second) {
      ids = ed::EntitiesInWindow(database, ge::Box2d::FromCorners(cornerOf(first), cornerOf(second)),
                                 name == L"C");
    } else {
      return RTREJ;
    }
    selected = SelectionSet(ed::Filtered(ids, filter));
  }
  if (selected.ids().empty()) return RTERROR;
  SelectionSets::instance().create(std::move(selected), set);
  return RTNORM;
}

int acedSSLength(const ads_name set, std::int32_t* length) {
  const auto* found = SelectionSets::instance().find(set);
  if (!found || !length) return RTERROR;
  *length = static_cast<std::int32_t>(found->ids().size());
  return RTNORM;
}

int acedSSName(const ads_name set, std::int32_t index, ads_name entity) {
  const auto* found = SelectionSets::instance().find(set);
  if (!found || index < 0 || static_cast<std::size_t>(index) >= found->ids().size()) return RTERROR;
  return acdbGetAdsName(entity, found->ids()[static_cast<std::size_t>(index)]) == Acad::eOk ? RTNORM
                                                                                            : RTERROR;
}

int acedSSFree(const ads_name set) {
  return SelectionSets::instance().free(set) ? RTNORM : RTERROR;
}

int acedSSAdd(const long long* entity, const long long* set, ads_name result) {
  auto& sets = SelectionSets::instance();
  ads_name target = {0, 0};
  if (set && !ads_name_nil(set)) {
    if (!sets.find(set)) return RTERROR;
    ads_name_set(set, target);
  }
  std::vector<AcDbObjectId> added;
  if (entity) {
    AcDbObjectId id;
    if (const auto* other = sets.find(entity))
      added = other->ids();
    else if (acdbGetObjectId(id, entity) == Acad::eOk)
      added.push_back(id);
    else
      return RTERROR;
  }
  if (ads_name_nil(target)) sets.create({}, target);
  for (const auto& id : added) sets.find(target)->add(id);
  ads_name_set(target, result);
  return RTNORM;
}

int acedSSDel(const ads_name entity, const ads_name set) {
  auto* found = SelectionSets::instance().find(set);
  AcDbObjectId id;
  if (!found || acdbGetObjectId(id, entity) != Acad::eOk) return RTERROR;
  return found->remove(id) ? RTNORM : RTERROR;
}

int acedSSMemb(const ads_name entity, const ads_name set) {
  const auto* found = SelectionSets::instance().find(set);
  AcDbObjectId id;
  if (!found || acdbGetObjectId(id, entity) != Acad::eOk) return RTERROR;
  return found->has(id) ? RTNORM : RTERROR;
}

int acedSSSetFirst(const long long*, const long long* set) {
  auto* document = curDoc();
  if (!document) return RTERROR;
  const auto* found = set ? SelectionSets::instance().find(set) : nullptr;
  if (set && !ads_name_nil(set) && !found) return RTERROR;
  document->edit().pickFirst = found ? found->ids() : std::vector<AcDbObjectId>();
  return RTNORM;
}
