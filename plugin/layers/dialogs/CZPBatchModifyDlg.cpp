#include "plugin/layers/dialogs/CZPBatchModifyDlg.h"

#include "host/afx/Numbers.h"
#include "plugin/base/NumberText.h"
#include "plugin/layers/LayerFieldText.h"
#include "plugin/layers/dialogs/LayerColumns.h"

using layers::kLayerColumns;
using layers::LayerChooser;

CZPBatchModifyDlg::CZPBatchModifyDlg(const SZPLayerData& shown, CWnd* parent) : CDialog(L"修改图层", parent) {
  m_lines.ShowCaption(false);
  m_lines.AddGroup(L"图层参数");
  for (std::size_t field = 0; field < std::size(kLayerColumns); ++field) {
    if (!kLayerColumns[field].batchLine) continue;
    CPropTreeItem line;
    line.label = kLayerColumns[field].batchLine;
    const bool typed = kLayerColumns[field].chooser == LayerChooser::none;
    line.kind = typed ? CPropTreeItem::Kind::text : CPropTreeItem::Kind::button;
    line.text = layers::FieldText(shown, kLayerFields[field]);
    line.hasTick = line.ticked = true;
    m_lines.AddItem(line);
    m_fields.push_back(field);
  }
  m_lines.ButtonPressed.Connect([this](int line) { Choose(line); });
  m_modify.Clicked.Connect([this] { OnOK(); });
  m_cancel.Clicked.Connect([this] { OnCancel(); });
}

UiLayout CZPBatchModifyDlg::Layout() {
  return ui::Column({ui::Item(m_lines).Stretch(1).Size(360, 250),
                     ui::Row({ui::Space(), ui::Item(m_modify), ui::Item(m_cancel)})});
}

// Colours and line weights begin at by layer, whatever the line shows.
void CZPBatchModifyDlg::Choose(int line) {
  const auto& column = kLayerColumns[m_fields[static_cast<std::size_t>(line)]];
  const CString start = column.chooserStart ? CString(column.chooserStart) : m_lines.GetText(line);
  if (const auto text = layers::ChooseLook(column.chooser, start)) m_lines.SetText(line, *text);
}

// The linetype scale is deliberately taken as a whole number here, and a fraction is lost; a cell of the
// table takes it.
CString CZPBatchModifyDlg::ValueOf(int line) const {
  const auto& member = kLayerFields[m_fields[static_cast<std::size_t>(line)]].member;
  const auto* number = std::get_if<double SZPLayerData::*>(&member);
  if (number && *number == &SZPLayerData::LineTypeScale) return ZP::itoa(_wtoi(m_lines.GetText(line)));
  return m_lines.GetText(line);
}

void CZPBatchModifyDlg::OnOK() {
  m_changes.clear();
  for (int line = 0; line < m_lines.GetItemCount(); ++line)
    if (m_lines.Item(line).ticked)
      m_changes.push_back({m_fields[static_cast<std::size_t>(line)], ValueOf(line)});
  CDialog::OnOK();
}

void CZPBatchModifyDlg::Assign(SZPLayerData& layer) const {
  for (const Change& change : m_changes) layers::SetFieldText(layer, kLayerFields[change.field], change.text);
}
