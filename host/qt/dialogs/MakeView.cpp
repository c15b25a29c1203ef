#include "host/qt/dialogs/ControlViews.h"

#include "host/ui/CButton.h"
#include "host/ui/CCheckBox.h"
#include "host/ui/CComboBox.h"
#include "host/ui/CDrawingPreview.h"
#include "host/ui/CListBox.h"
#include "host/ui/CNumberEdit.h"
#include "host/ui/CPictureBox.h"
#include "host/ui/CPropTree.h"
#include "host/ui/CRadioGroup.h"
#include "host/ui/CStatic.h"
#include "host/ui/CTabSheet.h"
#include "host/ui/CTableWnd.h"
#include "host/ui/CTreeCtrl.h"

namespace desktop {

ControlViewPtr MakeView(CWnd& control, FormContext& context) {
  switch (control.Kind()) {
  case UiKind::window:
  case UiKind::dialog:
  case UiKind::page:
  case UiKind::dockBar:
    return nullptr;
  case UiKind::label:
    return MakeLabelView(dynamic_cast<CStatic&>(control), context);
  case UiKind::picture:
    return MakePictureView(dynamic_cast<CPictureBox&>(control), context);
  case UiKind::button:
    return MakeButtonView(dynamic_cast<CButton&>(control), context);
  case UiKind::checkBox:
    return MakeCheckBoxView(dynamic_cast<CCheckBox&>(control), context);
  case UiKind::radioGroup:
    return MakeRadioView(dynamic_cast<CRadioGroup&>(control), context);
  case UiKind::edit:
    return MakeEditView(dynamic_cast<CEdit&>(control), context);
  case UiKind::numberEdit:
    return MakeNumberView(dynamic_cast<CNumberEdit&>(control), context);
  case UiKind::comboBox:
    return MakeComboView(dynamic_cast<CComboBox&>(control), context);
  case UiKind::listBox:
    return MakeListView(dynamic_cast<CListBox&>(control), context);
  case UiKind::tree:
    return MakeTreeView(dynamic_cast<CTreeCtrl&>(control), context);
  case UiKind::table:
    return MakeTableView(dynamic_cast<CTableWnd&>(control), context);
  case UiKind::propTree:
    return MakePropTreeView(dynamic_cast<CPropTree&>(control), context);
  case UiKind::tabSheet:
    return MakeTabSheetView(dynamic_cast<CTabSheet&>(control), context);
  case UiKind::preview:
    return MakePreviewView(dynamic_cast<CDrawingPreview&>(control), context);
  }
  return nullptr;
}

} // namespace desktop
