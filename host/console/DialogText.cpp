#include "host/console/DialogText.h"

#include "host/console/DialogRows.h"
#include "host/console/DialogTargets.h"
#include "host/ui/CButton.h"
#include "host/ui/CCheckBox.h"
#include "host/ui/CComboBox.h"
#include "host/ui/CListBox.h"
#include "host/ui/CMutiTreeCtrl.h"
#include "host/ui/CNumberEdit.h"
#include "host/ui/CPictureBox.h"
#include "host/ui/CPropTree.h"
#include "host/ui/CRadioGroup.h"
#include "host/ui/CTabSheet.h"

#include <string>

namespace console {
namespace {

constexpr std::size_t kMostRows = 50;
constexpr int kLongestText = 200;

CString OneLine(const CString& text) {
  CString line;
  for (const wchar_t c : text.View()) {
    if (c == L'\r') continue;
    line += c == L'\n' ? L' ' : c;
    if (line.GetLength() == kLongestText) return line + L"……";
  }
  return line;
}

// One control in words, cut to so many rows.
class ControlWriter {
 public:
  ControlWriter(CFormWnd& form, std::size_t mostRows)
      : m_targets(DialogTargets(form)), m_mostRows(mostRows) {}

  CString Write(CWnd& control) {
    m_text.Empty();
    const CString name = UniqueName(m_targets, control) + (control.IsWindowEnabled() ? L"" : L"（不可用）");
    if (control.Kind() == UiKind::label) return OneLine(control.GetCaption()) + L"\n";
    if (const auto* button = dynamic_cast<CButton*>(&control)) return ButtonText(*button, name);
    if (const auto* box = dynamic_cast<CCheckBox*>(&control)) return Tick(box->GetCheck()) + name + L"\n";
    if (const auto* edit = dynamic_cast<CEdit*>(&control))
      return name + (edit->IsReadOnly() ? L"（只读）：" : L"：") + OneLine(edit->GetText()) + L"\n";
    if (const auto* combo = dynamic_cast<CComboBox*>(&control))
      return name + L"：" + OneLine(combo->GetText()) + Choices(*combo);
    if (const auto* picture = dynamic_cast<CPictureBox*>(&control))
      return name + L"：" + (picture->GetPicture().IsEmpty() ? CString(L"无图片") : picture->GetPicture()) +
             L"\n";
    if (control.Kind() == UiKind::preview) return name + L"（预览）\n";
    m_text = name + L"：\n";
    if (const auto* radios = dynamic_cast<CRadioGroup*>(&control)) Write(*radios);
    if (const auto* list = dynamic_cast<CListBox*>(&control)) Write(*list);
    if (const auto* tree = dynamic_cast<CTreeCtrl*>(&control)) Write(*tree);
    if (const auto* table = dynamic_cast<CTableWnd*>(&control)) Write(*table);
    if (const auto* list = dynamic_cast<CPropTree*>(&control)) Write(*list);
    if (const auto* sheet = dynamic_cast<CTabSheet*>(&control)) Write(*sheet);
    return m_text;
  }

 private:
  // With its dots, which say that it opens something.
  static CString ButtonText(const CButton& button, const CString& name) {
    const bool dots = button.GetCaption().View().ends_with(L"...");
    return L"[" + name + (dots ? L"..." : L"") + (button.IsDefault() ? L" *" : L"") + L"]\n";
  }
  static CString Tick(bool ticked) { return ticked ? L"[x] " : L"[ ] "; }
  CString Choices(const CComboBox& combo) const {
    CString texts;
    for (int i = 0; i < combo.GetCount(); ++i) texts += (i == 0 ? L"" : L"、") + combo.GetLBText(i);
    return texts.IsEmpty() ? CString(L"\n") : L"（" + OneLine(texts) + L"）\n";
  }
  // A numbered line; false when enough have been written.
  bool Row(std::size_t number, bool selected, const CString& text) {
    if (number > m_mostRows) return false;
    m_text.AppendFormat(selected ? L"> %3d  " : L"  %3d  ", static_cast<int>(number));
    m_text += OneLine(text) + L"\n";
    return true;
  }
  void More(std::size_t count) {
    if (count > m_mostRows) m_text.AppendFormat(L"  …… 共 %d 行\n", static_cast<int>(count));
    if (count == 0) m_text += L"  （无）\n";
  }

  void Write(const CRadioGroup& radios) {
    int option = 0;
    for (const CString& text : radios.Options())
      m_text += (option++ == radios.GetCurSel() ? L"  (o) " : L"  ( ) ") + text + L"\n";
  }
  void Write(const CListBox& list) {
    for (int i = 0; i < list.GetCount(); ++i)
      if (!Row(static_cast<std::size_t>(i) + 1, i == list.GetCurSel(), list.GetText(i))) break;
    More(static_cast<std::size_t>(list.GetCount()));
  }
  void Write(const CTreeCtrl& tree) {
    std::size_t count = 0;
    tree.Walk([&](HTREEITEM item) {
      CString indent;
      for (const UiTreeItem* above = item->parent; above; above = above->parent) indent += L"  ";
      if (tree.HasTicks()) indent += Tick(item->checked);
      Row(++count, item == tree.GetSelectedItem(), indent + item->text);
      return true;
    });
    More(count);
  }
  static CString Colour(COLORREF colour) {
    CString text;
    text.Format(L"#%02X%02X%02X", GetRValue(colour), GetGValue(colour), GetBValue(colour));
    return text;
  }
  static CString Cells(const CTableWnd& table, int row) {
    CString line;
    bool first = true;
    for (int column = 0; column < table.GetColumnCount(); ++column) {
      const UiCell& cell = table.Cell(row, column);
      if (table.Column(column).width <= 0) continue;
      CString text = cell.text;
      if (text.IsEmpty() && cell.image >= 0) text = table.ImageName(cell.image);
      if (text.IsEmpty() && cell.image >= 0) text.Format(L"图标%d", cell.image);
      if (text.IsEmpty() && !cell.picture.IsEmpty()) text = L"图片";
      if (text.IsEmpty() && cell.background) text = Colour(*cell.background);
      line += (first ? L"" : L" | ") + text;
      first = false;
    }
    return line;
  }
  void Write(const CTableWnd& table) {
    if (table.HasColumnTitles()) {
      CString line;
      for (int column = 0; column < table.GetColumnCount(); ++column)
        if (table.Column(column).width > 0)
          line += (line.IsEmpty() ? L"" : L" | ") + table.Column(column).title;
      m_text += L"       " + line + L"\n";
    }
    std::size_t count = 0;
    for (int row = 0; row < table.GetRowCount(); ++row) {
      if (!table.Row(row).fixed) {
        Row(++count, table.IsRowSelected(row), Cells(table, row));
      } else if (count < m_mostRows) {
        m_text += L"       " + Cells(table, row) + L"\n";
      }
    }
    More(count);
    if (const auto& edit = table.CurrentEdit()) {
      int number = 0;
      for (int row = 0; row <= edit->row; ++row) number += table.Row(row).fixed ? 0 : 1;
      m_text.AppendFormat(L"  正在编辑第 %d 行“%s”：%s\n", number, ColumnHeading(table, edit->column),
                          OneLine(edit->text));
    }
  }
  void Write(const CPropTree& list) {
    int number = 0;
    for (const CPropTreeGroup& group : list.Groups()) {
      m_text += L"  " + group.title + L"\n";
      for (const CPropTreeItem& item : group.items) {
        CString line = L"    ";
        if (item.hasTick) line += Tick(item.ticked);
        line += item.label + (item.readOnly ? L"（只读）：" : L"：") + OneLine(item.text);
        CString choices;
        for (const CString& choice : item.choices) choices += (choices.IsEmpty() ? L"" : L"、") + choice;
        if (!choices.IsEmpty()) line += L"（" + choices + L"）";
        m_text += line + L"\n";
        if (number++ == list.GetCurSel() && !item.info.IsEmpty())
          m_text += L"      " + OneLine(item.info) + L"\n";
      }
    }
  }
  void Write(const CTabSheet& sheet) {
    int number = 0;
    for (const CPropertyPage* page : sheet.Pages())
      m_text += (number++ == sheet.GetActiveIndex() ? L"  (o) " : L"  ( ) ") + page->GetCaption() + L"\n";
  }

  std::vector<DialogTarget> m_targets;
  std::size_t m_mostRows;
  CString m_text;
};

void WriteLayout(const UiLayout& layout, ControlWriter& writer, CString& text) {
  if (layout.kind == UiLayout::Kind::group && !layout.title.IsEmpty())
    text += L"-- " + layout.title + L" --\n";
  if (layout.control && layout.control->IsWindowVisible()) {
    text += writer.Write(*layout.control);
    if (const auto* sheet = dynamic_cast<const CTabSheet*>(layout.control); sheet && sheet->GetActivePage())
      WriteLayout(sheet->GetActivePage()->Layout(), writer, text);
  }
  for (const UiLayout& child : layout.children) WriteLayout(child, writer, text);
}

} // namespace

CString FormText(CFormWnd& form) {
  ControlWriter writer(form, kMostRows);
  CString text = L"== " + OneLine(form.GetCaption()) + L" ==\n";
  WriteLayout(form.Layout(), writer, text);
  return text;
}

CString ControlText(CFormWnd& form, CWnd& control) {
  return ControlWriter(form, std::string::npos).Write(control);
}

} // namespace console
