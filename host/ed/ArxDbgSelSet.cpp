#include "host/ed/ArxDbgSelSet.h"

#include "host/ed/SelectionPrompt.h"
#include "host/ed/acedSelection.h"

ArxDbgSelSet::SelSetStatus ArxDbgSelSet::userSelect(const wchar_t* prompt, const resbuf* chain) {
  m_set = {};
  const SelectionFilter filter(chain);
  if (!filter.isValid()) return m_status = kRejected;
  ed::SelectionQuestion question;
  if (prompt && *prompt) question.prompt = prompt;
  question.usePickFirst = m_allowPickfirst;
  auto answer = ed::AskSelection(question, filter);
  if (answer.cancelled) return m_status = kCanceled;
  m_set = std::move(answer.set);
  return m_status = m_set.ids().empty() ? kRejected : kSelected;
}

ArxDbgSelSet::SelSetStatus ArxDbgSelSet::get(const wchar_t* mode, const void* first, const void* second,
                                             const resbuf* filter) {
  m_set = {};
  ads_name name;
  if (acedSSGet(mode, first, second, filter, name) != RTNORM) return m_status = kRejected;
  m_set = std::move(*SelectionSets::instance().find(name));
  acedSSFree(name);
  return m_status = kSelected;
}

ArxDbgSelSet::SelSetStatus ArxDbgSelSet::allSelect(const resbuf* filter) {
  return get(L"_X", nullptr, nullptr, filter);
}

ArxDbgSelSet::SelSetStatus ArxDbgSelSet::impliedSelect(const resbuf* filter) {
  return get(L"_I", nullptr, nullptr, filter);
}

ArxDbgSelSet::SelSetStatus ArxDbgSelSet::previousSelect(const resbuf* filter) {
  return get(L"_P", nullptr, nullptr, filter);
}

ArxDbgSelSet::SelSetStatus ArxDbgSelSet::lastSelect(const resbuf* filter) {
  return get(L"_L", nullptr, nullptr, filter);
}

ArxDbgSelSet::SelSetStatus ArxDbgSelSet::windowSelect(const AcGePoint3d& first, const AcGePoint3d& second,
                                                      const resbuf* filter) {
  const ads_point a = {first.x, first.y, first.z};
  const ads_point b = {second.x, second.y, second.z};
  return get(L"_W", a, b, filter);
}

ArxDbgSelSet::SelSetStatus ArxDbgSelSet::crossingSelect(const AcGePoint3d& first, const AcGePoint3d& second,
                                                        const resbuf* filter) {
  const ads_point a = {first.x, first.y, first.z};
  const ads_point b = {second.x, second.y, second.z};
  return get(L"_C", a, b, filter);
}
