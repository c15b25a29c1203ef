#include "host/console/DialogLine.h"

#include "host/console/DialogRows.h"
#include "host/console/DialogTargets.h"
#include "host/console/DialogText.h"
#include "host/ed/EdLineParser.h"
#include "host/ui/CAcUiDockControlBar.h"
#include "host/ui/CButton.h"
#include "host/ui/CCheckBox.h"
#include "host/ui/CComboBox.h"
#include "host/ui/CDialog.h"
#include "host/ui/CListBox.h"
#include "host/ui/CMutiTreeCtrl.h"
#include "host/ui/CNumberEdit.h"
#include "host/ui/CPropTree.h"
#include "host/ui/CRadioGroup.h"
#include "host/ui/CTabSheet.h"

namespace console {
namespace {

// A line being obeyed: the form, and what stands behind the verb.
struct Line {
  CFormWnd& form;
  CString rest;
  const std::function<void(const CString&)>& print;
};

using Fits = std::function<bool(const DialogTarget&)>;

bool IsItself(const DialogTarget& target) {
  return target.item < 0;
}
template <class Control> bool Is(const DialogTarget& target) {
  return IsItself(target) && dynamic_cast<Control*>(target.control);
}

// Where a line may be cut into what is changed and its new text: at every "=" outside of quotes.
std::vector<int> CutsAtEquals(const CString& text) {
  std::vector<int> cuts;
  bool quoted = false;
  for (int i = 0; i < text.GetLength(); ++i) {
    if (text[i] == L'"') quoted = !quoted;
    if (!quoted && text[i] == L'=') cuts.push_back(i);
  }
  return cuts;
}

// The text cut at the first "=" before which there is a target; rest is what stands between target and "=".
struct Assignment {
  FoundTarget found;
  CString text;
};
std::optional<Assignment> ParseAssignment(const Line& line, const Fits& fits, UiOutcome& outcome) {
  const auto cuts = CutsAtEquals(line.rest);
  if (cuts.empty()) outcome = {L"缺少“= 文字”。", L"= 后面写新的文字"};
  for (const int at : cuts) {
    UiOutcome here;
    const CString left = line.rest.Left(at).TrimRight();
    CString text = line.rest.Mid(at + 1);
    if (text.View().starts_with(L' ')) text = text.Mid(1);
    if (auto found = FindTarget(line.form, left, fits, here)) return Assignment{std::move(*found), text};
    if (outcome) outcome = here;
  }
  return std::nullopt;
}

UiOutcome NothingMore(const CString& rest) {
  if (rest.IsEmpty()) return {};
  return {L"“" + ed::Excerpt(rest) + L"”是多余的。", L"到此为止的一行"};
}

UiOutcome MissingRow(const CString& text, const std::vector<DialogRow>& rows) {
  CString range;
  range.Format(L"1 到 %d 的行号，或行中文字", static_cast<int>(rows.size()));
  return {L"没有这一行：“" + ed::Excerpt(text) + L"”。", range};
}

UiOutcome Show(const Line& line) {
  if (line.rest.IsEmpty()) {
    line.print(FormText(line.form));
    return {};
  }
  UiOutcome outcome;
  const auto found = FindTarget(line.form, line.rest, IsItself, outcome);
  if (!found) return outcome;
  if (auto more = NothingMore(found->rest); !more) return more;
  line.print(ControlText(line.form, *found->target.control));
  return {};
}

UiOutcome ClickCell(CTableWnd& table, const CString& where) {
  const auto rows = DialogRows(table);
  UiOutcome outcome;
  const auto cell = FindCell(table, rows, where, outcome);
  return cell.row ? table.UserClick(cell.row->index, cell.column) : outcome;
}

UiOutcome Click(const Line& line) {
  UiOutcome outcome;
  const auto found = FindTarget(
      line.form, line.rest,
      [](const DialogTarget& t) {
        return t.item >= 0 || Is<CButton>(t) || Is<CCheckBox>(t) || Is<CTableWnd>(t);
      },
      outcome);
  if (!found) return outcome;
  const auto& [target, rest] = *found;
  if (auto* table = dynamic_cast<CTableWnd*>(target.control)) return ClickCell(*table, rest);
  if (auto more = NothingMore(rest); !more) return more;
  if (auto* button = dynamic_cast<CButton*>(target.control)) return button->UserClick();
  if (auto* box = dynamic_cast<CCheckBox*>(target.control)) return box->UserCheck(!box->GetCheck());
  if (auto* radios = dynamic_cast<CRadioGroup*>(target.control)) return radios->UserSelect(target.item);
  if (auto* sheet = dynamic_cast<CTabSheet*>(target.control)) return sheet->UserSelect(target.item);
  return static_cast<CPropTree*>(target.control)->UserPress(target.item);
}

// The row by its text, for controls that have no other way to be set.
template <class Control> UiOutcome SelectByText(Control& control, const CString& text) {
  const auto rows = DialogRows(control);
  const DialogRow* row = FindRow(rows, text);
  return row ? control.UserSelect(row->index) : MissingRow(text, rows);
}

UiOutcome SetProperty(const DialogTarget& target, const CString& between, const CString& text) {
  auto& list = static_cast<CPropTree&>(*target.control);
  int item = target.item;
  if (item < 0) {
    const auto rows = DialogRows(list);
    const DialogRow* row = FindRow(rows, between);
    if (!row) return MissingRow(between, rows);
    item = row->index;
  } else if (auto more = NothingMore(between); !more) {
    return more;
  }
  return list.UserSetText(item, text);
}

UiOutcome Set(const Line& line) {
  UiOutcome outcome;
  const auto line2 = ParseAssignment(
      line,
      [](const DialogTarget& t) {
        return Is<CEdit>(t) || Is<CComboBox>(t) || Is<CListBox>(t) || Is<CRadioGroup>(t) ||
               dynamic_cast<CPropTree*>(t.control);
      },
      outcome);
  if (!line2) return outcome;
  const auto& [found, text] = *line2;
  CWnd* control = found.target.control;
  if (dynamic_cast<CPropTree*>(control)) return SetProperty(found.target, found.rest, text);
  if (auto more = NothingMore(found.rest); !more) return more;
  if (auto* list = dynamic_cast<CListBox*>(control)) return SelectByText(*list, text);
  if (auto* radios = dynamic_cast<CRadioGroup*>(control)) return SelectByText(*radios, text);
  if (auto* combo = dynamic_cast<CComboBox*>(control)) {
    const bool known = combo->FindStringExact(text) >= 0;
    return known || combo->TakesFreeText() ? combo->UserType(text) : SelectByText(*combo, text);
  }
  auto& edit = static_cast<CEdit&>(*control);
  outcome = edit.UserType(text);
  if (outcome) edit.UserLeave();
  return outcome;
}

UiOutcome Step(const Line& line) {
  UiOutcome outcome;
  const auto found = FindTarget(line.form, line.rest, Is<CNumberEdit>, outcome);
  if (!found) return outcome;
  const auto steps = ed::ParseInteger(found->rest);
  constexpr long most = 1000000;
  if (!steps || *steps < -most || *steps > most)
    return {L"“" + ed::Excerpt(found->rest) + L"”不是步数。", L"一个整数，如 1 或 -1"};
  auto& edit = static_cast<CNumberEdit&>(*found->target.control);
  outcome = edit.UserStep(static_cast<int>(*steps));
  if (outcome) edit.UserLeave();
  return outcome;
}

UiOutcome SelectRows(CTableWnd& table, const CString& text) {
  const auto rows = DialogRows(table);
  const auto chosen = FindRowList(rows, text);
  if (chosen.empty()) {
    UiOutcome outcome;
    const auto cell = FindCell(table, rows, text, outcome);
    return cell.row ? table.UserClick(cell.row->index, cell.column) : MissingRow(text, rows);
  }
  if (chosen.size() > 1 && !table.IsMultiSelect())
    return {L"“" + table.GetCaption() + L"”只能选择一行。", L"一个行号"};
  int column = 0;
  while (column < table.GetColumnCount() && table.Column(column).width <= 0) ++column;
  auto outcome = table.UserClick(chosen[0]->index, column);
  for (std::size_t i = 1; i < chosen.size() && outcome; ++i)
    if (!table.IsRowSelected(chosen[i]->index))
      outcome = table.UserClick(chosen[i]->index, column, CTableWnd::Pick::toggle);
  return outcome;
}

UiOutcome Select(const Line& line) {
  UiOutcome outcome;
  const auto found = FindTarget(
      line.form, line.rest,
      [](const DialogTarget& t) {
        return Is<CTableWnd>(t) || Is<CTreeCtrl>(t) || Is<CListBox>(t) || Is<CComboBox>(t) ||
               Is<CRadioGroup>(t) || Is<CTabSheet>(t) || dynamic_cast<CPropTree*>(t.control);
      },
      outcome);
  if (!found) return outcome;
  const auto& [target, rest] = *found;
  if (auto* table = dynamic_cast<CTableWnd*>(target.control)) return SelectRows(*table, rest);
  if (auto* list = dynamic_cast<CPropTree*>(target.control); list && target.item >= 0)
    return list->UserSelect(target.item);
  const auto rows = DialogRows(*target.control);
  const DialogRow* row = FindRow(rows, rest);
  if (!row) return MissingRow(rest, rows);
  if (auto* tree = dynamic_cast<CTreeCtrl*>(target.control)) return tree->UserSelect(row->item);
  if (auto* list = dynamic_cast<CListBox*>(target.control)) return list->UserSelect(row->index);
  if (auto* combo = dynamic_cast<CComboBox*>(target.control)) return combo->UserSelect(row->index);
  if (auto* radios = dynamic_cast<CRadioGroup*>(target.control)) return radios->UserSelect(row->index);
  if (auto* sheet = dynamic_cast<CTabSheet*>(target.control)) return sheet->UserSelect(row->index);
  return static_cast<CPropTree*>(target.control)->UserSelect(row->index);
}

// An edit that stands open at the cell is gone on with; one that a rule refuses afterwards stands open, which
// its message has told.
UiOutcome EditCell(CTableWnd& table, const CString& where, const CString& text) {
  const auto rows = DialogRows(table);
  UiOutcome outcome;
  const auto cell = FindCell(table, rows, where, outcome);
  if (!cell.row) return outcome;
  const UiCell& shown = table.Cell(cell.row->index, cell.column);
  if (shown.choices) return table.UserChoose(cell.row->index, cell.column, text);
  outcome = table.UserBeginEdit(cell.row->index, cell.column);
  if (outcome) outcome = table.UserTypeEdit(text);
  return outcome ? table.UserEndEdit() : outcome;
}

UiOutcome Edit(const Line& line) {
  UiOutcome outcome;
  const auto parsed = ParseAssignment(
      line, [](const DialogTarget& t) { return Is<CTableWnd>(t) || dynamic_cast<CPropTree*>(t.control); },
      outcome);
  if (!parsed) return outcome;
  const auto& [found, text] = *parsed;
  if (auto* table = dynamic_cast<CTableWnd*>(found.target.control)) return EditCell(*table, found.rest, text);
  return SetProperty(found.target, found.rest, text);
}

std::optional<bool> ParseSwitch(const CString& word) {
  if (word.CompareNoCase(L"on") == 0 || word == L"开") return true;
  if (word.CompareNoCase(L"off") == 0 || word == L"关") return false;
  return std::nullopt;
}

UiOutcome Check(const Line& line) {
  const int blank = line.rest.ReverseFind(L' ');
  const auto state = ParseSwitch(blank < 0 ? CString() : line.rest.Mid(blank + 1));
  if (!state) return {L"缺少 on 或 off。", L"check 控件 行 on，或 off"};
  UiOutcome outcome;
  const auto found = FindTarget(
      line.form, line.rest.Left(blank).TrimRight(),
      [](const DialogTarget& t) {
        return Is<CCheckBox>(t) || Is<CMutiTreeCtrl>(t) || dynamic_cast<CPropTree*>(t.control);
      },
      outcome);
  if (!found) return outcome;
  const auto& [target, rest] = *found;
  auto* list = dynamic_cast<CPropTree*>(target.control);
  if (auto* box = dynamic_cast<CCheckBox*>(target.control)) {
    outcome = NothingMore(rest);
    return outcome ? box->UserCheck(*state) : outcome;
  }
  if (list && target.item >= 0) return list->UserTick(target.item, *state);
  const auto rows = DialogRows(*target.control);
  const DialogRow* row = FindRow(rows, rest);
  if (!row) return MissingRow(rest, rows);
  if (list) return list->UserTick(row->index, *state);
  return static_cast<CMutiTreeCtrl*>(target.control)->UserCheck(row->item, *state);
}

// The command of the menu that now stands open.
UiOutcome ChooseFromMenu(const UiContextMenu& menu, const CString& command) {
  CString names;
  for (const UiMenuItem& item : menu.Items()) {
    if (PlainName(item.text).CompareNoCase(PlainName(command).View()) == 0) return menu.UserChoose(item.id);
    names += (names.IsEmpty() ? L"" : L"、") + PlainName(item.text);
  }
  return {L"菜单中没有“" + ed::Excerpt(command) + L"”。", names};
}

UiOutcome Menu(const Line& line) {
  UiOutcome outcome;
  const auto found = FindTarget(
      line.form, line.rest, [](const DialogTarget& t) { return Is<CTableWnd>(t) || Is<CTreeCtrl>(t); },
      outcome);
  if (!found) return outcome;
  auto* table = dynamic_cast<CTableWnd*>(found->target.control);
  auto* tree = dynamic_cast<CTreeCtrl*>(found->target.control);
  const UiContextMenu& menu = table ? table->Menu : tree->Menu;
  const auto rows = DialogRows(*found->target.control);
  for (const auto& [rowText, command] : CutsAtBlanks(found->rest)) {
    const DialogRow* row = FindRow(rows, rowText);
    if (!row) continue;
    outcome = table ? table->UserOpenMenu(row->index, 0) : tree->UserOpenMenu(row->item);
    return outcome ? ChooseFromMenu(menu, command) : outcome;
  }
  if (CutsAtBlanks(found->rest).empty() && !found->rest.IsEmpty()) {
    outcome = table ? table->UserOpenMenu(-1, 0) : tree->UserOpenMenu(nullptr);
    return outcome ? ChooseFromMenu(menu, found->rest) : outcome;
  }
  return MissingRow(found->rest, rows);
}

UiOutcome DoubleClick(const Line& line) {
  UiOutcome outcome;
  const auto found = FindTarget(
      line.form, line.rest,
      [](const DialogTarget& t) { return Is<CTableWnd>(t) || Is<CTreeCtrl>(t) || Is<CListBox>(t); }, outcome);
  if (!found) return outcome;
  const auto rows = DialogRows(*found->target.control);
  const DialogRow* row = FindRow(rows, found->rest);
  auto* table = dynamic_cast<CTableWnd*>(found->target.control);
  if (!row && table) {
    const auto cell = FindCell(*table, rows, found->rest, outcome);
    return cell.row ? table->UserDoubleClick(cell.row->index, cell.column) : MissingRow(found->rest, rows);
  }
  if (!row) return MissingRow(found->rest, rows);
  if (table) return table->UserDoubleClick(row->index, 0);
  if (auto* tree = dynamic_cast<CTreeCtrl*>(found->target.control)) return tree->UserDoubleClick(row->item);
  return static_cast<CListBox*>(found->target.control)->UserDoubleClick(row->index);
}

UiOutcome Close(const Line& line) {
  if (auto more = NothingMore(line.rest); !more) return more;
  if (auto* dialog = dynamic_cast<CDialog*>(&line.form)) dialog->UserClose();
  if (auto* bar = dynamic_cast<CAcUiDockControlBar*>(&line.form)) bar->UserClose();
  return {};
}

UiOutcome Answer(const Line&) {
  return {L"没有等待回答的消息框。", L"show 查看对话框"};
}

struct Verb {
  const wchar_t* word;
  UiOutcome (*obey)(const Line&);
};
constexpr Verb kVerbs[] = {
    {L"show", Show}, {L"click", Click}, {L"set", Set},       {L"select", Select},
    {L"edit", Edit}, {L"check", Check}, {L"menu", Menu},     {L"dblclick", DoubleClick},
    {L"step", Step}, {L"close", Close}, {L"answer", Answer},
};

} // namespace

UiOutcome ObeyDialogLine(CFormWnd& form, const CString& line,
                         const std::function<void(const CString&)>& print) {
  const CString text = CString(line).TrimLeft();
  const CString word = text.SpanExcluding(L" \t");
  const CString rest = text.Mid(word.GetLength()).TrimLeft();
  CString words;
  for (const Verb& verb : kVerbs) {
    if (word.CompareNoCase(verb.word) == 0) return verb.obey({form, rest, print});
    if (verb.obey != Answer) words += (words.IsEmpty() ? L"" : L"、") + CString(verb.word);
  }
  return {L"对话框中没有“" + ed::Excerpt(word) + L"”这种操作。", words};
}

} // namespace console
