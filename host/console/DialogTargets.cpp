#include "host/console/DialogTargets.h"

#include "host/ed/EdLineParser.h"
#include "host/ui/CPropTree.h"
#include "host/ui/CRadioGroup.h"
#include "host/ui/CTabSheet.h"

#include <algorithm>
#include <cwctype>

namespace console {
namespace {

bool IsBlank(wchar_t c) {
  return c == L' ' || c == L'\t' || c == L'　';
}

void AddTarget(std::vector<DialogTarget>& targets, CWnd& control, int item, const CString& caption) {
  const CString name = PlainName(caption);
  CString full = name;
  if (item >= 0) full = PlainName(control.GetCaption()) + L"/" + name;
  if (control.BelongsTo()) full = PlainName(control.BelongsTo()->GetCaption()) + L"/" + name;
  targets.push_back({&control, item, name, full});
}

void CollectTargets(std::vector<DialogTarget>& targets, const CFormWnd& form) {
  for (CWnd* control : form.Controls()) {
    if (!control->IsWindowVisible()) continue;
    if (control->Kind() == UiKind::page) {
      CollectTargets(targets, static_cast<const CFormWnd&>(*control));
      continue;
    }
    AddTarget(targets, *control, -1, control->GetCaption());
    int item = 0;
    if (const auto* radios = dynamic_cast<const CRadioGroup*>(control))
      for (const CString& option : radios->Options()) AddTarget(targets, *control, item++, option);
    if (const auto* sheet = dynamic_cast<const CTabSheet*>(control))
      for (const CPropertyPage* page : sheet->Pages())
        AddTarget(targets, *control, item++, page->GetCaption());
    if (const auto* list = dynamic_cast<const CPropTree*>(control))
      for (; item < list->GetItemCount(); ++item) AddTarget(targets, *control, item, list->Item(item).label);
  }
}

CString Names(const std::vector<DialogTarget>& targets) {
  constexpr std::size_t most = 12;
  CString names;
  for (std::size_t i = 0; i < std::min(most, targets.size()); ++i) {
    if (targets[i].name.IsEmpty()) continue;
    names += (names.IsEmpty() ? L"" : L"、") +
             ed::Excerpt(UniqueName(targets, *targets[i].control, targets[i].item));
  }
  return targets.size() > most ? names + L"……" : names;
}

} // namespace

std::vector<DialogTarget> DialogTargets(CFormWnd& form) {
  std::vector<DialogTarget> targets;
  CollectTargets(targets, form);
  return targets;
}

CString UniqueName(const std::vector<DialogTarget>& targets, const CWnd& control, int item) {
  const auto own = std::find_if(targets.begin(), targets.end(), [&](const DialogTarget& target) {
    return target.control == &control && target.item == item;
  });
  if (own == targets.end()) return PlainName(control.GetCaption());
  const auto same = std::count_if(targets.begin(), targets.end(),
                                  [&](const DialogTarget& target) { return target.name == own->name; });
  return same > 1 ? own->fullName : own->name;
}

CString PlainName(const CString& caption) {
  std::wstring name;
  for (const wchar_t c : caption.View()) {
    if (!IsBlank(c) && c != L'\n' && c != L'\r') {
      name.push_back(c);
    } else if (!name.empty() && name.back() != L' ') {
      name.push_back(L' ');
    }
  }
  while (!name.empty() && std::wstring_view(L"：:. …").find(name.back()) != std::wstring_view::npos)
    name.pop_back();
  return CString(std::move(name));
}

std::optional<std::size_t> NameLength(std::wstring_view text, const CString& name) {
  if (name.IsEmpty()) return std::nullopt;
  std::size_t at = 0;
  const bool quoted = !text.empty() && text[0] == L'"' && !name.View().starts_with(L'"');
  if (quoted) ++at;
  for (const wchar_t c : name.View()) {
    if (c == L' ') {
      while (at < text.size() && IsBlank(text[at])) ++at;
      continue;
    }
    if (at == text.size() || std::towlower(text[at]) != std::towlower(c)) return std::nullopt;
    ++at;
  }
  // What PlainName leaves out may be typed all the same.
  while (at < text.size() && std::wstring_view(L"：:.…").find(text[at]) != std::wstring_view::npos) ++at;
  if (quoted) {
    if (at == text.size() || text[at] != L'"') return std::nullopt;
    ++at;
  }
  if (at < text.size() && !IsBlank(text[at]) && text[at] != L'=') return std::nullopt;
  return at;
}

std::optional<FoundTarget> FindTarget(CFormWnd& form, const CString& text,
                                      const std::function<bool(const DialogTarget&)>& fits,
                                      UiOutcome& outcome) {
  const auto all = DialogTargets(form);
  std::vector<DialogTarget> fitting, found;
  bool named = false;
  std::size_t longest = 0;
  for (const DialogTarget& target : all) {
    const auto length =
        std::max(NameLength(text.View(), target.name), NameLength(text.View(), target.fullName));
    named = named || length;
    if (!fits(target)) continue;
    fitting.push_back(target);
    if (!length || *length < longest) continue;
    if (*length > longest) found.clear();
    longest = *length;
    found.push_back(target);
  }
  if (found.size() == 1) return FoundTarget{found[0], text.Mid(static_cast<int>(longest)).TrimLeft()};
  if (found.size() > 1) {
    CString names;
    for (const DialogTarget& target : found) names += (names.IsEmpty() ? L"" : L"、") + target.fullName;
    outcome = {L"“" + ed::Excerpt(text) + L"”不止一个。", names};
  } else if (named) {
    outcome = {L"“" + ed::Excerpt(text) + L"”不能这样操作。", Names(fitting)};
  } else {
    outcome = {L"对话框中没有“" + ed::Excerpt(text) + L"”。", Names(fitting)};
  }
  return std::nullopt;
}

} // namespace console
