#include "plugin/layers/dialogs/CZPLayerGridCtrl.h"

#include "host/afx/Numbers.h"
#include "host/ed/acedColors.h"
#include "plugin/base/NumberText.h"
#include "plugin/graph/Notice.h"
#include "plugin/layers/CZPManagerLayer.h"
#include "plugin/layers/LayerFieldText.h"
#include "plugin/layers/dialogs/LayerColumns.h"

namespace {

constexpr int kNumberWidth = 40;
constexpr int kFieldColumns = static_cast<int>(std::size(kLayerFields));
constexpr int kFirstField = 1; // the number stands before
// What can't be edited is blue on grey.
constexpr int kBlue = 5;
constexpr int kGrey = 9;

// By layer and by block are no colours.
std::optional<COLORREF> ColourOf(int index) {
  constexpr int last = 255;
  return index >= 1 && index <= last ? std::optional<COLORREF>(acedGetRGB(index)) : std::nullopt;
}

} // namespace

CZPLayerGridCtrl::CZPLayerGridCtrl(CFormWnd& form) : CGridCtrl(form, L"图层列表") {
  std::vector<Heading> headings{{L"序号", kNumberWidth}};
  for (const layers::LayerColumn& column : layers::kLayerColumns)
    headings.push_back({column.title, column.width});
  SetHeading(headings);
  SetColumnReadOnly(layers::kNumberColumn, true);
  SetColumnReadOnly(layers::kIdentifierColumn, true);
  for (int i = 0; i < kFieldColumns; ++i)
    SetColumnPressed(kFirstField + i, layers::kLayerColumns[i].chooser != layers::LayerChooser::none);
  SetSelectsRows(true);
  SetMultiSelect(true);
  SetStateName(L"ZPLayerGridCtrl");
  CellPressed.Connect([this](int row, int column) { Choose(row, column); });
  EditEnded.Connect([this](UiEditEnd& end) {
    if (!end.cancelled && end.text != end.oldText) ChangeCell(end.row, end.column, end.text);
  });
}

void CZPLayerGridCtrl::Show(const std::vector<CZPLayer*>& shown) {
  const UiQuietly quietly(*this);
  DeleteAllRows(GetFixedRowCount());
  for (CZPLayer* layer : shown) AddLayer(*layer);
}

int CZPLayerGridCtrl::AddLayer(CZPLayer& layer) {
  const UiQuietly quietly(*this);
  const int row = AddRow({}, &layer);
  ShowRow(row);
  return row;
}

CZPLayer* CZPLayerGridCtrl::LayerAt(int row) const {
  return IsRow(row) ? static_cast<CZPLayer*>(GetRowData(row)) : nullptr;
}

void CZPLayerGridCtrl::ShowRow(int row) {
  const CZPLayer* layer = LayerAt(row);
  if (!layer) return;
  const int headings = 1;
  SetItemText(row, layers::kNumberColumn, ZP::itoa(row + 1 - headings));
  for (int i = 0; i < kFieldColumns; ++i)
    SetItemText(row, kFirstField + i, layers::FieldText(layer->Data(), kLayerFields[i]));
  for (const int column : {layers::kNumberColumn, layers::kIdentifierColumn})
    SetCellColours(row, column, acedGetRGB(kGrey), acedGetRGB(kBlue));
  // A sample of the colour hides its number; the number of what is no colour can be read.
  const auto colour = ColourOf(layer->GetColorIndex());
  SetCellColours(row, layers::kColourColumn, colour, colour);
}

void CZPLayerGridCtrl::Choose(int row, int column) {
  const auto text =
      layers::ChooseLook(layers::kLayerColumns[column - kFirstField].chooser, GetItemText(row, column));
  if (text) ChangeCell(row, column, *text);
}

void CZPLayerGridCtrl::ChangeCell(int row, int column, const CString& text) {
  if (!LayerAt(row)) return;
  SetItemText(row, column, text);
  if (column != layers::kIdentifierColumn || CheckIdentifier(row)) WriteRow(row);
  ShowRow(row);
}

bool CZPLayerGridCtrl::CheckIdentifier(int row) {
  const CString identifier = CString(GetItemText(row, layers::kIdentifierColumn)).Trim();
  SetItemText(row, layers::kIdentifierColumn, identifier);
  if (identifier.IsEmpty()) {
    notice::Tell(L"图层标识不能为空字符串，请重新输入。");
    return false;
  }
  const CZPLayer* bearer = CZPManagerLayer::GetInstance()->GetLayer(identifier);
  if (bearer && bearer != LayerAt(row)) {
    CString text;
    text.Format(L"图层标识【%s】已经存在，请重新输入图层标识。", identifier);
    AfxMessageBox(text); // no more than that: the row takes it all the same
  }
  return true;
}

void CZPLayerGridCtrl::WriteRow(int row) {
  CZPLayer* layer = LayerAt(row);
  if (!layer) return;
  for (int i = 0; i < kFieldColumns; ++i)
    layers::SetFieldText(layer->Data(), kLayerFields[i], GetItemText(row, kFirstField + i));
}

void CZPLayerGridCtrl::ShowByLayer(int row, const CString& userLayer) {
  if (!LayerAt(row)) return;
  SetItemText(row, layers::kNameColumn, userLayer);
  SetItemText(row, layers::kColourColumn, L"256");
  SetItemText(row, layers::kLinetypeColumn, L"ByLayer");
  SetItemText(row, layers::kLineWeightColumn, L"-0.01");
}

void CZPLayerGridCtrl::WriteRows() {
  const UiQuietly quietly(*this);
  for (int row = GetFixedRowCount(); row < GetRowCount(); ++row) {
    WriteRow(row);
    ShowRow(row);
  }
}
