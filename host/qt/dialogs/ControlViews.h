// A view for every kind of control. Each function stands in the file of its kind.
#pragma once

#include "host/qt/dialogs/ControlView.h"

class CButton;
class CCheckBox;
class CComboBox;
class CDrawingPreview;
class CEdit;
class CListBox;
class CNumberEdit;
class CPictureBox;
class CPropTree;
class CRadioGroup;
class CStatic;
class CTabSheet;
class CTableWnd;
class CTreeCtrl;

namespace desktop {

using ControlViewPtr = std::unique_ptr<ControlView>;

// Null for a kind that is no control.
ControlViewPtr MakeView(CWnd& control, FormContext& context);

ControlViewPtr MakeLabelView(CStatic& control, FormContext& context);
ControlViewPtr MakeButtonView(CButton& control, FormContext& context);
ControlViewPtr MakeCheckBoxView(CCheckBox& control, FormContext& context);
ControlViewPtr MakeRadioView(CRadioGroup& control, FormContext& context);
ControlViewPtr MakeEditView(CEdit& control, FormContext& context);
ControlViewPtr MakeNumberView(CNumberEdit& control, FormContext& context);
ControlViewPtr MakeComboView(CComboBox& control, FormContext& context);
ControlViewPtr MakeListView(CListBox& control, FormContext& context);
ControlViewPtr MakeTreeView(CTreeCtrl& control, FormContext& context);
ControlViewPtr MakeTableView(CTableWnd& control, FormContext& context);
ControlViewPtr MakePropTreeView(CPropTree& control, FormContext& context);
ControlViewPtr MakeTabSheetView(CTabSheet& control, FormContext& context);
ControlViewPtr MakePictureView(CPictureBox& control, FormContext& context);
ControlViewPtr MakePreviewView(CDrawingPreview& control, FormContext& context);

} // namespace desktop
